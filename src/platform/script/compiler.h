#pragma once
// The compiler front to back: parse the whole script, then check names and types
// statement by statement and emit typed stack code. The first fault ends it.

#include <QString>

#include "platform/script/ast.h"
#include "platform/script/bytecode.h"

namespace platform::script {

// Checks a parsed script and emits its code; takes the Ast's texts.
// Throws CompileFault for names and types (numbers 2, 6-13, 15, 22, 31).
Code Check(Ast& ast);

// Parse, then Check. Throws CompileFault.
Code Compile(const QString& source);

}  // namespace platform::script
