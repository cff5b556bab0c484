#include "platform/script/rbscript.h"

#include "platform/script/compiler.h"
#include "platform/script/machine.h"
#include "platform/script/script_errors.h"

namespace platform {

struct RbScript::Program {
  QString source;
  bool failed = false;
  script::CompileFault fault{};
  script::Code code;
};

RbScript::RbScript() = default;
RbScript::~RbScript() = default;

void RbScript::Reset() { compiled_.reset(); }

std::unique_ptr<RbScript::Program> RbScript::compile() const {
  auto program = std::make_unique<Program>();
  program->source = Source;
  try {
    program->code = script::Compile(Source);
  } catch (script::CompileFault& fault) {
    program->failed = true;
    program->fault = std::move(fault);
  }
  return program;
}

void RbScript::reportFault(const Program& program) {
  // Copies: the handler may Reset this object and with it the program.
  const int line = program.fault.line;
  const int number = static_cast<int>(program.fault.error);
  QString message = script::ErrorMessage(program.fault.error);
  if (!program.fault.detail.isEmpty()) message += QStringLiteral(": ") + program.fault.detail;
  CompilerError(line, number, message);
}

void RbScript::Precompile() {
  if (!compiled_ || compiled_->source != Source) compiled_ = compile();
  if (compiled_->failed) reportFault(*compiled_);
}

void RbScript::Run() {
  if (!compiled_ || compiled_->source != Source) compiled_ = compile();
  if (compiled_->failed) {
    reportFault(*compiled_);
    return;
  }
  // The program is held here while it runs, so a Print handler that resets this
  // object or runs another script cannot pull the code from under the machine.
  std::unique_ptr<Program> program = std::move(compiled_);
  const script::PrintSink sink{
      this, [](void* host, const QString& text) { static_cast<RbScript*>(host)->Print(text); }};
  try {
    script::Execute(program->code, sink);
  } catch (script::RuntimeFault& fault) {
    if (!compiled_) compiled_ = std::move(program);
    RuntimeError(fault.line, ScriptException{fault.message});
    return;
  }
  if (!compiled_) compiled_ = std::move(program);
}

}  // namespace platform
