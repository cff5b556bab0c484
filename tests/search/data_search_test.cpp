// SmartParse and the two searches of the data files, called as the input paths call
// them: EditField1 emptied first, the hits read back from it.

#include "platform/exceptions.h"
#include "platform/strings/strings.h"
#include "platform/xml/xml.h"
#include "search_fixture.h"

namespace {

using platform::Chr;
using searchtest::Records;
using searchtest::SearchFixture;

const QString kTab = Chr(9);

// Records 1 and 3 hold both "electron" and "mass"; 4 and 5 hold "moon".
const Records kPhysical = {
    {"speed of light", "299792458 m/s"},
    {"electron mass", "9.109e-31 kg"},
    {"proton mass", "1.673e-27 kg"},
    {"mass electron volt", "5.11e5 eV"},
    {"radius moon", "1737 km"},
    {"Moons of Mars", "Phobos, Deimos"},
};

class DataSearch : public SearchFixture {
 protected:
  QString physical(const QString& query) {
    window->EditField1->setText(QString());
    window->physical(query);
    return window->EditField1->Text();
  }
  QString astronomical(const QString& query) {
    window->EditField1->setText(QString());
    window->astronomical(query);
    return window->EditField1->Text();
  }
  // The tags of the hits, "(3-1)" and so on, in the order they stand.
  static QStringList tags(const QString& hits) {
    QStringList out;
    for (const QString& line : hits.split('\n')) {
      const int open = line.lastIndexOf(kTab + "(");
      if (open >= 0) out << line.mid(open + 1);
    }
    return out;
  }
};

TEST_F(DataSearch, SmartParseDropsNoiseWords) {
  struct Row {
    const char* name;
    QString phrase;
    QString parsed;
  };
  const Row rows[] = {
      {"leading article and inner noise words", "the radius of the moon", "radius moon"},
      {"a leading pattern takes one word only", "the the moon", "the moon"},
      {"a then two blanks: LTrim takes the blank left over", "a  b", "b"},
      {"an leads", "an electron mass", "electron mass"},
      {"the leading article in capitals", "The Moon", "Moon"},
      {"for and a inside", "speed for a proton", "speed proton"},
      {"a noise word at the end stays", "radius of", "radius of"},
      {"from, with and in stay", "light from sun with dust in space",
       "light from sun with dust in space"},
      {"trailing blanks of menu rows are tidied", "speed light   sound  ", "speed light sound"},
      {"runs of blanks become one", "mass     electron", "mass electron"},
      {"noise words inside words stay", "theory of another", "theory another"},
      {"the empty phrase", "", ""},
      {"a lone noise word and a blank", "the ", ""},
  };
  start(kPhysical, kPhysical);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(window->SmartParse(row.phrase), row.parsed);
  }
}

TEST_F(DataSearch, HitLinesCarryTheQueryOnceAndATagEach) {
  start(kPhysical, kPhysical);
  select("Physical Data", 3);
  EXPECT_EQ(physical("electron mass"),
            "\nelectron mass: 9.109e-31 kg" + kTab + "(3-1)\n" + kTab + ": 5.11e5 eV" + kTab +
                "(3-3)");
}

TEST_F(DataSearch, SmartMatchingFindsEveryWordAnywhere) {
  struct Row {
    const char* name;
    QString query;
    QStringList tags;
  };
  const Row rows[] = {
      {"words in another order", "mass electron", {"(3-1)", "(3-3)"}},
      {"case does not matter", "Mass ELECTRON", {"(3-1)", "(3-3)"}},
      {"part of a word finds the word", "moo", {"(3-4)", "(3-5)"}},
      {"moon finds Moons", "moon", {"(3-4)", "(3-5)"}},
      {"one word missing from the key is no hit", "electron radius", {}},
      {"a word not in the file", "neutrino", {}},
      {"an empty word fails every key", "mass  electron", {}},
      {"the empty phrase finds nothing", "", {}},
  };
  start(kPhysical, kPhysical);
  select("Physical Data", 3);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(tags(physical(row.query)), row.tags);
  }
}

