#include "platform/strings/strings.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace platform {

namespace {

// ---- code points -------------------------------------------------------------
// QString holds UTF-16; the positions of this layer count code points, so a
// character outside the BMP (an emoji in a pasted formula) is one character.

bool isPairAt(const QChar* d, qsizetype i, qsizetype size) {
    return d[i].isHighSurrogate() && i + 1 < size && d[i + 1].isLowSurrogate();
}

// UTF-16 index of code point n (from 0); the size when n is past the end.
qsizetype unitIndex(const QString& s, qsizetype n) {
    const QChar* d = s.constData();
    const qsizetype size = s.size();
    qsizetype i = 0;
    while (n > 0 && i < size) {
        i += isPairAt(d, i, size) ? 2 : 1;
        --n;
    }
    return i;
}

// Number of code points in the first `unit` UTF-16 units.
qsizetype codePointCount(const QString& s, qsizetype unit) {
    const QChar* d = s.constData();
    const qsizetype size = std::min(unit, s.size());
    qsizetype count = 0;
    for (qsizetype i = 0; i < size; ++count)
        i += isPairAt(d, i, s.size()) ? 2 : 1;
    return count;
}

constexpr auto CI = Qt::CaseInsensitive;

// ---- decimal digits ----------------------------------------------------------
// A finite non-negative value as significant digits D and the decimal exponent X
// of the first digit: value = 0.D * 10^(X+1). Zero is an empty D.
struct Decimal {
    char digits[32] = {};
    int count = 0;
    int exponent = 0;

    char at(int position) const {  // digit at 10^position
        const int i = exponent - position;
        return (i >= 0 && i < count) ? digits[i] : '0';
    }
    bool isZero() const { return count == 0; }
};

constexpr int kMaxFormatDigits = 15;

// The value rounded to 15 significant digits (correctly, by to_chars).
Decimal toDecimal15(double magnitude) {
    Decimal d;
    if (magnitude == 0.0) return d;
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, magnitude, std::chars_format::scientific,
                             kMaxFormatDigits - 1);
    const char* p = buf;
    for (; p < res.ptr && *p != 'e'; ++p)
        if (*p >= '0' && *p <= '9') d.digits[d.count++] = *p;
    int exp = 0;
    std::from_chars(p + 1 + (p[1] == '+'), res.ptr, exp);
    d.exponent = exp;
    while (d.count > 0 && d.digits[d.count - 1] == '0') --d.count;
    return d;
}

// Keeps `keep` significant digits, half up on the decimal digits. Rounding the
// already 15-digit text (not the binary value) makes 2.675 give 2.68 at two places.
void roundTo(Decimal& d, int keep) {
    if (d.isZero() || keep >= d.count) return;
    if (keep < 0) {
        d.count = 0;
        return;
    }
    const bool up = d.digits[keep] >= '5';
    d.count = keep;
    if (up) {
        int i = keep - 1;
        while (i >= 0 && d.digits[i] == '9') --i;
        if (i < 0) {
            d.digits[0] = '1';
            d.count = 1;
            ++d.exponent;
        } else {
            ++d.digits[i];
            d.count = i + 1;
        }
    }
    while (d.count > 0 && d.digits[d.count - 1] == '0') --d.count;
}

QString nonFinite(double value) {
    if (std::isnan(value)) return QStringLiteral("NAN");
    return value < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
}

// ---- Format masks ------------------------------------------------------------

struct MaskToken {
    enum Kind { Digit, Point, Literal, Percent, Sign, Exponent } kind;
    QChar ch;  // the literal, or the exponent letter
};

struct Mask {
    std::vector<MaskToken> tokens;
    int intPlaces = 0;
    int intMinWidth = 0;    // from the first integer 0 to the point
    int fracPlaces = 0;
    int fracMinWidth = 0;   // up to the last fractional 0
    bool grouping = false;
    bool percent = false;
    bool signToken = false;
    bool exponent = false;
    enum { ExpSignNone, ExpSignAlways, ExpSignNegative } expSign = ExpSignNone;
    int expMinWidth = 1;
};

bool isPlace(QChar c) { return c == u'0' || c == u'#'; }

