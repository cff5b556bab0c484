// The preferences line: each setting in its own field, how a line of any shape is read
// back (each change logged under "Initial State:"), and the settings' log lines.

#include <QDir>
#include <functional>

#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

// Power sorts after Length and has more rows, so a conversion index restored before
// its family would not fit.
const char* const kConvertXml =
    "<Table><Category><Name>Power</Name><List><SubList convert=\"*745.7\">hp-&gt;W</SubList>"
    "<SubList convert=\"/745.7\">W-&gt;hp</SubList><SubList convert=\"*1.341\">kW-&gt;hp</SubList>"
    "</List></Category><Category><Name>Length</Name><List>"
    "<SubList convert=\"*1000\">km-&gt;m</SubList><SubList convert=\"/1000\">m-&gt;km</SubList>"
    "</List></Category></Table>";

const QString kDefaultLine = "False,True;True,False;True,False;True,False;True;False;0;0";

class Preferences : public testsupport::AppFixture {
 protected:
  app::Window1& start(const char* preferences = nullptr) {
    QFile::remove(home.path() + "/Preferences/VXKPreferences");
    if (preferences) writeFile("Preferences/VXKPreferences", preferences);
    writeFile("ApplicationData/VXKSupport/convert.txt", kConvertXml);
    return launch();
  }

  // What restoring the preferences logged: the lines between "Initial State:" and the
  // first report on the support files.
  QStringList restoredLines() const {
    const QStringList lines = window->EditField2->Text().split('\n');
    const qsizetype from = lines.indexOf("Initial State:");
    qsizetype to = from + 1;
    while (to < lines.size() && !lines[to].startsWith("Conversion Data")) ++to;
    return lines.mid(from + 1, to - from - 1);
  }

  // The eight settings read from the controls, in the file's form.
  QString settings() const {
    const auto pair = [](bool first) { return QString(first ? "True,False" : "False,True"); };
    // A pair whose partners agree is a fault the file's form cannot show.
    const app::Window1& w = *window;
    EXPECT_TRUE(w.RadioButton1->Value() != w.RadioButton2->Value() &&
                w.RadioButton3->Value() != w.RadioButton4->Value() &&
                w.RadioButton5->Value() != w.RadioButton6->Value() &&
                w.normbutton->Value() != w.scibutton1->Value());
    return QStringList{pair(window->RadioButton1->Value()), pair(window->RadioButton3->Value()),
                       pair(window->RadioButton5->Value()), pair(window->normbutton->Value()),
                       window->CheckBox1->Value() ? "True" : "False",
                       window->CheckBox2->Value() ? "True" : "False",
                       QString::number(window->PopupMenu2->ListIndex()),
                       QString::number(window->popconvert->ListIndex())}
        .join(';');
  }
};

