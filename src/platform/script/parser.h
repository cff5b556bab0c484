#pragma once
// The parser reads a whole script into an Ast before anything is checked, so a
// syntax fault anywhere wins over a type or name fault on an earlier line.

#include "platform/script/ast.h"

namespace platform::script {

// Each level of nesting (a parenthesis, a call, a unary operator, a step up the
// precedence table, each ^ of a chain) costs one C++ frame in the parser, the
// checker and the evaluator, which all recurse over the same tree. 200 levels stay
// far below any thread's stack, and formulas people write rarely pass 20.
constexpr int kMaxNesting = 200;

// Fills ast.nodes, ast.args, ast.texts and ast.statements from ast.source.
// Throws CompileFault: Syntax for unreadable text, NestingTooDeep past kMaxNesting.
void Parse(Ast& ast);

}  // namespace platform::script
