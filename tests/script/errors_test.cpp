// Compile faults by number and line, run-time faults, and inputs meant to break the
// engine: each ends in a result or one fault, never in a crash.

#include <gtest/gtest.h>

#include <random>

#include "recording_host.h"

namespace abacon_test {
namespace {

QString Formula(const QString& formula) { return NormalScript(formula); }

TEST(ScriptErrors, EachFaultHasItsNumberAndLine) {
  struct Row {
    const char* name;
    QString source;
    int number;
    int line;
  };
  const Row rows[] = {
      {"an empty formula leaves 'x = '", Formula(""), 1, 2},
      {"2e^6: an e without digits ends the number", Formula("2e^6"), 1, 2},
      {"3x4: a number straight before a name", Formula("3x4"), 1, 2},
      {"a factorial mark is no operator", Formula("(2+3)!"), 1, 2},
      {"a string without its closing quote", Formula("\"abc"), 1, 2},
      {"& without a base letter", Formula("&x1"), 1, 2},
      {"a line ending inside the formula ends the statement", Formula("5\r*1"), 1, 3},
      {"a function as the target of an assignment", "sin = 3", 1, 1},
      {"an initial value for two names", "Dim a, b As Double = 1", 1, 1},
      {"a keyword as a variable name", "Dim mod As Double", 1, 1},
      {"print of a number", "Dim x As Double\nprint x", 2, 2},
      {"too many arguments", Formula("sin(1,2)"), 6, 2},
      {"a function named without parentheses", Formula("sqrt"), 7, 2},
      {"Mid has forms of two and three arguments, none of one", Formula("len(mid(\"abc\"))"), 8, 2},
      {"a String where a number is wanted", Formula("sin(\"a\")"), 9, 2},
      {"a Boolean where a number is wanted", Formula("sqrt(1 < 2)"), 9, 2},
      {"a String into a Double", Formula("\"abc\""), 10, 2},
      {"a number into a String at its Dim", "Dim s As String = 5", 10, 1},
      {"an undeclared variable in any case", Formula("x+Y"), 11, 2},
      {"an unknown function", Formula("foo(2)"), 11, 2},
      {"a use before the Dim", "x = 1\nDim x As Double", 11, 1},
      {"a Dim's initial value cannot use its own name", "Dim x As Double = x", 11, 1},
      {"unary minus on a String", Formula("-\"a\""), 12, 2},
      {"Booleans have no order", "Dim b As Boolean = True < False", 12, 1},
      {"And on numbers", Formula("1 And 2"), 13, 2},
      {"a variable called like a function", Formula("x(2)"), 15, 2},
      {"a second Dim of a name, in another case", "Dim x As Double\nDim X As Integer", 22, 2},
      {"a Dim of a built-in's name", "Dim sin As Double", 22, 1},
      {"a call whose result is dropped", "sin(1)", 31, 1},
      {"a syntax fault anywhere wins over earlier name faults", "Dim x As Double\nx = y\nx = (1", 1, 3},
      {"the first of several name faults", "Dim x As Double\nx = sin(\"a\")\nx = y", 9, 2},
      {"line numbers count every kind of line ending", "Dim x As Double\r\n\rx = 1\n\r\nx = y", 11, 5},
      {"10 000 parentheses", Formula(QString(10000, '(') + "1" + QString(10000, ')')), 5, 2},
      {"100 000 unary minus", Formula(QString(100000, '-') + "1"), 5, 2},
      {"a long chain of ^", Formula(QString("2^").repeated(5000) + "1"), 5, 2},
      {"nested calls", Formula(QString("sin(").repeated(5000) + "1" + QString(5000, ')')), 5, 2},
      {"parentheses left open", Formula(QString(100000, '(')), 5, 2},
      {"a chain of Not", "Dim b As Boolean = " + QString("Not ").repeated(50000) + "True", 5, 1},
      {"many arguments are just too many", Formula("max(1" + QString(",1").repeated(100000) + ")"), 6, 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, "print \"before\"\n" + row.source);
    ASSERT_EQ(host.compileErrors.size(), 1u);
    EXPECT_EQ(host.compileErrors[0].number, row.number);
    EXPECT_EQ(host.compileErrors[0].line, row.line + 1);
    EXPECT_FALSE(host.compileErrors[0].message.isEmpty());
    EXPECT_TRUE(host.prints.isEmpty()) << "a script that fails to compile runs nothing";
    EXPECT_TRUE(host.runtimeErrorLines.empty());
  }
}

TEST(ScriptErrors, MessagesNameTheUnknownNameAndCutALongToken) {
  RecordingHost host;
  RunFresh(host, Formula("zeta+1"));
  RunFresh(host, Formula("1 " + QString(1 << 20, '7')));
  ASSERT_EQ(host.compileErrors.size(), 2u);
  EXPECT_TRUE(host.compileErrors[0].message.contains("zeta"));
  EXPECT_LT(host.compileErrors[1].message.size(), 200);
}

TEST(ScriptErrors, RunTimeFaultsStopTheRunAfterWhatWasPrinted) {
  struct Row {
    const char* name;
    QString source;
    QStringList prints;
    int line;
  };
  const Row rows[] = {
      {"integer division by zero", Formula("1\\0"), {}, 2},
      {"a divisor that truncates to zero", Formula("5 mod 0.5"), {}, 2},
      {"prints before the fault are delivered, none after",
       "print \"a\"\nDim i As Integer\ni = 1 \\ 0\nprint \"b\"", {"a"}, 3},
      {"Chr of no character", "print Chr(-1)", {}, 1},
      {"a String past its limit",
       "Dim s As String = \"ab\"\n" + QString("s = s + s\n").repeated(30), {}, 25},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, row.source);
    EXPECT_TRUE(host.compileErrors.empty());
    EXPECT_EQ(host.runtimeErrorLines, std::vector<int>{row.line});
    EXPECT_EQ(host.prints, row.prints);
  }
}

TEST(ScriptLimits, HugeButFlatInputsStillRun) {
  struct Row {
    const char* name;
    QString source;
    QString printed;
  };
  const QString megaString(1 << 20, 'a');
  const Row rows[] = {
      {"moderate nesting",
       Formula(QString(40, '(') + "-2^2" + QString(40, ')') + "*sqrt(sqrt(sqrt(256)))"), "-8"},
      {"a one-megabyte literal", Formula("0." + QString(1 << 20, '3')), "0.3333333"},
      {"a one-megabyte integer literal is infinity", Formula(QString(1 << 20, '9')), "INF"},
      {"half a million additions need no deep stack", Formula("1" + QString("+1").repeated(500000)), "500001"},
      {"a one-megabyte string literal", "print \"" + megaString + "\"", megaString},
      {"many statements", "Dim x As Integer\n" + QString("x = x + 1\n").repeated(100000) + "print Str(x)",
       "100000"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, row.source);
    EXPECT_TRUE(host.compileErrors.empty());
    EXPECT_EQ(host.prints, QStringList{row.printed});
  }
}

// Random token soup: whatever comes out, it is one compile fault and nothing else, or a
// run with at most one run-time fault.
TEST(ScriptLimits, RandomGarbageNeverCrashes) {
  const char* pieces[] = {"1",  "2.5", "e",   "E6",  "x",    "y",     "(",   ")",    "+",     "-",    "*",
                          "/",  "\\",  "^",   "mod", "and",  "or",    "not", "=",    "<>",    "<",    ">=",
                          ",",  "\"",  "\"a\"", "&h", "&hF",  "sin(",  "mid(", "str(", "print", "dim",  " As ",
                          "\n", "\r",  "'",   "//",  "rem",  "!",     "#",   "\xc3\x85", "true", " ", "0"};
  std::mt19937 random(20240607);
  std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
  std::uniform_int_distribution<int> length(0, 30);
  for (int round = 0; round < 3000; ++round) {
    QString formula;
    for (int n = length(random); n > 0; --n) formula += QString::fromUtf8(pieces[pick(random)]);
    SCOPED_TRACE(formula.toStdString());
    RecordingHost host;
    RunFresh(host, Formula(formula));
    if (!host.compileErrors.empty()) {
      EXPECT_EQ(host.compileErrors.size(), 1u);
      EXPECT_TRUE(host.prints.isEmpty() && host.runtimeErrorLines.empty());
    } else {
      EXPECT_LE(host.runtimeErrorLines.size(), 1u);
    }
  }
}

}  // namespace
}  // namespace abacon_test