TEST_F(Preferences, SaveWritesEachSettingInItsField) {
  struct Row {
    const char* name;
    std::function<void(app::Window1&)> change;
    QString line;
  };
  const Row rows[] = {
      {"radians: the first field", [](app::Window1& w) { w.RadioButton1->userClick(); },
       "True,False;True,False;True,False;True,False;True;False;0;0"},
      {"base 10: the second", [](app::Window1& w) { w.RadioButton4->userClick(); },
       "False,True;False,True;True,False;True,False;True;False;0;0"},
      {"literal search: the third", [](app::Window1& w) { w.RadioButton6->userClick(); },
       "False,True;True,False;False,True;True,False;True;False;0;0"},
      {"scientific: the fourth", [](app::Window1& w) { w.scibutton1->userClick(); },
       "False,True;True,False;True,False;False,True;True;False;0;0"},
      {"purge pretty off", [](app::Window1& w) { w.CheckBox1->userClick(); },
       "False,True;True,False;True,False;True,False;False;False;0;0"},
      {"use clipboard on", [](app::Window1& w) { w.CheckBox2->userClick(); },
       "False,True;True,False;True,False;True,False;True;True;0;0"},
      {"family and conversion are their row numbers",
       [](app::Window1& w) {
         w.PopupMenu2->setListIndex(1);
         w.popconvert->setListIndex(2);
       },
       "False,True;True,False;True,False;True,False;True;False;1;2"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    row.change(*window);
    window->PushButton42->Push();
    EXPECT_EQ(readFile("Preferences/VXKPreferences"), row.line);
  }
}

TEST_F(Preferences, RestoringReadsLinesOfAnyShape) {
  struct Row {
    const char* name;
    const char* file;  // nullptr: no preferences file
    QStringList lines;
    QString settings;
  };
  const QString radians = "True,False;True,False;True,False;True,False;True;False;0;0";
  const Row rows[] = {
      {"no file leaves the design and logs nothing", nullptr, {}, kDefaultLine},
      {"the default line logs nothing", "False,True;True,False;True,False;True,False;True;False;0;0",
       {}, kDefaultLine},
      {"every setting turned", "True,False;False,True;False,True;False,True;False;True;0;0",
       {"Chose radians", "Chose Base 10 log", "Chose literal search", "Chose Scientific  Math Mode",
        "Purge Pretty Dectivated", "Chose use clipboard for conversions."},
       "True,False;False,True;False,True;False,True;False;True;0;0"},
      {"true in any case reads as on", "true,false;TRUE;true;true;true;true",
       {"Chose radians", "Chose use clipboard for conversions."},
       "True,False;True,False;True,False;True,False;True;True;0;0"},
      {"only the first piece of a pair counts", "True,True;False,False",
       {"Chose radians", "Chose Base 10 log"},
       "True,False;False,True;True,False;True,False;True;False;0;0"},
      {"a field that is not the expected text counts as false", "yes;1;on;;1;x",
       {"Chose Base 10 log", "Chose literal search", "Chose Scientific  Math Mode",
        "Purge Pretty Dectivated"},
       "False,True;False,True;False,True;False,True;False;False;0;0"},
      {"a flag field is compared whole",
       "False,True;True,False;True,False;True,False;True,False", {"Purge Pretty Dectivated"},
       "False,True;True,False;True,False;True,False;False;False;0;0"},
      {"an empty file is one empty field", "", {}, kDefaultLine},
      {"fields beyond the eighth are ignored",
       "True,False;True,False;True,False;True,False;True;False;0;0;False,True;x", {"Chose radians"},
       radians},
      {"a line ending after the line is no part of it", "True,False\r\n", {"Chose radians"}, radians},
      {"only the first line is read", "False,True\nTrue,False", {}, kDefaultLine},
      {"indexes that are no numbers give the first rows",
       "False,True;True,False;True,False;True,False;True;False;abc;", {}, kDefaultLine},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start(row.file);
    EXPECT_EQ(restoredLines(), row.lines);
    EXPECT_EQ(settings(), row.settings);
  }
}

TEST_F(Preferences, RowsThatNoLongerExistLeaveTheListsAndTheStartGoesOn) {
  start();
  const auto selections = [this] {
    return QList<int>{window->PopupMenu2->ListIndex(), window->Listbox1->ListIndex(),
                      window->popconvert->ListIndex(), window->Listbox2->ListIndex()};
  };
  const QList<int> asLoaded = selections();
  for (const char* indexes : {"7;9", "-4;-2", "1e300;99999999999"}) {
    SCOPED_TRACE(indexes);
    start(QByteArray("True,False;True,False;True,False;True,False;True;False;") + indexes);
    EXPECT_EQ(selections(), asLoaded);
    EXPECT_TRUE(window->EditField2->Text().contains("----begin---"));
    EXPECT_EQ(restoredLines(), QStringList{"Chose radians"});
  }
  QFile::remove(home.path() + "/Preferences/VXKPreferences");
  QDir().mkpath(home.path() + "/Preferences/VXKPreferences");
  launch();
  EXPECT_EQ(settings(), kDefaultLine) << "a folder in place of the file is no preferences";
}

TEST_F(Preferences, EachSettingLogsItsChoiceBothWays) {
  start();
  newLogLines();
  window->scibutton1->setValue(true);  // from code as from a click
  window->normbutton->userClick();
  window->normbutton->userClick();  // the choice already made logs nothing
  window->RadioButton4->userClick();
  window->RadioButton3->userClick();
  window->RadioButton1->userClick();
  window->RadioButton2->userClick();
  window->RadioButton6->userClick();
  window->RadioButton5->userClick();
  for (int i = 0; i < 2; ++i) window->CheckBox1->userClick();
  for (int i = 0; i < 2; ++i) window->CheckBox2->userClick();
  EXPECT_EQ(newLogLines(),
            (QStringList{"Chose Scientific  Math Mode", "Chose Normal Math Mode", "Chose Base 10 log",
                         "Chose Base e log", "Chose radians", "Chose degrees", "Chose literal search",
                         "Chose Smart Search", "Purge Pretty Dectivated", "PurgePretty Activated",
                         "Chose use clipboard for conversions.",
                         "Chose do not use clipboard for conversions."}));
}

}  // namespace
