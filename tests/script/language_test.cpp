// Formulas through the program's two wrapper scripts, and the language beyond them:
// types, conversions, strings, statements.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

TEST(ScriptFormulas, NormalAndScientificForms) {
  struct Row {
    const char* name;
    const char* formula;
    const char* normal;      // what print Str(x) delivers
    const char* scientific;  // what print Format(x, mask) delivers; nullptr: not pinned here
  };
  const Row rows[] = {
      {"a whole number has no point in Normal form", "200", "200", nullptr},
      {"Normal form gives seven significant digits", "1/3", "0.3333333", "3.33333333333333e-1"},
      {"x itself starts at zero", "x+1", "1", nullptr},
      {"unary minus binds looser than ^", "-3^2", "-9", nullptr},
      {"^ groups from the right", "2^3^2", "512", nullptr},
      {"unary minus right after *", "1*-1-1*1", "-2", nullptr},
      {"a negative exponent", "2^-1", "0.5", nullptr},
      {"exponent with a capital E", "2E6", "2000000", nullptr},
      {"numeric literals compute as doubles, not 32-bit integers",
       "99999*99999", "9.9998e+9", "9.999800001e+9"},
      {"the seven-digit base-10 factor of the log rewrite",
       "0.4342945*log(100)", "2", "2.00000008333861e+0"},
      {"negative division by zero", "-1/0", "-INF", nullptr},
      {"the square root of a negative is not a number", "(-1)*sqrt((-1)*4/2)", "NAN", "NAN"},
      {"integer division converts doubles by truncation", "7.9\\2", "3", nullptr},
      {"Mod keeps the sign of the dividend", "-7 mod 2", "-1", nullptr},
      {"names and keywords ignore case", "SQRT(16) MoD 3", "1", nullptr},
      {"Mod binds looser than \\, \\ looser than *", "7 mod 5\\2*1", "1", nullptr},
      {"+ binds looser than Mod", "1+7 mod 4", "4", nullptr},
      {"a solver's leading plus", "+sqrt((16))", "4", nullptr},
      {"literals starting or ending with their point", ".5*4+5.*2", "12", nullptr},
      {"a literal beyond the double range is infinity", "1e999", "INF", nullptr},
      {"a literal below the double range is zero", "1e-999", "0", nullptr},
      {"hexadecimal, octal and binary literals", "&hFF+&o17+&b101", "275", nullptr},
      {"a huge value in Str's exponent form", "12345678", "1.234568e+7", "1.2345678e+7"},
      {"a tiny value in Str's exponent form", "0.00001", "1e-5", nullptr},
      {"Asin answers in radians", "Asin(1)*2", "3.141593", "3.14159265358979e+0"},
      {"Atan2, Log10 and natural log", "atan2(1,1)*4+log10(1000)+log(exp(2))", "8.141593", nullptr},
      {"Round goes half away from zero", "round(2.5)*10+round(-2.5)", "27", nullptr},
      {"Floor and Ceil", "floor(-2.5)*10+ceil(2.1)", "-27", nullptr},
      {"Abs, Min, Max, Pow", "abs(-4)+min(2,3)*10+max(2,3)*100+pow(2,10)*1000", "1024324", nullptr},
      {"Sign", "sign(-3)*10+sign(0)+sign(7)*100", "90", nullptr},
      {"Val, Asc and InStr",
       "val(\"5km\")*1000+asc(\"A\")*10+instr(\"abcabc\",\"C\")", "5653", nullptr},
      {"Len gives an Integer that mixes with doubles, CDbl",
       "len(\"abc\")/2+cdbl(\"2.5\")*2", "6.5", nullptr},
      {"blanks, tabs and comments around the formula",
       " 2 \t+\t2 ' the rest is ignored", "4", nullptr},
      {"a slash comment behind the formula", "2+2 // the rest is ignored", "4", nullptr},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, NormalScript(row.formula));
    ASSERT_TRUE(host.compileErrors.empty()) << host.compileErrors.front().message.toStdString();
    EXPECT_TRUE(host.runtimeErrorLines.empty());
    EXPECT_EQ(host.prints, QStringList{row.normal});
    if (!row.scientific) continue;
    RunFresh(host, ScientificScript(row.formula));
    EXPECT_EQ(host.prints, (QStringList{row.normal, row.scientific}));
  }
}