Mask parseMask(const QString& text) {
    Mask m;
    enum { Int, Frac, AfterExp } section = Int;
    int firstIntZero = -1;
    const qsizetype n = text.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text[i];
        if (c == u'\\') {
            if (++i < n) m.tokens.push_back({MaskToken::Literal, text[i]});
        } else if (isPlace(c) && section == Int) {
            if (c == u'0' && firstIntZero < 0) firstIntZero = m.intPlaces;
            ++m.intPlaces;
            m.tokens.push_back({MaskToken::Digit, c});
        } else if (isPlace(c) && section == Frac) {
            ++m.fracPlaces;
            if (c == u'0') m.fracMinWidth = m.fracPlaces;
            m.tokens.push_back({MaskToken::Digit, c});
        } else if (c == u'.' && section == Int) {
            section = Frac;
            m.tokens.push_back({MaskToken::Point, c});
        } else if (c == u',' && section == Int) {
            m.grouping = true;
        } else if ((c == u'e' || c == u'E') && !m.exponent && i + 1 < n &&
                   (text[i + 1] == u'+' || text[i + 1] == u'-' || isPlace(text[i + 1]))) {
            // An e is an exponent only with a sign or a digit place behind it,
            // so the e of a unit written into the mask ("0.0 sec") stays a letter.
            m.exponent = true;
            section = AfterExp;
            m.tokens.push_back({MaskToken::Exponent, c});
            qsizetype j = i + 1;
            if (text[j] == u'+') m.expSign = Mask::ExpSignAlways, ++j;
            else if (text[j] == u'-') m.expSign = Mask::ExpSignNegative, ++j;
            int places = 0, firstZero = -1;
            for (; j < n && isPlace(text[j]); ++j, ++places)
                if (text[j] == u'0' && firstZero < 0) firstZero = places;
            m.expMinWidth = std::max(1, firstZero < 0 ? 0 : places - firstZero);
            i = j - 1;
        } else if (c == u'%') {
            m.percent = true;
            m.tokens.push_back({MaskToken::Percent, c});
        } else if (c == u'+') {
            m.signToken = true;
            m.tokens.push_back({MaskToken::Sign, c});
        } else {
            m.tokens.push_back({MaskToken::Literal, c});
        }
    }
    m.intMinWidth = firstIntZero < 0 ? 0 : m.intPlaces - firstIntZero;
    return m;
}

void appendExponent(QString& out, int exponent, int minWidth) {
    char buf[16];
    auto res = std::to_chars(buf, buf + sizeof buf, std::abs(exponent));
    for (int w = int(res.ptr - buf); w < minWidth; ++w) out += u'0';
    out += QLatin1StringView(buf, res.ptr - buf);
}

}  // namespace

// ---- comparison and search ---------------------------------------------------

bool StrEq(const QString& a, const QString& b) {
    return a.size() == b.size() && QString::compare(a, b, CI) == 0;
}

int InStr(const QString& source, const QString& find) { return InStr(0, source, find); }

int InStr(int start, const QString& source, const QString& find) {
    if (find.isEmpty()) return 0;
    const qsizetype from = unitIndex(source, std::max(start, 1) - 1);
    if (from >= source.size()) return 0;
    const qsizetype at = source.indexOf(find, from, CI);
    if (at < 0) return 0;
    return int(codePointCount(source, at) + 1);
}

QString ReplaceAll(const QString& source, const QString& old, const QString& repl) {
    if (old.isEmpty()) return source;
    qsizetype at = source.indexOf(old, 0, CI);
    if (at < 0) return source;
    QString out;
    out.reserve(source.size() + std::max<qsizetype>(0, repl.size() - old.size()) * 4);
    qsizetype from = 0;
    // Simple case folding keeps lengths, so a match is always old.size() units long.
    while (at >= 0) {
        out.append(QStringView(source).mid(from, at - from));
        out.append(repl);
        from = at + old.size();
        at = source.indexOf(old, from, CI);
    }
    out.append(QStringView(source).mid(from));
    return out;
}