TEST_F(DataSearch, ParsedPhraseFindsWhatItsWordsFind) {
  start(kPhysical, kPhysical);
  select("Physical Data", 3);
  const QString long_ = physical(window->SmartParse("the radius of the moon"));
  const QString short_ = physical("moon radius");
  EXPECT_EQ(tags(long_), QStringList{"(3-4)"});
  EXPECT_EQ(tags(short_), tags(long_));
}

TEST_F(DataSearch, LiteralSearchListsTheWholeFile) {
  start(kPhysical, kPhysical);
  select("Physical Data", 3);
  window->RadioButton6->setValue(true);
  for (const char* query : {"neutrino", "electron mass"}) {
    SCOPED_TRACE(query);
    const QString hits = physical(query);
    EXPECT_EQ(tags(hits), (QStringList{"(3-0)", "(3-1)", "(3-2)", "(3-3)", "(3-4)", "(3-5)"}));
    const QStringList lines = hits.split('\n');
    ASSERT_EQ(lines.size(), 7);
    EXPECT_TRUE(lines[0].isEmpty());
    EXPECT_EQ(lines[1], QString(query) + ": 299792458 m/s" + kTab + "(3-0)");
    for (int i = 2; i < lines.size(); ++i) EXPECT_TRUE(lines[i].startsWith(kTab + ": "));
  }
}

TEST_F(DataSearch, TagIsTheSelectorsValueAndTheIndexCountsEveryRecord) {
  const Records astro = {{"sun", "G2V"}, {"moon", "Luna"}, {"earth", "Terra"}, {"moon of mars", "Phobos"}};
  start(kPhysical, astro);
  select("Astro Data", 4);
  EXPECT_EQ(astronomical("moon"),
            "\nmoon: Luna" + kTab + "(4-1)\n" + kTab + ": Phobos" + kTab + "(4-3)");
  select("Physical Data", 3);
  EXPECT_EQ(tags(physical("proton")), QStringList{"(3-2)"});
}

TEST_F(DataSearch, ValueOfSeveralLinesKeepsItsTagAtTheEnd) {
  writeFile(searchtest::kPhysicalPath,
            "<Data>\r\n<Category><Key>moon</Key><Value>line one\r\nline two\rline three</Value>"
            "</Category>\r\n</Data>\r\n");
  writeAstro(kPhysical);
  startWithFilesAsTheyAre();
  select("Physical Data", 3);
  EXPECT_EQ(physical("moon"), "\nmoon: line one\nline two\nline three" + kTab + "(3-0)");
}

TEST_F(DataSearch, OnlyTheFirstTextOfKeyAndValueCounts) {
  writeFile(searchtest::kPhysicalPath,
            "<Data>"
            "<Category><Key>moon <i>x</i> radius</Key><Value>1737 km</Value></Category>"
            "<Category><Key>sun</Key><Key>moon</Key><Value>first</Value><Value>second</Value>"
            "</Category>"
            "</Data>");
  writeAstro(kPhysical);
  startWithFilesAsTheyAre();
  select("Physical Data", 3);
  // The element inside the first key cuts it after "moon ".
  EXPECT_EQ(tags(physical("radius")), QStringList{});
  EXPECT_EQ(physical("sun"), "\nsun: first" + kTab + "(3-1)");
  EXPECT_EQ(tags(physical("moon")), QStringList{"(3-0)"});
}

TEST_F(DataSearch, EveryCallReadsTheFileAfresh) {
  start(kPhysical, kPhysical);
  select("Physical Data", 3);
  EXPECT_EQ(tags(physical("neutrino")), QStringList{});
  writePhysical({{"neutrino mass", "0.8 eV"}});
  EXPECT_EQ(physical("neutrino"), "\nneutrino: 0.8 eV" + kTab + "(3-0)");
}

