#pragma once
// The machine runs checked code: a flat loop over typed instructions, no recursion,
// nothing that allocates in the common case beyond the Strings the script makes.

#include <QString>

#include "platform/script/bytecode.h"

namespace platform::script {

// Where print statements go; a plain function pointer keeps the machine free of the
// host's classes.
struct PrintSink {
  void* context;
  void (*print)(void* context, const QString& text);
};

// A String longer than this is a run-time fault, not an exhausted memory:
// a script of 30 lines of s = s + s would otherwise ask for gigabytes.
constexpr qsizetype kMaxTextLength = qsizetype(1) << 24;

// Runs code from its first instruction to its last, with fresh variables.
// Throws RuntimeFault, with the line of the failing instruction.
void Execute(const Code& code, PrintSink sink);

}  // namespace platform::script
