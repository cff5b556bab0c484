// The "Search" tab: a page for each data file, with its primary words, a menu of the
// words that can follow one, a search field, results and details. The two pages are
// twins run by the same code here; the one place where they differ (which field gets
// the failure note of a primary word) is in their page tables below.

#include "app/window1.h"
#include "guidance/contact.h"
#include "platform/desktop/desktop.h"
#include "platform/exceptions.h"
#include "platform/strings/strings.h"
#include "search/data_files.h"

namespace app {

using platform::EndOfLine;
using platform::NthField;

namespace {

// The controls of one page, in the roles they share.
struct Page {
  QStringList& table;
  platform::Listbox& primary;
  platform::PopupMenu& menu;
  platform::TextField& field;
  platform::PushButton& search;
  platform::TextArea& details;
  // Where a primary word without its table entry is reported. The astronomical page
  // writes to the Welcome tab's clipboard viewer, not to its own details: so it has
  // always been, and users' logs are read with that in mind.
  platform::TextArea& failureNote;
};

Page physicalPage(Window1& w) {
  return {w.knum3,         *w.Listbox4,     *w.PopupMenu1, *w.TextField3,
          *w.PushButton47, *w.TextArea7, *w.TextArea7};
}

Page astronomicalPage(Window1& w) {
  return {w.knum4,         *w.Listbox7,     *w.PopupMenu3, *w.TextField4,
          *w.PushButton49, *w.TextArea9, *w.TextArea8};
}

// Words 2 to 4 of a key, each followed by its separator: a missing word leaves its
// blank behind, and the fifth word on is dropped.
QString followers(const QString& key) {
  return NthField(key, " ", 2) + " " + NthField(key, " ", 3) + " " + NthField(key, " ", 4) + ";";
}

// The arrays of the framework fail on an index outside them; so does this.
const QString& entryAt(const QStringList& table, int row) {
  if (row < 0 || row >= table.size()) {
    throw platform::OutOfBoundsException("no table entry for row " + platform::Str(row));
  }
  return table.at(row);
}

}  // namespace

QString Window1::clean(const QString& t) {
  QString s = platform::LTrim(platform::Lowercase(t));
  // Not SmartParse's list: "from" goes here and "an" stays.
  for (const char* noise : {" of ", " the ", " from ", " for ", " a "}) {
    s = platform::ReplaceAll(s, QString::fromLatin1(noise), " ");
  }
  s = platform::ReplaceAll(s, "   ", " ");
  return platform::ReplaceAll(s, "  ", " ");
}

// Nothing here tests or catches: a file that is missing, malformed or without any
// Category breaks the building off, and the window opens with what was built by then.
void Window1::TabPanel2_Open() {
  const auto build = [this](QLatin1StringView file, QStringList& table, platform::Listbox& list) {
    platform::TextInputStream stream = search::dataFile(file).OpenAsTextFile();
    const QString text = stream.ReadAll();
    stream.Close();

    doc = platform::XmlDocument();
    doc->LoadXml(text);
    const platform::XmlNodeList records = doc->Child(0).Xql("Category");

    QStringList keys;
    for (int i = 0; i < records.Length(); ++i) {
      keys.append(clean(search::firstText(records.Item(i), "Key")));
    }
    platform::Sort(keys);

    if (keys.isEmpty()) throw platform::OutOfBoundsException("no keys in " + QString(file));
    QStringList primaries;
    for (const QString& key : keys) {
      const QString word = NthField(key, " ", 1);
      // Keys are sorted, so a group's keys follow one another; the first key always
      // opens a group.
      if (primaries.isEmpty() || !platform::StrEq(word, primaries.last())) {
        primaries.append(word);
        table.append(word + ":" + followers(key));
      } else {
        table.last() += followers(key);
      }
    }
    for (const QString& word : primaries) list.AddRow(word);
  };
  build(search::kPhysicalFile, knum3, *Listbox4);
  build(search::kAstronomicalFile, knum4, *Listbox7);
}

namespace {

bool primaryClicked(Window1& w, const Page& page, int row, int column) {
  const QString cell = page.primary.Cell(row, column);
  page.field.setText(cell);
  const QString entry = entryAt(page.table, row);
  const QString first = NthField(entry, ":", 1);
  if (!platform::StrEq(cell, first)) {
    w.log("### Error in Search no match: " + cell + " and " + first);
    page.failureNote.setText("Possible Error" + EndOfLine() + "No Optional Ads available" +
                             "Please Save and Send Log File to" + EndOfLine() +
                             QString(guidance::kSupportMailAddress));
    return false;
  }
  page.menu.DeleteAllRows();
  page.menu.AddRow("Optional Adds");
  // Split once: a primary word with thousands of keys would otherwise rescan its entry
  // for every row. A row past the words that stand before a second ":" is empty.
  const QStringList adds = platform::Split(NthField(entry, ":", 2), ";");
  const int n = platform::CountFields(entry, ";");
  for (int i = 1; i <= n - 1; ++i) page.menu.AddRow(adds.value(i - 1));
  // Back on "Optional Adds", which the menu's handler leaves alone.
  page.menu.setListIndex(0);
  return false;
}

void optionalChosen(Window1& w, const Page& page) {
  // Row 0 is "Optional Adds". No row at all (-1) is the moment a click on a primary
  // word empties the menu, which is no choice of a word either.
  if (page.menu.ListIndex() < 1) return;
  if (w.desktop().shiftKey()) {
    // Shift puts the optional words in place of the primary word, and searches at once.
    page.field.setText(page.menu.Text());
    page.search.Push();
  } else {
    page.field.setText(page.field.Text() + " " + page.menu.Text());
  }
}

void searchPushed(Window1& w, const Page& page) {
  w.ButtonAct(page.field.Text());
  page.details.setText(QString());
}

// The details show the row as it stands, added under what was there; the row is not
// looked into, and the file is not read again.
bool resultClicked(const Page& page, platform::Listbox& results, int row, int column) {
  page.details.setText(page.details.Text() + EndOfLine() + results.Cell(row, column));
  return false;
}

}  // namespace

bool Window1::Listbox4_CellClick(int row, int column) {
  return primaryClicked(*this, physicalPage(*this), row, column);
}
bool Window1::Listbox7_CellClick(int row, int column) {
  return primaryClicked(*this, astronomicalPage(*this), row, column);
}

void Window1::PopupMenu1_Change() { optionalChosen(*this, physicalPage(*this)); }
void Window1::PopupMenu3_Change() { optionalChosen(*this, astronomicalPage(*this)); }

void Window1::PushButton47_Action() { searchPushed(*this, physicalPage(*this)); }
void Window1::PushButton49_Action() { searchPushed(*this, astronomicalPage(*this)); }

bool Window1::Listbox5_CellClick(int row, int column) {
  return resultClicked(physicalPage(*this), *Listbox5, row, column);
}
bool Window1::Listbox6_CellClick(int row, int column) {
  return resultClicked(astronomicalPage(*this), *Listbox6, row, column);
}

}  // namespace app