TEST_F(DataSearch, FileWithoutCategoryFindsNothing) {
  writeFile(searchtest::kPhysicalPath, "<Data><Other><Key>moon</Key></Other></Data>");
  writeAstro(kPhysical);
  startWithFilesAsTheyAre();
  EXPECT_EQ(physical("moon"), QString());
}

TEST_F(DataSearch, MissingFileSaysSoOnTheClipboardAndInTheLog) {
  struct Row {
    const char* name;
    bool astro;
    QString clipboard;
    QString logLine;
  };
  const Row rows[] = {
      {"physical", false, "Physical Data file is missing. See log at startup.",
       "Physical Data file is missing. See log at startup."},
      {"astronomical writes AstroData in the log", true,
       "Astro Data file is missing. See log at startup.",
       "AstroData file is missing. See log at startup."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    useClaves();
    startWithFilesAsTheyAre();  // no VXKSupport folder at all
    newLogLines();
    desktop.takeEvents();
    const QString hits = row.astro ? astronomical("moon") : physical("moon");
    EXPECT_EQ(hits, QString());
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);
    EXPECT_EQ(newLogLines(), QStringList{row.logLine});
    EXPECT_EQ(desktop.takeEvents(), QStringList{"sound claves"});
  }
}

TEST_F(DataSearch, FileMissingFromAnExistingFolderFailsToOpen) {
  writeAstro(kPhysical);
  startWithFilesAsTheyAre();
  desktop.setClipboardText("before");
  EXPECT_THROW(physical("moon"), platform::NilObjectException);
  EXPECT_EQ(desktop.clipboardText(), "before");
}

TEST_F(DataSearch, BrokenRecordsBreakOffTheSearchKeepingWhatWasFound) {
  struct Row {
    const char* name;
    QString file;
  };
  const Row rows[] = {
      {"a record without Value",
       "<Data><Category><Key>moon</Key><Value>Luna</Value></Category>"
       "<Category><Key>moon mass</Key></Category></Data>"},
      {"a record with an empty Key",
       "<Data><Category><Key>moon</Key><Value>Luna</Value></Category>"
       "<Category><Key/><Value>x</Value></Category></Data>"},
      {"a hit with an empty Value",
       "<Data><Category><Key>moon</Key><Value>Luna</Value></Category>"
       "<Category><Key>moon mass</Key><Value></Value></Category></Data>"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    writeFile(searchtest::kPhysicalPath, row.file);
    writeAstro(kPhysical);
    startWithFilesAsTheyAre();
    select("Physical Data", 3);
    window->EditField1->setText(QString());
    EXPECT_THROW(window->physical("moon"), platform::NilObjectException);
    EXPECT_EQ(window->EditField1->Text(), "\nmoon: Luna" + kTab + "(3-0)");
  }
}

TEST_F(DataSearch, MalformedFileRaisesTheXmlFault) {
  start(kPhysical, kPhysical);
  writeFile(searchtest::kAstroPath, "<Data><Category><Key>moon</Key>");
  EXPECT_THROW(astronomical("moon"), platform::XmlException);
  EXPECT_EQ(window->EditField1->Text(), QString());
}

TEST_F(DataSearch, DeepNestingAndHugeValuesDoNotBringItDown) {
  QString deep;
  for (int i = 0; i < 20000; ++i) deep += "<n>";
  deep += "x";
  for (int i = 0; i < 20000; ++i) deep += "</n>";
  const QString huge(200000, QChar('9'));
  writeFile(searchtest::kPhysicalPath,
            "<Data><Category><Key>deep</Key><Value>" + deep + "</Value></Category>"
            "<Category><Key>huge</Key><Value>" + huge + "</Value></Category></Data>");
  writeAstro(kPhysical);
  startWithFilesAsTheyAre();
  select("Physical Data", 3);
  // The nested value's first child is an element, so its text is empty.
  EXPECT_EQ(physical("deep"), "\ndeep: " + kTab + "(3-0)");
  EXPECT_EQ(physical("huge"), "\nhuge: " + huge + kTab + "(3-1)");
}

}  // namespace
