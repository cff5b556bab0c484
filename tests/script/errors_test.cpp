// Compile faults by number and line, run-time faults, and what a fault prevents.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

QString Formula(const char* formula) { return NormalScript(QString::fromUtf8(formula)); }

struct ErrorRow {
  const char* name;
  QString source;
  int number;
  int line;
};

const ErrorRow kErrors[] = {
    {"an empty formula leaves 'x = '", Formula(""), 1, 2},
    {"2x10^6 as it reaches the runner", Formula("2x10^6"), 1, 2},
    {"2e^6: an e without digits ends the number", Formula("2e^6"), 1, 2},
    {"3x4: a number straight before a name", Formula("3x4"), 1, 2},
    {"an unclosed parenthesis", Formula("(1+2"), 1, 2},
    {"an operator without its right operand", Formula("1+"), 1, 2},
    {"a factorial mark is no operator", Formula("(2+3)!"), 1, 2},
    {"a character that starts no token", Formula("2#3"), 1, 2},
    {"two numbers side by side", Formula("1 2"), 1, 2},
    {"a string without its closing quote", Formula("\"abc"), 1, 2},
    {"& without a base letter", Formula("&x1"), 1, 2},
    {"a line ending inside the formula ends the statement", Formula("5\n+1"), 1, 3},
    {"a line ending inside the formula, CR", Formula("5\r*1"), 1, 3},
    {"a bare name as a statement", QStringLiteral("Dim x As Double\nx"), 1, 2},
    {"a function as the target of an assignment", QStringLiteral("sin = 3"), 1, 1},
    {"Dim without As", QStringLiteral("Dim x"), 1, 1},
    {"an initial value for two names", QStringLiteral("Dim a, b As Double = 1"), 1, 1},
    {"a keyword as a variable name", QStringLiteral("Dim mod As Double"), 1, 1},

    {"print of a number", QStringLiteral("Dim x As Double\nprint x"), 2, 2},
    {"print of a Boolean", QStringLiteral("print 1 < 2"), 2, 1},

    {"too many arguments", Formula("sin(1,2)"), 6, 2},
    {"print of two values", QStringLiteral("print \"a\", \"b\""), 6, 1},
    {"no arguments in the parentheses", Formula("sin()"), 7, 2},
    {"a function named without parentheses", Formula("sqrt"), 7, 2},
    {"one argument of two", Formula("atan2(1)"), 7, 2},
    {"print with nothing to print", QStringLiteral("print"), 7, 1},
    {"Mid has forms of two and three arguments, none of one", Formula("len(mid(\"abc\"))"), 8, 2},
    {"Mid with four arguments", Formula("len(mid(\"abc\",1,1,1))"), 8, 2},
    {"InStr with one argument", Formula("instr(\"a\")"), 8, 2},
    {"a String where a number is wanted", Formula("sin(\"a\")"), 9, 2},
    {"a number where a String is wanted", Formula("len(5)"), 9, 2},
    {"a Boolean where a number is wanted", Formula("sqrt(1 < 2)"), 9, 2},

    {"a String into a Double", Formula("\"abc\""), 10, 2},
    {"a Boolean into a Double", Formula("1 < 2"), 10, 2},
    {"a number into a String", QStringLiteral("Dim s As String\ns = 5"), 10, 2},
    {"a number into a String at its Dim", QStringLiteral("Dim s As String = 5"), 10, 1},

    {"an undeclared variable", Formula("y"), 11, 2},
    {"an undeclared variable in any case", Formula("x+Y"), 11, 2},
    {"an unknown function", Formula("foo(2)"), 11, 2},
    {"an unknown type", QStringLiteral("Dim x As Single"), 11, 1},
    {"a use before the Dim", QStringLiteral("x = 1\nDim x As Double"), 11, 1},
    {"a Dim's initial value cannot use its own name", QStringLiteral("Dim x As Double = x"), 11, 1},

    {"arithmetic on a String", Formula("\"a\"*2"), 12, 2},
    {"unary minus on a String", Formula("-\"a\""), 12, 2},
    {"a String compared with a number", Formula("len(\"a\") + (1 < \"a\")"), 12, 2},
    {"Booleans have no order", QStringLiteral("Dim b As Boolean = True < False"), 12, 1},
    {"a String plus a number", QStringLiteral("Dim s As String = \"a\" + 1"), 12, 1},

    {"Not on a number", Formula("Not 1"), 13, 2},
    {"And on numbers", Formula("1 And 2"), 13, 2},
    {"Or with one Boolean", QStringLiteral("Dim b As Boolean = True Or 1"), 13, 1},

    {"a variable called like a function", Formula("x(2)"), 15, 2},

    {"a second Dim of a name", QStringLiteral("Dim x As Double\nDim X As Integer"), 22, 2},
    {"a second name in one Dim", QStringLiteral("Dim a, A As Double"), 22, 1},
    {"a Dim of a built-in's name", QStringLiteral("Dim sin As Double"), 22, 1},

    {"a call whose result is dropped", QStringLiteral("sin(1)"), 31, 1},
};

