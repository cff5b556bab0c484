#include "platform/script/parser.h"

#include "platform/script/lexer.h"

namespace platform::script {

namespace {

// Operator precedence, low to high. The one table of the language's binding rules;
// subexpr() climbs it. A binary operator binds while its left priority exceeds the
// limit the caller passes; its right operand is parsed with the right priority, so
// right < left makes it group from the right.
//
//   Or                        1   left to right
//   And                       2   left to right
//   Not        (unary)        3   Not a = b is Not (a = b)
//   = <> < > <= >=            4   left to right
//   + -                       5   left to right
//   Mod                       6   left to right
//   \                         7   left to right
//   * /                       8   left to right
//   - +        (unary)        9   1*-1 is 1*(-1)
//   ^                     11/10   right to left: 2^3^2 is 2^9, -3^2 is -(3^2), 2^-1 is 0.5
struct BinaryRow {
  Tok token;
  Operator op;
  int left;
  int right;
};

constexpr BinaryRow kBinary[] = {
    {Tok::Or, Operator::Or, 1, 1},
    {Tok::And, Operator::And, 2, 2},
    {Tok::Equal, Operator::Equal, 4, 4},
    {Tok::NotEqual, Operator::NotEqual, 4, 4},
    {Tok::Less, Operator::Less, 4, 4},
    {Tok::Greater, Operator::Greater, 4, 4},
    {Tok::LessEqual, Operator::LessEqual, 4, 4},
    {Tok::GreaterEqual, Operator::GreaterEqual, 4, 4},
    {Tok::Plus, Operator::Add, 5, 5},
    {Tok::Minus, Operator::Subtract, 5, 5},
    {Tok::Mod, Operator::Mod, 6, 6},
    {Tok::Backslash, Operator::IntegerDivide, 7, 7},
    {Tok::Star, Operator::Multiply, 8, 8},
    {Tok::Slash, Operator::Divide, 8, 8},
    {Tok::Caret, Operator::Power, 11, 10},
};
constexpr int kNotPriority = 3;
constexpr int kUnaryPriority = 9;

const BinaryRow* binaryRow(Tok token) {
  for (const BinaryRow& row : kBinary) {
    if (row.token == token) return &row;
  }
  return nullptr;
}

// A token as quoted in a message; a 1 MB literal is cut short.
constexpr int kQuotedTokenLength = 24;

class Parser {
 public:
  explicit Parser(Ast& ast) : ast_(ast), lexer_(ast.source) { advance(); }

  // program := { [ statement ] ( NEWLINE | END ) }
  void program() {
    while (tok_.kind != Tok::End) {
      if (tok_.kind != Tok::Newline) {
        statement();
        if (tok_.kind != Tok::Newline && tok_.kind != Tok::End) fail("expected the end of the line");
      }
      if (tok_.kind == Tok::Newline) advance();
    }
  }

 private:
  void advance() { tok_ = lexer_.next(); }

  [[noreturn]] void fail(const char* expected) {
    QString seen;
    switch (tok_.kind) {
      case Tok::End: seen = QStringLiteral("the end of the script"); break;
      case Tok::Newline: seen = QStringLiteral("the end of the line"); break;
      default: {
        QStringView text = QStringView(ast_.source).mid(tok_.start, tok_.length);
        seen = QLatin1Char('\'') + text.left(kQuotedTokenLength).toString() +
               (text.size() > kQuotedTokenLength ? QStringLiteral("...'") : QStringLiteral("'"));
      }
    }
    throw CompileFault{tok_.line, ScriptError::Syntax,
                       QString::fromLatin1(expected) + QStringLiteral(", found ") + seen};
  }

  void expect(Tok kind, const char* expected) {
    if (tok_.kind != kind) fail(expected);
    advance();
  }

