#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <functional>

#include "support/app_fixture.h"

// Readable failures for Qt's strings.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& lines, std::ostream* out) {
  *out << '{';
  for (const QString& line : lines) *out << " \"" << line.toStdString() << '"';
  *out << " }";
}

namespace {

// Two families, sorted Length before Power; Power has more rows than Length, so a
// conversion index restored before its family would not fit and show.
const char* const kConvertXml =
    "<Table>"
    "<Category><Name>Power</Name><List>"
    "<SubList convert=\"*745.7\">hp-&gt;W</SubList>"
    "<SubList convert=\"/745.7\">W-&gt;hp</SubList>"
    "<SubList convert=\"*1.341\">kW-&gt;hp</SubList>"
    "</List></Category>"
    "<Category><Name>Length</Name><List>"
    "<SubList convert=\"*1000\">km-&gt;m</SubList>"
    "<SubList convert=\"/1000\">m-&gt;km</SubList>"
    "</List></Category>"
    "</Table>";

const QString kDefaultLine = "False,True;True,False;True,False;True,False;True;False;0;0";

class PreferencesTest : public testsupport::AppFixture {
 protected:
  // Past the introduction: with the marker that "Finished" leaves, Window2 steps aside
  // at once. Writing it also makes the preferences folder.
  app::Window1& launchMain() {
    writeFile("Preferences/VXKInstr", "do not show");
    writeFile("ApplicationData/VXKSupport/convert.txt", kConvertXml);
    return launch();
  }

  QString savedLine() { return readFile("Preferences/VXKPreferences"); }

  // The lines of the launch's log between "Initial State:" and the first report on the
  // support files: what restoring the preferences wrote.
  QStringList restoredLines() const {
    const QStringList lines = window->EditField2->Text().split('\n');
    const qsizetype from = lines.indexOf("Initial State:");
    EXPECT_GE(from, 0);
    QStringList between;
    for (qsizetype i = from + 1; i < lines.size(); ++i) {
      if (lines[i].startsWith("Conversion Data")) return between;
      between.append(lines[i]);
    }
    ADD_FAILURE() << "no support line after Initial State:";
    return between;
  }

