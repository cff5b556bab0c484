// Data files the program does not write and cannot trust: binary, 50 MB large,
// nested 100 000 levels deep, a conversion table of 100 000 rows. Each is survived
// with the message the program documents for it or with the report of its handler of
// unhandled exceptions, in bounded time, and the program answers afterwards.

#include <random>

#include "platform/strings/strings.h"
#include "reliability_support.h"

namespace {

using reliability::HangGuard;
using reliability::kReportPrefix;
using reliability::ReliabilityFixture;
using namespace std::chrono_literals;

const QString kPhysical = QStringLiteral("physicaldata.txt");
const QString kAstro = QStringLiteral("AstrDataXML.txt");
const QString kConvert = QStringLiteral("convert.txt");
const QString kXmlError = QStringLiteral("msgbox Error in reading XML file in Application Data");
constexpr int kDepth = 100000;

QByteArray randomBytes(int size) {
  std::mt19937 random(42);
  QByteArray bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xff);
  return bytes;
}

QByteArray repeated(const QByteArray& piece, int times) {
  QByteArray out;
  out.reserve(piece.size() * times);
  for (int i = 0; i < times; ++i) out += piece;
  return out;
}

class HostileDataFile : public ReliabilityFixture {
 protected:
  void putSupportFile(const QString& name, const QByteArray& bytes) {
    const QString path = home.path() + "/ApplicationData/VXKSupport/" + name;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }

  // A search of `query` dropped under the caption of the data set (3 physical, 4 astro).
  void dropSearch(int selectorEntry, const QString& query) {
    asUser([&] { window->BevelButton1->userChoose(selectorEntry); });
    newLogLines();
    desktop.takeEvents();
    desktop.setClipboardText("before");
    dropAsUser(query);
  }
};

// ---- binary ---------------------------------------------------------------------

TEST_F(HostileDataFile, BinaryDataFileIsReportedAtStartAndAtEachSearch) {
  struct Case {
    const char* name;
    QString file;
    int selectorEntry;
  };
  const Case cases[] = {{"physical data", kPhysical, 3}, {"astronomical data", kAstro, 4}};
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    installSupportFiles();
    putSupportFile(row.file, randomBytes(2 * 1024 * 1024));
    launchKeepingEvents();
    // The word lists of the search tab are built at start and break off at the file.
    EXPECT_EQ(reports(startEvents).size(), 1) << startEvents.join(" | ").toStdString();

    dropSearch(row.selectorEntry, "moon");
    const QStringList events = desktop.takeEvents();
    ASSERT_EQ(reports(events).size(), 1) << events.join(" | ").toStdString();
    EXPECT_TRUE(reports(events).first().startsWith(kReportPrefix + "XmlException: "));
    const QStringList added = newLogLines();
    EXPECT_EQ(added, QStringList({"Entered: moon", reports(events).first()}));
    EXPECT_EQ(desktop.clipboardText(), "before");
    expectStillCalculates();
    program->quit();
  }
}

TEST_F(HostileDataFile, BinaryConversionTableGivesItsMessageAndEmptyLists) {
  installSupportFiles();
  putSupportFile(kConvert, randomBytes(2 * 1024 * 1024));
  launchKeepingEvents();
  EXPECT_EQ(startEvents, QStringList{kXmlError});
  EXPECT_EQ(window->iload, 0);
  EXPECT_TRUE(window->choices.isEmpty());
  EXPECT_EQ(window->popconvert->ListCount(), 0);
  expectStillCalculates();
}

// ---- nested 100 000 levels deep -------------------------------------------------

