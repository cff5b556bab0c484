#pragma once
// EvalIt runs one formula for Window1 and delivers its answer: the Print event alone
// decides where a result goes (clipboard, answer field, a solver's field, the log, the
// blink and the beep). A fresh one is made for every run, so nothing survives a run.

#include "platform/script/rbscript.h"

namespace app {
class Window1;
}

namespace calc {

class EvalIt : public platform::RbScript {
 public:
  explicit EvalIt(app::Window1& window) : window_(window) {}

 protected:
  void Print(const QString& msg) override;
  void RuntimeError(int line, const platform::ScriptException& error) override;
  void CompilerError(int line, int errorNumber, const QString& errorMsg) override;

 private:
  app::Window1& window_;
};

// The log text of a compiler error number; "unknown error" for numbers not in the table.
QString compilerErrorText(int errorNumber);

}  // namespace calc
