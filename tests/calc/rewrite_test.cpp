// The rewriting stages on their own: plain replacements whose odd results are wanted.

#include "calc/rewrite.h"

#include <gtest/gtest.h>

#include "platform/strings/strings.h"

namespace calc {
namespace {

TEST(Factorial, WrapsIn32Bits) {
  struct Row {
    const char* name;
    qint32 n;
    QString out;
  };
  const Row rows[] = {
      {"0! is 1", 0, "1"},
      {"12! is the last true value", 12, "479001600"},
      {"13! wraps", 13, "1932053504"},
      {"17! wraps negative", 17, "-288522240"},
      {"32! is the lowest integer", 32, "-2147483648"},
      {"33! is the lowest integer too", 33, "-2147483648"},
      {"34! is 0", 34, "0"},
      {"a huge n is 0", 2000000000, "0"},
      {"a negative n gives nothing", -1, ""},
      {"the lowest integer gives nothing", INT32_MIN, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(factorial(row.n), row.out);
  }
}

TEST(Stages, EachStageRewritesOnlyItsOwnPart) {
  const QString toRad = "(PI/180)*";
  const QString pi = "3.1415926535897932384626433832795";
  struct Row {
    const char* name;
    QString (*stage)(const QString&);
    QString in;
    QString out;
  };
  const Row rows[] = {
      {"15!+5! finds both, 15! wrapped", factorials, "15!+5!", "2004310016+120"},
      {"every occurrence of a match at once", factorials, "3!*3!", "6*6"},
      {"beyond 32 bits the factorial vanishes", factorials, "1+99999999999!", "1+"},
      {"the factor reaches the first term only", degrees, "sin(30+15)", "sin(" + toRad + "30+15)"},
      {"the three pairs are independent", degrees, "sin(1)+acos(1)+tan(1)",
       "sin(" + toRad + "1)+(180/PI)*Acos(1)+tan(" + toRad + "1)"},
      {"case is ignored and the new text goes in as written", degrees, "SIN(1)", "sin(" + toRad + "1)"},
      {"every sine gets it", degrees, "sin(1)*sin(2)", "sin(" + toRad + "1)*sin(" + toRad + "2)"},
      {"blanks and commas go", stripBlanksAndCommas, " 1,000 + 1 ", "1000+1"},
      {"em dash to minus", purgePretty, "3" + platform::Chr(8212) + "1", "3-1"},
      {"ring A to the letter x", purgePretty, "2" + platform::Chr(197) + "106", "2x106"},
      {"tilde removed", purgePretty, "~5", "5"},
      {"x10 in any case", scientificForm, "2X10", "2e"},
      {"every log gets the seven-digit factor", logBase10, "log(100)+log(10)",
       "0.4342945*log(100)+0.4342945*log(10)"},
      {"pi in small letters too", piDigits, "2*pi", "2*" + pi},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.stage(row.in), row.out);
    EXPECT_EQ(row.stage("7"), "7") << "nothing to rewrite, no change";
  }
}

}  // namespace
}  // namespace calc
