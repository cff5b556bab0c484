#include "platform/script/lexer.h"

#include <QChar>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

namespace platform::script {

namespace {

struct KeywordRow {
  std::string_view word;  // lower case
  Tok kind;
  bool comment;           // Rem: the rest of the line is a comment
};

// Sorted by word for the binary search below.
constexpr KeywordRow kKeywords[] = {
    {"and", Tok::And, false},         {"as", Tok::As, false},
    {"boolean", Tok::Boolean, false}, {"dim", Tok::Dim, false},
    {"double", Tok::Double, false},   {"false", Tok::False, false},
    {"integer", Tok::Integer, false}, {"mod", Tok::Mod, false},
    {"not", Tok::Not, false},         {"or", Tok::Or, false},
    {"print", Tok::Print, false},     {"rem", Tok::End, true},
    {"string", Tok::String, false},   {"true", Tok::True, false},
};
static_assert(std::is_sorted(std::begin(kKeywords), std::end(kKeywords),
                             [](const KeywordRow& a, const KeywordRow& b) { return a.word < b.word; }));

constexpr std::size_t kLongestKeyword = 7;

bool isDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

bool isNameStart(char16_t c) {
  if (c < 0x80) return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
  return QChar(c).isLetter();
}

bool isNameChar(char16_t c) {
  if (c < 0x80) return isNameStart(c) || isDigit(c);
  return QChar(c).isLetterOrNumber();
}

bool isBlank(char16_t c) {
  if (c == u' ' || c == u'\t' || c == u'\v' || c == u'\f') return true;
  return c >= 0x80 && QChar(c).isSpace();
}

int digitValue(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return 99;
}

// The decimal exponent of the leading significant digit of a literal that
// from_chars found out of range: positive means it overflowed, negative underflowed.
long long leadingExponent(std::string_view text) {
  std::size_t point = text.find('.');
  std::size_t e = text.find_first_of("eE");
  std::string_view mantissa = text.substr(0, e);
  if (point == std::string_view::npos || point > mantissa.size()) point = mantissa.size();

  long long exponent = 0;
  if (e != std::string_view::npos) {
    std::size_t i = e + 1;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    // Saturate: the sign is all that matters once the exponent is this large.
    for (; i < text.size(); ++i) exponent = std::min(exponent * 10 + (text[i] - '0'), 1000000000LL);
    if (negative) exponent = -exponent;
  }
  for (std::size_t i = 0; i < mantissa.size(); ++i) {
    if (mantissa[i] >= '1' && mantissa[i] <= '9') {
      long long position = i < point ? static_cast<long long>(point - i - 1)
                                     : -static_cast<long long>(i - point);
      return position + exponent;
    }
  }
  return 0;
}

}  // namespace

double DecimalLiteralValue(const char* text, std::size_t length) {
  double value = 0;
  auto [end, ec] = std::from_chars(text, text + length, value, std::chars_format::general);
  (void)end;
  if (ec == std::errc::result_out_of_range) {
    return leadingExponent(std::string_view(text, length)) > 0 ? HUGE_VAL : 0.0;
  }
  return value;
}

Lexer::Lexer(QStringView source)
    : begin_(source.utf16()), pos_(source.utf16()), end_(source.utf16() + source.size()) {}

Token Lexer::make(Tok kind, const char16_t* from) const {
  Token t;
  t.kind = kind;
  t.line = line_;
  t.start = static_cast<std::int32_t>(from - begin_);
  t.length = static_cast<std::int32_t>(pos_ - from);
  return t;
}

void Lexer::skipToLineEnd() {
  while (pos_ < end_ && *pos_ != u'\r' && *pos_ != u'\n') ++pos_;
}

Token Lexer::next() {
  for (;;) {
    while (pos_ < end_ && isBlank(*pos_)) ++pos_;
    if (pos_ == end_) return make(Tok::End, pos_);

    const char16_t* from = pos_;
    const char16_t c = *pos_;
    if (c == u'\r' || c == u'\n') {
      ++pos_;
      if (c == u'\r' && pos_ < end_ && *pos_ == u'\n') ++pos_;
      Token t = make(Tok::Newline, from);
      ++line_;
      return t;
    }
    if (isDigit(c) || (c == u'.' && pos_ + 1 < end_ && isDigit(pos_[1]))) return number(from);
    if (isNameStart(c)) {
      Token t = word(from);
      if (t.kind != Tok::End) return t;
      skipToLineEnd();  // Rem
      continue;
    }
    ++pos_;
    switch (c) {
      case u'\'':
        skipToLineEnd();
        continue;
      case u'/':
        if (pos_ < end_ && *pos_ == u'/') {
          skipToLineEnd();
          continue;
        }
        return make(Tok::Slash, from);
      case u'"': return text(from);
      case u'&': return based(from);
      case u'+': return make(Tok::Plus, from);
      case u'-': return make(Tok::Minus, from);
      case u'*': return make(Tok::Star, from);
      case u'\\': return make(Tok::Backslash, from);
      case u'^': return make(Tok::Caret, from);
      case u'(': return make(Tok::LParen, from);
      case u')': return make(Tok::RParen, from);
      case u',': return make(Tok::Comma, from);
      case u'=': return make(Tok::Equal, from);
      case u'<':
        if (pos_ < end_ && *pos_ == u'=') return ++pos_, make(Tok::LessEqual, from);
        if (pos_ < end_ && *pos_ == u'>') return ++pos_, make(Tok::NotEqual, from);
        return make(Tok::Less, from);
      case u'>':
        if (pos_ < end_ && *pos_ == u'=') return ++pos_, make(Tok::GreaterEqual, from);
        return make(Tok::Greater, from);
      default:
        throw CompileFault{line_, ScriptError::Syntax,
                           QStringLiteral("unexpected character '%1'").arg(QChar(c))};
    }
  }
}

// number := digits [ '.' digits ] [ ('e'|'E') ['+'|'-'] digits ]  |  '.' digits [exponent]
// An 'e' not followed by digits is not part of the number: 2e^6 is 2, then a name.
Token Lexer::number(const char16_t* from) {
  while (pos_ < end_ && isDigit(*pos_)) ++pos_;
  if (pos_ < end_ && *pos_ == u'.') {
    ++pos_;
    while (pos_ < end_ && isDigit(*pos_)) ++pos_;
  }
  if (pos_ < end_ && (*pos_ == u'e' || *pos_ == u'E')) {
    const char16_t* p = pos_ + 1;
    if (p < end_ && (*p == u'+' || *p == u'-')) ++p;
    if (p < end_ && isDigit(*p)) {
      pos_ = p;
      while (pos_ < end_ && isDigit(*pos_)) ++pos_;
    }
  }

  // The characters are all ASCII; a short literal converts without touching the heap.
  const std::size_t length = static_cast<std::size_t>(pos_ - from) + 1;
  char small[64];
  std::string large;
  char* buffer = small;
  if (length > sizeof small) {
    large.resize(length);
    buffer = large.data();
  }
  std::size_t n = 0;
  if (*from == u'.') buffer[n++] = '0';
  for (const char16_t* p = from; p < pos_; ++p) buffer[n++] = static_cast<char>(*p);

  Token t = make(Tok::Number, from);
  t.number = DecimalLiteralValue(buffer, n);
  return t;
}

// based := '&' ('h'|'o'|'b') digits-of-that-base ; the value keeps the low 32 bits,
// so &hFFFFFFFF is -1 as a 32-bit Integer.
Token Lexer::based(const char16_t* from) {
  int radix = 0;
  if (pos_ < end_) {
    switch (*pos_) {
      case u'h': case u'H': radix = 16; break;
      case u'o': case u'O': radix = 8; break;
      case u'b': case u'B': radix = 2; break;
      default: break;
    }
  }
  if (radix == 0) throw CompileFault{line_, ScriptError::Syntax, QStringLiteral("'&' without h, o or b")};
  ++pos_;
  std::uint32_t value = 0;
  const char16_t* digits = pos_;
  while (pos_ < end_ && digitValue(*pos_) < radix) {
    value = value * static_cast<std::uint32_t>(radix) + static_cast<std::uint32_t>(digitValue(*pos_));
    ++pos_;
  }
  if (pos_ == digits) throw CompileFault{line_, ScriptError::Syntax, QStringLiteral("no digits after '&'")};
  Token t = make(Tok::BasedNumber, from);
  t.integer = static_cast<std::int32_t>(value);
  return t;
}

// text := '"' { any character but a line ending, or '""' } '"'
Token Lexer::text(const char16_t* from) {
  for (;;) {
    if (pos_ == end_ || *pos_ == u'\r' || *pos_ == u'\n') {
      throw CompileFault{line_, ScriptError::Syntax, QStringLiteral("string without its closing quote")};
    }
    if (*pos_++ == u'"') {
      if (pos_ < end_ && *pos_ == u'"') {
        ++pos_;
        continue;
      }
      return make(Tok::Text, from);
    }
  }
}

// A keyword, or a name. Returns a token of kind End for Rem, which starts a comment.
Token Lexer::word(const char16_t* from) {
  bool ascii = true;
  for (; pos_ < end_ && isNameChar(*pos_); ++pos_) {
    if (*pos_ >= 0x80) ascii = false;
  }
  const std::size_t length = static_cast<std::size_t>(pos_ - from);
  if (ascii && length <= kLongestKeyword) {
    char lower[kLongestKeyword];
    for (std::size_t i = 0; i < length; ++i) {
      char ch = static_cast<char>(from[i]);
      lower[i] = (ch >= 'A' && ch <= 'Z') ? static_cast<char>(ch - 'A' + 'a') : ch;
    }
    const std::string_view key(lower, length);
    const KeywordRow* row = std::lower_bound(std::begin(kKeywords), std::end(kKeywords), key,
                                             [](const KeywordRow& r, std::string_view k) { return r.word < k; });
    if (row != std::end(kKeywords) && row->word == key) {
      return make(row->comment ? Tok::End : row->kind, from);
    }
  }
  return make(Tok::Name, from);
}

}  // namespace platform::script