  // The state of the eight settings, read from the controls in the file's form.
  QString settings() const {
    const auto pair = [](bool first) { return QString(first ? "True,False" : "False,True"); };
    const auto flag = [](bool on) { return QString(on ? "True" : "False"); };
    // A pair whose partners agree is a fault the file's form cannot show.
    EXPECT_NE(window->RadioButton1->Value(), window->RadioButton2->Value());
    EXPECT_NE(window->RadioButton3->Value(), window->RadioButton4->Value());
    EXPECT_NE(window->RadioButton5->Value(), window->RadioButton6->Value());
    EXPECT_NE(window->normbutton->Value(), window->scibutton1->Value());
    return QStringList{pair(window->RadioButton1->Value()), pair(window->RadioButton3->Value()),
                       pair(window->RadioButton5->Value()), pair(window->normbutton->Value()),
                       flag(window->CheckBox1->Value()),    flag(window->CheckBox2->Value()),
                       QString::number(window->PopupMenu2->ListIndex()),
                       QString::number(window->popconvert->ListIndex())}
        .join(';');
  }
};

TEST_F(PreferencesTest, DefaultsSaveAsOneLineWithoutLineEnding) {
  launchMain();
  window->PushButton42->Push();
  EXPECT_EQ(savedLine(), kDefaultLine);
  EXPECT_EQ(newLogLines(), QStringList{"--Preferences Saved"});
}

TEST_F(PreferencesTest, SavingTwiceReplacesTheFile) {
  launchMain();
  window->PushButton42->Push();
  window->PushButton42->Push();
  EXPECT_EQ(savedLine(), kDefaultLine);
  EXPECT_EQ(newLogLines(), (QStringList{"--Preferences Saved", "--Preferences Saved"}));
}

TEST_F(PreferencesTest, SaveWritesEachSettingInItsField) {
  struct Row {
    const char* name;
    std::function<void(app::Window1&)> change;
    QString line;
  };
  const Row rows[] = {
      {"radians make the first field True,False",
       [](app::Window1& w) { w.RadioButton1->userClick(); },
       "True,False;True,False;True,False;True,False;True;False;0;0"},
      {"base 10 makes the second field False,True",
       [](app::Window1& w) { w.RadioButton4->userClick(); },
       "False,True;False,True;True,False;True,False;True;False;0;0"},
      {"literal search makes the third field False,True",
       [](app::Window1& w) { w.RadioButton6->userClick(); },
       "False,True;True,False;False,True;True,False;True;False;0;0"},
      {"scientific makes the fourth field False,True",
       [](app::Window1& w) { w.scibutton1->userClick(); },
       "False,True;True,False;True,False;False,True;True;False;0;0"},
      {"purge pretty off is False",
       [](app::Window1& w) { w.CheckBox1->userClick(); },
       "False,True;True,False;True,False;True,False;False;False;0;0"},
      {"use clipboard on is True",
       [](app::Window1& w) { w.CheckBox2->userClick(); },
       "False,True;True,False;True,False;True,False;True;True;0;0"},
      {"family and conversion are their row numbers",
       [](app::Window1& w) {
         w.PopupMenu2->setListIndex(1);
         w.popconvert->setListIndex(2);
       },
       "False,True;True,False;True,False;True,False;True;False;1;2"},
      {"the choice of unit on the Convert tab is not saved",
       [](app::Window1& w) { w.RadioButton8->userClick(); }, kDefaultLine},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    QFile::remove(home.path() + "/Preferences/VXKPreferences");
    launchMain();
    row.change(*window);
    window->PushButton42->Push();
    EXPECT_EQ(savedLine(), row.line);
    program.reset();
  }
}

TEST_F(PreferencesTest, SavedSettingsComeBackAtTheNextLaunch) {
  launchMain();
  window->RadioButton1->userClick();
  window->scibutton1->userClick();
  window->CheckBox2->userClick();
  window->PopupMenu2->setListIndex(1);
  window->popconvert->setListIndex(2);
  const QString before = settings();
  window->PushButton42->Push();
  program->quit();
  program.reset();

  launch();
  EXPECT_EQ(settings(), before);
}

TEST_F(PreferencesTest, RestoringLogsTheChangedSettingsUnderInitialState) {
  struct Row {
    const char* name;
    const char* file;  // nullptr: no preferences file
    QStringList lines;
    QString settings;
  };
  const Row rows[] = {
      {"no file leaves the design and logs nothing", nullptr, {}, kDefaultLine},
      {"the default line changes nothing and logs nothing",
       "False,True;True,False;True,False;True,False;True;False;0;0", {}, kDefaultLine},
      {"a file of only True,False turns radians on", "True,False", {"Chose radians"},
       "True,False;True,False;True,False;True,False;True;False;0;0"},
      {"every setting turned", "True,False;False,True;False,True;False,True;False;True;0;0",
       {"Chose radians", "Chose Base 10 log", "Chose literal search",
        "Chose Scientific  Math Mode", "Purge Pretty Dectivated",
        "Chose use clipboard for conversions."},
       "True,False;False,True;False,True;False,True;False;True;0;0"},
      {"true in small letters reads as on", "true,false;TRUE;true;true;true;true",
       {"Chose radians", "Chose use clipboard for conversions."},
       "True,False;True,False;True,False;True,False;True;True;0;0"},
      {"only the first piece of a pair counts", "True,True;False,False", {"Chose radians", "Chose Base 10 log"},
       "True,False;False,True;True,False;True,False;True;False;0;0"},
      {"a field that is not the expected text counts as false", "yes;1;on;;1;x",
       {"Chose Base 10 log", "Chose literal search", "Chose Scientific  Math Mode",
        "Purge Pretty Dectivated"},
       "False,True;False,True;False,True;False,True;False;False;0;0"},
      {"a flag field is compared whole, not by its first piece", "False,True;True,False;True,False;True,False;True,False",
       {"Purge Pretty Dectivated"},
       "False,True;True,False;True,False;True,False;False;False;0;0"},
      {"an empty file is one empty field", "", {}, kDefaultLine},
      {"fields beyond the eighth are ignored", "True,False;True,False;True,False;True,False;True;False;0;0;False,True;x",
       {"Chose radians"}, "True,False;True,False;True,False;True,False;True;False;0;0"},
      {"a line ending after the line is no part of it", "True,False\r\n", {"Chose radians"},
       "True,False;True,False;True,False;True,False;True;False;0;0"},
      {"only the first line is read", "False,True\nTrue,False", {}, kDefaultLine},
      {"indexes that are no numbers give the first rows", "False,True;True,False;True,False;True,False;True;False;abc;",
       {}, kDefaultLine},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    QFile::remove(home.path() + "/Preferences/VXKPreferences");
    if (row.file) writeFile("Preferences/VXKPreferences", row.file);
    launchMain();
    EXPECT_EQ(restoredLines(), row.lines);
    EXPECT_EQ(settings(), row.settings);
    program.reset();
  }
}

TEST_F(PreferencesTest, FamilyIsRestoredBeforeItsConversion) {
  // Power sorts after Length; its third row exists only once Power is the family.
  writeFile("Preferences/VXKPreferences",
            "False,True;True,False;True,False;True,False;True;False;1;2");
  launchMain();
  EXPECT_EQ(window->PopupMenu2->Text(), "Power");
  EXPECT_EQ(window->Listbox1->ListIndex(), 1);
  EXPECT_EQ(window->popconvert->ListIndex(), 2);
  EXPECT_EQ(window->popconvert->Text(), "kW->hp");
  EXPECT_EQ(window->Listbox2->ListIndex(), 2);
  EXPECT_EQ(window->Listbox2->Text(), "kW->hp");
}

TEST_F(PreferencesTest, RowsThatNoLongerExistLeaveTheListsAndTheStartGoesOn) {
  struct Row {
    const char* name;
    const char* indexes;
  };
  const Row rows[] = {
      {"past the last row", "7;9"},
      {"below -1", "-4;-2"},
      {"beyond a 32-bit integer", "1e300;99999999999"},
  };
  const auto selections = [this] {
    return QList<int>{window->PopupMenu2->ListIndex(), window->Listbox1->ListIndex(),
                      window->popconvert->ListIndex(), window->Listbox2->ListIndex()};
  };
  launchMain();
  const QList<int> asLoaded = selections();
  program.reset();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    writeFile("Preferences/VXKPreferences",
              QString("True,False;True,False;True,False;True,False;True;False;") + row.indexes);
    launchMain();
    EXPECT_EQ(selections(), asLoaded);
    // The rest of Event_Open still ran.
    EXPECT_TRUE(window->EditField2->Text().contains("----begin---"));
    EXPECT_EQ(restoredLines(), QStringList{"Chose radians"});
    program.reset();
  }
}

