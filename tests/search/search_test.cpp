// The searches of the data files and the Search tab's word lists, on small files of
// the test's own, where the transcripts do not reach.

#include <utility>
#include <vector>

#include "platform/exceptions.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using Records = std::vector<std::pair<QString, QString>>;

const QString kPhysicalPath = "ApplicationData/VXKSupport/physicaldata.txt";
const QString kAstroPath = "ApplicationData/VXKSupport/AstrDataXML.txt";

// Records 1 and 3 hold both "electron" and "mass"; 4 and 5 hold "moon".
const Records kPhysical = {
    {"speed of light", "299792458 m/s"}, {"electron mass", "9.109e-31 kg"},
    {"proton mass", "1.673e-27 kg"},     {"mass electron volt", "5.11e5 eV"},
    {"radius moon", "1737 km"},          {"Moons of Mars", "Phobos, Deimos"},
};

// A data file as the searches read it: a root element holding Category records.
QString dataXml(const Records& records) {
  QString xml = "<?xml version=\"1.0\"?>\n<Data>\n";
  for (const auto& [key, value] : records) {
    xml += "<Category><Key>" + key + "</Key><Value>" + value + "</Value></Category>\n";
  }
  return xml + "</Data>\n";
}

class Search : public testsupport::AppFixture {
 protected:
  // The files are written before the launch: the word lists are built only then.
  app::Window1& start(const QString& physical, const Records& astro = kPhysical) {
    writeFile(kPhysicalPath, physical);
    writeFile(kAstroPath, dataXml(astro));
    launch();
    window->BevelButton1->setCaption("Physical Data");
    window->BevelButton1->setMenuValue(3);
    return *window;
  }
  app::Window1& start(const Records& physical = kPhysical) { return start(dataXml(physical)); }
  QString physical(const QString& query) {
    window->EditField1->setText(QString());
    window->physical(query);
    return window->EditField1->Text();
  }
  // The tags of the hits, "(3-1)" and so on, in the order they stand.
  static QStringList tags(const QString& hits) {
    QStringList out;
    for (const QString& line : hits.split('\n')) {
      if (line.lastIndexOf("\t(") >= 0) out << line.mid(line.lastIndexOf("\t(") + 1);
    }
    return out;
  }
};

TEST_F(Search, SmartParseDropsNoiseWords) {
  struct Row {
    const char* name;
    QString phrase;
    QString parsed;
  };
  const Row rows[] = {
      {"a leading pattern takes one word only", "the the moon", "the moon"},
      {"a then two blanks: LTrim takes the blank left over", "a  b", "b"},
      {"an leads", "an electron mass", "electron mass"},
      {"the leading article in capitals", "The Moon", "Moon"},
      {"for and a inside", "speed for a proton", "speed proton"},
      {"a noise word at the end stays", "radius of", "radius of"},
      {"from, with and in stay", "light from sun with dust in space",
       "light from sun with dust in space"},
      {"trailing blanks of menu rows are tidied", "speed light   sound  ", "speed light sound"},
      {"noise words inside words stay", "theory of another", "theory another"},
      {"a lone noise word and a blank", "the ", ""},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(window->SmartParse(row.phrase), row.parsed);
  }
}

TEST_F(Search, EveryWordAnywhereOrInLiteralModeEveryRecord) {
  struct Row {
    const char* name;
    QString query;
    QStringList tags;
    bool literal = false;
  };
  const QStringList all = {"(3-0)", "(3-1)", "(3-2)", "(3-3)", "(3-4)", "(3-5)"};
  const Row rows[] = {
      {"words in another order", "mass electron", {"(3-1)", "(3-3)"}},
      {"part of a word finds the word", "moo", {"(3-4)", "(3-5)"}},
      {"one word missing from the key is no hit", "electron radius", {}},
      {"an empty word fails every key", "mass  electron", {}},
      {"the empty phrase finds nothing", "", {}},
      {"literal search lists the whole file, found or not", "neutrino", all, true},
      {"literal search of a phrase that would be found", "electron mass", all, true},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->RadioButton6->setValue(row.literal);
    window->RadioButton5->setValue(!row.literal);
    EXPECT_EQ(tags(physical(row.query)), row.tags);
  }
}

TEST_F(Search, TheTagIsTheSelectorsValueAndTheIndexCountsEveryRecord) {
  start(dataXml(kPhysical), {{"sun", "G2V"}, {"moon", "Luna"}, {"earth", "Terra"}, {"moon of mars", "Phobos"}});
  window->BevelButton1->setMenuValue(4);
  window->EditField1->setText(QString());
  window->astronomical("moon");
  EXPECT_EQ(window->EditField1->Text(), "\nmoon: Luna\t(4-1)\n\t: Phobos\t(4-3)");
}

TEST_F(Search, OnlyTheFirstTextOfKeyAndValueCounts) {
  start("<Data><Category><Key>moon <i>x</i> radius</Key><Value>1737 km</Value></Category>"
        "<Category><Key>sun</Key><Key>moon</Key><Value>first</Value><Value>second</Value>"
        "</Category></Data>");
  // The element inside the first key cuts it after "moon ".
  EXPECT_EQ(tags(physical("radius")), QStringList{});
  EXPECT_EQ(physical("sun"), "\nsun: first\t(3-1)");
  EXPECT_EQ(tags(physical("moon")), QStringList{"(3-0)"});
}

