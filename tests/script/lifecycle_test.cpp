// Reset, Precompile and Run: what a host object keeps between runs, and what not.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

const QString kCounter = "Dim n As Integer\nn = n + 1\nprint Str(n)";

TEST(ScriptLifecycle, EveryRunStartsFromFreshVariablesAndTheSourceAsItStands) {
  RecordingHost host;
  host.Reset();
  host.Run();  // an empty Source is an empty script
  host.Source = kCounter;
  host.Run();
  host.Run();
  host.Source = NormalScript("2");  // a new source without Reset is compiled too
  host.Run();
  RunFresh(host, NormalScript("y"));
  RunFresh(host, NormalScript("3*3"));
  EXPECT_EQ(host.prints, (QStringList{"1", "1", "2", "9"}));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].number, 11);
}

TEST(ScriptLifecycle, PrecompileRunsNothingAndReportsAFaultThatRunReportsAgain) {
  RecordingHost host;
  host.Source = kCounter;
  host.Precompile();
  EXPECT_TRUE(host.prints.isEmpty());
  host.Run();
  EXPECT_EQ(host.prints, QStringList{"1"});
  host.Source = NormalScript("1+");
  host.Precompile();
  host.Run();
  EXPECT_EQ(host.compileErrors.size(), 2u);
  host.Precompile();
  host.Reset();  // forgets the code
  host.Source = NormalScript("4");
  host.Run();
  EXPECT_EQ(host.compileErrors.size(), 3u);
  EXPECT_EQ(host.prints, (QStringList{"1", "4"}));
}

// A host whose Print starts another script on the same object, as a careless handler might.
class ReentrantHost : public RecordingHost {
 protected:
  void Print(const QString& msg) override {
    RecordingHost::Print(msg);
    if (prints.size() == 1) {
      Reset();
      Source = "print \"inner\"";
      Run();
    }
  }
};

TEST(ScriptLifecycle, APrintHandlerMayResetAndRunTheSameObject) {
  ReentrantHost host;
  host.Source = "print \"outer 1\"\nprint \"outer 2\"";
  host.Run();
  EXPECT_EQ(host.prints, (QStringList{"outer 1", "inner", "outer 2"}));
}

}  // namespace
}  // namespace abacon_test