TEST_F(HostileDataFile, DeeplyNestedDataFilesAreReadOrReported) {
  const QByteArray open = repeated("<a>", kDepth), close = repeated("</a>", kDepth);
  struct Case {
    const char* name;
    QByteArray text;
    int startReports;
    QStringList searchLog;  // after "Entered: deep"; a report stands as kReportPrefix
    QString clipboard;
  };
  const QString notFound = "Error: Search Term not found\nTry words in a different order or use a "
                           "single word or part of a word";
  const Case cases[] = {
      // The value's first child is an element, whose own value is empty text.
      {"value nested deep",
       "<D><Category><Key>deep</Key><Value>" + open + "x" + close + "</Value></Category></D>", 0,
       {"Output:", "deep: \t(3-0)"}, "\ndeep: \t(3-0)"},
      {"records nested in records",
       "<D>" + repeated("<Category><Key>deep</Key><Value>v</Value>", kDepth) +
           repeated("</Category>", kDepth) + "</D>",
       0, {"Output:", "deep: v\t(3-0)"}, "\ndeep: v\t(3-0)"},
      // No Category at all: no word lists (reported at start), nothing found.
      {"root nested deep without records", open + close, 1, notFound.split('\n'), "before"},
      {"never closed", "<D>" + open, 1, {kReportPrefix}, "before"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    HangGuard guard(row.name, 120s);
    installSupportFiles();
    putSupportFile(kPhysical, row.text);
    launchKeepingEvents();
    EXPECT_EQ(reports(startEvents).size(), row.startReports) << startEvents.join(" | ").toStdString();

    dropSearch(3, "deep");
    const QStringList added = newLogLines();
    ASSERT_FALSE(added.isEmpty());
    EXPECT_EQ(added.first(), "Entered: deep");
    const QStringList rest = added.mid(1);
    ASSERT_EQ(rest.size(), row.searchLog.size()) << added.join(" | ").toStdString();
    for (int i = 0; i < rest.size(); ++i) EXPECT_TRUE(rest[i].startsWith(row.searchLog[i]));
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);
    expectStillCalculates();
    program->quit();
  }
}

TEST_F(HostileDataFile, DeeplyNestedConversionTableIsReportedAndLeavesTheListsEmpty) {
  const QByteArray open = repeated("<a>", kDepth), close = repeated("</a>", kDepth);
  struct Case {
    const char* name;
    QByteArray text;
    bool xmlMessage;  // the table's own message rather than a report
  };
  const Case cases[] = {
      // Well formed, but without a category: selecting the first row of an empty list
      // is the platform's fault.
      {"nested without categories", open + close, false},
      {"never closed", "<T>" + open, true},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    HangGuard guard(row.name, 120s);
    installSupportFiles();
    putSupportFile(kConvert, row.text);
    launchKeepingEvents();
    if (row.xmlMessage) {
      EXPECT_EQ(startEvents, QStringList{kXmlError});
    } else {
      EXPECT_EQ(reports(startEvents).size(), 1) << startEvents.join(" | ").toStdString();
    }
    EXPECT_EQ(window->iload, 0);
    EXPECT_EQ(window->popconvert->ListCount(), 0);
    expectStillCalculates();
    program->quit();
  }
}

// ---- 50 MB ----------------------------------------------------------------------

// Records under ten primary words, as the real files group theirs, until the text
// passes 50 MB. Record n has the key "<word n%10> w<n> x<n%97> y<n%13>".
QByteArray fiftyMegabytes(int* records) {
  static const char* const primaries[] = {"element", "star",   "galaxy", "comet", "asteroid",
                                          "isotope", "planet", "moon",   "constant", "fuel"};
  QByteArray text = "<PhysicalData>\n";
  text.reserve(51 * 1024 * 1024);
  int n = 0;
  while (text.size() < 50 * 1024 * 1024) {
    text += "<Category><Key>" + QByteArray(primaries[n % 10]) + " w" + QByteArray::number(n) +
            " x" + QByteArray::number(n % 97) + " y" + QByteArray::number(n % 13) +
            "</Key><Value>value number " + QByteArray::number(n) +
            " of the big file, with some text to fill it up</Value></Category>\n";
    ++n;
  }
  text += "</PhysicalData>\n";
  *records = n;
  return text;
}

