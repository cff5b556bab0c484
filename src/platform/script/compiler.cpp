#include "platform/script/compiler.h"

#include <algorithm>

#include "platform/script/builtins.h"
#include "platform/script/parser.h"
#include "platform/script/script_errors.h"

namespace platform::script {

namespace {

bool isNumeric(Type t) { return t == Type::Double || t == Type::Integer; }
bool onStringStack(Type t) { return t == Type::String; }

// The type rules, in one place:
//   + - *       Integer with Integer is Integer (32-bit, wrapping); any other pair of
//               numbers is Double; String + String concatenates
//   / ^         numbers, Double
//   \ Mod       numbers, each converted to a 32-bit Integer first; Integer
//   comparisons two numbers, two Strings (case ignored), or two Booleans (= <> only)
//   And Or Not  Booleans only (13); every other misfit of an operator is 12
//   assignment  Integer and Double convert to each other, nothing else does (10)
class Checker {
 public:
  explicit Checker(Ast& ast) : ast_(ast) { code_.texts = std::move(ast.texts); }

  Code run() {
    for (const Statement& s : ast_.statements) statement(s);
    code_.cellSlots = cellSlots_;
    code_.stringSlots = stringSlots_;
    return std::move(code_);
  }

 private:
  struct Variable {
    QStringView name;
    Type type;
    std::int32_t slot;
  };

  [[noreturn]] void fault(std::int32_t line, ScriptError error, const QString& detail = QString()) {
    throw CompileFault{line, error, detail};
  }

  QStringView span(std::int32_t start, std::int32_t length) const {
    return QStringView(ast_.source).mid(start, length);
  }

  const Variable* findVariable(QStringView name) const {
    for (const Variable& v : variables_) {
      if (v.name.compare(name, Qt::CaseInsensitive) == 0) return &v;
    }
    return nullptr;
  }

  // --- emission, with the depth of both stacks tracked so the machine can size them once

  void append(OpCode op, std::int32_t line, std::int32_t i = 0, double d = 0) {
    code_.instrs.push_back(Instr{op, line, i, d});
  }

  void push(Type t) {
    if (onStringStack(t)) {
      code_.stringDepth = std::max(code_.stringDepth, ++stringDepth_);
    } else {
      code_.cellDepth = std::max(code_.cellDepth, ++cellDepth_);
    }
  }

  void pop(Type t) { onStringStack(t) ? --stringDepth_ : --cellDepth_; }

  // --- statements

  void statement(const Statement& s) {
    switch (s.kind) {
      case StatementKind::Dim: {
        const QStringView name = span(s.nameStart, s.nameLength);
        if (s.declared == Type::None) {
          fault(s.line, ScriptError::UndefinedIdentifier, span(s.typeStart, s.typeLength).toString());
        }
        if (findVariable(name) || !FindBuiltin(name).empty()) {
          fault(s.line, ScriptError::DuplicateIdentifier, name.toString());
        }
        // The initial value is checked before the name exists: Dim x As Double = x is 11.
        const std::int32_t slot = onStringStack(s.declared) ? stringSlots_++ : cellSlots_++;
        if (s.expr >= 0) assign(s.expr, s.declared, slot, s.line);
        variables_.push_back(Variable{name, s.declared, slot});
        return;
      }
      case StatementKind::Assign: {
        const QStringView name = span(s.nameStart, s.nameLength);
        const Variable* v = findVariable(name);
        if (!v) {
          if (!FindBuiltin(name).empty()) fault(s.line, ScriptError::Syntax, name.toString() + QStringLiteral(" is a function"));
          fault(s.line, ScriptError::UndefinedIdentifier, name.toString());
        }
        const Variable target = *v;
        assign(s.expr, target.type, target.slot, s.line);
        return;
      }
      case StatementKind::Print: {
        if (s.argsCount == 0) fault(s.line, ScriptError::TooFewArguments, QStringLiteral("print"));
        if (s.argsCount > 1) fault(s.line, ScriptError::TooManyArguments, QStringLiteral("print"));
        if (expression(ast_.args[static_cast<std::size_t>(s.argsFirst)]) != Type::String) {
          fault(s.line, ScriptError::TypeMismatch, QStringLiteral("print needs a String"));
        }
        append(OpCode::Print, s.line);
        pop(Type::String);
        return;
      }
      case StatementKind::Call:
        expression(s.expr);
        fault(s.line, ScriptError::ResultIgnored);
    }
  }

  void assign(std::int32_t root, Type target, std::int32_t slot, std::int32_t line) {
    const Type t = expression(root);
    if (t != target) {
      if (target == Type::Double && t == Type::Integer) {
        append(OpCode::ToDouble, line, 0);
      } else if (target == Type::Integer && t == Type::Double) {
        append(OpCode::ToInteger, line, 0);
      } else {
        fault(line, ScriptError::AssignmentType);
      }
    }
    append(target == Type::String ? OpCode::StoreS : target == Type::Double ? OpCode::StoreD : OpCode::StoreI,
         line, slot);
    pop(target);
  }

