// The Search tab driven as a user does: word lists built at launch, a click on a
// primary word, the optional words, the Search buttons, results and details.

#include "guidance/contact.h"
#include "platform/strings/strings.h"
#include "search_fixture.h"

namespace {

using platform::Chr;
using searchtest::Records;
using searchtest::SearchFixture;

const QString kTab = Chr(9);

const Records kSpeeds = {
    {"Speed of light", "299792458 m/s"},
    {"speed of sound", "343 m/s"},
    {"mass electron", "9.109e-31 kg"},
};
const Records kAstro = {
    {"moon radius", "1737 km"},
    {"sun", "G2V"},
    {"moon mass", "7.35e22 kg"},
};

class SearchTabs : public SearchFixture {
 protected:
  app::Window1& startPhysical(const Records& physical = kSpeeds) {
    start(physical, kAstro);
    select("Physical Data", 3);
    desktop.takeEvents();
    newLogLines();
    return *window;
  }
};

TEST_F(SearchTabs, CleanReducesKeysToTheirWords) {
  struct Row {
    const char* name;
    QString key;
    QString cleaned;
  };
  const Row rows[] = {
      {"lower case and of", "Speed of Light", "speed light"},
      {"the, from, for and a go", "a ray from the sun for a day", "a ray sun day"},
      {"an stays, unlike in SmartParse", "an apple of an eye", "an apple an eye"},
      {"leading blanks go, trailing ones stay", "  moon ", "moon "},
      {"three and two blanks become one", "moon   radius  km", "moon radius km"},
      {"a noise word at the end stays", "radius of", "radius of"},
  };
  startPhysical();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(window->clean(row.key), row.cleaned);
  }
}

