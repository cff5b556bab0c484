// The shipped conversion table: its shape as the loader reads it, every row through
// the formula runner, reference conversions to 7 digits, and opposite rows undoing
// each other.

#include <gtest/gtest.h>

#include <QSet>
#include <cmath>
#include <map>
#include <ostream>

#include "support_files.h"

void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace datatest {
namespace {

const std::vector<Category>& table() {
  static const std::vector<Category> loaded = loadTable();
  return loaded;
}

const Category* findCategory(const QString& name) {
  for (const Category& c : table())
    if (c.name == name) return &c;
  return nullptr;
}

const Row* findRow(const QString& category, const QString& name) {
  const Category* c = findCategory(category);
  if (!c) return nullptr;
  for (const Row& r : c->rows)
    if (r.name == name) return &r;
  return nullptr;
}

bool isBuiltIn(const QString& category) {
  return category == QStringLiteral("Number") || category == QStringLiteral("Temperature");
}

// The number a printed answer stands for.
double number(const QString& printed) {
  bool ok = false;
  const double value = printed.toDouble(&ok);
  return ok ? value : std::nan("");
}

TEST(ConvertTable, IsWellFormedAndOfTheDocumentedShape) {
  const QByteArray bytes = readBytes(QStringLiteral("convert.txt"));
  ASSERT_FALSE(bytes.isEmpty()) << "convert.txt not found in " << supportDir().toStdString();
  for (const char c : bytes) ASSERT_TRUE(c == '\n' || (c >= 32 && c < 127)) << "not ASCII";
  ASSERT_GE(table().size(), 20u);
  int rows = 0;
  QSet<QString> categoryNames;
  for (const Category& c : table()) {
    SCOPED_TRACE(c.name.toStdString());
    EXPECT_FALSE(c.name.isEmpty());
    EXPECT_FALSE(c.name.contains(QLatin1Char(';')));
    EXPECT_FALSE(categoryNames.contains(c.name.toLower())) << "category twice";
    categoryNames.insert(c.name.toLower());
    EXPECT_FALSE(c.rows.empty());
    QSet<QString> rowNames;
    for (const Row& r : c.rows) {
      SCOPED_TRACE(r.name.toStdString());
      ++rows;
      EXPECT_TRUE(r.name.contains(QStringLiteral("->")));
      EXPECT_FALSE(r.name.contains(QLatin1Char(';')));
      EXPECT_FALSE(r.name.contains(QLatin1Char(':')));
      EXPECT_FALSE(r.value.contains(QLatin1Char(';')));
      EXPECT_FALSE(r.value.contains(QLatin1Char(':')));
      // Rows are looked up without regard to case: "MW->W" would shadow "mW->W".
      EXPECT_FALSE(rowNames.contains(r.name.toLower())) << "two rows differ only by case";
      rowNames.insert(r.name.toLower());
      // What follows "->" is written behind the number, so it must read as a unit.
      const QString unit = platform::Split(r.name, QStringLiteral("->")).value(1);
      EXPECT_FALSE(unit.isEmpty());
      EXPECT_FALSE(unit.contains(QLatin1Char(' ')));
      if (!isBuiltIn(c.name)) EXPECT_FALSE(r.value.isEmpty());
    }
  }
  EXPECT_GE(rows, 250);
  EXPECT_LE(rows, 400);
}

TEST(ConvertTable, BuiltInCategoriesHoldExactlyTheRowsTheRulesKnow) {
  struct Case {
    const char* name;
    QString category;
    QStringList rows;
  };
  const Case cases[] = {
      {"number bases, in the order of the rules", QStringLiteral("Number"),
       {"Decimal(Integer)->Hex", "Hex->Decimal", "Decimal->Oct", "Oct->Decimal",
        "Decimal->Binary", "Binary->Decimal"}},
      {"temperatures, in the order of the rules", QStringLiteral("Temperature"),
       {"Fahrenheit(F)->C", "Celsius/Centigrade(C)->F", "Kelvin(K)->C", "C->K",
        "Rankine(R)->F", "F->R", "R->K", "K->R", "F->K", "K->F"}},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.name);
    const Category* c = findCategory(row.category);
    ASSERT_NE(c, nullptr);
    QStringList names;
    for (const Row& r : c->rows) names << r.name;
    EXPECT_EQ(names, row.rows);
  }
}

// The loader flattens each category into "name;row:value;row:value" and the lookup
// takes the value back out between the first ":" and the next; every row must survive.
TEST(ConvertTable, ValuesSurviveTheFlatteningOfTheLoader) {
  for (const Category& c : table()) {
    QString valued = c.name;
    for (const Row& r : c.rows) valued += QLatin1Char(';') + r.name + QLatin1Char(':') + r.value;
    ASSERT_EQ(platform::NthField(valued, QStringLiteral(";"), 1), c.name);
    for (const Row& r : c.rows) {
      SCOPED_TRACE((c.name + QLatin1Char('/') + r.name).toStdString());
      QString found;
      bool matched = false;
      for (int k = 2; k <= platform::CountFields(valued, QStringLiteral(";")) && !matched; ++k) {
        const QString field = platform::NthField(valued, QStringLiteral(";"), k);
        if (platform::StrEq(platform::NthField(field, QStringLiteral(":"), 1), r.name)) {
          found = platform::NthField(field, QStringLiteral(":"), 2);
          matched = true;
        }
      }
      EXPECT_TRUE(matched);
      EXPECT_EQ(found, r.value);
    }
  }
}

TEST(ConvertTable, EveryRowCompilesAndRunsThroughTheFormulaRunner) {
  for (const Category& c : table()) {
    if (isBuiltIn(c.name)) continue;
    for (const Row& r : c.rows) {
      SCOPED_TRACE((c.name + QLatin1Char('/') + r.name + QStringLiteral(" ") + r.value).toStdString());
      for (const QString& input : {QStringLiteral("1"), QStringLiteral("2.5"), QStringLiteral("1.5e+7")}) {
        const std::optional<QString> out = runFormula(input + r.value);
        ASSERT_TRUE(out.has_value());
        const double value = number(*out);
        EXPECT_TRUE(std::isfinite(value) && value > 0) << out->toStdString();
      }
    }
  }
}

struct Reference {
  const char* name;
  const char* category;
  const char* row;
  const char* input;
  double expected;
};

// Results by the definitions of the units (NIST SP 811, SI brochure), to 7 digits.
const Reference kReferences[] = {
    {"statute mile is 1.609344 km", "Length", "mi->km", "1", 1.609344},
    {"kilometre in miles", "Length", "km->mi", "1", 0.6213712},
    {"inch is 2.54 cm", "Length", "in->cm", "1", 2.54},
    {"foot is 0.3048 m", "Length", "ft->m", "1", 0.3048},
    {"metre in feet", "Length", "m->ft", "1", 3.280840},
    {"yard is 0.9144 m", "Length", "yd->m", "1", 0.9144},
    {"nautical mile is 1.852 km", "Length", "nmi->km", "1", 1.852},
    {"astronomical unit in km", "Length", "au->km", "1", 1.495979e8},
    {"light-year in km", "Length", "ly->km", "1", 9.460730e12},
    {"parsec in light-years", "Length", "pc->ly", "1", 3.261564},
    {"square foot in square metres", "Area", "ft^2->m^2", "1", 0.09290304},
    {"international acre in square metres", "Area", "acre->m^2", "1", 4046.856},
    {"square mile in square km", "Area", "mi^2->km^2", "1", 2.589988},
    {"hectare in acres", "Area", "ha->acre", "1", 2.471054},
    {"US gallon in litres", "Volume", "gal(US)->L", "1", 3.785412},
    {"imperial gallon in litres", "Volume", "gal(Imp)->L", "1", 4.54609},
    {"US fluid ounce in mL", "Volume", "floz(US)->mL", "1", 29.57353},
    {"cubic foot in litres", "Volume", "ft^3->L", "1", 28.31685},
    {"oil barrel in litres", "Volume", "bbl(oil)->L", "1", 158.9873},
    {"pound is 0.4535924 kg", "Mass", "lb->kg", "1", 0.4535924},
    {"kilogram in pounds", "Mass", "kg->lb", "1", 2.204623},
    {"ounce in grams", "Mass", "oz->g", "1", 28.34952},
    {"short ton in kg", "Mass", "ton(short)->kg", "1", 907.1847},
    {"stone in kg", "Mass", "st(stone)->kg", "1", 6.350293},
    {"troy ounce in grams", "Mass", "ozt(troy)->g", "1", 31.10348},
    {"atomic mass unit in kg", "Mass", "u->kg", "1", 1.660539e-27},
    {"hour in seconds", "Time", "hr->s", "1", 3600},
    {"Julian year in days", "Time", "yr(Julian)->day", "1", 365.25},
    {"a day of seconds is one day", "Time", "s->day", "86400", 1},
    {"60 mph in km/h", "Speed", "mph->km/h", "60", 96.56064},
    {"knot in km/h", "Speed", "kn->km/h", "1", 1.852},
    {"100 km/h in m/s", "Speed", "km/h->m/s", "100", 27.77778},
    {"standard gravity in m/s^2", "Acceleration", "g(standard)->m/s^2", "1", 9.80665},
    {"standard gravity in ft/s^2", "Acceleration", "g(standard)->ft/s^2", "1", 32.17405},
    {"pound-force in newtons", "Force", "lbf->N", "1", 4.448222},
    {"kilogram-force in newtons", "Force", "kgf->N", "1", 9.80665},
    {"standard atmosphere is 101325 Pa", "Pressure", "atm->Pa", "1", 101325},
    {"psi in kPa", "Pressure", "psi->kPa", "1", 6.894757},
    {"760 mmHg is one atmosphere", "Pressure", "mmHg->Pa", "760", 101325.0},
    {"bar in psi", "Pressure", "bar->psi", "1", 14.50377},
    {"inch of mercury in kPa", "Pressure", "inHg->kPa", "1", 3.386389},
    {"IT Btu in joules", "Energy", "Btu->J", "1", 1055.056},
    {"thermochemical calorie is 4.184 J", "Energy", "cal(th)->J", "1", 4.184},
    {"kilowatt-hour is 3.6 MJ", "Energy", "kWh->MJ", "1", 3.6},
    {"electronvolt in joules", "Energy", "eV->J", "1", 1.602177e-19},
    {"foot-pound in joules", "Energy", "ft-lbf->J", "1", 1.355818},
    {"the directions' example: 0.15 hp is 111.855 W", "Power", "hp->W", "0.15", 111.855},
    {"mechanical horsepower in watts", "Power", "hp->W", "1", 745.6999},
    {"metric horsepower in watts", "Power", "hp(metric)->W", "1", 735.49875},
    {"Btu per hour in watts", "Power", "Btu/hr->W", "1", 0.2930711},
    {"g/cm^3 in kg/m^3", "Density", "g/cm^3->kg/m^3", "1", 1000},
    {"lb/ft^3 in kg/m^3", "Density", "lb/ft^3->kg/m^3", "1", 16.01846},
    {"US gallon per minute in L/s", "Flow", "gal(US)/min->L/s", "1", 0.0630902},
    {"180 degrees is pi radians", "Angle", "deg->rad", "180", 3.141593},
    {"revolution is 360 degrees", "Angle", "rev->deg", "1", 360},
    {"60 rpm is 1 Hz", "Frequency", "rpm->Hz", "60", 1},
    {"gibibyte in mebibytes", "Data", "GiB->MiB", "1", 1024},
    {"gigabyte in gibibytes", "Data", "GB->GiB", "1", 0.9313226},
    {"30 mpg is 7.84 L/100km", "Fuel economy", "mpg(US)->L/100km", "30", 7.840486},
    {"8 L/100km in mpg", "Fuel economy", "L/100km->mpg(US)", "8", 29.40182},
    {"mpg in km/L", "Fuel economy", "mpg(US)->km/L", "1", 0.4251437},
    {"ampere-hour in coulombs", "Electric", "Ah->C", "1", 3600},
    {"gauss in tesla", "Electric", "gauss->T", "1", 0.0001},
    {"curie is 37 GBq", "Radiation", "Ci->GBq", "1", 37},
    {"rem in sieverts", "Radiation", "rem->Sv", "1", 0.01},
    {"pound-foot in newton-metres", "Torque", "lbf-ft->N-m", "1", 1.355818},
    {"centipoise in pascal-seconds", "Viscosity", "cP->Pa-s", "1", 0.001},
    {"footcandle in lux", "Light", "fc->lx", "1", 10.76391},
};

TEST(ConvertTable, ReferenceConversionsAreRightToSevenDigits) {
  ASSERT_GE(std::size(kReferences), 40u);
  for (const Reference& ref : kReferences) {
    SCOPED_TRACE(ref.name);
    const Row* row = findRow(QString::fromUtf8(ref.category), QString::fromUtf8(ref.row));
    ASSERT_NE(row, nullptr) << "no row " << ref.row << " under " << ref.category;
    const std::optional<QString> out = runFormula(QString::fromUtf8(ref.input) + row->value);
    ASSERT_TRUE(out.has_value());
    // Normal output carries 7 significant digits, so the answer is the reference
    // rounded to 7 digits: within half a unit of the seventh digit.
    EXPECT_NEAR(number(*out), ref.expected, std::abs(ref.expected) * 6e-7) << out->toStdString();
  }
}

// The directions' solar radiation example: the upper unit converted by "hp->W" gives
// the text they promise; the lower unit ft^2 then goes by a factor row, whose third
// pass divides the square of the number by the converted number, which was cut to 7
// digits, so the "1204 W/m^2" of the directions comes out as 1203.997.
TEST(ConvertTable, TheDirectionsExampleGivesItsPromisedResults) {
  const Row* power = findRow(QStringLiteral("Power"), QStringLiteral("hp->W"));
  const Row* area = findRow(QStringLiteral("Area"), QStringLiteral("ft^2->m^2"));
  const Row* time = findRow(QStringLiteral("Time"), QStringLiteral("hr->s"));
  ASSERT_NE(power, nullptr);
  ASSERT_NE(area, nullptr);
  ASSERT_NE(time, nullptr) << "the directions name the row hr->s under Time";
  EXPECT_EQ(runFormula(QStringLiteral("0.15") + power->value).value_or(QString()),
            QStringLiteral("111.855"));
  const QString converted = runFormula(QStringLiteral("111.855") + area->value).value_or(QString());
  ASSERT_FALSE(converted.isEmpty());
  EXPECT_NEAR(number(runFormula(QStringLiteral("111.855^2/") + converted).value_or(QString())),
              1204.0, 0.01);
}

// Reads "*f" or "/f" as the factor it applies; nothing for any other tail.
std::optional<double> factorOf(const QString& value) {
  if (value.size() < 2) return std::nullopt;
  bool ok = false;
  const double f = value.mid(1).toDouble(&ok);
  if (!ok || f <= 0) return std::nullopt;
  if (value.front() == QLatin1Char('*')) return f;
  if (value.front() == QLatin1Char('/')) return 1.0 / f;
  return std::nullopt;
}

// The lower-unit conversion of the Convert tab divides the square of the number by the
// converted number, which is right only for a pure factor; only fuel economy, whose
// units are inverse to each other, may hold another kind of tail.
TEST(ConvertTable, TableRowsArePureFactorsExceptInverseUnits) {
  for (const Category& c : table()) {
    if (isBuiltIn(c.name)) continue;
    for (const Row& r : c.rows) {
      SCOPED_TRACE((c.name + QLatin1Char('/') + r.name).toStdString());
      if (c.name == QStringLiteral("Fuel economy") && r.value.startsWith(QStringLiteral("^(-1)*")))
        continue;
      EXPECT_TRUE(factorOf(r.value).has_value()) << r.value.toStdString();
    }
  }
}

TEST(ConvertTable, OppositeRowsMultiplyToOne) {
  int pairs = 0;
  for (const Category& c : table()) {
    if (isBuiltIn(c.name)) continue;
    std::map<QString, const Row*> byName;
    for (const Row& r : c.rows) byName[r.name] = &r;
    for (const Row& r : c.rows) {
      SCOPED_TRACE((c.name + QLatin1Char('/') + r.name).toStdString());
      const QStringList parts = platform::Split(r.name, QStringLiteral("->"));
      ASSERT_EQ(parts.size(), 2);
      const auto opposite = byName.find(parts[1] + QStringLiteral("->") + parts[0]);
      ASSERT_NE(opposite, byName.end()) << "no opposite row";
      const std::optional<double> there = factorOf(r.value);
      const std::optional<double> back = factorOf(opposite->second->value);
      if (there && back) {
        EXPECT_NEAR(*there * *back, 1.0, 1e-9);
        ++pairs;
      }
    }
  }
  EXPECT_GE(pairs, 250);
}

// Through the runner, a number taken there and back comes home, for every row,
// inverse units included; Scientific output carries the 15 digits this needs.
TEST(ConvertTable, ThereAndBackThroughTheRunnerGivesTheNumberAgain) {
  for (const Category& c : table()) {
    if (isBuiltIn(c.name)) continue;
    for (const Row& r : c.rows) {
      SCOPED_TRACE((c.name + QLatin1Char('/') + r.name).toStdString());
      const QStringList parts = platform::Split(r.name, QStringLiteral("->"));
      const Row* opposite = findRow(c.name, parts.value(1) + QStringLiteral("->") + parts.value(0));
      ASSERT_NE(opposite, nullptr);
      const std::optional<QString> there = runFormula(QStringLiteral("2.5") + r.value, true);
      ASSERT_TRUE(there.has_value());
      const std::optional<QString> back = runFormula(*there + opposite->value, true);
      ASSERT_TRUE(back.has_value()) << there->toStdString();
      EXPECT_NEAR(number(*back), 2.5, 2.5e-9) << back->toStdString();
    }
  }
}

}  // namespace
}  // namespace datatest
