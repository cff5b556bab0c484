// The look-up in the two data files. Nothing is kept between searches: every call
// finds the file, reads it whole and parses it afresh, so a file replaced while the
// program runs is searched as it stands now.

#include "app/app.h"
#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/regex/regex.h"
#include "platform/strings/strings.h"
#include "platform/xml/xml.h"
#include "search/data_files.h"

namespace app {

namespace {

// What differs between the two data sets. The tag of a hit line is not here: it is
// read from the selector at the moment of the hit.
struct DataSet {
  QLatin1StringView file;
  QLatin1StringView missingClipboard;
  QLatin1StringView missingLog;  // without the blank of the clipboard text, for astro
};

constexpr DataSet kPhysical{search::kPhysicalFile,
                            QLatin1StringView("Physical Data file is missing. See log at startup."),
                            QLatin1StringView("Physical Data file is missing. See log at startup.")};
constexpr DataSet kAstronomical{search::kAstronomicalFile,
                                QLatin1StringView("Astro Data file is missing. See log at startup."),
                                QLatin1StringView("AstroData file is missing. See log at startup.")};

// One loop for the twins, which differ only in their file and missing-file texts.
void searchDataSet(Window1& w, const DataSet& set, const QString& query) {
  using platform::Chr;
  using platform::EndOfLine;
  using platform::InStr;
  using platform::Str;

  const platform::FolderItem item = search::dataFile(set.file);
  if (item.isNil()) {
    // Only the lookup counts here, never Exists, as at start-up.
    platform::Clipboard clip(w.desktop());
    clip.setText(QString(set.missingClipboard));
    w.log(QString(set.missingLog));
    clip.Close();
    w.app().playClaves();
    return;
  }

  platform::TextInputStream stream = item.OpenAsTextFile();
  const QString text = platform::ReplaceLineEndings(stream.ReadAll(), EndOfLine());
  const platform::XmlDocument document(text);
  const platform::XmlNodeList records = document.Child(0).Xql("Category");

  const bool smart = w.RadioButton5->Value();
  // Split once: the words do not change from record to record.
  const QStringList words = platform::Split(query, " ");
  bool flag = true;
  for (int i = 0; i < records.Length(); ++i) {
    const QString prefix = w.EditField1->Text().isEmpty() ? query : Chr(9);
    const platform::XmlNode record = records.Item(i);
    const QString key = search::firstText(record, "Key");
    if (smart) {
      for (const QString& word : words) {
        if (InStr(key, word) == 0) flag = false;
      }
    }
    // In literal mode flag is never cleared, so every record is a hit: a literal search
    // lists the whole file. That is how the literal setting behaves.
    if (InStr(key, query) != 0 || flag) {
      const QString value =
          platform::ReplaceLineEndings(search::firstText(record, "Value"), EndOfLine());
      // Appended in place: a literal search adds every record of the file.
      w.EditField1->AppendText(EndOfLine() + prefix + ": " + value + Chr(9) + "(" +
                               Str(static_cast<std::int32_t>(w.BevelButton1->MenuValue())) +
                               "-" + Str(static_cast<std::int32_t>(i)) + ")");
    }
    flag = true;
  }
}

}  // namespace

void Window1::physical(const QString& t) { searchDataSet(*this, kPhysical, t); }

void Window1::astronomical(const QString& t) { searchDataSet(*this, kAstronomical, t); }

QString Window1::SmartParse(const QString& t) {
  QString s = t;
  // Each leading pattern takes one word: "the the moon" keeps its second "the".
  for (const char* leading : {"^the ", "^a ", "^an "}) {
    platform::RegEx re;
    re.SearchPattern = QString::fromLatin1(leading);
    re.ReplacementPattern = QString();
    s = re.Replace(s);
  }
  // A noise word needs a blank on both sides, so one that ends the phrase stays.
  for (const char* inner : {" the ", " a ", " an ", " of ", " for "}) {
    s = platform::ReplaceAll(s, QString::fromLatin1(inner), " ");
  }
  for (const char* blanks : {"     ", "    ", "   ", "  "}) {
    s = platform::ReplaceAll(s, QString::fromLatin1(blanks), " ");
  }
  return platform::RTrim(platform::LTrim(s));
}

}  // namespace app
