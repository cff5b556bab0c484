#pragma once
// A script host for the tests: it keeps every event the engine raises, in order.

#include <QString>
#include <QStringList>
#include <vector>

#include "platform/script/rbscript.h"
#include "support/printers.h"

namespace abacon_test {

struct CompileReport {
  int line;
  int number;
  QString message;
};

class RecordingHost : public platform::RbScript {
 public:
  QStringList prints;
  std::vector<CompileReport> compileErrors;
  std::vector<int> runtimeErrorLines;

 protected:
  void Print(const QString& msg) override { prints.append(msg); }
  void RuntimeError(int line, const platform::ScriptException&) override {
    runtimeErrorLines.push_back(line);
  }
  void CompilerError(int line, int errorNumber, const QString& errorMsg) override {
    compileErrors.push_back({line, errorNumber, errorMsg});
  }
};

// The two scripts the program wraps a formula in.
inline QString NormalScript(const QString& formula) {
  return "Dim x As double\nx = " + formula + "\nprint Str(x)";
}
inline QString ScientificScript(const QString& formula) {
  return "Dim x As double\nx = " + formula + "\nprint Format(x,\"0.0#############e+##\")";
}

// Runs a script on a fresh host, as the program does for each formula.
inline void RunFresh(RecordingHost& host, const QString& source) {
  host.Reset();
  host.Source = source;
  host.Run();
}

}  // namespace abacon_test
