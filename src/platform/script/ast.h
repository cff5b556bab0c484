#pragma once
// What the parser makes of a script: statements over an arena of expression nodes.
//
// Nodes are appended when they are complete, after their operands, so the arena is
// in post-order: the subtree of node r is exactly the range [nodes[r].first, r], and
// walking that range forward visits operands before their operator. The checker
// relies on this to type a tree and emit stack code in one flat loop, so no stage
// after the parser recurses, and a long flat sum (a left-deep tree) costs no stack.

#include <QString>
#include <cstdint>
#include <vector>

namespace platform::script {

enum class Type : std::uint8_t { None, Double, Integer, String, Boolean };

enum class NodeKind : std::uint8_t {
  NumberLit,   // number
  IntegerLit,  // value
  StringLit,   // value: index into Ast::texts
  BooleanLit,  // value: 0 or 1
  Name,        // value, length: the name's span in the source
  Call,        // value, length: the name; a, b: first argument in Ast::args, count
  Unary,       // op; a
  Binary,      // op; a, b
};

enum class Operator : std::uint8_t {
  None,
  Or, And, Not,
  Equal, NotEqual, Less, Greater, LessEqual, GreaterEqual,
  Add, Subtract, Mod, IntegerDivide, Multiply, Divide,
  Negate, Plus, Power,
};

struct Node {
  NodeKind kind;
  Operator op = Operator::None;
  Type type = Type::None;  // set by the checker
  std::int32_t line = 0;
  std::int32_t first = 0;  // lowest index of this node's subtree
  std::int32_t a = -1;
  std::int32_t b = -1;
  std::int32_t value = 0;
  std::int32_t length = 0;
  double number = 0;
};

enum class StatementKind : std::uint8_t { Dim, Assign, Print, Call };

struct Statement {
  StatementKind kind;
  std::int32_t line = 0;
  std::int32_t nameStart = 0;  // Dim, Assign: the variable
  std::int32_t nameLength = 0;
  Type declared = Type::None;  // Dim; None when the type is a name (typeStart, typeLength)
  std::int32_t typeStart = 0;
  std::int32_t typeLength = 0;
  std::int32_t expr = -1;      // Dim: initial value or -1; Assign: value; Call: the call node
  std::int32_t argsFirst = 0;  // Print: its arguments in Ast::args
  std::int32_t argsCount = 0;
};

struct Ast {
  QString source;
  std::vector<Node> nodes;
  std::vector<std::int32_t> args;
  std::vector<QString> texts;
  std::vector<Statement> statements;
};

}  // namespace platform::script