  // --- expressions: the subtree of root is [first, root] in post-order, so one
  // forward pass sees every operand typed (and its code emitted) before its operator.

  Type expression(std::int32_t root) {
    for (std::int32_t i = ast_.nodes[static_cast<std::size_t>(root)].first; i <= root; ++i) node(i);
    return ast_.nodes[static_cast<std::size_t>(root)].type;
  }

  Type typeOf(std::int32_t index) const { return ast_.nodes[static_cast<std::size_t>(index)].type; }

  void node(std::int32_t index) {
    Node& n = ast_.nodes[static_cast<std::size_t>(index)];
    switch (n.kind) {
      case NodeKind::NumberLit:
        append(OpCode::PushD, n.line, 0, n.number);
        n.type = Type::Double;
        break;
      case NodeKind::IntegerLit:
        append(OpCode::PushI, n.line, n.value);
        n.type = Type::Integer;
        break;
      case NodeKind::BooleanLit:
        append(OpCode::PushI, n.line, n.value);
        n.type = Type::Boolean;
        break;
      case NodeKind::StringLit:
        append(OpCode::PushS, n.line, n.value);
        n.type = Type::String;
        break;
      case NodeKind::Name: {
        const QStringView name = span(n.value, n.length);
        if (const Variable* v = findVariable(name)) {
          append(v->type == Type::String ? OpCode::LoadS : v->type == Type::Double ? OpCode::LoadD : OpCode::LoadI,
               n.line, v->slot);
          n.type = v->type;
          break;
        }
        const auto rows = FindBuiltin(name);
        if (rows.empty()) fault(n.line, ScriptError::UndefinedIdentifier, name.toString());
        call(n, rows);  // a function named without parentheses is called with no arguments
        return;         // call() pushed the result
      }
      case NodeKind::Call: {
        const QStringView name = span(n.value, n.length);
        if (findVariable(name)) fault(n.line, ScriptError::NotAFunction, name.toString());
        const auto rows = FindBuiltin(name);
        if (rows.empty()) fault(n.line, ScriptError::UndefinedIdentifier, name.toString());
        call(n, rows);
        return;
      }
      case NodeKind::Unary:
        unary(n);
        return;  // the operand's value became the result: the depth is unchanged
      case NodeKind::Binary:
        binary(n);
        return;
    }
    push(n.type);
  }

  void unary(Node& n) {
    const Type t = typeOf(n.a);
    if (n.op == Operator::Not) {
      if (t != Type::Boolean) fault(n.line, ScriptError::LogicNeedsBoolean, QStringLiteral("Not"));
      append(OpCode::NotB, n.line);
    } else {
      if (!isNumeric(t)) fault(n.line, ScriptError::UndefinedOperator);
      if (n.op == Operator::Negate) append(t == Type::Double ? OpCode::NegD : OpCode::NegI, n.line);
    }
    n.type = t;
  }

  void binary(Node& n) {
    const Type l = typeOf(n.a);
    const Type r = typeOf(n.b);
    const bool numbers = isNumeric(l) && isNumeric(r);
    const bool integers = l == Type::Integer && r == Type::Integer;
    OpCode op = OpCode::AddD;
    Type result = Type::Double;
    switch (n.op) {
      case Operator::Or:
      case Operator::And:
        if (l != Type::Boolean || r != Type::Boolean) {
          fault(n.line, ScriptError::LogicNeedsBoolean, n.op == Operator::Or ? QStringLiteral("Or") : QStringLiteral("And"));
        }
        op = n.op == Operator::Or ? OpCode::OrB : OpCode::AndB;
        result = Type::Boolean;
        break;
      case Operator::Equal:
      case Operator::NotEqual:
      case Operator::Less:
      case Operator::Greater:
      case Operator::LessEqual:
      case Operator::GreaterEqual: {
        const bool equality = n.op == Operator::Equal || n.op == Operator::NotEqual;
        if (integers) {
          op = OpCode::CompareI;
        } else if (numbers) {
          toDoubles(n, l, r);
          op = OpCode::CompareD;
        } else if (l == Type::String && r == Type::String) {
          op = OpCode::CompareS;
        } else if (l == Type::Boolean && r == Type::Boolean && equality) {
          op = OpCode::CompareI;
        } else {
          fault(n.line, ScriptError::UndefinedOperator);
        }
        append(op, n.line, static_cast<std::int32_t>(n.op));
        pop(l);
        pop(r);
        n.type = Type::Boolean;
        push(n.type);
        return;
      }
      case Operator::Add:
      case Operator::Subtract:
      case Operator::Multiply:
        if (n.op == Operator::Add && l == Type::String && r == Type::String) {
          op = OpCode::Concat;
          result = Type::String;
          break;
        }
        if (!numbers) fault(n.line, ScriptError::UndefinedOperator);
        if (integers) {
          op = n.op == Operator::Add ? OpCode::AddI : n.op == Operator::Subtract ? OpCode::SubI : OpCode::MulI;
          result = Type::Integer;
        } else {
          toDoubles(n, l, r);
          op = n.op == Operator::Add ? OpCode::AddD : n.op == Operator::Subtract ? OpCode::SubD : OpCode::MulD;
        }
        break;
      case Operator::Divide:
      case Operator::Power:
        if (!numbers) fault(n.line, ScriptError::UndefinedOperator);
        toDoubles(n, l, r);
        op = n.op == Operator::Divide ? OpCode::DivD : OpCode::PowD;
        break;
      case Operator::IntegerDivide:
      case Operator::Mod:
        if (!numbers) fault(n.line, ScriptError::UndefinedOperator);
        if (l == Type::Double) append(OpCode::ToInteger, n.line, 1);
        if (r == Type::Double) append(OpCode::ToInteger, n.line, 0);
        op = n.op == Operator::Mod ? OpCode::ModI : OpCode::DivI;
        result = Type::Integer;
        break;
      default:
        fault(n.line, ScriptError::Syntax);
    }
    append(op, n.line);
    pop(l);
    pop(r);
    n.type = result;
    push(result);
  }