TEST(ScriptErrors, EachFaultHasItsNumberAndLine) {
  for (const ErrorRow& row : kErrors) {
    SCOPED_TRACE(row.name);
    SCOPED_TRACE(row.source.toStdString());
    RecordingHost host;
    RunFresh(host, row.source);
    ASSERT_EQ(host.compileErrors.size(), 1u);
    EXPECT_EQ(host.compileErrors[0].number, row.number);
    EXPECT_EQ(host.compileErrors[0].line, row.line);
    EXPECT_FALSE(host.compileErrors[0].message.isEmpty());
    EXPECT_TRUE(host.prints.isEmpty());
    EXPECT_TRUE(host.runtimeErrors.empty());
  }
}

TEST(ScriptErrors, AScriptThatFailsToCompileRunsNothing) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("print \"before\"\nDim x As Double\nx = y\nprint \"after\""));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 11);
  EXPECT_TRUE(host.prints.isEmpty());
}

TEST(ScriptErrors, ASyntaxFaultAnywhereWinsOverEarlierNameFaults) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("Dim x As Double\nx = y\nx = (1"));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 1);
  EXPECT_EQ(host.compileErrors[0].line, 3);
}

TEST(ScriptErrors, TheFirstOfSeveralNameFaultsIsReported) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("Dim x As Double\nx = sin(\"a\")\nx = y"));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 9);
  EXPECT_EQ(host.compileErrors[0].line, 2);
}

TEST(ScriptErrors, TheMessageNamesTheUnknownName) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("zeta+1")));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_TRUE(host.compileErrors[0].message.contains(QStringLiteral("zeta")));
}

struct RuntimeRow {
  const char* name;
  QString source;
  QStringList prints;  // what was printed before the fault
  int line;
};

const RuntimeRow kRuntimeFaults[] = {
    {"integer division by zero", Formula("1\\0"), {}, 2},
    {"Mod by zero", Formula("1 mod 0"), {}, 2},
    {"a divisor that truncates to zero", Formula("5 mod 0.5"), {}, 2},
    {"prints before the fault are delivered, none after",
     QStringLiteral("print \"a\"\nDim i As Integer\ni = 1 \\ 0\nprint \"b\""), {QStringLiteral("a")}, 3},
    {"Chr of no character", QStringLiteral("print Chr(-1)"), {}, 1},
    {"a String past its limit", QStringLiteral("Dim s As String = \"ab\"\n") + QStringLiteral("s = s + s\n").repeated(30),
     {}, 25},
};

TEST(ScriptErrors, RunTimeFaultsGoThroughRuntimeError) {
  for (const RuntimeRow& row : kRuntimeFaults) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, row.source);
    EXPECT_TRUE(host.compileErrors.empty());
    ASSERT_EQ(host.runtimeErrors.size(), 1u);
    EXPECT_EQ(host.runtimeErrors[0].line, row.line);
    EXPECT_FALSE(host.runtimeErrors[0].message.isEmpty());
    EXPECT_EQ(host.prints, row.prints);
  }
}

}  // namespace
}  // namespace abacon_test