TEST_F(Search, EveryCallReadsTheFileAfresh) {
  start();
  EXPECT_EQ(physical("neutrino"), QString());
  writeFile(kPhysicalPath, dataXml({{"neutrino mass", "0.8 eV"}}));
  EXPECT_EQ(physical("neutrino"), "\nneutrino: 0.8 eV\t(3-0)");
  writeFile(kPhysicalPath, "<Data><Other><Key>neutrino</Key></Other></Data>");
  EXPECT_EQ(physical("neutrino"), QString()) << "a file without Category finds nothing";
  QFile::remove(home.path() + "/" + kPhysicalPath);
  desktop.setClipboardText("before");
  EXPECT_THROW(physical("neutrino"), platform::NilObjectException)
      << "a file missing from an existing folder fails to open";
  EXPECT_EQ(desktop.clipboardText(), "before");
}

TEST_F(Search, BrokenRecordsBreakOffTheSearchKeepingWhatWasFound) {
  for (const char* broken : {"<Category><Key/><Value>x</Value></Category>",
                             "<Category><Key>moon mass</Key><Value></Value></Category>"}) {
    SCOPED_TRACE(broken);
    start("<Data><Category><Key>moon</Key><Value>Luna</Value></Category>" + QString(broken) +
          "</Data>");
    EXPECT_THROW(physical("moon"), platform::NilObjectException);
    EXPECT_EQ(window->EditField1->Text(), "\nmoon: Luna\t(3-0)");
  }
}

TEST_F(Search, CleanReducesKeysToTheirWords) {
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
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(window->clean(row.key), row.cleaned);
  }
}

TEST_F(Search, WordListsAreBuiltOnceAtLaunch) {
  struct Row {
    const char* name;
    Records keys;
    QString primary;
    QStringList table;
  };
  const Row rows[] = {
      {"a missing word leaves its blank behind",
       {{"element gold melting point", "1064 C"}, {"element iron", "Fe"}}, "element",
       {"element:gold melting point;iron  ;"}},
      {"a fifth word reaches no entry", {{"element gold melting point celsius", "1064"}},
       "element", {"element:gold melting point;"}},
      {"a key of one word gives two blanks", {{"Avogadro", "6.022e23"}}, "avogadro",
       {"avogadro:  ;"}},
      {"noise words go before the sort, a leading article stays",
       {{"the moon radius", "1737 km"}, {"a moon mass", "7.35e22"}, {"moon of mars", "2"}},
       "a\nmoon\nthe", {"a:moon mass ;", "moon:mars  ;", "the:moon radius ;"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start(row.keys);
    EXPECT_EQ(window->Listbox4->RowsText(), row.primary);
    EXPECT_EQ(window->knum3, row.table);
  }
  writeFile(kPhysicalPath, dataXml({{"neutrino mass", "< 0.8 eV"}}));
  window->TabPanel2->setValue(4);
  EXPECT_EQ(window->Listbox4->RowsText(), "a\nmoon\nthe") << "not rebuilt when a file changes";
}

TEST_F(Search, ABrokenPhysicalFileAtLaunchIsReportedAndLeavesBothListsEmpty) {
  writeFile("ApplicationData/VXKSupport/convert.txt",
            "<T><Category><Name>A</Name><List><SubList>a-&gt;b</SubList></List></Category></T>");
  writeFile(kAstroPath, dataXml(kPhysical));
  writeFile("Preferences/VXKInstr", "do not show");
  for (const char* physical : {"<Data><Category>", "<Data/>",
                               "<Data><Category><Value>x</Value></Category></Data>"}) {
    SCOPED_TRACE(physical);
    writeFile(kPhysicalPath, physical);
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    window = program->window1();
    const QStringList reports =
        desktop.takeEvents().filter("msgbox An unexpected problem occurred and was stopped: ");
    EXPECT_EQ(reports.size(), 1) << reports.join(" | ").toStdString();
    EXPECT_TRUE(window->EditField2->Text().contains("----begin---")) << "Event_Open ran all the same";
    EXPECT_EQ(window->Listbox4->ListCount(), 0);
    EXPECT_EQ(window->Listbox7->ListCount(), 0);
  }
}

TEST_F(Search, ASingleWordKeyOffersOneBlankRowAndOptionalAddsDoesNothing) {
  start(Records{{"Avogadro", "6.022e23"}});
  window->Listbox4->userChoose(0);
  EXPECT_EQ(window->PopupMenu1->RowsText(), "Optional Adds\n  ");
  window->PopupMenu1->userChoose(1);
  EXPECT_EQ(window->TextField3->Text(), "avogadro   ");
  window->PopupMenu1->userChoose(0);
  EXPECT_EQ(window->TextField3->Text(), "avogadro   ");
}

}  // namespace