  // Appends a complete node; its operands are already in the arena, so its subtree
  // starts where its first operand's does.
  std::int32_t add(Node node) {
    const auto index = static_cast<std::int32_t>(ast_.nodes.size());
    node.first = index;
    if (node.kind == NodeKind::Unary || node.kind == NodeKind::Binary) {
      node.first = ast_.nodes[static_cast<std::size_t>(node.a)].first;
    } else if (node.kind == NodeKind::Call && node.b > 0) {
      node.first = ast_.nodes[static_cast<std::size_t>(ast_.args[static_cast<std::size_t>(node.a)])].first;
    }
    ast_.nodes.push_back(node);
    return index;
  }

  // statement := dim | 'print' [ expr { ',' expr } ] | NAME '=' expr | NAME '(' [ args ] ')'
  void statement() {
    Statement s{};
    s.line = tok_.line;
    switch (tok_.kind) {
      case Tok::Dim:
        dim();
        return;
      case Tok::Print: {
        advance();
        s.kind = StatementKind::Print;
        const std::size_t mark = scratch_.size();
        if (tok_.kind != Tok::Newline && tok_.kind != Tok::End) {
          scratch_.push_back(expr());
          while (tok_.kind == Tok::Comma) {
            advance();
            scratch_.push_back(expr());
          }
        }
        takeArguments(mark, s.argsFirst, s.argsCount);
        ast_.statements.push_back(s);
        return;
      }
      case Tok::Name: {
        const Token name = tok_;
        advance();
        if (tok_.kind == Tok::Equal) {
          advance();
          s.kind = StatementKind::Assign;
          s.nameStart = name.start;
          s.nameLength = name.length;
          s.expr = expr();
        } else if (tok_.kind == Tok::LParen) {
          s.kind = StatementKind::Call;
          s.expr = call(name);
        } else {
          fail("expected '=' after the name");
        }
        ast_.statements.push_back(s);
        return;
      }
      default:
        fail("expected a statement");
    }
  }

  // dim   := 'Dim' group { ',' group }
  // group := NAME { ',' NAME } 'As' type [ '=' expr ]     (a value only for one name)
  // type  := 'Double' | 'Integer' | 'String' | 'Boolean' | NAME
  void dim() {
    advance();
    for (;;) {
      const std::size_t first = ast_.statements.size();
      for (;;) {
        if (tok_.kind != Tok::Name) fail("expected a variable name");
        Statement s{};
        s.kind = StatementKind::Dim;
        s.line = tok_.line;
        s.nameStart = tok_.start;
        s.nameLength = tok_.length;
        ast_.statements.push_back(s);
        advance();
        if (tok_.kind != Tok::Comma) break;
        advance();
      }
      expect(Tok::As, "expected 'As'");
      Type type = Type::None;
      switch (tok_.kind) {
        case Tok::Double: type = Type::Double; break;
        case Tok::Integer: type = Type::Integer; break;
        case Tok::String: type = Type::String; break;
        case Tok::Boolean: type = Type::Boolean; break;
        case Tok::Name: break;  // the checker reports an unknown type by its name
        default: fail("expected a type");
      }
      for (std::size_t i = first; i < ast_.statements.size(); ++i) {
        ast_.statements[i].declared = type;
        ast_.statements[i].typeStart = tok_.start;
        ast_.statements[i].typeLength = tok_.length;
      }
      advance();
      if (tok_.kind == Tok::Equal) {
        if (ast_.statements.size() - first != 1) fail("expected one name before an initial value");
        advance();
        const std::int32_t value = expr();
        ast_.statements.back().expr = value;
      }
      if (tok_.kind != Tok::Comma) return;
      advance();
    }
  }

  std::int32_t expr() { return subexpr(0); }

