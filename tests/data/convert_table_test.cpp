// The shipped conversion table as the program loads and runs it: every row through the
// "=" key under "Convert", reference conversions to 7 digits, opposite rows undoing
// each other, and the directions' example on the Convert tab.

#include <QFile>
#include <QSet>
#include <cmath>
#include <map>

#include "platform/strings/strings.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using platform::CountFields;
using platform::NthField;

class ShippedTable : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    installSupportFiles();
    launch();
    ASSERT_EQ(window->iload, 1) << "convert.txt did not load";
    window->BevelButton1->setCaption("Convert");
  }

  // A family chosen on the Convert tab's list; its rows as the second list shows them.
  QStringList family(const QString& name) {
    const int f = static_cast<int>(window->Listbox1->RowsText().split('\n').indexOf(name));
    if (f < 0) return {};
    window->Listbox1->userChoose(f);
    return window->Listbox2->RowsText().split('\n');
  }
  bool select(const QString& name, const QString& row) {
    const int r = static_cast<int>(family(name).indexOf(row));
    if (r >= 0) window->Listbox2->userChoose(r);
    return r >= 0;
  }
  // The number the "=" key answers for the row chosen; NaN when no answer came.
  double convert(const QString& number) {
    window->EditField4->setText(number);
    window->EditField5->setText(QString());
    window->PushButton40->Push();
    const QString answer = window->EditField5->Text();
    return answer.isEmpty() ? std::nan("") : platform::Val(answer);
  }
  static bool builtIn(const QString& family) {
    return family == "Number" || family == "Temperature";
  }
};

