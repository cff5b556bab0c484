// Formulas through the program's two wrapper scripts, as the runner hands them over.

#include <gtest/gtest.h>

#include "recording_host.h"

namespace abacon_test {
namespace {

struct FormulaRow {
  const char* name;
  const char* formula;
  const char* normal;      // what print Str(x) delivers
  const char* scientific;  // what print Format(x, mask) delivers; nullptr: not pinned here
};

const FormulaRow kFormulas[] = {
    {"a whole sum", "2+2", "4", "4.0e+0"},
    {"a whole number has no point in Normal form", "200", "200", "2.0e+2"},
    {"Normal form gives seven significant digits", "1/3", "0.3333333", "3.33333333333333e-1"},
    {"x itself starts at zero", "x+1", "1", "1.0e+0"},
    {"unary minus binds looser than ^", "-3^2", "-9", "-9.0e+0"},
    {"^ groups from the right", "2^3^2", "512", "5.12e+2"},
    {"unary minus right after *", "1*-1-1*1", "-2", "-2.0e+0"},
    {"a negative exponent", "2^-1", "0.5", "5.0e-1"},
    {"sine of 30 degrees as the rewriting writes it", "sin((3.1415926535897932384626433832795/180)*30)*2", "1",
     "1.0e+0"},
    {"exponent with a lower-case e", "2e6", "2000000", "2.0e+6"},
    {"exponent with a capital E", "2E6", "2000000", "2.0e+6"},
    {"negative exponent literal", "1.5e-3*2", "0.003", "3.0e-3"},
    {"numeric literals compute as doubles, not 32-bit integers", "99999*99999", "9.9998e+9", "9.999800001e+9"},
    {"the seven-digit base-10 factor of the log rewrite", "0.4342945*log(100)", "2", "2.00000008333861e+0"},
    {"division by zero is infinity", "1/0", "INF", "INF"},
    {"negative division by zero", "-1/0", "-INF", "-INF"},
    {"the square root of a negative is not a number", "(-1)*sqrt((-1)*4/2)", "NAN", "NAN"},
    {"integer division truncates", "7\\2", "3", "3.0e+0"},
    {"integer division converts doubles by truncation", "7.9\\2", "3", "3.0e+0"},
    {"Mod", "7 mod 2", "1", "1.0e+0"},
    {"Mod keeps the sign of the dividend", "-7 mod 2", "-1", "-1.0e+0"},
    {"function names ignore case", "SQRT(16)", "4", "4.0e+0"},
    {"keywords ignore case", "7 MoD 4", "3", "3.0e+0"},
    {"Mod binds looser than *", "7 mod 2*3", "1", "1.0e+0"},
    {"\\ binds looser than *", "7\\2*2", "1", "1.0e+0"},
    {"Mod binds looser than \\", "7 mod 5\\2", "1", "1.0e+0"},
    {"+ binds looser than Mod", "1+7 mod 4", "4", "4.0e+0"},
    {"a solver's leading plus", "+sqrt((16))", "4", "4.0e+0"},
    {"a literal starting with its point", ".5*4", "2", "2.0e+0"},
    {"a literal ending with its point", "5.*2", "10", "1.0e+1"},
    {"a literal beyond the double range is infinity", "1e999", "INF", "INF"},
    {"a literal below the double range is zero", "1e-999", "0", "0.0e+0"},
    {"Str's exponent form reads back", "1.234568e+7/1e7", "1.234568", nullptr},
    {"a hexadecimal literal", "&hFF+1", "256", "2.56e+2"},
    {"an octal and a binary literal", "&o17+&b101", "20", "2.0e+1"},
    {"a huge value in Str's exponent form", "12345678", "1.234568e+7", "1.2345678e+7"},
    {"a tiny value in Str's exponent form", "0.00001", "1e-5", "1.0e-5"},
    {"Asin answers in radians", "Asin(1)*2", "3.141593", "3.14159265358979e+0"},
    {"Acos and Atan", "acos(0)*2+atan(1)*4", "6.283185", nullptr},
    {"Atan2", "atan2(1,1)*4", "3.141593", nullptr},
    {"cos and tan", "cos(0)+tan(0)", "1", nullptr},
    {"log is natural and exp its inverse", "log(exp(2))", "2", nullptr},
    {"Log10", "log10(1000)", "3", nullptr},
    {"Round goes half away from zero", "round(2.5)*10+round(-2.5)", "27", nullptr},
    {"Floor and Ceil", "floor(-2.5)*10+ceil(2.1)", "-27", nullptr},
    {"Abs, Min, Max, Pow", "abs(-4)+min(2,3)*10+max(2,3)*100+pow(2,10)*1000", "1024324", nullptr},
    {"Sign", "sign(-3)*10+sign(0)+sign(7)*100", "90", nullptr},
    {"Val reads the number at the start", "val(\"5km\")*2", "10", nullptr},
    {"Len gives an Integer that mixes with doubles", "len(\"abc\")/2", "1.5", nullptr},
    {"CDbl of a String and of a number", "cdbl(\"2.5\")*2+cdbl(1)", "6", nullptr},
    {"Asc and InStr", "asc(\"A\")*10+instr(\"abcabc\",\"C\")", "653", nullptr},
    {"blanks and tabs between tokens", " 2 \t+\t2 ", "4", nullptr},
    {"a comment behind the formula", "2+2 ' the rest is ignored", "4", nullptr},
    {"a slash comment behind the formula", "2+2 // the rest is ignored", "4", nullptr},
};

TEST(ScriptFormulas, NormalAndScientificForms) {
  for (const FormulaRow& row : kFormulas) {
    SCOPED_TRACE(row.name);
    SCOPED_TRACE(row.formula);
    RecordingHost normal;
    RunFresh(normal, NormalScript(QString::fromLatin1(row.formula)));
    EXPECT_TRUE(normal.compileErrors.empty()) << normal.compileErrors.front().message.toStdString();
    EXPECT_TRUE(normal.runtimeErrors.empty());
    EXPECT_EQ(normal.prints, QStringList{QString::fromLatin1(row.normal)});

    if (!row.scientific) continue;
    RecordingHost scientific;
    RunFresh(scientific, ScientificScript(QString::fromLatin1(row.formula)));
    EXPECT_TRUE(scientific.compileErrors.empty());
    EXPECT_EQ(scientific.prints, QStringList{QString::fromLatin1(row.scientific)});
  }
}

TEST(ScriptFormulas, LongLiteralWithoutExponentOverflowsToInfinity) {
  RecordingHost host;
  RunFresh(host, NormalScript(QStringLiteral("1") + QString(400, QLatin1Char('0'))));
  EXPECT_EQ(host.prints, QStringList{QStringLiteral("INF")});
  RunFresh(host, NormalScript(QStringLiteral("0.") + QString(400, QLatin1Char('0')) + QStringLiteral("1")));
  EXPECT_EQ(host.prints, (QStringList{QStringLiteral("INF"), QStringLiteral("0")}));
}

}  // namespace
}  // namespace abacon_test
