#include "platform/strings/strings.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <cmath>
#include <limits>

using namespace platform;

namespace {

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const QString kFmt = QStringLiteral("0.0#############e+##");
const QString kAring = QString(QChar(0x00C5));  // Å
const QString kaRing = QString(QChar(0x00E5));  // å
const QString kEmoji = QString::fromUcs4(U"\U0001F600", 1);

// ---- comparison and search ----------------------------------------------------

TEST(StrEq, IgnoresCaseOnly) {
    struct Row { const char* name; QString a, b; bool equal; };
    const Row rows[] = {
        {"ascii case ignored", "Calculate", "calculate", true},
        {"A with ring equals a with ring", kAring, kaRing, true},
        {"greek case ignored", QString::fromUtf8("ΣΟΦΙΑ"), QString::fromUtf8("σοφια"), true},
        {"prefix is not equal", "calc", "calculate", false},
        {"empty equals empty", "", "", true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(StrEq(row.a, row.b), row.equal);
        EXPECT_EQ(StrEq(row.b, row.a), row.equal);
    }
}

TEST(InStr, FindsFromOneIgnoringCase) {
    struct Row { const char* name; int start; QString source, find; int expected; };
    const Row rows[] = {
        {"first occurrence from 1", 0, "abcabc", "c", 3},
        {"case ignored", 0, "sin(30)+Asin(1)", "ASIN(", 9},
        {"absent gives 0", 0, "abc", "x", 0},
        {"empty find gives 0", 0, "abc", "", 0},
        {"start 1 is the beginning", 1, "abcabc", "a", 1},
        {"start skips earlier hits", 2, "abcabc", "a", 4},
        {"start negative is the beginning", -5, "abc", "b", 2},
        {"start beyond the end gives 0", 4, "abc", "c", 0},
        {"non-BMP character counts once", 0, kEmoji + "x", "x", 2},
        {"start counts code points", 2, kEmoji + "x" + kEmoji + "x", "x", 2},
        {"start after non-BMP character", 3, kEmoji + "x" + kEmoji + "x", "x", 4},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(InStr(row.start, row.source, row.find), row.expected);
        if (row.start == 0) {
            EXPECT_EQ(InStr(row.source, row.find), row.expected);
        }
    }
}

TEST(ReplaceAll, OnePassLeftToRightIgnoringCase) {
    struct Row { const char* name; QString source, old, repl, expected; };
    const Row rows[] = {
        {"every case variant replaced", "aXbx", "x", "-", "a-b-"},
        {"empty replacement deletes", "1 000 000", " ", "", "1000000"},
        {"empty old leaves the text", "abc", "", "x", "abc"},
        {"replacement not rescanned", "aa", "a", "aa", "aaaa"},
        {"non-overlapping left to right", "aaa", "aa", "b", "ba"},
        {"5! also hits the tail of 15!", "5!+15!", "5!", "120", "120+1120"},
        {"A with ring matches its lower case", "2" + kaRing + "3", kAring, "x", "2x3"},
        {"multi-character old", "2x10x106", "x10", "e", "2ee6"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ReplaceAll(row.source, row.old, row.repl), row.expected);
    }
}

TEST(Fields, SeparatorOfAnyLength) {
    struct Row { const char* name; QString source, sep; int count; QStringList fields; };
    const Row rows[] = {
        {"trailing separator gives an empty last field", "a;b;", ";", 3, {"a", "b", ""}},
        {"empty text is one empty field", "", ";", 1, {""}},
        {"adjacent separators give empty fields", ";;", ";", 3, {"", "", ""}},
        {"long separator", "a<->b<->c", "<->", 3, {"a", "b", "c"}},
        {"separator case ignored", "1X2x3", "x", 3, {"1", "2", "3"}},
        {"overlapping separators taken left to right", "aaaa", "aa", 3, {"", "", ""}},
        {"empty separator: whole text is the field", "a;b", "", 1, {"a;b"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(CountFields(row.source, row.sep), row.count);
        EXPECT_EQ(Split(row.source, row.sep), row.fields);
        for (int n = 1; n <= row.fields.size(); ++n) {
            SCOPED_TRACE(n);
            EXPECT_EQ(NthField(row.source, row.sep, n), row.fields[n - 1]);
        }
        EXPECT_EQ(NthField(row.source, row.sep, int(row.fields.size()) + 1), QString())
            << "beyond the last field is empty";
        EXPECT_EQ(NthField(row.source, row.sep, 0), QString()) << "n below 1 is empty";
        EXPECT_EQ(NthField(row.source, row.sep, -1), QString());
    }
}

// ---- numbers as text ----------------------------------------------------------

TEST(Str, DoubleSevenSignificantDigits) {
    struct Row { const char* name; double value; QString expected; };
    const Row rows[] = {
        {"whole number has no point", 200.0, "200"},
        {"third cut to 7 digits", 1.0 / 3.0, "0.3333333"},
        {"rounded to 7 digits", 1234567.89, "1234568"},
        {"rounding up to 8 digits takes the exponent", 99999995.0, "1e+8"},
        {"eight digits take the exponent", 12345678.0, "1.234568e+7"},
        {"smallest plain form", 0.0001, "0.0001"},
        {"below 1e-4 takes the exponent", 0.00001, "1e-5"},
        {"three-digit exponent", 1e100, "1e+100"},
        {"tiny negative", -1.5e-300, "-1.5e-300"},
        {"negative zero writes 0", -0.0, "0"},
        {"trailing zeros dropped", 0.1 + 0.2, "0.3"},
        {"infinity", kInf, "INF"},
        {"minus infinity", -kInf, "-INF"},
        {"not a number", kNaN, "NAN"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Str(row.value), row.expected);
    }
}

// Switches LC_NUMERIC to a locale with a decimal comma, compiling one into a
// temporary folder when the machine has none installed; restores it on exit.
class DecimalCommaLocale {
public:
    DecimalCommaLocale() {
        const char* previous = std::setlocale(LC_NUMERIC, nullptr);
        saved_ = previous ? previous : "C";
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE.utf8"})
            if (std::setlocale(LC_NUMERIC, name)) return;
        if (!dir_.isValid()) return;
        const QString target = dir_.path() + "/de_DE.UTF-8";
        const QString command =
            "localedef -i de_DE -f UTF-8 '" + target + "' >/dev/null 2>&1";
        if (std::system(command.toLocal8Bit().constData()) != 0) return;
        qputenv("LOCPATH", dir_.path().toLocal8Bit());
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
    }
    ~DecimalCommaLocale() {
        std::setlocale(LC_NUMERIC, saved_.c_str());
        qunsetenv("LOCPATH");
    }
    bool active() const {
        char buf[16];
        std::snprintf(buf, sizeof buf, "%.1f", 2.5);
        return std::string(buf) == "2,5";
    }

private:
    std::string saved_;
    QTemporaryDir dir_;
};

TEST(Numbers, IgnoreTheCLocale) {
    // The GUI sets LC_NUMERIC from the user's settings; "." must stay the decimal point.
    DecimalCommaLocale locale;
    if (!locale.active()) GTEST_SKIP() << "no locale with a decimal comma available";
    EXPECT_EQ(Str(2.5), "2.5");
    EXPECT_EQ(Str(12345678.0), "1.234568e+7");
    EXPECT_EQ(Val("2.5"), 2.5);
    EXPECT_EQ(Val("2,5"), 2);
    EXPECT_EQ(Format(2.5, "0.00"), "2.50");
    EXPECT_EQ(Format(1234.5, "#,##0.0"), "1,234.5");
}

TEST(Format, Masks) {
    struct Row { const char* name; double value; QString mask; QString expected; };
    const Row rows[] = {
        // the Scientific mask of the runner
        {"fmt: fifteen digits", 2.00000008333861, kFmt, "2.00000008333861e+0"},
        {"fmt: exponent grows past the mask", 1e-300, kFmt, "1.0e-300"},
        {"fmt: rounding at 15 digits", 0.1 + 0.2, kFmt, "3.0e-1"},
        {"fmt: rounding carries into the exponent", 9.9999999999999999e5, kFmt, "1.0e+6"},
        {"fmt: subnormal", 4.9406564584124654e-324, kFmt, "4.94065645841247e-324"},
        {"e- writes a minus", 0.02, "0.0e-0", "2.0e-2"},
        {"exponent zeros pad", 200, "0.00E+000", "2.00E+002"},
        {"thousands", 1234567.891, "#,##0.00", "1,234,567.89"},
        {"percent", 0.256, "0.0%", "25.6%"},
        {"rounding carries to the integer", 9.996, "0.00", "10.00"},
        {"negative rounding to zero has no sign", -0.001, "0.00", "0.00"},
        {"backslash escapes a place", 5, "\\#0", "#5"},
        {"empty mask is Str", 2.5, "", "2.5"},
        {"two integer places", 200, "00.0e+0", "20.0e+1"},
        {"no integer place", 200, ".00e+0", ".20e+3"},
        {"e followed by a letter is literal", 5, "0 sec", "5 sec"},
        {"hash before zero pads to the zero", 7, "#00", "07"},
        {"optional fraction dropped with the point", 5, "0.##", "5"},
        {"rounding half up", 2.675, "0.00", "2.68"},
        {"hash integer of a fraction", 0.5, "#.##", ".5"},
        {"fifteen digits then zeros", 1234567890123456789.0, "0", "1234567890123460000"},
        {"plus writes the sign", 5, "+0", "+5"},
        {"minus is a literal", 5551234, "###-####", "555-1234"},
        {"negative gets a minus in front", -3.5, "$0.0", "-$3.5"},
        {"trailing backslash ignored", 5, "0\\", "5"},
        {"infinity", kInf, kFmt, "INF"},
        {"percent overflows to infinity", 1.7e308, "0%", "INF"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Format(row.value, row.mask), row.expected);
    }
}

TEST(Format, HugeMasksDoNotBreak) {
    const QString longFraction = "0." + QString(5000, u'#');
    EXPECT_EQ(Format(0.5, longFraction), "0.5");
    EXPECT_EQ(Format(1e-300, "0." + QString(400, u'0')).size(), 402);
    EXPECT_EQ(Format(1.0 / 3.0, "0." + QString(30, u'0')),
              "0.333333333333333000000000000000");
}

TEST(Val, NumberAtTheStart) {
    struct Row { const char* name; QString text; double expected; };
    const Row rows[] = {
        {"factorial mark stops the number", "5!", 5},
        {"unit stops the number", "5km", 5},
        {"e without digits is not taken", "1e", 1},
        {"exponent with sign", "1.5e+3x", 1500},
        {"leading point", "-.5", -0.5},
        {"second point stops", "1.2.3", 1.2},
        {"blanks and tabs skipped", " \t 42", 42},
        {"blank after sign stops", "- 5", 0},
        {"comma stops", "1,000", 1},
        {"Str's exponent form", "1.234568e+7", 12345680},
        {"huge literal overflows", "1e400", kInf},
        {"tiny literal underflows", "1e-400", 0},
        {"many digits overflow", "1" + QString(400, u'0'), kInf},
        {"exponent digits beyond any range", "1e99999999999999999999999", kInf},
        {"hex prefix upper case", "&HfF", 255},
        {"hex all ones is -1", "&hFFFFFFFF", -1},
        {"hex keeps the low 32 bits", "&h1FFFFFFFF", -1},
        {"hex of the sign bit", "&h80000000", -2147483648.0},
        {"prefix without digits", "&h", 0},
        {"unknown prefix", "&x12", 0},
        {"full-width digit is no digit", QString(QChar(0xFF15)), 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Val(row.text), row.expected);
    }
}

TEST(Val, NegativeZeroKeepsItsSign) {
    EXPECT_TRUE(std::signbit(Val("-0")));
}

TEST(StrVal, RoundTripWithinSevenDigits) {
    const double values[] = {1e-5,    1e7,      1e300,     -1e-300,  12345678.9, 0.000123456789,
                             -2.5,    1.0 / 3.0, 6.02214076e23, 1.602e-19, 299792458, 0.0001,
                             9999999, -1e-4,    1.7976931348623157e308, 5e-324};
    for (double x : values) {
        SCOPED_TRACE(x);
        const double back = Val(Str(x));
        EXPECT_NEAR(back, x, std::fabs(x) * 5e-7);
        EXPECT_EQ(Str(back), Str(x)) << "the text is stable";
    }
}

TEST(Bases, ThirtyTwoBitTwosComplement) {
    struct Row { const char* name; std::int32_t value; QString hex, oct, bin; };
    const Row rows[] = {
        {"zero", 0, "0", "0", "0"},
        {"255", 255, "FF", "377", "11111111"},
        {"uppercase hex", 0xABCDEF, "ABCDEF", "52746757", "101010111100110111101111"},
        {"minus one", -1, "FFFFFFFF", "37777777777", QString(32, u'1')},
        {"minimum", std::numeric_limits<std::int32_t>::min(), "80000000", "20000000000",
         "1" + QString(31, u'0')},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(Hex(row.value), row.hex);
        EXPECT_EQ(Oct(row.value), row.oct);
        EXPECT_EQ(Bin(row.value), row.bin);
        EXPECT_EQ(std::int32_t(Val("&h" + row.hex)), row.value) << "Val reads Hex back";
        EXPECT_EQ(std::int32_t(Val("&o" + row.oct)), row.value) << "Val reads Oct back";
        EXPECT_EQ(std::int32_t(Val("&b" + row.bin)), row.value) << "Val reads Bin back";
    }
}

TEST(Round, HalfAwayFromZero) {
    EXPECT_EQ(Round(2.5), 3);
    EXPECT_EQ(Round(-2.5), -3);
    EXPECT_EQ(Round(2.4999), 2);
    EXPECT_TRUE(std::isnan(Round(kNaN)));
}

TEST(ToInt32, TruncatesOrGivesMinimum) {
    const std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    struct Row { const char* name; double value; std::int32_t expected; };
    const Row rows[] = {
        {"fraction dropped", 5.9, 5},
        {"toward zero for negatives", -5.9, -5},
        {"largest with fraction", 2147483647.9, 2147483647},
        {"just above the range", 2147483648.0, kMin},
        {"below smallest truncates into range", -2147483648.9, kMin},
        {"just below the range", -2147483649.0, kMin},
        {"huge", 1e300, kMin},
        {"infinity", kInf, kMin},
        {"not a number", kNaN, kMin},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ToInt32(row.value), row.expected);
    }
}

// ---- characters -----------------------------------------------------------------

TEST(Trim, WhiteSpaceIncludingTabsAndLineEndings) {
    struct Row { const char* name; QString text, left, right, both; };
    const Row rows[] = {
        {"blanks", "  a b  ", "a b  ", "  a b", "a b"},
        {"tabs and line endings", "\t\r\na\t\n", "a\t\n", "\t\r\na", "a"},
        {"only white space", " \t ", "", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(LTrim(row.text), row.left);
        EXPECT_EQ(RTrim(row.text), row.right);
        EXPECT_EQ(Trim(row.text), row.both);
    }
}

TEST(Substrings, ByCharacters) {
    const QString mixed = "a" + kEmoji + "bc";  // four characters, five UTF-16 units
    struct Row { const char* name; QString got, expected; };
    const Row rows[] = {
        {"Left negative", Left("abc", -2), ""},
        {"Left beyond", Left("abc", 10), "abc"},
        {"Left keeps a non-BMP character whole", Left(mixed, 2), "a" + kEmoji},
        {"Right keeps a non-BMP character whole", Right(mixed, 3), kEmoji + "bc"},
        {"Mid start below 1", Mid("abc", 0), "abc"},
        {"Mid with length", Mid("abcdef", 2, 3), "bcd"},
        {"Mid negative length", Mid("abcdef", 2, -1), ""},
        {"Mid after non-BMP", Mid(mixed, 3), "bc"},
        {"Mid of non-BMP", Mid(mixed, 2, 1), kEmoji},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.got, row.expected);
    }
    EXPECT_EQ(Len("abc"), 3);
    EXPECT_EQ(Len(""), 0);
    EXPECT_EQ(Len(mixed), 4) << "non-BMP character counts once";
}

TEST(Characters, CaseChrAndLineEndings) {
    struct Row { const char* name; QString got, expected; };
    const Row rows[] = {
        {"Lowercase", Lowercase("Calculate " + kAring), "calculate " + kaRing},
        {"Chr beyond the BMP", Chr(0x1F600), kEmoji},
        {"Chr of a surrogate", Chr(0xD800), QString(QChar(0xFFFD))},
        {"Chr beyond Unicode", Chr(0x110000), QString(QChar(0xFFFD))},
        {"all line endings replaced", ReplaceLineEndings("a\r\nb\rc\nd", "|"), "a|b|c|d"},
        {"LF CR is two endings", ReplaceLineEndings("a\n\rb", "|"), "a||b"},
        {"CR CR LF", ReplaceLineEndings("a\r\r\nb", "\n"), "a\n\nb"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.got, row.expected);
    }
}

TEST(Sort, AscendingIgnoringCaseDeterministic) {
    struct Row { const char* name; QStringList items, expected; };
    const Row rows[] = {
        {"case ignored", {"beta", "Alpha", "gamma"}, {"Alpha", "beta", "gamma"}},
        {"equal but case: fixed order", {"abc", "ABC", "Abc"}, {"ABC", "Abc", "abc"}},
        {"prefix first", {"ab", "a"}, {"a", "ab"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        QStringList items = row.items;
        Sort(items);
        EXPECT_EQ(items, row.expected);
    }
}

}  // namespace
