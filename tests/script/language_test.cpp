// The language beyond the wrapper scripts: types, conversions, strings, statements.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

struct ScriptRow {
  const char* name;
  QString source;
  QStringList prints;
};

QString Lines(std::initializer_list<const char*> lines) {
  QStringList list;
  for (const char* line : lines) list << QString::fromUtf8(line);
  return list.join(QLatin1Char('\n'));
}

const ScriptRow kScripts[] = {
    // Integer and Double
    {"Integer arithmetic wraps at 32 bits",
     Lines({"Dim i As Integer = 2147483647", "i = i + 1", "print Str(i)"}), {"-2147483648"}},
    {"Integer times Integer wraps", Lines({"Dim i As Integer = 65536", "i = i * i", "print Str(i)"}), {"0"}},
    {"Str of an Integer writes every digit", Lines({"Dim i As Integer = 123456789", "print Str(i)"}), {"123456789"}},
    {"Str of a Double keeps seven digits", Lines({"Dim d As Double = 123456789", "print Str(d)"}), {"1.234568e+8"}},
    {"a Double into an Integer truncates toward zero",
     Lines({"Dim i As Integer", "i = 2.7", "print Str(i)", "i = -2.7", "print Str(i)"}), {"2", "-2"}},
    {"an out-of-range Double into an Integer is the lowest Integer",
     Lines({"Dim i As Integer = 1e10", "print Str(i)", "i = 0/0", "print Str(i)"}), {"-2147483648", "-2147483648"}},
    {"Integer and Double mix as Double", Lines({"Dim i As Integer = 3", "print Str(i / 2 + i * 0.5)"}), {"3"}},
    {"an Integer into a Double", Lines({"Dim i As Integer = 7", "Dim d As Double = i", "print Str(d / 2)"}), {"3.5"}},
    {"the lowest Integer \\ -1 wraps", Lines({"Dim i As Integer = &h80000000", "i = i \\ -1", "print Str(i)"}),
     {"-2147483648"}},
    {"a based literal is a 32-bit Integer", Lines({"Dim i As Integer = &hFFFFFFFF", "print Str(i)"}), {"-1"}},
    {"negating an Integer", Lines({"Dim i As Integer = 5", "print Str(-i)"}), {"-5"}},

    // Strings
    {"String + String concatenates", Lines({"Dim s As String = \"ab\"", "s = s + \"cd\"", "print s"}), {"abcd"}},
    {"a doubled quote inside a literal", Lines({"print \"say \"\"hi\"\"\""}), {"say \"hi\""}},
    {"a String starts empty", Lines({"Dim s As String", "print s + \"|\""}), {"|"}},
    {"print with parentheses", Lines({"print(\"p\")"}), {"p"}},
    {"Left, Mid, Right", Lines({"print Left(\"abcdef\", 2) + Mid(\"abcdef\", 3, 2) + Right(\"abcdef\", 1) + Mid(\"abcdef\", 5)"}),
     {"abcdfef"}},
    {"Trim and cases", Lines({"print Trim(\"  Ab \") + Lowercase(\"CD\") + Uppercase(\"ef\")"}), {"AbcdEF"}},
    {"Len, Asc, Chr", Lines({"print Str(Len(\"abc\")) + Chr(Asc(\"A\") + 1)"}), {"3B"}},
    {"InStr from a start", Lines({"print Str(InStr(3, \"abcabc\", \"A\"))"}), {"4"}},
    {"Hex, Oct, Bin", Lines({"print Hex(255) + \" \" + Oct(8) + \" \" + Bin(5) + \" \" + Hex(-1)"}),
     {"FF 10 101 FFFFFFFF"}},
    {"Format writes the mask", Lines({"print Format(200, \"0.0#############e+##\")"}), {"2.0e+2"}},
    {"Str and Val round-trip", Lines({"print Str(Val(Str(0.00001234)) * 2)"}), {"2.468e-5"}},

    // Booleans and comparisons
    {"comparisons give Booleans", Lines({"print Str(1 < 2) + Str(2 <= 1) + Str(3 >= 3) + Str(3 <> 3)"}),
     {"TrueFalseTrueFalse"}},
    {"String equality ignores case", Lines({"Dim b As Boolean = \"abc\" = \"ABC\"", "print Str(b)"}), {"True"}},
    {"String order", Lines({"print Str(\"apple\" < \"Banana\")"}), {"True"}},
    {"Not binds looser than comparisons", Lines({"print Str(Not 1 > 2)"}), {"True"}},
    {"And binds tighter than Or", Lines({"print Str(True Or False And False)"}), {"True"}},
    {"Booleans compare for equality", Lines({"print Str(True = (1 < 2))"}), {"True"}},
    {"a Boolean starts False", Lines({"Dim b As Boolean", "print Str(b)"}), {"False"}},
    {"NaN equals nothing", Lines({"Dim n As Double = 0/0", "print Str(n = n) + Str(n <> n)"}), {"FalseTrue"}},
    {"Integer compared with Double", Lines({"Dim i As Integer = 2", "print Str(i < 2.5)"}), {"True"}},

    // Statements and text
    {"Dim of several names", Lines({"Dim a, b As Double", "a = 1", "b = 2", "print Str(a + b)"}), {"3"}},
    {"Dim of several groups with values",
     Lines({"Dim a As Double = 2, s As String = \"q\"", "print s + Str(a)"}), {"q2"}},
    {"keywords and names in any case", Lines({"DIM Abc AS DOUBLE", "aBC = 4", "PRINT STR(ABC)"}), {"4"}},
    {"comments of three kinds", Lines({"' one", "// two", "Rem three", "REM four", "print \"ok\" // tail"}), {"ok"}},
    {"a name starting with Rem is a name", Lines({"Dim remainder As Double = 1", "print Str(remainder)"}), {"1"}},
    {"blank lines", Lines({"", "Dim x As Double", "", "", "x = 1", "print Str(x)", ""}), {"1"}},
    {"CR LF line endings", QStringLiteral("Dim x As Double\r\nx = 5\r\nprint Str(x)"), {"5"}},
    {"CR line endings", QStringLiteral("Dim x As Double\rx = 5\rprint Str(x)"), {"5"}},
    {"one print per print statement", Lines({"print \"a\"", "print \"b\""}), {"a", "b"}},
    {"non-ASCII names", Lines({"Dim Größe As Double = 2", "print Str(GRÖßE * 0 + größe)"}), {"2"}},
};

TEST(ScriptLanguage, Scripts) {
  for (const ScriptRow& row : kScripts) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, row.source);
    ASSERT_TRUE(host.compileErrors.empty()) << host.compileErrors[0].message.toStdString();
    EXPECT_TRUE(host.runtimeErrors.empty());
    EXPECT_EQ(host.prints, row.prints);
  }
}

TEST(ScriptLanguage, LineNumbersCountEveryKindOfLineEnding) {
  RecordingHost host;
  RunFresh(host, QStringLiteral("Dim x As Double\r\n\rx = 1\n\r\nx = y"));
  ASSERT_EQ(host.compileErrors.size(), 1u);
  EXPECT_EQ(host.compileErrors[0].line, 5);
}

}  // namespace
}  // namespace abacon_test
