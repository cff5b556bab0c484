// Text fields: TextChange on assignment, keys going through KeyDown first, Paste at the
// cursor.

#include <gtest/gtest.h>

#include <optional>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "support/printers.h"

namespace platform {
namespace {

TEST(TextEdit, AssigningTextRaisesTextChangeOnlyOnChangeAndAppendsTellWhereTheyStart) {
  TextArea log("EditField2");
  QStringList seen;
  log.TextChange = [&] { seen.append(log.Text()); };
  log.setText("");
  log.AppendText("one\n");
  EXPECT_EQ(log.appendedFrom(), 0);
  log.AppendText("two\n");
  EXPECT_EQ(log.appendedFrom(), 4);
  EXPECT_EQ(log.SelStart(), 8);
  log.AppendText("");  // nothing to add is no change
  log.setText("one\ntwo\n");
  log.setText("ONE");  // a difference of case is a change
  EXPECT_EQ(log.appendedFrom(), -1);
  EXPECT_EQ(seen, QStringList({"one\n", "one\ntwo\n", "ONE"}));
}

TEST(TextEdit, TypingGoesThroughKeyDownBeforeTheText) {
  const QString kBackspace(QChar(8));
  struct Row {
    const char* name;
    bool area;  // TextArea, else TextField
    QString before;
    QString typed;
    QString swallowed;  // keys KeyDown swallows
    bool readOnly;
    QString after;
    int changes;
  };
  const Row rows[] = {
      {"a swallowed key leaves the text alone", false, "", "1x2", "x", false, "12", 2},
      {"a single-line field takes no line end", false, "a", "\nb", "", false, "ab", 1},
      {"a text area takes the line end", true, "a", "\nb", "", false, "a\nb", 2},
      {"backspace deletes the last character", false, "sin(", kBackspace, "", false, "sin", 1},
      {"a read-only field keeps its text", true, "log", "xy", "", true, "log", 0},
      {"a character outside the basic plane is one key", false, "", QString::fromUtf8("\xF0\x9D\x9C\x8B"),
       "", false, QString::fromUtf8("\xF0\x9D\x9C\x8B"), 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    std::unique_ptr<TextEdit> field;
    if (row.area) {
      field = std::make_unique<TextArea>("TextArea7");
    } else {
      field = std::make_unique<TextField>("A1");
    }
    field->setText(row.before);
    field->setSelStart(0);
    field->setReadOnly(row.readOnly);
    QStringList keys;
    int changes = 0;
    field->KeyDown = [&](const QString& key) {
      keys.append(key);
      return row.swallowed.contains(key);
    };
    field->TextChange = [&] { ++changes; };
    field->userType(row.typed);
    EXPECT_EQ(field->Text(), row.after);
    EXPECT_EQ(changes, row.changes);
    EXPECT_EQ(keys.join(QString()), row.typed) << "every key reaches KeyDown, swallowed or not";
  }
  TextField field("B1");
  QStringList seen;
  field.KeyDown = [&](const QString&) { return seen.append(field.Text()), false; };
  field.userType("12");
  field.setEnabled(false);
  field.userType("3");
  EXPECT_EQ(seen, QStringList({"", "1"})) << "KeyDown sees the text before its key; disabled, none";
  EXPECT_EQ(field.Text(), "12");
}

TEST(TextEdit, PasteInsertsTheClipboardAtTheCursor) {
  struct Row {
    const char* name;
    QString before;
    int selStart;  // -1: as the assignment of the text left it
    int selLength;
    std::optional<QString> clipboard;
    QString after;
    int cursor;
  };
  const Row rows[] = {
      {"over the selection", "2*XX+1", 2, 2, "PI", "2*PI+1", 4},
      {"a clipboard without text changes nothing", "abc", 1, 0, std::nullopt, "abc", 1},
      {"empty clipboard text deletes the selection", "aXc", 1, 1, "", "ac", 1},
      {"a cursor past the end is kept at the end", "ab", 99, 0, "c", "abc", 3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingDesktop desktop;
    Window window(desktop);
    auto& field = window.add<TextArea>({.name = "EditField4", .kind = ControlKind::TextArea});
    field.setText(row.before);
    if (row.selStart >= 0) {
      field.setSelStart(row.selStart);
      field.setSelLength(row.selLength);
    }
    if (row.clipboard) desktop.setClipboardText(*row.clipboard);
    int changes = 0;
    field.TextChange = [&] { ++changes; };
    field.Paste();
    EXPECT_EQ(field.Text(), row.after);
    EXPECT_EQ(field.SelStart(), row.cursor);
    EXPECT_EQ(field.SelLength(), 0);
    EXPECT_EQ(changes, row.after == row.before ? 0 : 1);
  }
  TextArea alone("EditField4");
  EXPECT_THROW(alone.Paste(), NilObjectException) << "Paste needs the window's desktop";
}

}  // namespace
}  // namespace platform
