#pragma once
// The string and number operations the whole program is written against.
// Positions count from 1; every comparison ignores case (Unicode-aware), because
// captions and menu texts are compared that way throughout the program, and its
// odd behaviours (5! read as 5, "a;b;" having three fields) follow from these rules.

#include <QString>
#include <QStringList>
#include <cstdint>

namespace platform {

// String `=`: equal when they differ only in case ("Å" equals "å").
bool StrEq(const QString& a, const QString& b);

// Position of the first occurrence of find, from 1; 0 when absent or find is empty.
// A start of 0 (or 1) means the beginning.
int InStr(const QString& source, const QString& find);
int InStr(int start, const QString& source, const QString& find);

// Every occurrence of old (case ignored), left to right, in one pass; repl is put in as given.
QString ReplaceAll(const QString& source, const QString& old, const QString& repl);

// The n-th field (from 1) split by a separator of any length; empty past the last field.
QString NthField(const QString& source, const QString& separator, int n);
// Occurrences of the separator plus 1.
int CountFields(const QString& source, const QString& separator);
// All fields, indexed from 0.
QStringList Split(const QString& source, const QString& separator);

QString Str(std::int32_t value);
// At most 7 significant digits, no trailing zeros; exponent form outside 1e-4..1e7.
QString Str(double value);
// Format with a mask of 0 # . e + , % - \ and literal characters.
QString Format(double value, const QString& mask);
// The number at the start of the text; 0 when there is none. &h &o &b prefixes.
double Val(const QString& text);

QString Hex(std::int32_t value);
QString Oct(std::int32_t value);
QString Bin(std::int32_t value);
// Half away from zero.
double Round(double value);

QString LTrim(const QString& s);
QString RTrim(const QString& s);
QString Trim(const QString& s);
QString Left(const QString& s, int count);
QString Right(const QString& s, int count);
QString Mid(const QString& s, int start);
QString Mid(const QString& s, int start, int length);
int Len(const QString& s);
QString Lowercase(const QString& s);
QString Uppercase(const QString& s);
QString Chr(std::uint32_t codePoint);

// The host's line ending ("\n" here).
QString EndOfLine();
QString ReplaceLineEndings(const QString& text, const QString& ending);

// Array Sort: ascending, case ignored.
void Sort(QStringList& items);

// The implicit double-to-Integer conversion: truncation toward zero; NaN or a value
// outside the 32-bit range gives INT32_MIN, as the processor's conversion does.
std::int32_t ToInt32(double value);

}  // namespace platform
