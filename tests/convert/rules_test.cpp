// The convert path of the "=" key: number bases done at once, temperatures as built-in
// formulas, and table rows appended to the number.

#include <QFile>

#include "convert/convert_fixture.h"
#include "platform/exceptions.h"

namespace {

using convtest::category;
using convtest::ConvertFixture;
using convtest::numberCategory;
using convtest::row;
using convtest::table;
using convtest::temperatureCategory;

class Rules : public ConvertFixture {
 protected:
  void startWithRules() {
    start(table(numberCategory() + temperatureCategory() +
                category("Power", row("hp-&gt;W", "*745.7") + row("W-&gt;hp", "/745.7") +
                                      row("no arrow", "*2") + row("empty-&gt;same", ""))));
  }
  void convert(const QString& family, const QString& conversion, const QString& number) {
    select(family, conversion);
    window->BevelButton1->setCaption("Convert");
    window->EditField4->setText(number);
    desktop.takeEvents();
    newLogLines();
    window->PushButton40->Push();
  }
};

TEST_F(Rules, Temperatures) {
  struct Row {
    const char* name;
    QString conversion;
    QString number;
    QString formula;
    QString answer;
  };
  const Row rows[] = {
      {"F to C", "Fahrenheit(F)->C", "100", "(100-32)/1.8", "37.77778 C"},
      {"C to F with a negative number", "Celsius/Centigrade(C)->F", "-40", "-40*1.8+32", "-40 F"},
      {"K to C", "Kelvin(K)->C", "300", "300-273.15", "26.85 C"},
      {"C to K", "C->K", "0", "0+273.15", "273.15 K"},
      {"R to F", "Rankine(R)->F", "500", "500-459.67", "40.33 F"},
      {"F to R", "F->R", "32", "32+459.67", "491.67 R"},
      {"R to K", "R->K", "180", "180/1.8", "100 K"},
      {"K to R", "K->R", "100", "100*1.8", "180 R"},
      {"F to K", "F->K", "212", "((212-32)/1.8)+273.15", "373.15 K"},
      {"K to F", "K->F", "300", "(300-273.15)*1.8+32", "80.33 F"},
      {"rows compare without case, the unit is the row's own", "c->k", "1", "1+273.15", "274.15 k"},
      {"the number is cut to seven digits first", "C->K", "1234567.89", "1234568+273.15",
       "1234841 K"},
      {"an exponent comes in the form of Str", "C->K", "1.5e6", "1500000+273.15", "1500273 K"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    startWithRules();
    convert("Temperature", r.conversion, r.number);
    EXPECT_EQ(window->EditField1->Text(), r.formula);
    if (!r.answer.isEmpty()) {
      EXPECT_EQ(window->EditField5->Text(), r.answer);
      EXPECT_EQ(desktop.clipboardText(), r.answer);
    }
  }
}

TEST_F(Rules, AnUnknownTemperatureRowFailsToCompileWithItsUnitSet) {
  startWithRules();
  convert("Temperature", "C->R", "10");
  EXPECT_EQ(window->EditField1->Text(), "");
  EXPECT_EQ(window->unt, " R");
  EXPECT_EQ(newLogLines(), (QStringList{"Entered: 10", "ERROR: Syntax does not make sense."}));

  convert("Temperature", "a->b->c", "10");
  EXPECT_EQ(window->unt, " b");
}

TEST_F(Rules, NumberBases) {
  struct Row {
    const char* name;
    QString conversion;
    QString number;
    QString answer;
  };
  const Row rows[] = {
      {"255 to hex", "Decimal(Integer)->Hex", "255", "FF"},
      {"FF to decimal", "Hex->Decimal", "FF", "255"},
      {"ff to decimal", "Hex->Decimal", "ff", "255"},
      {"101 binary to decimal", "Binary->Decimal", "101", "5"},
      {"17 octal to decimal", "Oct->Decimal", "17", "15"},
      {"5 to binary", "Decimal->Binary", "5", "101"},
      {"8 to octal", "Decimal->Oct", "8", "10"},
      {"2.5 rounds half away from zero", "Decimal(Integer)->Hex", "2.5", "3"},
      {"2.4 rounds down", "Decimal(Integer)->Hex", "2.4", "2"},
      {"-1 is the 32-bit complement", "Decimal(Integer)->Hex", "-1", "FFFFFFFF"},
      {"FFFFFF has eight digits, Str gives seven", "Hex->Decimal", "FFFFFF", "1.677722e+7"},
      {"a non-hex character stops the digits", "Hex->Decimal", "1G", "1"},
      {"a bad first character gives 0", "Hex->Decimal", "G1", "0"},
      {"blanks are gone before the rule", "Decimal(Integer)->Hex", "1 000", "3E8"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    startWithRules();
    window->EditField1->setText("untouched");
    convert("Number", r.conversion, r.number);
    EXPECT_EQ(window->EditField5->Text(), r.answer);
    EXPECT_EQ(desktop.clipboardText(), r.answer);
    EXPECT_EQ(newLogLines(), (QStringList{"Entered: " + r.number, "Output:" + r.answer}));
    EXPECT_EQ(window->EditField1->Text(), "untouched") << "no formula runs";
    EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
  }
}

TEST_F(Rules, NumberBasesIgnoreTheOutputModeAndBlinkOnlyWithUseClipboard) {
  startWithRules();
  window->scibutton1->setValue(true);
  window->wincon = 1;
  convert("Number", "Hex->Decimal", "FF");
  EXPECT_EQ(window->EditField5->Text(), "255");
  EXPECT_EQ(window->Timer1->Mode(), 0) << "no blink with Use Clipboard off";
  EXPECT_TRUE(window->PushButton40->Enabled()) << "given back although nothing ran";

  window->CheckBox2->setValue(true);
  convert("Number", "Hex->Decimal", "FF");
  EXPECT_NE(window->Timer1->Mode(), 0);
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(Rules, AnUnknownNumberRowStillBeeps) {
  start(table(category("Number", row("Hex->Roman", ""))));
  window->EditField5->setText("old");
  convert("Number", "Hex->Roman", "FF");
  EXPECT_EQ(window->EditField5->Text(), "old");
  EXPECT_EQ(newLogLines(), QStringList{"Entered: FF"});
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(Rules, TableRows) {
  struct Row {
    const char* name;
    QString conversion;
    QString number;
    QString formula;
    QString answer;
  };
  const Row rows[] = {
      {"the value goes behind the number", "hp->W", "0.15", "0.15*745.7", "111.855 W"},
      {"units behind the number are dropped", "hp->W", "0.15 hp", "0.15*745.7", "111.855 W"},
      {"an empty value gives the number back", "empty->same", "3", "3", "3 same"},
      {"an empty field converts 0", "W->hp", "", "0/745.7", "0 hp"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    startWithRules();
    convert("Power", r.conversion, r.number);
    EXPECT_EQ(window->EditField1->Text(), r.formula);
    EXPECT_EQ(window->EditField5->Text(), r.answer);
    EXPECT_EQ(desktop.clipboardText(), r.answer);
  }
}

TEST_F(Rules, ARowWithoutArrowFailsOutOfBounds) {
  startWithRules();
  EXPECT_THROW(convert("Power", "no arrow", "1"), platform::OutOfBoundsException);
}

TEST_F(Rules, TheConvertPathBlinksBeforeTheRunWhenAsked) {
  startWithRules();
  select("Power", "hp->W");
  int blinksSeenAtRun = -1;
  window->PushButton1->Action = [this, &blinksSeenAtRun] {
    blinksSeenAtRun = window->Timer1->Mode();
  };
  window->convertPath("2", app::Window1::RunBlink::BeforeRun);
  EXPECT_NE(blinksSeenAtRun, 0);
  EXPECT_EQ(window->EditField1->Text(), "2*745.7");
}

}  // namespace

namespace {

// The shipped table must name the rows the built-in rules know, letter for letter.
TEST_F(Rules, EveryRuleRowOfTheShippedTableReachesItsRule) {
  installSupportFiles();
  if (!QFile::exists(home.path() + "/ApplicationData/VXKSupport/convert.txt")) {
    GTEST_SKIP() << "no shipped convert.txt";
  }
  startWithoutTable();
  window->BevelButton1->setCaption("Convert");
  for (const QString family : {"Temperature", "Number"}) {
    const int familyRow = static_cast<int>(rowsOf(*window->Listbox1).indexOf(family));
    ASSERT_GE(familyRow, 0) << family.toStdString();
    window->Listbox1->userChoose(familyRow);
    for (int r = 0; r < window->Listbox2->ListCount(); ++r) {
      SCOPED_TRACE(window->Listbox2->List(r).toStdString());
      window->Listbox2->userChoose(r);
      window->EditField4->setText("10");
      newLogLines();
      window->PushButton40->Push();
      const QStringList lines = newLogLines();
      ASSERT_EQ(lines.size(), 2);
      EXPECT_TRUE(lines.at(1).startsWith("Output:"));
    }
  }
}

}  // namespace