TEST_F(HostileDataFile, FiftyMegabyteDataFileIsSearchedWholeInBoundedTime) {
  int records = 0;
  installSupportFiles();
  putSupportFile(kPhysical, fiftyMegabytes(&records));
  {
    HangGuard guard("start with a 50 MB data file", 300s);
    launchKeepingEvents();
  }
  EXPECT_TRUE(reports(startEvents).isEmpty()) << startEvents.join(" | ").toStdString();
  EXPECT_EQ(rowTexts(*window->Listbox4),
            QStringList({"asteroid", "comet", "constant", "element", "fuel", "galaxy", "isotope",
                         "moon", "planet", "star"}));

  {
    SCOPED_TRACE("a dropped smart search finds its one record");
    HangGuard guard("smart search of 50 MB", 300s);
    dropSearch(3, "the w123450 of element");
    EXPECT_EQ(desktop.clipboardText(),
              "\nw123450 element: value number 123450 of the big file, with some text to fill "
              "it up\t(3-123450)");
    EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
  }
  {
    SCOPED_TRACE("a primary word offers every key that follows it");
    HangGuard guard("primary word of 50 MB", 300s);
    asUser([&] { window->Listbox4->userChoose(3); });
    EXPECT_EQ(window->TextField3->Text(), "element");
    EXPECT_EQ(window->PopupMenu1->ListCount(), 1 + (records + 9) / 10);
  }
  {
    SCOPED_TRACE("a literal search from the Search tab lists every record");
    HangGuard guard("literal search of 50 MB", 300s);
    asUser([&] { window->RadioButton6->userClick(); });
    asUser([&] { window->TextField3->setText("anything"); });
    asUser([&] { window->PushButton47->userClick(); });
    EXPECT_EQ(window->Listbox5->ListCount(), records + 1);
    EXPECT_EQ(window->Listbox5->Cell(records, 0), ": value number " + QString::number(records - 1) +
                                                      " of the big file, with some text to fill "
                                                      "it up\t(3-" + QString::number(records - 1) + ")");
  }
  expectStillCalculates();
}

// ---- a conversion table of 100 000 rows -----------------------------------------

QByteArray conversionTable(int categories, int rowsEach) {
  QByteArray text = "<Table>";
  for (int c = 0; c < categories; ++c) {
    text += "<Category><Name>Family" + QByteArray::number(c) + "</Name><List>";
    for (int r = 0; r < rowsEach; ++r) {
      text += "<SubList convert=\"*" + QByteArray::number(r + 1) + "\">u" + QByteArray::number(r) +
              "->v</SubList>";
    }
    text += "</List></Category>";
  }
  return text + "</Table>";
}

TEST_F(HostileDataFile, ConversionTableOfHundredThousandRowsLoads) {
  struct Case {
    const char* name;
    int categories;
    int rowsEach;
  };
  const Case cases[] = {
      {"one category of 100 000 rows", 1, 100000},
      {"1000 categories of 100 rows", 1000, 100},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    HangGuard guard(row.name, 300s);
    installSupportFiles();
    putSupportFile(kConvert, conversionTable(row.categories, row.rowsEach));
    launchKeepingEvents();
    EXPECT_TRUE(startEvents.isEmpty()) << startEvents.join(" | ").toStdString();
    EXPECT_EQ(window->iload, 1);
    EXPECT_EQ(window->PopupMenu2->ListCount(), row.categories);
    EXPECT_EQ(window->popconvert->ListCount(), row.rowsEach);
    EXPECT_EQ(window->Listbox2->ListCount(), row.rowsEach);
    EXPECT_EQ(window->convertit, "*1");

    asUser([&] { window->popconvert->userChoose(row.rowsEach - 1); });
    EXPECT_EQ(window->convertit, "*" + QString::number(row.rowsEach));
    expectStillCalculates();
    program->quit();
  }
}

}  // namespace
