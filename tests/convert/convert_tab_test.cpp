// The Convert tab: passes through the "=" key, the units cut at the last "/" and glued
// back, and a lower unit converted by V^2 over the converted number.

#include <algorithm>

#include "convert/convert_fixture.h"

namespace {

using convtest::category;
using convtest::ConvertFixture;
using convtest::numberCategory;
using convtest::row;
using convtest::table;

class ConvertTab : public ConvertFixture {
 protected:
  void startTab() {
    start(table(numberCategory() +
                category("Power", row("hp-&gt;W", "*745.7") + row("W-&gt;kW", "/1000")) +
                category("Time", row("min-&gt;s", "*60") + row("s-&gt;min", "/60")) +
                category("Area", row("ft^2-&gt;m^2", "*0.09290304")) +
                category("Mass", row("kg-&gt;g", "*1000")) +
                category("Length", row("ft-&gt;m", "*0.3048") + row("m-&gt;ft", "/0.3048"))));
    window->BevelButton1->setCaption("Convert");
  }
  // One press of "Convert"; the lines it logged.
  QStringList press(const QString& entry, platform::RadioButton& choice) {
    choice.setValue(true);
    window->TextField1->setText(entry);
    newLogLines();
    window->PushButton44->Push();
    return newLogLines();
  }
  static int passes(const QStringList& lines) {
    return static_cast<int>(std::count_if(
        lines.begin(), lines.end(), [](const QString& l) { return l.startsWith("Entered: "); }));
  }
};

TEST_F(ConvertTab, Presses) {
  struct Row {
    const char* name;
    const char* family;
    const char* conversion;
    QString entry;
    int radio;  // 7, 8 or 9
    QString result;
    int passes;
    QString lastLog;
  };
  const Row rows[] = {
      {"no blank: one pass and the default", "Length", "ft->m", "100", 9, "30.48 m", 1,
       "---No Units included. Default Chosen"},
      {"an empty entry converts 0", "Length", "ft->m", "", 8, "0 m", 1,
       "---No Units included. Default Chosen"},
      {"normal replaces all units", "Power", "hp->W", "0.15 hp/ft^2", 7, "111.855 W", 1,
       "Output:111.855 W"},
      {"upper unit keeps the lower one", "Power", "hp->W", "0.15 hp/ft^2", 8, "111.855 W/ft^2", 1,
       "Output:111.855 W"},
      {"upper without a divider: two passes", "Length", "ft->m", "5 ft", 8, "1.524 m", 2,
       "---No Unit divider '/' included. Default Chosen"},
      {"lower without a divider: two passes", "Length", "ft->m", "5 ft", 9, "1.524 m", 2,
       "---No Unit divider '/' included. Default Chosen"},
      {"upper takes all of kg/m as the upper unit", "Mass", "kg->g", "2 kg/m/s", 8, "2000 g/s", 1,
       "Output:2000 g"},
      {"upper with blanks around the divider", "Mass", "kg->g", "2 kg / s", 8, "2000 g/s", 1,
       "Output:2000 g"},
      {"lower with a time row gives the quotient, three blanks and the units", "Time", "min->s",
       "3 km/min", 9, "0.05   km/s", 3, " km/s"},
      {"lower keeps every upper part", "Time", "s->min", "120 kg/m/s", 9, "7200   kg/m/min", 3,
       " kg/m/min"},
      {"lower reads V from the raw field, where the comma stops it", "Length", "m->ft",
       "3,000 ft/m", 9, "0.0009144   ft/ft", 3, " ft/ft"},
      {"a number base has no blank, so R is two blanks and N the whole answer", "Number",
       "Decimal(Integer)->Hex", "255 x/y", 9, "FF  x/ ", 3, " x/ "},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    startTab();
    select(r.family, r.conversion);
    platform::RadioButton& radio = r.radio == 7   ? *window->RadioButton7
                                   : r.radio == 8 ? *window->RadioButton8
                                                  : *window->RadioButton9;
    const QStringList lines = press(r.entry, radio);
    EXPECT_EQ(window->TextField1->Text(), r.result);
    EXPECT_EQ(passes(lines), r.passes) << lines.join(" | ").toStdString();
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines.last(), r.lastLog);
    EXPECT_EQ(window->BevelButton1->Caption(), "Convert");
  }
}

TEST_F(ConvertTab, ChainsOfSteps) {
  startTab();
  select("Power", "hp->W");
  press("0.15 hp/ft^2", *window->RadioButton8);
  ASSERT_EQ(window->TextField1->Text(), "111.855 W/ft^2");

  select("Area", "ft^2->m^2");
  const QStringList lines = press(window->TextField1->Text(), *window->RadioButton9);
  // 111.855 W/ft^2 is 1204 W/m^2: the third pass divides 111.855^2 by the converted
  // number, and the field reads the quotient, three blanks and the units.
  EXPECT_EQ(window->EditField4->Text(), "111.855^2/10.39167");
  EXPECT_EQ(window->TextField1->Text(), "1203.997   W/m^2");
  EXPECT_EQ(lines.last(), " W/m^2");
  // The clipboard has the plain quotient of the last run.
  EXPECT_EQ(desktop.clipboardText(), "1203.997 ");
  EXPECT_EQ(window->unt, " ");
}

TEST_F(ConvertTab, RadioButtonsLogTheirChoice) {
  startTab();
  newLogLines();
  window->RadioButton8->userClick();
  window->RadioButton9->userClick();
  window->RadioButton7->userClick();
  EXPECT_EQ(newLogLines(),
            (QStringList{"--Upper Unit Conversion Chosen", "--Lower Unit Conversion Chosen",
                         "--Normal Unit Conversion Chosen"}));
}

TEST_F(ConvertTab, PurgePrettyOffCopiesThePreviousAnswer) {
  startTab();
  select("Length", "ft->m");
  window->CheckBox1->setValue(false);
  window->EditField5->setText("earlier ");
  press("5 ft", *window->RadioButton7);
  EXPECT_EQ(window->TextField1->Text(), "earlier ");
}

}  // namespace
