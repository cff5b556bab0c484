#pragma once
// Reading the shipped support files the way the program reads them: the XML reader
// with the program's own queries, the formula runner's three-line script, and the
// smart search and menu building of the search tabs, written out here from their
// rules because the search code itself is not this suite's subject.

#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "platform/script/rbscript.h"
#include "platform/strings/strings.h"
#include "platform/xml/xml.h"

namespace datatest {

inline QString supportDir() {
  const QByteArray root = qgetenv("ABACON_SOURCE_DIR");
  if (!root.isEmpty()) return QString::fromLocal8Bit(root) + QStringLiteral("/support/VXKSupport");
  // Run by hand, outside CTest: the files lie two folders above this one.
  return QFileInfo(QStringLiteral(__FILE__)).absolutePath() +
         QStringLiteral("/../../support/VXKSupport");
}

inline QByteArray readBytes(const QString& name) {
  QFile file(supportDir() + QLatin1Char('/') + name);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll();
}

inline QString readText(const QString& name) { return QString::fromUtf8(readBytes(name)); }

// One row of the conversion table as the reader of convert.txt sees it.
struct Row {
  QString category;
  QString name;
  QString value;
};

struct Category {
  QString name;
  std::vector<Row> rows;
};

// Category, Name and List/SubList relative to the document's first child, as the load
// of the table runs them. A Category without Name makes Value() throw, as it must.
inline std::vector<Category> loadTable() {
  platform::XmlDocument doc(readText(QStringLiteral("convert.txt")));
  const platform::XmlNode root = doc.Child(0);
  const platform::XmlNodeList categories = root.Xql(QStringLiteral("Category"));
  std::vector<Category> table;
  for (int i = 0; i < categories.Length(); ++i) {
    const platform::XmlNode node = categories.Item(i);
    Category category;
    category.name = node.Xql(QStringLiteral("Name")).Item(0).Child(0).Value();
    const platform::XmlNodeList rows = node.Xql(QStringLiteral("List/SubList"));
    for (int j = 0; j < rows.Length(); ++j) {
      const platform::XmlNode row = rows.Item(j);
      Row r;
      r.category = category.name;
      r.name = row.Child(0).Value();
      r.value = row.GetAttribute(QStringLiteral("convert"));
      category.rows.push_back(r);
    }
    table.push_back(category);
  }
  return table;
}

// A record of a data file: Key and Value of the first of each, their first child's text.
struct Record {
  int index = 0;
  QString key;
  QString value;
};

inline std::vector<Record> loadRecords(const QString& file) {
  platform::XmlDocument doc(readText(file));
  const platform::XmlNodeList categories = doc.Child(0).Xql(QStringLiteral("Category"));
  std::vector<Record> records;
  for (int i = 0; i < categories.Length(); ++i) {
    const platform::XmlNode node = categories.Item(i);
    records.push_back({i, node.Xql(QStringLiteral("Key")).Item(0).Child(0).Value(),
                       node.Xql(QStringLiteral("Value")).Item(0).Child(0).Value()});
  }
  return records;
}

// Noise words out of a phrase, in the order the smart search takes them out.
inline QString smartParse(QString phrase) {
  for (const char* lead : {"the ", "a ", "an "}) {
    if (phrase.startsWith(QLatin1String(lead), Qt::CaseInsensitive))
      phrase = phrase.mid(static_cast<int>(qstrlen(lead)));
  }
  for (const char* word : {" the ", " a ", " an ", " of ", " for "})
    phrase = platform::ReplaceAll(phrase, QLatin1String(word), QStringLiteral(" "));
  for (const char* blanks : {"     ", "    ", "   ", "  "})
    phrase = platform::ReplaceAll(phrase, QLatin1String(blanks), QStringLiteral(" "));
  return platform::RTrim(platform::LTrim(phrase));
}

// Smart search: a record is a hit when every word of the cleaned phrase occurs in its
// key, case ignored, in any order and as part of a word.
inline std::vector<Record> smartSearch(const std::vector<Record>& records, const QString& phrase) {
  const QString query = smartParse(phrase);
  const QStringList words = platform::Split(query, QStringLiteral(" "));
  std::vector<Record> hits;
  for (const Record& record : records) {
    bool all = true;
    for (const QString& word : words)
      if (platform::InStr(record.key, word) == 0) all = false;
    if (all || platform::InStr(record.key, query) != 0) hits.push_back(record);
  }
  return hits;
}

// The menu builder's reduction of a key.
inline QString clean(const QString& key) {
  QString k = platform::LTrim(platform::Lowercase(key));
  for (const char* word : {" of ", " the ", " from ", " for ", " a "})
    k = platform::ReplaceAll(k, QLatin1String(word), QStringLiteral(" "));
  k = platform::ReplaceAll(k, QStringLiteral("   "), QStringLiteral(" "));
  return platform::ReplaceAll(k, QStringLiteral("  "), QStringLiteral(" "));
}

// Primary words and their menu rows (words 2 to 4), as the search tab builds them.
struct Menu {
  QString primary;
  QStringList rows;
};

inline std::vector<Menu> buildMenus(const std::vector<Record>& records) {
  QStringList keys;
  for (const Record& r : records) keys << clean(r.key);
  platform::Sort(keys);
  std::vector<Menu> menus;
  for (const QString& key : keys) {
    const QString first = platform::NthField(key, QStringLiteral(" "), 1);
    const QString row = platform::NthField(key, QStringLiteral(" "), 2) + QLatin1Char(' ') +
                        platform::NthField(key, QStringLiteral(" "), 3) + QLatin1Char(' ') +
                        platform::NthField(key, QStringLiteral(" "), 4);
    if (menus.empty() || !platform::StrEq(menus.back().primary, first)) menus.push_back({first, {}});
    menus.back().rows << row;
  }
  return menus;
}

// The formula runner's script around one formula, Normal or Scientific output.
class Runner : public platform::RbScript {
 public:
  QStringList printed;
  QList<int> compileErrors;
  int runtimeErrors = 0;

 protected:
  void Print(const QString& msg) override { printed << msg; }
  void CompilerError(int, int number, const QString&) override { compileErrors << number; }
  void RuntimeError(int, const platform::ScriptException&) override { ++runtimeErrors; }
};

inline const QString kScientificMask = QStringLiteral("\"0.0#############e+##\"");

// The printed answer, or nothing when the formula did not compile or run.
inline std::optional<QString> runFormula(const QString& formula, bool scientific = false) {
  Runner runner;
  runner.Reset();
  runner.Source = QStringLiteral("Dim x As double\nx = ") + formula +
                  (scientific ? QStringLiteral("\nprint Format(x,") + kScientificMask + QLatin1Char(')')
                              : QStringLiteral("\nprint Str(x)"));
  runner.Run();
  if (!runner.compileErrors.isEmpty() || runner.runtimeErrors != 0 || runner.printed.size() != 1)
    return std::nullopt;
  return runner.printed.front();
}

}  // namespace datatest