QString NthField(const QString& source, const QString& separator, int n) {
    if (n < 1) return {};
    if (separator.isEmpty()) return n == 1 ? source : QString();
    qsizetype start = 0;
    for (int i = 1; i < n; ++i) {
        const qsizetype at = source.indexOf(separator, start, CI);
        if (at < 0) return {};
        start = at + separator.size();
    }
    qsizetype end = source.indexOf(separator, start, CI);
    if (end < 0) end = source.size();
    return source.mid(start, end - start);
}

int CountFields(const QString& source, const QString& separator) {
    if (separator.isEmpty()) return 1;
    int count = 1;
    for (qsizetype at = source.indexOf(separator, 0, CI); at >= 0;
         at = source.indexOf(separator, at + separator.size(), CI))
        ++count;
    return count;
}

QStringList Split(const QString& source, const QString& separator) {
    if (separator.isEmpty()) return {source};
    return source.split(separator, Qt::KeepEmptyParts, CI);
}

// ---- numbers as text ---------------------------------------------------------

QString Str(std::int32_t value) { return QString::number(value); }

QString Str(double value) {
    if (!std::isfinite(value)) return nonFinite(value);
    if (value == 0.0) return QStringLiteral("0");  // also -0
    // to_chars ignores LC_NUMERIC, which the GUI sets from the user's locale.
    char buf[40];
    auto res = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::general, 7);
    char* end = res.ptr;
    if (char* e = static_cast<char*>(std::memchr(buf, 'e', end - buf))) {
        // "1.234568e+07" -> "1.234568e+7"
        char* digits = e + 2;
        char* firstSignificant = digits;
        while (firstSignificant + 1 < end && *firstSignificant == '0') ++firstSignificant;
        std::memmove(digits, firstSignificant, end - firstSignificant);
        end -= firstSignificant - digits;
    }
    return QString::fromLatin1(buf, end - buf);
}

QString Format(double value, const QString& mask) {
    if (mask.isEmpty()) return Str(value);
    const Mask m = parseMask(mask);
    if (m.percent) value *= 100.0;
    if (!std::isfinite(value)) return nonFinite(value);

    Decimal d = toDecimal15(std::fabs(value));
    int top;       // power of ten of the first integer place
    int exponent = 0;
    if (m.exponent) {
        const int significant = std::clamp(m.intPlaces + m.fracPlaces, 1, kMaxFormatDigits);
        roundTo(d, significant);
        top = m.intPlaces >= 1 ? m.intPlaces - 1 : -1;
        if (!d.isZero()) {
            exponent = d.exponent - top;
            d.exponent = top;
        }
    } else {
        roundTo(d, d.exponent + 1 + m.fracPlaces);
        top = d.exponent;
    }
    // A value that rounds to nothing shows no sign ("0.00", not "-0.00").
    const bool negative = std::signbit(value) && !d.isZero();

    QString intDigits;
    for (int p = top; p >= 0; --p) intDigits += QLatin1Char(d.at(p));
    qsizetype lead = 0;
    while (lead < intDigits.size() && intDigits[lead] == u'0') ++lead;
    intDigits.remove(0, lead);
    while (intDigits.size() < m.intMinWidth) intDigits.prepend(u'0');

    QString fracDigits;
    for (int j = 1; j <= m.fracPlaces; ++j) fracDigits += QLatin1Char(d.at(-j));
    qsizetype fracWidth = fracDigits.size();
    while (fracWidth > m.fracMinWidth && fracDigits[fracWidth - 1] == u'0') --fracWidth;
    fracDigits.truncate(fracWidth);

    const qsizetype intLen = intDigits.size();
    auto appendIntDigit = [&](QString& out, qsizetype fromRight) {
        out += intDigits[intLen - 1 - fromRight];
        if (m.grouping && fromRight > 0 && fromRight % 3 == 0) out += u',';
    };

    QString out;
    out.reserve(mask.size() + intLen + intLen / 3 + 8);
    if (negative && !m.signToken) out += u'-';
    int intPlace = 0, fracPlace = 0;
    bool intWritten = false;
    for (const MaskToken& t : m.tokens) {
        switch (t.kind) {
        case MaskToken::Digit:
            if (intPlace < m.intPlaces) {
                // The first place takes every digit the mask has no room for.
                const qsizetype fromRight = m.intPlaces - 1 - intPlace;
                if (intPlace == 0)
                    for (qsizetype r = intLen - 1; r > fromRight; --r) appendIntDigit(out, r);
                if (fromRight < intLen) appendIntDigit(out, fromRight);
                ++intPlace;
                intWritten = true;
            } else {
                if (fracPlace < fracWidth) out += fracDigits[fracPlace];
                ++fracPlace;
            }
            break;
        case MaskToken::Point:
            if (!intWritten)  // ".00" of 1.5: the integer digits still have to go somewhere
                for (qsizetype r = intLen - 1; r >= 0; --r) appendIntDigit(out, r);
            intWritten = true;
            if (fracWidth > 0) out += u'.';
            break;
        case MaskToken::Exponent:
            out += t.ch;
            if (exponent < 0) out += u'-';
            else if (m.expSign == Mask::ExpSignAlways) out += u'+';
            appendExponent(out, exponent, m.expMinWidth);
            break;
        case MaskToken::Sign:
            out += negative ? u'-' : u'+';
            break;
        case MaskToken::Percent:
        case MaskToken::Literal:
            out += t.ch;
            break;
        }
    }
    return out;
}

