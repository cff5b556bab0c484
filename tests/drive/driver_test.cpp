// The driver's command language: how lines are read, and which lines it refuses.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTextStream>

#include "driver.h"
#include "platform/files/folders.h"
#include "script_line.h"

namespace {

struct ParseRow {
  const char* name;
  QString line;
  QStringList words;
  QString error;  // a part of the message, or empty
};

TEST(ScriptLine, WordsQuotesAndEscapes) {
  const ParseRow rows[] = {
      {"bare words split at blanks", "set  EditField1.Text   x", {"set", "EditField1.Text", "x"}, ""},
      {"quoted text keeps blanks", R"(drop "2 + 2")", {"drop", "2 + 2"}, ""},
      {"escapes decode", R"(clipboard "a\nb\tc\"d\\e\r")", {"clipboard", "a\nb\tc\"d\\e\r"}, ""},
      {"empty quoted word", R"(drop "")", {"drop", ""}, ""},
      {"unclosed quote", R"(drop "abc)", {}, "not closed"},
      {"unknown escape", R"(drop "a\qb")", {}, "unknown escape"},
      {"backslash at the end", "drop \"a\\", {}, "backslash"},
      {"quote running into a word", R"(drop "a"b)", {}, "runs into"},
  };
  for (const ParseRow& row : rows) {
    SCOPED_TRACE(row.name);
    const drive::ScriptLine parsed = drive::parseScriptLine(row.line);
    if (!row.error.isEmpty()) {
      EXPECT_TRUE(parsed.error.contains(row.error)) << parsed.error.toStdString();
      continue;
    }
    EXPECT_TRUE(parsed.error.isEmpty()) << parsed.error.toStdString();
    QStringList words;
    for (const drive::Word& w : parsed.words) words << w.text;
    EXPECT_EQ(words, row.words);
  }
}

TEST(ScriptLine, QuoteIsTheInverseOfParsing) {
  for (const QString text : {QString("plain"), QString("a \"b\"\n\\c\t\r"), QString()}) {
    const drive::ScriptLine parsed = drive::parseScriptLine("x " + drive::quote(text));
    ASSERT_EQ(parsed.words.size(), 2u);
    EXPECT_EQ(parsed.words[1].text, text);
    EXPECT_TRUE(parsed.words[1].quoted);
  }
}

TEST(ScriptLine, AQuotedStarIsTextNotTheWildcard) {
  const drive::ScriptLine parsed = drive::parseScriptLine(R"(expect log * "*")");
  ASSERT_EQ(parsed.words.size(), 4u);
  EXPECT_FALSE(parsed.words[2].quoted);
  EXPECT_TRUE(parsed.words[3].quoted);
}

class DriverTest : public ::testing::Test {
 protected:
  void SetUp() override {
    platform::SpecialFolder::setHome(home.path());
    platform::SpecialFolder::setResources(qEnvironmentVariable("ABACON_SOURCE_DIR") + "/Resources");
  }
  void TearDown() override { platform::SpecialFolder::clearOverrides(); }

  // Runs the lines; returns the message of the first command that could not run.
  QString runLines(const QStringList& lines) {
    drive::Driver driver(home.path(), out);
    int n = 0;
    try {
      for (const QString& line : lines) driver.run(line, ++n);
    } catch (const drive::CommandError& e) {
      return e.message();
    }
    failures = driver.failures();
    return {};
  }

  QTemporaryDir home;
  QString printed;
  QTextStream out{&printed};
  int failures = 0;
};

TEST_F(DriverTest, CommandsItCannotRunAreRefusedWithAReason) {
  struct Row {
    const char* name;
    QStringList lines;
    QString message;
  };
  const QString skipIntro = R"(write Preferences/VXKInstr "do not show")";
  const Row rows[] = {
      {"unknown command", {"dance"}, "unknown command"},
      {"acting before launch", {"push PushButton1"}, "not running"},
      {"unknown control", {skipIntro, "launch", "get NoSuch.Text"}, "unknown control"},
      {"unknown property", {skipIntro, "launch", "get EditField1.Colour"}, "unknown property"},
      {"property of the wrong class", {skipIntro, "launch", "get PushButton1.ListIndex"},
       "unknown property"},
      {"missing property", {skipIntro, "launch", "get EditField1"}, "NAME.PROPERTY"},
      {"unknown window", {skipIntro, "launch", "get Window3.Width"}, "unknown control"},
      {"push of something not a button", {skipIntro, "launch", "push EditField1"},
       "not a push button"},
      {"typing into a button", {skipIntro, "launch", R"(type PushButton1 "x")"},
       "does not take typing"},
      {"a value the property cannot take", {skipIntro, "launch", "set Timer1.Mode lots"}, ""},
      {"choose with a word", {skipIntro, "launch", "choose BevelButton1 first"}, "whole number"},
      {"bad shift", {"shift sideways"}, "usage"},
      {"path out of the home", {R"(write ../x "y")"}, "under the home"},
      {"launching twice", {skipIntro, "launch", "launch"}, "already running"},
      {"a malformed line", {R"(drop "open)"}, "not closed"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const QString message = runLines(row.lines);
    EXPECT_FALSE(message.isEmpty());
    EXPECT_TRUE(message.contains(row.message)) << message.toStdString();
  }
}

TEST_F(DriverTest, FailedExpectationsAreCountedAndTheRunGoesOn) {
  const QString message = runLines({R"(write Preferences/VXKInstr "do not show")", "launch",
                                    "expect BevelButton1.Caption Other",
                                    "expect BevelButton1.Caption Action",
                                    "expect Window1.wincon 1", "get Window1.wincon"});
  EXPECT_TRUE(message.isEmpty()) << message.toStdString();
  EXPECT_EQ(failures, 2);
  EXPECT_TRUE(printed.contains("FAIL 3: expect BevelButton1.Caption Other got \"Action\""));
  EXPECT_TRUE(printed.contains("FAIL 5: expect Window1.wincon 1 got 0"));
  EXPECT_TRUE(printed.endsWith("Window1.wincon = 0\n"));
}

TEST_F(DriverTest, ExpectLogMatchesWithWildcards) {
  const QString message = runLines({R"(write Preferences/VXKInstr "do not show")", "launch",
                                    R"(expect log * "----begin---")",
                                    R"(set EditField1.Text "1+1")", "push PushButton1",
                                    R"(expect log * "Output:2 " *)", "expect log"});
  EXPECT_TRUE(message.isEmpty()) << message.toStdString();
  EXPECT_EQ(failures, 0) << printed.toStdString();
}

}  // namespace
