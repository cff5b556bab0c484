// Text fields: TextChange on assignment, keys going through KeyDown first, Paste at the
// cursor.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace platform {
namespace {

TEST(TextEdit, AssigningTextRaisesTextChangeOnlyOnChange) {
  struct Row {
    const char* name;
    QString before;
    QString assigned;
    int changes;
  };
  const Row rows[] = {
      {"a different text", "Solutions(x1,x2):", "1", 1},
      {"the same text", "Solutions(x1,x2):", "Solutions(x1,x2):", 0},
      {"empty over empty", "", "", 0},
      {"a difference of case is a change", "abc", "ABC", 1},
      {"emptying a field", "12", "", 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    TextField field("EditA");
    field.setText(row.before);
    int changes = 0;
    QString seen;
    field.TextChange = [&] {
      ++changes;
      seen = field.Text();
    };
    field.setText(row.assigned);
    EXPECT_EQ(changes, row.changes);
    if (row.changes) {
      EXPECT_EQ(seen, row.assigned) << "the handler sees the new text";
    }
  }
}

TEST(TextEdit, AppendingTellsWhereTheNewPartStarts) {
  TextArea log("EditField2");
  int changes = 0;
  log.TextChange = [&] { ++changes; };
  std::vector<QString> told;
  log.addObserver([&](const QString& property) { told.push_back(property); });

  log.AppendText("one\n");
  EXPECT_EQ(log.appendedFrom(), 0);
  log.AppendText("two\n");
  EXPECT_EQ(log.Text(), "one\ntwo\n");
  EXPECT_EQ(log.appendedFrom(), 4);
  EXPECT_EQ(log.SelStart(), 8);
  log.AppendText("");  // nothing to add is no change
  EXPECT_EQ(changes, 2);

  log.setText("replaced");
  EXPECT_EQ(log.appendedFrom(), -1);
  EXPECT_EQ(changes, 3);
  EXPECT_EQ(std::count(told.begin(), told.end(), QString("Text")), 3);
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
      {"every character is a key and a change", false, "", "12", "", false, "12", 2},
      {"a swallowed key leaves the text alone", false, "", "1x2", "x", false, "12", 2},
      {"typing goes to the end of the field", false, "3+", "4", "", false, "3+4", 1},
      {"a single-line field takes no line end", false, "a", "\nb", "", false, "ab", 1},
      {"a text area takes the line end", true, "a", "\nb", "", false, "a\nb", 2},
      {"backspace deletes the last character", false, "sin(", kBackspace, "", false, "sin", 1},
      {"backspace in an empty field changes nothing", false, "", kBackspace, "", false, "", 0},
      {"a read-only field keeps its text", true, "log", "xy", "", true, "log", 0},
      {"a character outside the basic plane is one key", false, "", QString::fromUtf8("\xF0\x9D\x9C\x8B"), "", false,
       QString::fromUtf8("\xF0\x9D\x9C\x8B"), 1},
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
}

TEST(TextEdit, KeyDownSeesTheTextBeforeTheKeyArrives) {
  TextField field("B1");
  QStringList seen;
  field.KeyDown = [&](const QString&) {
    seen.append(field.Text());
    return false;
  };
  field.userType("12");
  EXPECT_EQ(seen, QStringList({"", "1"}));
}

TEST(TextEdit, ADisabledFieldIgnoresTyping) {
  TextField field("C1");
  field.setEnabled(false);
  bool keyDown = false;
  field.KeyDown = [&](const QString&) { return keyDown = true; };
  field.userType("5");
  EXPECT_FALSE(keyDown);
  EXPECT_EQ(field.Text(), "");
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
    int changes;
  };
  const Row rows[] = {
      {"at the cursor in the middle", "sin()", 4, 0, "PI", "sin(PI)", 6, 1},
      {"over the selection", "2*XX+1", 2, 2, "PI", "2*PI+1", 4, 1},
      {"at the end after an assignment", "3*", -1, 0, "4", "3*4", 3, 1},
      {"at the start", "+1", 0, 0, "x", "x+1", 1, 1},
      {"a clipboard without text changes nothing", "abc", 1, 0, std::nullopt, "abc", 1, 0},
      {"empty clipboard text deletes the selection", "aXc", 1, 1, "", "ac", 1, 1},
      {"a cursor past the end is kept at the end", "ab", 99, 0, "c", "abc", 3, 1},
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
    EXPECT_EQ(changes, row.changes);
  }
}

TEST(TextEdit, PasteNeedsTheWindowsDesktop) {
  TextArea alone("EditField4");
  EXPECT_THROW(alone.Paste(), NilObjectException);
}

}  // namespace
}  // namespace platform