double Val(const QString& text) {
    const QChar* s = text.constData();
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n && (s[i] == u' ' || s[i] == u'\t')) ++i;

    if (i + 1 < n && s[i] == u'&') {
        const char16_t kind = s[i + 1].toLower().unicode();
        const unsigned base = kind == u'h' ? 16 : kind == u'o' ? 8 : kind == u'b' ? 2 : 0;
        if (base != 0) {
            // Integers of the framework are 32 bits: the low 32 bits are kept and
            // read as two's complement, so "&hFFFFFFFF" is -1.
            std::uint32_t bits = 0;
            for (i += 2; i < n; ++i) {
                const char16_t c = s[i].unicode();
                unsigned digit;
                if (c >= u'0' && c <= u'9') digit = c - u'0';
                else if (c >= u'a' && c <= u'f') digit = c - u'a' + 10;
                else if (c >= u'A' && c <= u'F') digit = c - u'A' + 10;
                else break;
                if (digit >= base) break;
                bits = bits * base + digit;
            }
            return double(static_cast<std::int32_t>(bits));
        }
    }

    bool negative = false;
    if (i < n && (s[i] == u'+' || s[i] == u'-')) negative = s[i++] == u'-';
    auto isDigit = [&](qsizetype k) { return k < n && s[k] >= u'0' && s[k] <= u'9'; };

    const qsizetype numberStart = i;
    qsizetype intDigits = 0, leadingZeros = 0, fracZeros = 0;
    bool significantSeen = false, inFraction = false;
    for (;; ++i) {
        if (isDigit(i)) {
            if (s[i] != u'0') significantSeen = true;
            if (!inFraction) {
                ++intDigits;
                if (!significantSeen) ++leadingZeros;
            } else if (!significantSeen) {
                ++fracZeros;
            }
        } else if (i < n && s[i] == u'.' && !inFraction) {
            inFraction = true;
        } else {
            break;
        }
    }
    const qsizetype mantissaDigits = i - numberStart - (inFraction ? 1 : 0);
    if (mantissaDigits == 0) return 0.0;

    long long exponent = 0;
    if (i < n && (s[i] == u'e' || s[i] == u'E')) {
        qsizetype j = i + 1;
        bool expNegative = false;
        if (j < n && (s[j] == u'+' || s[j] == u'-')) expNegative = s[j++] == u'-';
        if (isDigit(j)) {
            for (; isDigit(j); ++j)
                exponent = std::min<long long>(exponent * 10 + (s[j].unicode() - u'0'), 1'000'000'000);
            if (expNegative) exponent = -exponent;
            i = j;
        }
    }

    // Everything accepted is ASCII; from_chars reads it exactly and ignores the locale.
    char small[64];
    std::string large;
    const qsizetype len = i - numberStart;
    char* buf = small;
    if (len > qsizetype(sizeof small)) {
        large.resize(len);
        buf = large.data();
    }
    for (qsizetype k = 0; k < len; ++k) buf[k] = char(s[numberStart + k].unicode());
    double result = 0.0;
    const auto res = std::from_chars(buf, buf + len, result, std::chars_format::general);
    if (res.ec == std::errc::result_out_of_range) {
        // Decide between overflow and underflow from the place of the first digit.
        const long long magnitude = significantSeen
            ? (intDigits > leadingZeros ? intDigits - leadingZeros : -fracZeros) + exponent
            : 0;
        result = magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    } else if (res.ec != std::errc()) {
        result = 0.0;
    }
    return negative ? -result : result;
}

