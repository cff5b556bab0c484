// Inputs meant to break the engine: deep nesting, huge literals and lines, garbage.
// Each must end in a result or one fault, never in a crash.

#include <gtest/gtest.h>

#include <random>

#include "recording_host.h"

namespace abacon_test {
namespace {

struct NestingRow {
  const char* name;
  QString formula;
};

TEST(ScriptLimits, DeepNestingIsFaultFive) {
  const NestingRow rows[] = {
      {"10 000 parentheses", QString(10000, QLatin1Char('(')) + QStringLiteral("1") + QString(10000, QLatin1Char(')'))},
      {"100 000 unary minus", QString(100000, QLatin1Char('-')) + QStringLiteral("1")},
      {"100 000 unary plus", QString(100000, QLatin1Char('+')) + QStringLiteral("1")},
      {"a long chain of ^", QStringLiteral("2^").repeated(5000) + QStringLiteral("1")},
      {"nested calls", QStringLiteral("sin(").repeated(5000) + QStringLiteral("1") + QString(5000, QLatin1Char(')'))},
      {"parentheses left open", QString(100000, QLatin1Char('('))},
  };
  for (const NestingRow& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, NormalScript(row.formula));
    ASSERT_EQ(host.compileErrors.size(), 1u);
    EXPECT_EQ(host.compileErrors[0].number, 5);
    EXPECT_EQ(host.compileErrors[0].line, 2);
    EXPECT_TRUE(host.prints.isEmpty());
  }
}

TEST(ScriptLimits, NotChainsAreFaultFiveToo) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("Dim b As Boolean = ") + QStringLiteral("Not ").repeated(50000) + QStringLiteral("True"));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 5);
}

TEST(ScriptLimits, ModerateNestingStillWorks) {
  RecordingHost host;
  RunFresh(host, NormalScript(QString(40, QLatin1Char('(')) + QStringLiteral("-2^2") + QString(40, QLatin1Char(')')) +
                              QStringLiteral("*sqrt(sqrt(sqrt(256)))")));
  EXPECT_TRUE(host.compileErrors.empty());
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("-8")});
}

TEST(ScriptLimits, AOneMegabyteLiteralCompiles) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("0.") + QString(1 << 20, QLatin1Char('3'))));
  EXPECT_TRUE(host.compileErrors.empty());
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("0.3333333")});

  RunFresh(host, NormalScript(QString(1 << 20, QLatin1Char('9'))));
  EXPECT_EQ(host.prints.last(), QStringLiteral("INF"));
}

TEST(ScriptLimits, AOneMegabyteFlatSumNeedsNoDeepStack) {
  // A left-deep tree of half a million additions: no stage may recurse along it.
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("1") + QStringLiteral("+1").repeated(500000)));
  EXPECT_TRUE(host.compileErrors.empty());
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("500001")});
}

TEST(ScriptLimits, AOneMegabyteStringLiteralPrints) {
  RecordingHost host;
  const QString text(1 << 20, QLatin1Char('a'));
  RunFresh(host, QStringLiteral("print \"") + text + QStringLiteral("\""));
  EXPECT_EQ(host.prints, QStringList{text});
}

TEST(ScriptLimits, ALongErrorTokenIsCutInTheMessage) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("1 ") + QString(1 << 20, QLatin1Char('7'))));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 1);
  EXPECT_LT(host.compileErrors[0].message.size(), 200);
}

TEST(ScriptLimits, ManyStatements) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("Dim x As Integer\n") + QStringLiteral("x = x + 1\n").repeated(100000) +
                     QStringLiteral("print Str(x)"));
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("100000")});
}

TEST(ScriptLimits, ManyArgumentsAreJustTooMany) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("max(1") + QStringLiteral(",1").repeated(100000) + QStringLiteral(")")));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 6);
}

// Random token soup: whatever comes out, it is one compile fault and nothing else,
// or a run with at most one run-time fault.
TEST(ScriptLimits, RandomGarbageNeverCrashes) {
  const char* pieces[] = {"1",   "2.5", "e",   "E6",  "x",    "y",   "(",   ")",    "+",     "-",  "*",
                          "/",   "\\",  "^",   "mod", "and",  "or",  "not", "=",    "<>",    "<",  ">=",
                          ",",   "\"",  "\"a\"", "&h", "&hF",  "sin(", "mid(", "str(", "print", "dim", " As ",
                          "\n",  "\r",  "'",   "//",  "rem",  "!",   "#",   "\xc3\x85", "true", " ", "0"};
  std::mt19937 random(20240607);
  std::uniform_int_distribution<std::size_t> pick(0, std::size(pieces) - 1);
  std::uniform_int_distribution<int> length(0, 30);
  for (int round = 0; round < 3000; ++round) {
    QString formula;
    for (int n = length(random); n > 0; --n) formula += QString::fromUtf8(pieces[pick(random)]);
    SCOPED_TRACE(formula.toStdString());
    RecordingHost host;
    RunFresh(host, NormalScript(formula));
    if (!host.compileErrors.empty()) {
      EXPECT_EQ(host.compileErrors.size(), 1u);
      EXPECT_TRUE(host.prints.isEmpty());
      EXPECT_TRUE(host.runtimeErrors.empty());
    } else {
      EXPECT_LE(host.runtimeErrors.size(), 1u);
    }
  }
}

}  // namespace
}  // namespace abacon_test