TEST_F(PreferencesTest, AFolderInPlaceOfTheFileIsNoPreferences) {
  QDir().mkpath(home.path() + "/Preferences/VXKPreferences");
  launchMain();
  EXPECT_EQ(restoredLines(), QStringList());
  EXPECT_EQ(settings(), kDefaultLine);
}

TEST_F(PreferencesTest, SettingsControlsLogTheirChoice) {
  struct Row {
    const char* name;
    std::function<void(app::Window1&)> act;
    QStringList lines;
  };
  const Row rows[] = {
      {"scientific, then normal",
       [](app::Window1& w) {
         w.scibutton1->userClick();
         w.normbutton->userClick();
       },
       {"Chose Scientific  Math Mode", "Chose Normal Math Mode"}},
      {"base 10, then base e",
       [](app::Window1& w) {
         w.RadioButton4->userClick();
         w.RadioButton3->userClick();
       },
       {"Chose Base 10 log", "Chose Base e log"}},
      {"radians, then degrees",
       [](app::Window1& w) {
         w.RadioButton1->userClick();
         w.RadioButton2->userClick();
       },
       {"Chose radians", "Chose degrees"}},
      {"literal, then smart",
       [](app::Window1& w) {
         w.RadioButton6->userClick();
         w.RadioButton5->userClick();
       },
       {"Chose literal search", "Chose Smart Search"}},
      {"a click on the choice already made logs nothing",
       [](app::Window1& w) { w.normbutton->userClick(); }, {}},
      {"purge pretty off and on again",
       [](app::Window1& w) {
         w.CheckBox1->userClick();
         w.CheckBox1->userClick();
       },
       {"Purge Pretty Dectivated", "PurgePretty Activated"}},
      {"use clipboard on and off again",
       [](app::Window1& w) {
         w.CheckBox2->userClick();
         w.CheckBox2->userClick();
       },
       {"Chose use clipboard for conversions.", "Chose do not use clipboard for conversions."}},
      {"a value set by code logs as a click does",
       [](app::Window1& w) { w.scibutton1->setValue(true); }, {"Chose Scientific  Math Mode"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    launchMain();
    row.act(*window);
    EXPECT_EQ(newLogLines(), row.lines);
    program.reset();
  }
}

}  // namespace