TEST_F(SearchTabs, WordListsAreBuiltFromBothFilesAtLaunch) {
  struct Row {
    const char* name;
    Records keys;
    QStringList primary;
    QStringList table;
  };
  const Row rows[] = {
      {"keys grouped by their first word, case ignored", kSpeeds, {"mass", "speed"},
       {"mass:electron  ;", "speed:light  ;sound  ;"}},
      {"a missing word leaves its blank behind",
       {{"element gold melting point", "1064 C"}, {"element iron", "Fe"}},
       {"element"},
       {"element:gold melting point;iron  ;"}},
      {"a fifth word reaches no entry",
       {{"element gold melting point celsius", "1064"}},
       {"element"},
       {"element:gold melting point;"}},
      {"a key of one word gives two blanks", {{"Avogadro", "6.022e23"}}, {"avogadro"},
       {"avogadro:  ;"}},
      {"noise words go before the sort, a leading article stays",
       {{"the moon radius", "1737 km"}, {"a moon mass", "7.35e22"}, {"moon of mars", "2"}},
       {"a", "moon", "the"},
       {"a:moon mass ;", "moon:mars  ;", "the:moon radius ;"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start(row.keys, kAstro);
    EXPECT_EQ(listRows(*window->Listbox4), row.primary);
    EXPECT_EQ(window->knum3, row.table);
    EXPECT_EQ(listRows(*window->Listbox7), (QStringList{"moon", "sun"}));
    EXPECT_EQ(window->knum4, (QStringList{"moon:mass  ;radius  ;", "sun:  ;"}));
  }
}

TEST_F(SearchTabs, ListsAreNotRebuiltWhenAFileChanges) {
  startPhysical();
  writePhysical({{"neutrino mass", "< 0.8 eV"}});
  window->TabPanel2->setValue(4);
  EXPECT_EQ(listRows(*window->Listbox4), (QStringList{"mass", "speed"}));
}

TEST_F(SearchTabs, BrokenFileAtLaunchIsReportedAndTheWindowOpens) {
  struct Row {
    const char* name;
    QString physical;  // empty: no file
    QString astro;
    QStringList physicalRows;
    QStringList astroRows;
  };
  const QString good = searchtest::dataXml(kSpeeds);
  const QString astro = searchtest::dataXml(kAstro);
  const Row rows[] = {
      {"physical file missing: neither list is built", "", astro, {}, {}},
      {"physical file malformed", "<Data><Category>", astro, {}, {}},
      {"physical file without records", "<Data/>", astro, {}, {}},
      {"astronomical file malformed: the physical list stands", good, "<Data>", {"mass", "speed"},
       {}},
      {"a record without a Key", good, "<Data><Category><Value>x</Value></Category></Data>",
       {"mass", "speed"}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    if (!row.physical.isEmpty()) writeFile(searchtest::kPhysicalPath, row.physical);
    writeFile(searchtest::kAstroPath, row.astro);
    writeFile("Preferences/VXKInstr", "do not show");
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    window = program->window1();
    ASSERT_NE(window, nullptr);
    // convert.txt is missing too and is reported for itself; one report is the lists'.
    QStringList reports =
        desktop.takeEvents().filter("msgbox An unexpected problem occurred and was stopped: ");
    reports.removeIf([](const QString& r) { return r.contains("convert.txt"); });
    EXPECT_EQ(reports.size(), 1) << reports.join("\n").toStdString();
    EXPECT_TRUE(window->EditField2->Text().contains("An unexpected problem occurred"));
    // Event_Open ran all the same.
    EXPECT_TRUE(window->EditField2->Text().contains("----begin---"));
    EXPECT_EQ(window->Width(), 64);
    EXPECT_EQ(listRows(*window->Listbox4), row.physicalRows);
    EXPECT_EQ(listRows(*window->Listbox7), row.astroRows);
    QDir(home.path() + "/ApplicationData").removeRecursively();
  }
}

TEST_F(SearchTabs, PrimaryWordOffersItsOptionalWords) {
  startPhysical();
  window->Listbox4->userChoose(1);
  EXPECT_EQ(window->TextField3->Text(), "speed");
  EXPECT_EQ(listRows(*window->PopupMenu1), (QStringList{"Optional Adds", "light  ", "sound  "}));
  EXPECT_EQ(window->PopupMenu1->ListIndex(), 0);
  // Emptying the menu is no choice: nothing was added to the field, nothing logged.
  EXPECT_EQ(newLogLines(), QStringList{});

  window->Listbox4->userChoose(0);
  EXPECT_EQ(window->TextField3->Text(), "mass");
  EXPECT_EQ(listRows(*window->PopupMenu1), (QStringList{"Optional Adds", "electron  "}));
}

TEST_F(SearchTabs, SingleWordKeyOffersOneBlankRowThatCanBeChosen) {
  startPhysical({{"Avogadro", "6.022e23"}});
  window->Listbox4->userChoose(0);
  EXPECT_EQ(listRows(*window->PopupMenu1), (QStringList{"Optional Adds", "  "}));
  window->PopupMenu1->userChoose(1);
  EXPECT_EQ(window->TextField3->Text(), "avogadro   ");
}

TEST_F(SearchTabs, OptionalWordsWithoutShiftAreAppendedInOrder) {
  startPhysical();
  window->Listbox4->userChoose(1);
  window->PopupMenu1->userChoose(2);
  window->PopupMenu1->userChoose(1);
  EXPECT_EQ(window->TextField3->Text(), "speed sound   light  ");
  // Nothing is searched until the button is pushed.
  EXPECT_EQ(newLogLines(), QStringList{});
  EXPECT_EQ(window->Listbox5->ListCount(), 0);
  // Back on "Optional Adds" nothing happens.
  window->PopupMenu1->userChoose(0);
  EXPECT_EQ(window->TextField3->Text(), "speed sound   light  ");
}

TEST_F(SearchTabs, OptionalWordWithShiftReplacesThePrimaryWordAndSearches) {
  startPhysical();
  window->Listbox4->userChoose(1);
  window->TextArea7->setText("old details");
  desktop.setShiftKey(true);
  window->PopupMenu1->userChoose(1);
  EXPECT_EQ(window->TextField3->Text(), "light  ");
  EXPECT_EQ(newLogLines(),
            (QStringList{"Entered: light  ", "Output:", "light: 299792458 m/s" + kTab + "(3-0)"}));
  EXPECT_EQ(listRows(*window->Listbox5), (QStringList{"", "light: 299792458 m/s" + kTab + "(3-0)"}));
  EXPECT_EQ(window->TextArea7->Text(), QString());
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(SearchTabs, PrimaryWordWithoutItsEntryIsReported) {
  struct Row {
    const char* name;
    bool astro;
  };
  const Row rows[] = {{"physical page notes it in its details", false},
                      {"astronomical page notes it in the Welcome viewer", true}};
  const QString note = "Possible Error\nNo Optional Ads availablePlease Save and Send Log File to\n" +
                       QString(guidance::kSupportMailAddress);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    // A colon in a first word cuts the entry's first field short.
    const Records keys = {{"ratio:mass proton", "1836"}};
    start(keys, keys);
    newLogLines();
    platform::Listbox& list = row.astro ? *window->Listbox7 : *window->Listbox4;
    platform::PopupMenu& menu = row.astro ? *window->PopupMenu3 : *window->PopupMenu1;
    window->TextArea9->setText("astro details");
    window->TextArea8->setText("viewer");
    list.userChoose(0);
    EXPECT_EQ(newLogLines(), QStringList{"### Error in Search no match: ratio:mass and ratio"});
    EXPECT_EQ(listRows(menu), QStringList{"Optional Adds"});
    if (row.astro) {
      EXPECT_EQ(window->TextArea8->Text(), note);
      EXPECT_EQ(window->TextArea9->Text(), "astro details");
      EXPECT_EQ(window->TextField4->Text(), "ratio:mass");
    } else {
      EXPECT_EQ(window->TextArea7->Text(), note);
      EXPECT_EQ(window->TextArea8->Text(), "viewer");
      EXPECT_EQ(window->TextField3->Text(), "ratio:mass");
    }
  }
}

TEST_F(SearchTabs, ResultsOfTwoHitsAreThreeRowsTheFirstEmpty) {
  startPhysical();
  window->TextField3->setText("speed");
  window->PushButton47->Push();
  EXPECT_EQ(listRows(*window->Listbox5),
            (QStringList{"", "speed: 299792458 m/s" + kTab + "(3-0)", ": 343 m/s" + kTab + "(3-1)"}));
  // The clipboard keeps the tab that the list trims away.
  EXPECT_EQ(desktop.clipboardText(),
            "\nspeed: 299792458 m/s" + kTab + "(3-0)\n" + kTab + ": 343 m/s" + kTab + "(3-1)");
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(SearchTabs, DetailsPileUpUntilTheNextSearch) {
  struct Row {
    const char* name;
    QString nextSearch;
  };
  const Row rows[] = {{"a search that finds something", "mass"},
                      {"a search that finds nothing", "neutrino"},
                      {"an empty field, which searches nothing", ""}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    startPhysical();
    window->TextField3->setText("speed");
    window->PushButton47->Push();
    window->Listbox5->userChoose(2);
    window->Listbox5->userChoose(1);
    EXPECT_EQ(window->TextArea7->Text(),
              "\n: 343 m/s" + kTab + "(3-1)\nspeed: 299792458 m/s" + kTab + "(3-0)");
    newLogLines();
    window->TextField3->setText(row.nextSearch);
    window->PushButton47->Push();
    EXPECT_EQ(window->TextArea7->Text(), QString());
  }
}

}  // namespace
