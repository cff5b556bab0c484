#pragma once
// RbScript compiles and runs one program of the RbScript language. It does not write
// the log, touch files or know Window1: a script can only compute and print, and the
// host hears of it through the three events, which a subclass overrides.

#include <QString>
#include <memory>

namespace platform {

// What a RuntimeError event carries: the kind of fault, for hosts that care.
struct ScriptException {
  QString message;
};

class RbScript {
 public:
  RbScript();
  virtual ~RbScript();
  RbScript(const RbScript&) = delete;
  RbScript& operator=(const RbScript&) = delete;

  // The text of the script.
  QString Source;

  // Forgets any compiled code; harmless on a new object.
  void Reset();
  // Compiles Source without running it; a failure raises CompilerError.
  void Precompile();
  // Compiles (unless precompiled) and runs Source on the calling thread; returns when
  // the script has ended. A script that does not compile runs nothing.
  void Run();

 protected:
  virtual void Print(const QString& msg) { (void)msg; }
  virtual void RuntimeError(int line, const ScriptException& error) { (void)line; (void)error; }
  virtual void CompilerError(int line, int errorNumber, const QString& errorMsg) {
    (void)line; (void)errorNumber; (void)errorMsg;
  }

 private:
  // The compiled form of one Source text, or the fault that stopped its compilation.
  struct Program;
  std::unique_ptr<Program> compile() const;
  void reportFault(const Program& program);
  std::unique_ptr<Program> compiled_;
};

}  // namespace platform
