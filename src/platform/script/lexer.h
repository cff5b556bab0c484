#pragma once
// The lexer turns script text into tokens on demand, one lookahead for the parser.
// It knows line endings (CR, LF, CR LF each end one statement), comments (' // Rem),
// keywords (any case), number literals of any length and string literals with ""
// for a quote. It raises a syntax fault for a character that starts no token.

#include <QStringView>
#include <cstdint>

#include "platform/script/script_errors.h"

namespace platform::script {

enum class Tok : std::uint8_t {
  End,
  Newline,
  Number,       // decimal literal: its value in Token::number
  BasedNumber,  // &h &o &b literal: its 32-bit value in Token::integer
  Text,         // "..." literal, quotes included in the span
  Name,
  // keywords
  And, As, Boolean, Dim, Double, False, Integer, Mod, Not, Or, Print, String, True,
  // punctuation
  Plus, Minus, Star, Slash, Backslash, Caret,
  Equal, NotEqual, Less, Greater, LessEqual, GreaterEqual,
  LParen, RParen, Comma,
};

struct Token {
  Tok kind = Tok::End;
  std::int32_t line = 1;
  std::int32_t start = 0;   // offset into the source
  std::int32_t length = 0;
  double number = 0;
  std::int32_t integer = 0;
};

class Lexer {
 public:
  explicit Lexer(QStringView source);

  // The next token; throws CompileFault (syntax) for text that makes no token.
  Token next();

 private:
  Token make(Tok kind, const char16_t* from) const;
  void skipToLineEnd();
  Token number(const char16_t* from);
  Token based(const char16_t* from);
  Token text(const char16_t* from);
  Token word(const char16_t* from);

  const char16_t* begin_;
  const char16_t* pos_;
  const char16_t* end_;
  std::int32_t line_ = 1;
};

// The value of a decimal literal of any length (digits, optional point, optional
// exponent). Correctly rounded; beyond the double range it is infinity, below it 0.
double DecimalLiteralValue(const char* text, std::size_t length);

}  // namespace platform::script
