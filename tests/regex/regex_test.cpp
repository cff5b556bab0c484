#include "platform/regex/regex.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "support/printers.h"

namespace platform {
namespace {

// The factorial stage: search the formula once, then keep calling Search() while
// rewriting a copy of the text; "N!" becomes "fN" here to keep the test free of fact.
TEST(RegExSearch, SearchWithoutTargetGoesOnInTheFirstText) {
  struct Row {
    const char* name;
    QString formula;
    QStringList matches;
    QString rewritten;
  };
  const Row rows[] = {
      {"5!+15!: the rewrite of 5! spoils 15!, which is still matched in the first text",
       "5!+15!", {"5!", "15!"}, "f5+1f5"},
      {"a rewrite that shortens the text does not shift the next match", "100!*3!",
       {"100!", "3!"}, "f100*f3"},
      {"2.5! sees only the digits before the mark", "2.5!", {"5!"}, "2.f5"},
      {"a parenthesised factorial is not touched", "(2+3)!", {}, "(2+3)!"},
      {"digits of another script are not \\d", QString::fromUtf8("\u0663!"), {},
       QString::fromUtf8("\u0663!")},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RegEx re;
    re.SearchPattern = "\\d+!";
    QString text = row.formula;
    QStringList seen;
    std::optional<RegExMatch> match = re.Search(text);
    while (match && seen.size() < 10) {
      const QString found = match->SubExpressionString(0);
      seen << found;
      text.replace(found, "f" + found.chopped(1));
      match = re.Search();
    }
    EXPECT_EQ(seen, row.matches);
    EXPECT_EQ(text, row.rewritten);
  }
}

TEST(RegExSearch, SubExpressions) {
  struct Row {
    const char* name;
    QString pattern;
    QString target;
    QStringList groups;  // 0 .. SubExpressionCount - 1
  };
  const Row rows[] = {
      {"two groups", "(\\w+)@(\\w+)", "mail me@host now", {"me@host", "me", "host"}},
      {"a group that took no part is empty", "(a)|(b)", "b", {"b", "", "b"}},
      {"nested groups count by their opening", "((\\d)\\d)", "x42", {"42", "42", "4"}},
      {"case does not matter by default", "^(the) ", "The moon", {"The ", "The"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RegEx re;
    re.SearchPattern = row.pattern;
    const std::optional<RegExMatch> match = re.Search(row.target);
    ASSERT_TRUE(match.has_value());
    ASSERT_EQ(match->SubExpressionCount(), row.groups.size());
    for (int i = 0; i < match->SubExpressionCount(); ++i) {
      EXPECT_EQ(match->SubExpressionString(i), row.groups[i]) << "group " << i;
    }
    EXPECT_THROW(match->SubExpressionString(match->SubExpressionCount()), OutOfBoundsException);
    EXPECT_THROW(match->SubExpressionString(-1), OutOfBoundsException);
  }
}

TEST(RegExSearch, OptionsChangeTheMatching) {
  struct Row {
    const char* name;
    QString pattern;
    QString target;
    bool RegExOptions::*option;  // nullptr: the defaults
    bool value;
    QString match;  // empty: no match
  };
  const Row rows[] = {
      {"case ignored by default", "moon", "MOON", nullptr, false, "MOON"},
      {"case sensitive when asked", "moon", "MOON", &RegExOptions::CaseSensitive, true, ""},
      {"greedy by default", "a.*b", "a1b2b", nullptr, false, "a1b2b"},
      {"lazy when not greedy", "a.*b", "a1b2b", &RegExOptions::Greedy, false, "a1b"},
      {"^ matches after a line break by default", "^b", "a\nb", nullptr, false, "b"},
      {"^ only at the start of one line", "^b", "a\nb", &RegExOptions::TreatTargetAsOneLine, true, ""},
      {"a dot stops at a line break by default", "a.b", "a\nb", nullptr, false, ""},
      {"a dot takes line breaks when asked", "a.b", "a\nb", &RegExOptions::DotMatchAll, true, "a\nb"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RegEx re;
    re.SearchPattern = row.pattern;
    if (row.option) re.Options.*row.option = row.value;
    const std::optional<RegExMatch> match = re.Search(row.target);
    EXPECT_EQ(match ? match->SubExpressionString(0) : QString(), row.match);
  }
}

TEST(RegExSearch, EmptyMatchesStillMoveOn) {
  RegEx re;
  re.SearchPattern = "x*";
  QStringList seen;
  for (std::optional<RegExMatch> m = re.Search("axb"); m && seen.size() < 10; m = re.Search()) {
    seen << QString::number(m->SubExpressionStart(0)) + ":" + m->SubExpressionString(0);
  }
  EXPECT_EQ(seen, QStringList({"0:", "1:x", "2:", "3:"}));
}

TEST(RegExSearch, ABadPatternRaisesRegExException) {
  for (const QString pattern : {"(", "[a", "\\", "a{2,1}", "*"}) {
    SCOPED_TRACE(pattern.toStdString());
    RegEx re;
    re.SearchPattern = pattern;
    try {
      re.Search("abc");
      ADD_FAILURE() << "no exception";
    } catch (const RegExException& fault) {
      EXPECT_EQ(fault.kind(), "RegExException");
      EXPECT_TRUE(fault.message().contains(pattern));
    }
    EXPECT_THROW(re.Replace("abc"), RegExException);
    re.SearchPattern = "b";
    EXPECT_EQ(re.Replace("abc"), "ac");
  }
}

TEST(RegExReplace, ReplacesTheFirstMatchUnlessAllAreAsked) {
  struct Row {
    const char* name;
    QString pattern;
    QString replacement;
    QString target;
    bool all;
    QString expected;
  };
  const Row rows[] = {
      {"every match when asked", "a", "x", "banana", true, "bxnxnx"},
      {"only one leading noise word goes", "^the ", "", "the the moon", false, "the moon"},
      {"case does not matter", "^the ", "", "The Moon", false, "Moon"},
      {"a leading a leaves the second blank", "^a ", "", "a  b", false, " b"},
      {"groups by backslash", "(\\w+)@(\\w+)", "\\2 at \\1", "me@host", false, "host at me"},
      {"the whole match", "\\d+", "<\\0>", "a12b", false, "a<12>b"},
      {"a group the pattern lacks puts in nothing", "(\\d)", "[\\1\\7]", "a1", false, "a[1]"},
      {"a doubled backslash is one", "b", "\\\\", "abc", false, "a\\c"},
      {"other characters stand as written", "b", "\\n$x", "abc", false, "a\\n$xc"},
      {"an empty match at the start inserts", "", "-", "ab", false, "-ab"},
      {"all matches with groups", "(\\d)", "<$1>", "1a2", true, "<1>a<2>"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RegEx re;
    re.SearchPattern = row.pattern;
    re.ReplacementPattern = row.replacement;
    re.Options.ReplaceAllMatches = row.all;
    EXPECT_EQ(re.Replace(row.target), row.expected);
  }
}

TEST(RegExReplace, ReplaceWithoutTargetGoesOnBehindWhatItPutIn) {
  RegEx re;
  re.SearchPattern = "a";
  re.ReplacementPattern = "aa";
  EXPECT_EQ(re.Replace("aab"), "aaab");
  EXPECT_EQ(re.Replace(), "aaaab");
  EXPECT_EQ(re.Replace(), "aaaab");

  re.ReplacementPattern = "";
  re.SearchPattern = "x*";
  EXPECT_EQ(re.Replace("ab"), "ab");
  re.ReplacementPattern = "-";
  EXPECT_EQ(re.Replace("ab"), "-ab");
  EXPECT_EQ(re.Replace(), "-a-b");
  EXPECT_EQ(re.Replace(), "-a-b-");
  EXPECT_EQ(re.Replace(), "-a-b-");
}

TEST(RegExReplace, SearchAfterReplaceLooksAtTheReplacedText) {
  RegEx re;
  re.SearchPattern = "\\d";
  re.ReplacementPattern = "#";
  EXPECT_EQ(re.Replace("1 2 3"), "# 2 3");
  const std::optional<RegExMatch> next = re.Search();
  ASSERT_TRUE(next.has_value());
  EXPECT_EQ(next->SubExpressionString(0), "2");
  EXPECT_EQ(next->SubExpressionStart(0), 2);
}

}  // namespace
}  // namespace platform