  // subexpr := ( ('-' | '+') subexpr(unary) | 'Not' subexpr(not) | primary )
  //            { binop subexpr(right priority) }      while left priority > limit
  std::int32_t subexpr(int limit) {
    if (++depth_ > kMaxNesting) {
      throw CompileFault{tok_.line, ScriptError::NestingTooDeep, QString()};
    }
    std::int32_t left;
    if (tok_.kind == Tok::Minus || tok_.kind == Tok::Plus || tok_.kind == Tok::Not) {
      Node n{NodeKind::Unary};
      n.line = tok_.line;
      n.op = tok_.kind == Tok::Minus ? Operator::Negate : tok_.kind == Tok::Plus ? Operator::Plus : Operator::Not;
      advance();
      n.a = subexpr(n.op == Operator::Not ? kNotPriority : kUnaryPriority);
      left = add(n);
    } else {
      left = primary();
    }
    for (const BinaryRow* row = binaryRow(tok_.kind); row && row->left > limit; row = binaryRow(tok_.kind)) {
      Node n{NodeKind::Binary};
      n.line = tok_.line;
      n.op = row->op;
      advance();
      n.a = left;
      n.b = subexpr(row->right);
      left = add(n);
    }
    --depth_;
    return left;
  }

  // primary := NUMBER | BASED | TEXT | 'True' | 'False' | NAME [ '(' args ')' ] | '(' expr ')'
  std::int32_t primary() {
    Node n{NodeKind::NumberLit};
    n.line = tok_.line;
    switch (tok_.kind) {
      case Tok::Number:
        n.number = tok_.number;
        break;
      case Tok::BasedNumber:
        n.kind = NodeKind::IntegerLit;
        n.value = tok_.integer;
        break;
      case Tok::Text:
        n.kind = NodeKind::StringLit;
        n.value = static_cast<std::int32_t>(ast_.texts.size());
        ast_.texts.push_back(unquote(tok_));
        break;
      case Tok::True:
      case Tok::False:
        n.kind = NodeKind::BooleanLit;
        n.value = tok_.kind == Tok::True ? 1 : 0;
        break;
      case Tok::Name: {
        const Token name = tok_;
        advance();
        if (tok_.kind == Tok::LParen) return call(name);
        n.kind = NodeKind::Name;
        n.value = name.start;
        n.length = name.length;
        return add(n);
      }
      case Tok::LParen: {
        advance();
        const std::int32_t inner = expr();
        expect(Tok::RParen, "expected ')'");
        return inner;
      }
      default:
        fail("expected a value");
    }
    advance();
    return add(n);
  }

  // call := NAME '(' [ expr { ',' expr } ] ')'       the current token is the '('
  std::int32_t call(const Token& name) {
    Node n{NodeKind::Call};
    n.line = name.line;
    n.value = name.start;
    n.length = name.length;
    advance();
    const std::size_t mark = scratch_.size();
    if (tok_.kind != Tok::RParen) {
      scratch_.push_back(expr());
      while (tok_.kind == Tok::Comma) {
        advance();
        scratch_.push_back(expr());
      }
    }
    expect(Tok::RParen, "expected ')'");
    takeArguments(mark, n.a, n.b);
    return add(n);
  }

  // Arguments of nested calls interleave while they are parsed; each list moves to
  // Ast::args in one piece once its ')' is read.
  void takeArguments(std::size_t mark, std::int32_t& first, std::int32_t& count) {
    first = static_cast<std::int32_t>(ast_.args.size());
    count = static_cast<std::int32_t>(scratch_.size() - mark);
    ast_.args.insert(ast_.args.end(), scratch_.begin() + static_cast<std::ptrdiff_t>(mark), scratch_.end());
    scratch_.resize(mark);
  }

  QString unquote(const Token& t) const {
    QStringView inner = QStringView(ast_.source).mid(t.start + 1, t.length - 2);
    QString text = inner.toString();
    if (inner.contains(u'"')) text.replace(QStringLiteral("\"\""), QStringLiteral("\""));
    return text;
  }

  Ast& ast_;
  Lexer lexer_;
  Token tok_;
  int depth_ = 0;
  std::vector<std::int32_t> scratch_;
};

}  // namespace

void Parse(Ast& ast) {
  Parser parser(ast);
  parser.program();
}

}  // namespace platform::script
