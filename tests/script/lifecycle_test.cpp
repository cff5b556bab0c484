// Reset, Precompile and Run: what a host object keeps between runs, and what not.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

const QString kCounter = QStringLiteral("Dim n As Integer\nn = n + 1\nprint Str(n)");

TEST(ScriptLifecycle, TwoRunsOfOneObjectStartFromFreshVariables) {
  RecordingHost host;
  host.Source = kCounter;
  host.Run();
  host.Run();
  EXPECT_EQ(host.prints, (QStringList{QStringLiteral("1"), QStringLiteral("1")}));
}

TEST(ScriptLifecycle, FreshObjectsAreIndependent) {
  RecordingHost first;
  RunFresh(first, NormalScript(QStringLiteral("y")));
  RecordingHost second;
  RunFresh(second, NormalScript(QStringLiteral("2+3")));
  EXPECT_EQ(first.compileErrors.size(), 1u);
  EXPECT_TRUE(first.prints.isEmpty());
  EXPECT_TRUE(second.compileErrors.empty());
  EXPECT_EQ(second.prints, QStringList{QStringLiteral("5")});
}

TEST(ScriptLifecycle, ResetAndANewSourceCompileAfresh) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("1+1")));
  RunFresh(host, NormalScript(QStringLiteral("y")));
  RunFresh(host, NormalScript(QStringLiteral("3*3")));
  EXPECT_EQ(host.prints, (QStringList{QStringLiteral("2"), QStringLiteral("9")}));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 11);
}

TEST(ScriptLifecycle, ANewSourceWithoutResetIsCompiledToo) {
  RecordingHost host;
  host.Source = NormalScript(QStringLiteral("1"));
  host.Run();
  host.Source = NormalScript(QStringLiteral("2"));
  host.Run();
  EXPECT_EQ(host.prints, (QStringList{QStringLiteral("1"), QStringLiteral("2")}));
}

TEST(ScriptLifecycle, ResetOnANewObjectIsHarmless) {
  RecordingHost host;
  host.Reset();
  host.Reset();
  host.Run();  // an empty Source is an empty script
  EXPECT_TRUE(host.prints.isEmpty());
  EXPECT_TRUE(host.compileErrors.empty());
  EXPECT_TRUE(host.runtimeErrors.empty());
}

TEST(ScriptLifecycle, PrecompileThenRunRunsOnce) {
  RecordingHost host;
  host.Source = kCounter;
  host.Precompile();
  EXPECT_TRUE(host.prints.isEmpty());
  host.Run();
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("1")});
}

TEST(ScriptLifecycle, PrecompileReportsAFaultAndRunReportsItAgain) {
  RecordingHost host;
  host.Source = NormalScript(QStringLiteral("1+"));
  host.Precompile();
  ASSERT_EQ(host.compileErrors.size(), 1u);
  host.Run();
  ASSERT_EQ(host.compileErrors.size(), 2u);
  EXPECT_EQ(host.compileErrors[1].number, 1);
  EXPECT_TRUE(host.prints.isEmpty());
}

TEST(ScriptLifecycle, ResetAfterPrecompileForgetsTheCode) {
  RecordingHost host;
  host.Source = NormalScript(QStringLiteral("1+"));
  host.Precompile();
  host.Reset();
  host.Source = NormalScript(QStringLiteral("4"));
  host.Run();
  EXPECT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("4")});
}

// A host whose Print starts another script on the same object, as a careless handler might.
class ReentrantHost : public RecordingHost {
 protected:
  void Print(const QString& msg) override {
    RecordingHost::Print(msg);
    if (prints.size() == 1) {
      Reset();
      Source = QStringLiteral("print \"inner\"");
      Run();
    }
  }
};

TEST(ScriptLifecycle, APrintHandlerMayResetAndRunTheSameObject) {
  ReentrantHost host;
  host.Source = QStringLiteral("print \"outer 1\"\nprint \"outer 2\"");
  host.Run();
  EXPECT_EQ(host.prints, (QStringList{QStringLiteral("outer 1"), QStringLiteral("inner"), QStringLiteral("outer 2")}));
}

}  // namespace
}  // namespace abacon_test
