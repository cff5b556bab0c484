#include "platform/qt/display_text.h"

#include <gtest/gtest.h>

namespace {

using platform::qt::applyDisplayEdit;
using platform::qt::displayText;

TEST(DisplayText, EveryLineEndShowsAsOneBreak) {
  struct Row {
    const char* name;
    QString model;
    QString shown;
  } rows[] = {
      {"plain text is shown as it is", "a b", "a b"},
      {"a carriage return is a break", "one\rtwo", "one\ntwo"},
      {"CR LF is one break, not two", "one\r\ntwo", "one\ntwo"},
      {"LF CR is two breaks", "one\n\rtwo", "one\n\ntwo"},
      {"a trailing CR is a trailing break", "end\r", "end\n"},
      {"empty stays empty", "", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(displayText(row.model), row.shown);
  }
}

TEST(DisplayText, AUsersEditKeepsTheModelsLineEndsElsewhere) {
  struct Row {
    const char* name;
    QString model;
    QString edited;  // what the widget holds after the user's edit
    int cursor;      // in the widget
    QString expected;
    int expectedCursor;
  } rows[] = {
      {"typing at the end keeps earlier CRs", "a\rb", "a\nbc", 4, "a\rbc", 4},
      {"typing before a CR LF keeps it whole", "a\r\nb", "ax\nb", 2, "ax\r\nb", 2},
      {"typing after a CR LF counts it as two model characters", "a\r\nb", "a\nxb", 3, "a\r\nxb",
       4},
      {"deleting a break deletes the whole CR LF", "a\r\nb", "ab", 1, "ab", 1},
      {"a new break typed by the user is a LF", "ab\rc", "a\nb\nc", 2, "a\nb\rc", 2},
      {"a text without CR takes the widget's text as it is", "abc", "abxc", 3, "abxc", 3},
      {"replacing everything", "x\ry", "z", 1, "z", 1},
      {"a cursor past the edit lands behind the same model character", "a\r\nb\r\nc", "aX\nb\nc", 6,
       "aX\r\nb\r\nc", 8},
      {"a cursor beyond the text is taken as its end", "a\rb", "a\nbc", 99, "a\rbc", 4},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const auto edit = applyDisplayEdit(row.model, row.edited, row.cursor);
    EXPECT_EQ(edit.text, row.expected);
    EXPECT_EQ(edit.cursor, row.expectedCursor);
    // What the widget shows is what the model now holds.
    EXPECT_EQ(displayText(edit.text), row.edited);
  }
}

}  // namespace
