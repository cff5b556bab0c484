#pragma once
// The string and number operations the whole program is written against.
// Positions count from 1; every comparison ignores case (Unicode-aware), because
// captions and menu texts are compared that way throughout the program, and its
// odd behaviours (5! read as 5, "a;b;" having three fields) follow from these rules.
// Positions and lengths count code points: a character outside the BMP is one
// character although QString stores it as two UTF-16 units.
// None of these depend on the C locale: "." is always the decimal point.

#include <QString>
#include <QStringList>
#include <cstdint>

namespace platform {

// String `=`: equal when they differ only in case ("Å" equals "å").
bool StrEq(const QString& a, const QString& b);

// Position of the first occurrence of find, from 1; 0 when absent or find is empty.
// A start of 0 (or 1, or below) means the beginning; a start past the end gives 0.
int InStr(const QString& source, const QString& find);
int InStr(int start, const QString& source, const QString& find);

// Every occurrence of old (case ignored), left to right, in one pass; repl is put in as given.
// An empty old leaves the text alone; an empty repl deletes.
QString ReplaceAll(const QString& source, const QString& old, const QString& repl);

// The n-th field (from 1) split by a separator of any length (case ignored); empty past
// the last field and for n < 1. An empty separator never occurs, so the whole text is
// the one field, for NthField, CountFields and Split alike.
QString NthField(const QString& source, const QString& separator, int n);
// Occurrences of the separator plus 1.
int CountFields(const QString& source, const QString& separator);
// All fields, indexed from 0.
QStringList Split(const QString& source, const QString& separator);

QString Str(std::int32_t value);
// At most 7 significant digits, no trailing zeros; exponent form outside 1e-4..1e7
// with a signed exponent without leading zeros ("1.234568e+7", "1e-5"), which Val and
// the script language read back. -0 gives "0"; non-finite values "INF", "-INF", "NAN".
QString Str(double value);
// Format with a mask: 0 digit always, # digit if significant, . decimal point (written
// only when a fractional digit follows), , before the point groups thousands,
// e/E exponent when a sign or digit place follows it (e+ sign always, e- sign only
// when negative; the exponent's digits grow past the mask), + sign always (else a
// negative gets "-" in front), % multiplies by 100, \ makes the next character
// literal, anything else (also -) is literal. At most 15 significant digits: the value
// is rounded to 15 digits, then half up to the mask's places, so 0.1+0.2 gives
// "3.0e-1" and 2.675 with "0.00" gives "2.68". A value that rounds to zero has no
// sign. Integer digits the mask has no room for go at its first integer place; a
// mask with no digit place at all writes its literals only. An empty mask is Str.
// Non-finite values give "INF", "-INF", "NAN" whatever the mask.
QString Format(double value, const QString& mask);
// The number at the start of the text; 0 when there is none. Blanks and tabs in front
// are skipped; then sign, digits, point, and an exponent only if a digit follows the
// e (so "1e" is 1, "5!" is 5). A number too large gives infinity, too small 0.
// "&h", "&o", "&b" (any case) read hexadecimal, octal, binary; only the low 32 bits
// count, read as two's complement ("&hFFFFFFFF" is -1), like the framework's integers.
double Val(const QString& text);

QString Hex(std::int32_t value);
QString Oct(std::int32_t value);
QString Bin(std::int32_t value);
// Half away from zero.
double Round(double value);

// White space is anything QChar::isSpace: blanks, tabs, line endings.
QString LTrim(const QString& s);
QString RTrim(const QString& s);
QString Trim(const QString& s);
QString Left(const QString& s, int count);
QString Right(const QString& s, int count);
// Counts under 1 give "". Mid starts at `start` (from 1; below 1 means 1).
QString Mid(const QString& s, int start);
QString Mid(const QString& s, int start, int length);
int Len(const QString& s);
QString Lowercase(const QString& s);
QString Uppercase(const QString& s);
// A code point that is not a character (a surrogate, above U+10FFFF) gives U+FFFD.
QString Chr(std::uint32_t codePoint);

// The host's line ending ("\n" here).
QString EndOfLine();
// CR LF, CR and LF each become `ending`.
QString ReplaceLineEndings(const QString& text, const QString& ending);

// Array Sort: ascending, case ignored; texts equal but for case come in a fixed order
// (upper case first), whatever their order before.
void Sort(QStringList& items);

// The implicit double-to-Integer conversion: truncation toward zero; NaN or a value
// outside the 32-bit range gives INT32_MIN, as the processor's conversion does.
std::int32_t ToInt32(double value);

}  // namespace platform