TEST_F(ShippedTable, EveryRowSurvivesTheLoaderWhole) {
  QFile file(testsupport::sourceDir() + "/support/VXKSupport/convert.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  for (const char c : file.readAll()) ASSERT_TRUE(c == '\n' || (c >= 32 && c < 127)) << "not ASCII";
  EXPECT_TRUE(desktop.takeEvents().isEmpty());

  ASSERT_EQ(window->choices.size(), window->changeit.size());
  ASSERT_GE(window->choices.size(), 20);
  QSet<QString> families;
  int rows = 0;
  for (int i = 0; i < window->choices.size(); ++i) {
    const QString& names = window->choices[i];
    const QString& valued = window->changeit[i];
    SCOPED_TRACE(names.toStdString());
    EXPECT_FALSE(families.contains(NthField(names, ";", 1).toLower())) << "family twice";
    families.insert(NthField(names, ";", 1).toLower());
    // A ";" or ":" inside a name or value would shift every row behind it.
    ASSERT_EQ(CountFields(valued, ";"), CountFields(names, ";"));
    QSet<QString> seen;
    for (int k = 2; k <= CountFields(names, ";"); ++k, ++rows) {
      const QString name = NthField(names, ";", k);
      EXPECT_EQ(CountFields(NthField(valued, ";", k), ":"), 2) << name.toStdString();
      EXPECT_EQ(NthField(NthField(valued, ";", k), ":", 1), name);
      // Rows are looked up without regard to case: "MW->W" would shadow "mW->W".
      EXPECT_FALSE(seen.contains(name.toLower())) << name.toStdString();
      seen.insert(name.toLower());
      // What follows "->" is written behind the number, so it must read as a unit.
      const QString unit = platform::Split(name, "->").value(1);
      EXPECT_TRUE(!unit.isEmpty() && !unit.contains(' ')) << name.toStdString();
    }
  }
  EXPECT_GE(rows, 250);
  EXPECT_LE(rows, 400);
}

// Only the rows the rules know: each of them reaches its rule and answers.
TEST_F(ShippedTable, BuiltInFamiliesHoldEveryRuleAndNothingElse) {
  for (const auto& [family, count] : {std::pair{"Number", 6}, std::pair{"Temperature", 10}}) {
    const QStringList rows = this->family(family);
    EXPECT_EQ(rows.size(), count) << family;
    for (const QString& row : rows) {
      SCOPED_TRACE(row.toStdString());
      ASSERT_TRUE(select(family, row));
      newLogLines();
      window->EditField4->setText("10");
      window->PushButton40->Push();
      const QStringList lines = newLogLines();
      ASSERT_EQ(lines.size(), 2);
      EXPECT_TRUE(lines[1].startsWith("Output:"));
    }
  }
}

// Every table row is a pure factor, "*f" or "/f", since the Convert tab's lower-unit
// pass divides the square of the number by the converted number; only fuel economy,
// whose units are inverse to each other, may hold another tail. Through the "=" key a
// number taken there and back by the opposite row comes home.
TEST_F(ShippedTable, RowsArePureFactorsAndOppositeRowsUndoEachOther) {
  int pairs = 0;
  for (const QString& family : window->Listbox1->RowsText().split('\n')) {
    if (builtIn(family)) continue;
    std::map<QString, QString> values;
    for (const QString& row : this->family(family)) {
      select(family, row);
      values[row] = window->convertit;
    }
    for (const auto& [name, value] : values) {
      SCOPED_TRACE((family + "/" + name + " " + value).toStdString());
      bool factor = false;
      const double f = value.mid(1).toDouble(&factor);
      factor = factor && f > 0 && (value.startsWith('*') || value.startsWith('/'));
      EXPECT_TRUE(factor || (family == "Fuel economy" && value.startsWith("^(-1)*")));
      const QString opposite = platform::Split(name, "->").value(1) + "->" +
                               platform::Split(name, "->").value(0);
      ASSERT_EQ(values.count(opposite), 1u) << "no opposite row";
      for (const char* input : {"1", "2.5", "1.5e+7"}) {
        ASSERT_TRUE(select(family, name));
        const double there = convert(input);
        ASSERT_TRUE(std::isfinite(there) && there > 0) << there;
        ASSERT_TRUE(select(family, opposite));
        // Each pass cuts the number to 7 digits.
        EXPECT_NEAR(convert(platform::Str(there)), platform::Val(input),
                    platform::Val(input) * 1.2e-6);
      }
      ++pairs;
    }
  }
  EXPECT_GE(pairs, 250);
}

struct Reference {
  const char* name;
  const char* family;
  const char* row;
  const char* input;
  double expected;
};

// Results by the definitions of the units (NIST SP 811, SI brochure), to 7 digits.
const Reference kReferences[] = {
    {"statute mile is 1.609344 km", "Length", "mi->km", "1", 1.609344},
    {"metre in feet", "Length", "m->ft", "1", 3.280840},
    {"astronomical unit in km", "Length", "au->km", "1", 1.495979e8},
    {"light-year in km", "Length", "ly->km", "1", 9.460730e12},
    {"international acre in square metres", "Area", "acre->m^2", "1", 4046.856},
    {"US gallon in litres", "Volume", "gal(US)->L", "1", 3.785412},
    {"oil barrel in litres", "Volume", "bbl(oil)->L", "1", 158.9873},
    {"pound is 0.4535924 kg", "Mass", "lb->kg", "1", 0.4535924},
    {"troy ounce in grams", "Mass", "ozt(troy)->g", "1", 31.10348},
    {"atomic mass unit in kg", "Mass", "u->kg", "1", 1.660539e-27},
    {"Julian year in days", "Time", "yr(Julian)->day", "1", 365.25},
    {"60 mph in km/h", "Speed", "mph->km/h", "60", 96.56064},
    {"standard gravity in ft/s^2", "Acceleration", "g(standard)->ft/s^2", "1", 32.17405},
    {"pound-force in newtons", "Force", "lbf->N", "1", 4.448222},
    {"760 mmHg is one atmosphere", "Pressure", "mmHg->Pa", "760", 101325.0},
    {"inch of mercury in kPa", "Pressure", "inHg->kPa", "1", 3.386389},
    {"IT Btu in joules", "Energy", "Btu->J", "1", 1055.056},
    {"electronvolt in joules", "Energy", "eV->J", "1", 1.602177e-19},
    {"mechanical horsepower in watts", "Power", "hp->W", "1", 745.6999},
    {"lb/ft^3 in kg/m^3", "Density", "lb/ft^3->kg/m^3", "1", 16.01846},
    {"US gallon per minute in L/s", "Flow", "gal(US)/min->L/s", "1", 0.0630902},
    {"180 degrees is pi radians", "Angle", "deg->rad", "180", 3.141593},
    {"60 rpm is 1 Hz", "Frequency", "rpm->Hz", "60", 1},
    {"gigabyte in gibibytes", "Data", "GB->GiB", "1", 0.9313226},
    {"30 mpg is 7.84 L/100km", "Fuel economy", "mpg(US)->L/100km", "30", 7.840486},
    {"curie is 37 GBq", "Radiation", "Ci->GBq", "1", 37},
    {"pound-foot in newton-metres", "Torque", "lbf-ft->N-m", "1", 1.355818},
    {"centipoise in pascal-seconds", "Viscosity", "cP->Pa-s", "1", 0.001},
    {"footcandle in lux", "Light", "fc->lx", "1", 10.76391},
};

TEST_F(ShippedTable, ReferenceConversionsAreRightToSevenDigits) {
  for (const Reference& ref : kReferences) {
    SCOPED_TRACE(ref.name);
    ASSERT_TRUE(select(ref.family, ref.row)) << "no row " << ref.row << " under " << ref.family;
    // Normal output carries 7 significant digits: within half a unit of the seventh.
    EXPECT_NEAR(convert(ref.input), ref.expected, std::abs(ref.expected) * 6e-7);
  }
}

// The directions' solar radiation example on the Convert tab: 0.15 hp/ft^2 by "hp->W"
// on the upper unit, then "ft^2->m^2" on the lower one, whose pass divides the square
// of the number by the converted number, cut to 7 digits: 1204 W/m^2 as 1203.997.
TEST_F(ShippedTable, TheDirectionsExampleGivesItsPromisedResults) {
  ASSERT_TRUE(select("Time", "hr->s")) << "the directions name the row hr->s under Time";
  ASSERT_TRUE(select("Power", "hp->W"));
  window->RadioButton8->setValue(true);
  window->TextField1->setText("0.15 hp/ft^2");
  window->PushButton44->Push();
  EXPECT_EQ(window->TextField1->Text(), "111.855 W/ft^2");
  ASSERT_TRUE(select("Area", "ft^2->m^2"));
  window->RadioButton9->setValue(true);
  window->PushButton44->Push();
  EXPECT_EQ(window->TextField1->Text(), "1203.997   W/m^2");
}

}  // namespace
