#pragma once
// The stages of formula rewriting that need nothing of the window: plain searches and
// replacements over the text, with no parser anywhere. Their oddities are wanted: a
// degree factor reaches only the first term of an argument, "Asin(" anywhere keeps
// every plain "sin(" in radians, and a factorial's replacement also hits the tails of
// longer numbers ("5!+15!" becomes "120+1120"). Window1 decides which stages run
// (src/calc/rewrite.cpp); these do not read settings or write the log.

#include <QString>

namespace calc {

// Every blank, then every comma, removed.
QString stripBlanksAndCommas(const QString& text);
// Em dash and en dash to "-", the ring A and the multiplication sign to the letter x
// (stage 3 wants an x), "~" removed.
QString purgePretty(const QString& text);
// "x10" to "e", so 2x106 (a superscript 6 pasted flat) reads 2e6.
QString scientificForm(const QString& text);
// The language's log is natural; base 10 is this seven-digit factor and nothing more.
QString logBase10(const QString& text);
// Degree factors for sin, cos, tan, and degree results for their inverses.
QString degrees(const QString& text);
// Each digits-then-"!" replaced by its factorial.
QString factorials(const QString& text);
// "PI" (any case) to its digits.
QString piDigits(const QString& text);

// n! with 32-bit signed wrapping: 13! is 1932053504, 17! is -288522240, from 34! on 0.
// "1" for 0 and "" for a negative n, so a factorial of a number beyond 32 bits vanishes.
QString factorial(qint32 n);

}  // namespace calc
