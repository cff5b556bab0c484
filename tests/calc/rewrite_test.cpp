// The rewriting stages on their own: plain replacements whose odd results are wanted.

#include "calc/rewrite.h"

#include <gtest/gtest.h>

#include "platform/strings/strings.h"

namespace calc {
namespace {

struct TextRow {
  const char* name;
  QString in;
  QString out;
};

void expectRows(const std::vector<TextRow>& rows, QString (*stage)(const QString&)) {
  for (const TextRow& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(stage(row.in), row.out);
  }
}

TEST(Factorial, WrapsIn32Bits) {
  struct Row {
    const char* name;
    qint32 n;
    QString out;
  };
  const Row rows[] = {
      {"0! is 1", 0, "1"},
      {"1! is 1", 1, "1"},
      {"5! is 120", 5, "120"},
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

TEST(Stages, Factorials) {
  expectRows(
      {
          {"one factorial", "5!", "120"},
          {"5!+15! becomes 120+1120", "5!+15!", "120+1120"},
          {"15!+5! finds both, 15! wrapped", "15!+5!", "2004310016+120"},
          {"every occurrence of a match at once", "3!*3!", "6*6"},
          {"only the digits before ! count", "2.5!", "2.120"},
          {"a bracket before ! is not touched", "(2+3)!", "(2+3)!"},
          {"beyond 32 bits the factorial vanishes", "1+99999999999!", "1+"},
          {"no factorial, no change", "2+3", "2+3"},
      },
      factorials);
}

TEST(Stages, Degrees) {
  const QString toRad = "(PI/180)*";
  expectRows(
      {
          {"sin gets the factor in front of its argument", "sin(30)", "sin(" + toRad + "30)"},
          {"the factor reaches the first term only", "sin(30+15)", "sin(" + toRad + "30+15)"},
          {"an inverse keeps every plain sine in radians", "sin(30)+Asin(0.5)",
           "sin(30)+(180/PI)*Asin(0.5)"},
          {"the three pairs are independent", "sin(1)+acos(1)+tan(1)",
           "sin(" + toRad + "1)+(180/PI)*Acos(1)+tan(" + toRad + "1)"},
          {"case is ignored and the new text goes in as written", "SIN(1)", "sin(" + toRad + "1)"},
          {"every sine gets it", "sin(1)*sin(2)", "sin(" + toRad + "1)*sin(" + toRad + "2)"},
          {"no function, no change", "30", "30"},
      },
      degrees);
}

TEST(Stages, PlainReplacements) {
  const QString emDash = platform::Chr(8212), enDash = platform::Chr(8211);
  const QString ringA = platform::Chr(197), times = platform::Chr(215);
  expectRows({{"blanks and commas go", " 1,000 + 1 ", "1000+1"}}, stripBlanksAndCommas);
  expectRows(
      {
          {"em dash to minus", "3" + emDash + "1", "3-1"},
          {"en dash to minus", "3" + enDash + "1", "3-1"},
          {"multiplication sign to the letter x", "2" + times + "106", "2x106"},
          {"ring A to the letter x", "2" + ringA + "106", "2x106"},
          {"tilde removed", "~5", "5"},
          {"plain text untouched", "1+1", "1+1"},
      },
      purgePretty);
  expectRows(
      {
          {"x10 becomes e", "2x106", "2e6"},
          {"x10^6 becomes e^6", "2x10^6", "2e^6"},
          {"case ignored", "2X10", "2e"},
      },
      scientificForm);
  expectRows(
      {
          {"every log gets the seven-digit factor", "log(100)+log(10)",
           "0.4342945*log(100)+0.4342945*log(10)"},
          {"no log, no change", "exp(1)", "exp(1)"},
      },
      logBase10);
  expectRows(
      {
          {"PI to digits", "2*PI", "2*3.1415926535897932384626433832795"},
          {"2PI gets no multiplication sign", "2PI", "23.1415926535897932384626433832795"},
          {"pi in small letters too", "pi", "3.1415926535897932384626433832795"},
      },
      piDigits);
}

}  // namespace
}  // namespace calc