QString Hex(std::int32_t value) {
    return QString::number(static_cast<std::uint32_t>(value), 16).toUpper();
}

QString Oct(std::int32_t value) { return QString::number(static_cast<std::uint32_t>(value), 8); }

QString Bin(std::int32_t value) { return QString::number(static_cast<std::uint32_t>(value), 2); }

double Round(double value) { return std::round(value); }

std::int32_t ToInt32(double value) {
    // The comparison is false for NaN as well.
    if (!(value > -2147483649.0 && value < 2147483648.0))
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

// ---- characters --------------------------------------------------------------

QString LTrim(const QString& s) {
    qsizetype i = 0;
    while (i < s.size() && s[i].isSpace()) ++i;
    return s.mid(i);
}

QString RTrim(const QString& s) {
    qsizetype end = s.size();
    while (end > 0 && s[end - 1].isSpace()) --end;
    return s.left(end);
}

QString Trim(const QString& s) { return s.trimmed(); }

QString Left(const QString& s, int count) {
    if (count < 1) return {};
    return s.left(unitIndex(s, count));
}

QString Right(const QString& s, int count) {
    if (count < 1) return {};
    const qsizetype skip = codePointCount(s, s.size()) - count;
    return skip <= 0 ? s : s.mid(unitIndex(s, skip));
}

QString Mid(const QString& s, int start) {
    return s.mid(unitIndex(s, std::max(start, 1) - 1));
}

QString Mid(const QString& s, int start, int length) {
    if (length < 1) return {};
    const qsizetype from = unitIndex(s, std::max(start, 1) - 1);
    qsizetype to = from;
    const QChar* d = s.constData();
    for (int k = 0; k < length && to < s.size(); ++k) to += isPairAt(d, to, s.size()) ? 2 : 1;
    return s.mid(from, to - from);
}

int Len(const QString& s) { return int(codePointCount(s, s.size())); }

QString Lowercase(const QString& s) { return s.toLower(); }

QString Uppercase(const QString& s) { return s.toUpper(); }

QString Chr(std::uint32_t codePoint) {
    if (codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF))
        return QString(QChar(QChar::ReplacementCharacter));
    const char32_t c = codePoint;
    return QString::fromUcs4(&c, 1);
}

QString EndOfLine() { return QStringLiteral("\n"); }

QString ReplaceLineEndings(const QString& text, const QString& ending) {
    // Whole data files pass through here at every search: copy runs of plain text in
    // one piece, and hand back the text itself when it already has the wanted endings.
    const QChar* const data = text.constData();
    const qsizetype n = text.size();
    const bool lineFeedOnly = ending == u"\n";
    if (lineFeedOnly && !text.contains(u'\r')) return text;
    QString out;
    out.reserve(n);
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = data[i];
        if (c != u'\r' && c != u'\n') continue;
        out.append(data + runStart, i - runStart);
        if (c == u'\r' && i + 1 < n && data[i + 1] == u'\n') ++i;
        out += ending;
        runStart = i + 1;
    }
    out.append(data + runStart, n - runStart);
    return out;
}

void Sort(QStringList& items) {
    std::stable_sort(items.begin(), items.end(), [](const QString& a, const QString& b) {
        const int c = QString::compare(a, b, CI);
        // Texts equal but for case keep a fixed order whatever the input order.
        return c != 0 ? c < 0 : QString::compare(a, b, Qt::CaseSensitive) < 0;
    });
}

}  // namespace platform
