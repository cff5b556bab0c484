// Any text as a script: the engine compiles and runs it or reports a fault, and never
// crashes, overflows its stack or runs away with memory.

#include <QString>
#include <cstddef>
#include <cstdint>

#include "platform/script/rbscript.h"

namespace {

class QuietHost : public platform::RbScript {
 protected:
  void Print(const QString&) override {}
  void RuntimeError(int, const platform::ScriptException&) override {}
  void CompilerError(int, int, const QString&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  QuietHost host;
  host.Source = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  host.Run();
  // The same text as the formula of the program's own script, as a drop makes it.
  QuietHost wrapped;
  wrapped.Source = "Dim x As double\nx = " + host.Source + "\nprint Str(x)";
  wrapped.Run();
  return 0;
}