QString Lines(std::initializer_list<const char*> lines) {
  QStringList list;
  for (const char* line : lines) list << QString::fromUtf8(line);
  return list.join('\n');
}

TEST(ScriptLanguage, Scripts) {
  struct Row {
    const char* name;
    QString source;
    QStringList prints;
  };
  const Row rows[] = {
      {"Integer arithmetic wraps at 32 bits",
       Lines({"Dim i As Integer = 2147483647", "i = i + 1", "print Str(i)"}), {"-2147483648"}},
      {"Str of a Double keeps seven digits, of an Integer every digit",
       Lines({"Dim d As Double = 123456789", "Dim i As Integer = d", "print Str(d) + Str(i)"}),
       {"1.234568e+8123456789"}},
      {"a Double into an Integer truncates toward zero",
       Lines({"Dim i As Integer", "i = 2.7", "print Str(i)", "i = -2.7", "print Str(i)"}), {"2", "-2"}},
      {"an out-of-range Double into an Integer is the lowest Integer",
       Lines({"Dim i As Integer = 1e10", "print Str(i)", "i = 0/0", "print Str(i)"}),
       {"-2147483648", "-2147483648"}},
      {"Integer and Double mix as Double", Lines({"Dim i As Integer = 3", "print Str(i / 2 + i * 0.5)"}), {"3"}},
      {"the lowest Integer \\ -1 wraps", Lines({"Dim i As Integer = &h80000000", "i = i \\ -1", "print Str(i)"}),
       {"-2147483648"}},
      {"a based literal is a 32-bit Integer", Lines({"Dim i As Integer = &hFFFFFFFF", "print Str(i)"}), {"-1"}},
      {"String + String concatenates, a String starts empty",
       Lines({"Dim s As String", "s = s + \"ab\" + \"cd\"", "print s"}), {"abcd"}},
      {"a doubled quote inside a literal", Lines({"print \"say \"\"hi\"\"\""}), {"say \"hi\""}},
      {"Left, Mid, Right", Lines({"print Left(\"abcdef\", 2) + Mid(\"abcdef\", 3, 2) + Right(\"abcdef\", 1) + Mid(\"abcdef\", 5)"}),
       {"abcdfef"}},
      {"Trim and cases", Lines({"print Trim(\"  Ab \") + Lowercase(\"CD\") + Uppercase(\"ef\")"}), {"AbcdEF"}},
      {"Hex, Oct, Bin", Lines({"print Hex(255) + \" \" + Oct(8) + \" \" + Bin(5) + \" \" + Hex(-1)"}),
       {"FF 10 101 FFFFFFFF"}},
      {"comparisons give Booleans", Lines({"print Str(1 < 2) + Str(2 <= 1) + Str(3 >= 3) + Str(3 <> 3)"}),
       {"TrueFalseTrueFalse"}},
      {"String equality ignores case, order does not", Lines({"print Str(\"abc\" = \"ABC\") + Str(\"apple\" < \"Banana\")"}),
       {"TrueTrue"}},
      {"Not binds looser than comparisons, And tighter than Or",
       Lines({"print Str(Not 1 > 2) + Str(True Or False And False)"}), {"TrueTrue"}},
      {"NaN equals nothing", Lines({"Dim n As Double = 0/0", "print Str(n = n) + Str(n <> n)"}), {"FalseTrue"}},
      {"Dim of several groups with values", Lines({"Dim a As Double = 2, s As String = \"q\"", "print s + Str(a)"}),
       {"q2"}},
      {"keywords and names in any case", Lines({"DIM Abc AS DOUBLE", "aBC = 4", "PRINT STR(ABC)"}), {"4"}},
      {"comments of three kinds; a name starting with Rem is a name",
       Lines({"' one", "// two", "REM three", "Dim remainder As Double = 1", "print Str(remainder) // tail"}), {"1"}},
      {"blank lines and CR LF line endings", "\r\nDim x As Double\r\n\r\nx = 5\r\nprint Str(x)\r\n", {"5"}},
      {"non-ASCII names", Lines({"Dim Größe As Double = 2", "print Str(GRÖßE * 0 + größe)"}), {"2"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingHost host;
    RunFresh(host, row.source);
    ASSERT_TRUE(host.compileErrors.empty()) << host.compileErrors[0].message.toStdString();
    EXPECT_TRUE(host.runtimeErrorLines.empty());
    EXPECT_EQ(host.prints, row.prints);
  }
}

}  // namespace
}  // namespace abacon_test