  // Both operands are numbers on the cell stack, the left one below the right.
  void toDoubles(const Node& n, Type l, Type r) {
    if (l == Type::Integer) append(OpCode::ToDouble, n.line, 1);
    if (r == Type::Integer) append(OpCode::ToDouble, n.line, 0);
  }

  // Picks the form of a built-in for the arguments (a form whose types fit exactly
  // wins over one that needs a number converted) and emits the conversions and the call.
  // Counts: a function with one count gives 6 for more and 7 for fewer arguments;
  // one with forms of several counts (Mid, InStr) gives 8 for a count none of them has.
  void call(Node& n, std::span<const Overload> rows) {
    const std::int32_t count = n.kind == NodeKind::Call ? n.b : 0;
    const auto argType = [&](std::int32_t k) {
      return typeOf(ast_.args[static_cast<std::size_t>(n.a + k)]);
    };

    bool countFits = false;
    bool severalCounts = false;
    for (const Overload& row : rows) {
      countFits = countFits || row.count == count;
      severalCounts = severalCounts || row.count != rows.front().count;
    }
    const QString name = span(n.value, n.length).toString();
    if (!countFits) {
      if (severalCounts) fault(n.line, ScriptError::WrongArgumentCount, name);
      fault(n.line, count > rows.front().count ? ScriptError::TooManyArguments : ScriptError::TooFewArguments, name);
    }

    const Overload* chosen = nullptr;
    for (int exact = 1; exact >= 0 && !chosen; --exact) {
      for (const Overload& row : rows) {
        if (row.count != count) continue;
        bool fits = true;
        for (std::int32_t k = 0; k < count && fits; ++k) {
          const Type want = row.params[static_cast<std::size_t>(k)];
          const Type have = argType(k);
          fits = want == have || (!exact && isNumeric(want) && isNumeric(have));
        }
        if (fits) {
          chosen = &row;
          break;
        }
      }
    }
    if (!chosen) fault(n.line, ScriptError::ArgumentType, name);

    for (std::int32_t k = 0; k < count; ++k) {
      const Type want = chosen->params[static_cast<std::size_t>(k)];
      if (want == argType(k)) continue;
      std::int32_t depth = 0;  // cells of the later arguments lie above this one
      for (std::int32_t later = k + 1; later < count; ++later) depth += onStringStack(argType(later)) ? 0 : 1;
      append(want == Type::Double ? OpCode::ToDouble : OpCode::ToInteger, n.line, depth);
    }
    append(OpCode::Call, n.line, static_cast<std::int32_t>(chosen - Builtins().data()));
    for (std::int32_t k = 0; k < count; ++k) pop(chosen->params[static_cast<std::size_t>(k)]);
    n.type = chosen->result;
    push(n.type);
  }

  Ast& ast_;
  Code code_;
  std::vector<Variable> variables_;
  std::int32_t cellSlots_ = 0;
  std::int32_t stringSlots_ = 0;
  std::int32_t cellDepth_ = 0;
  std::int32_t stringDepth_ = 0;
};

}  // namespace

Code Check(Ast& ast) { return Checker(ast).run(); }

Code Compile(const QString& source) {
  Ast ast;
  ast.source = source;
  Parse(ast);
  return Check(ast);
}

}  // namespace platform::script
