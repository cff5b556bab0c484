// Conversions where the transcripts do not reach: every built-in rule, the lookups by
// name, the Convert tab's unit cutting, and what a broken table leaves.

#include <algorithm>

#include "platform/exceptions.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

QString category(const QString& name, const QString& rows) {
  return "<Category><Name>" + name + "</Name><List>" + rows + "</List></Category>";
}
QString row(const QString& name, const QString& value) {
  return "<SubList convert=\"" + value + "\">" + name + "</SubList>";
}
QString table(const QString& categories) { return "<Conversions>" + categories + "</Conversions>"; }

class Convert : public testsupport::AppFixture {
 protected:
  void start(const QString& convertTxt) {
    writeFile("ApplicationData/VXKSupport/convert.txt", convertTxt);
    launch();
  }
  // A family and a row chosen by their texts, as on the Convert tab's lists.
  void select(const QString& family, const QString& conversion) {
    window->Listbox1->userChoose(rowOf(*window->Listbox1, family));
    window->Listbox2->userChoose(rowOf(*window->Listbox2, conversion));
  }
  static int rowOf(const platform::ListControl& list, const QString& text) {
    return static_cast<int>(list.RowsText().split('\n').indexOf(text));
  }
  // The number through the "=" key under "Convert"; what it logged.
  QStringList convert(const QString& family, const QString& conversion, const QString& number) {
    select(family, conversion);
    window->BevelButton1->setCaption("Convert");
    window->EditField4->setText(number);
    desktop.takeEvents();
    newLogLines();
    window->PushButton40->Push();
    return newLogLines();
  }
};

class Rules : public Convert {
 protected:
  void SetUp() override {
    Convert::SetUp();
    start(table(
        category("Number", row("Decimal(Integer)-&gt;Hex", "") + row("Hex-&gt;Decimal", "") +
                               row("Decimal-&gt;Oct", "") + row("Oct-&gt;Decimal", "") +
                               row("Decimal-&gt;Binary", "") + row("Binary-&gt;Decimal", "") +
                               row("Hex-&gt;Roman", "")) +
        category("Temperature", row("Fahrenheit(F)-&gt;C", "") +
                                    row("Celsius/Centigrade(C)-&gt;F", "") + row("Kelvin(K)-&gt;C", "") +
                                    row("C-&gt;K", "") + row("Rankine(R)-&gt;F", "") +
                                    row("F-&gt;R", "") + row("R-&gt;K", "") + row("K-&gt;R", "") +
                                    row("F-&gt;K", "") + row("K-&gt;F", "") + row("c-&gt;k", "") +
                                    row("a-&gt;b-&gt;c", "")) +
        category("Power", row("hp-&gt;W", "*745.7") + row("W-&gt;hp", "/745.7") +
                              row("no arrow", "*2") + row("empty-&gt;same", ""))));
  }
};

TEST_F(Rules, TemperaturesAndTableRowsBecomeFormulas) {
  struct Row {
    const char* name;
    QString family;
    QString conversion;
    QString number;
    QString formula;
    QString answer;
  };
  const Row rows[] = {
      {"C to F with a negative number", "Temperature", "Celsius/Centigrade(C)->F", "-40",
       "-40*1.8+32", "-40 F"},
      {"K to C", "Temperature", "Kelvin(K)->C", "300", "300-273.15", "26.85 C"},
      {"C to K", "Temperature", "C->K", "0", "0+273.15", "273.15 K"},
      {"R to F", "Temperature", "Rankine(R)->F", "500", "500-459.67", "40.33 F"},
      {"F to R", "Temperature", "F->R", "32", "32+459.67", "491.67 R"},
      {"R to K", "Temperature", "R->K", "180", "180/1.8", "100 K"},
      {"K to R", "Temperature", "K->R", "100", "100*1.8", "180 R"},
      {"F to K", "Temperature", "F->K", "212", "((212-32)/1.8)+273.15", "373.15 K"},
      {"rows compare without case, the unit is the row's own", "Temperature", "c->k", "1",
       "1+273.15", "274.15 k"},
      {"the number is cut to seven digits first", "Temperature", "C->K", "1234567.89",
       "1234568+273.15", "1234841 K"},
      {"an exponent comes in the form of Str", "Temperature", "C->K", "1.5e6", "1500000+273.15",
       "1500273 K"},
      {"the value goes behind the number", "Power", "hp->W", "0.15 hp", "0.15*745.7", "111.855 W"},
      {"an empty value gives the number back", "Power", "empty->same", "3", "3", "3 same"},
      {"an empty field converts 0", "Power", "W->hp", "", "0/745.7", "0 hp"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    convert(r.family, r.conversion, r.number);
    EXPECT_EQ(window->EditField1->Text(), r.formula);
    EXPECT_EQ(window->EditField5->Text(), r.answer);
    EXPECT_EQ(desktop.clipboardText(), r.answer);
  }
  // A temperature row without its rule: an empty formula, with the row's unit set.
  window->EditField1->setText("before");
  convert("Temperature", "a->b->c", "10");
  EXPECT_EQ(window->EditField1->Text(), "");
  EXPECT_EQ(window->unt, " b");
  EXPECT_THROW(convert("Power", "no arrow", "1"), platform::OutOfBoundsException);
}

TEST_F(Rules, NumberBasesAnswerAtOnce) {
  struct Row {
    const char* name;
    QString conversion;
    QString number;
    QString answer;
  };
  const Row rows[] = {
      {"ff to decimal", "Hex->Decimal", "ff", "255"},
      {"17 octal to decimal", "Oct->Decimal", "17", "15"},
      {"5 to binary", "Decimal->Binary", "5", "101"},
      {"8 to octal", "Decimal->Oct", "8", "10"},
      {"2.4 rounds down", "Decimal(Integer)->Hex", "2.4", "2"},
      {"-1 is the 32-bit complement", "Decimal(Integer)->Hex", "-1", "FFFFFFFF"},
      {"a non-hex character stops the digits", "Hex->Decimal", "1G", "1"},
      {"a bad first character gives 0", "Hex->Decimal", "G1", "0"},
      {"blanks are gone before the rule", "Decimal(Integer)->Hex", "1 000", "3E8"},
  };
  window->wincon = 1;
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    window->EditField1->setText("untouched");
    EXPECT_EQ(convert("Number", r.conversion, r.number),
              (QStringList{"Entered: " + r.number, "Output:" + r.answer}));
    EXPECT_EQ(window->EditField5->Text(), r.answer);
    EXPECT_EQ(desktop.clipboardText(), r.answer);
    EXPECT_EQ(window->EditField1->Text(), "untouched") << "no formula runs";
    EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
    EXPECT_TRUE(window->PushButton40->Enabled()) << "given back although nothing ran";
  }
  // A row without its rule answers nothing, and beeps all the same.
  window->EditField5->setText("old");
  EXPECT_EQ(convert("Number", "Hex->Roman", "FF"), QStringList{"Entered: FF"});
  EXPECT_EQ(window->EditField5->Text(), "old");
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(Rules, TheDropsConvertPathBlinksBeforeTheRun) {
  select("Power", "hp->W");
  int modeAtRun = -1;
  window->PushButton1->Action = [this, &modeAtRun] { modeAtRun = window->Timer1->Mode(); };
  window->convertPath("2", app::Window1::RunBlink::BeforeRun);
  EXPECT_NE(modeAtRun, 0);
  EXPECT_EQ(window->EditField1->Text(), "2*745.7");
}

TEST_F(Convert, LookupsGoByName) {
  struct Row {
    const char* name;
    QString file;
    QString rows;  // the conversions of the first family
    int choose;    // then this row
    QString convertit;
  };
  const Row rows[] = {
      {"a row without convert gives an empty value",
       table(category("Odd", "<SubList>a-&gt;b</SubList>")), "a->b", 0, ""},
      {"two rows of one name give the value of the first",
       table(category("Power", row("hp-&gt;W", "*745.7") + row("hp-&gt;W", "*746"))),
       "hp->W\nhp->W", 1, "*745.7"},
      {"rows differing by case are one name to the lookup",
       table(category("Power", row("MW-&gt;W", "*1000000") + row("mW-&gt;W", "/1000"))),
       "MW->W\nmW->W", 1, "*1000000"},
      {"two families of one name show the rows of both",
       table(category("Power", row("hp-&gt;W", "*745.7")) +
             category("Power", row("kW-&gt;W", "*1000") + row("hp-&gt;W", "*746"))),
       "hp->W\nkW->W\nhp->W", 2, "*745.7"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    start(r.file);
    EXPECT_EQ(window->popconvert->RowsText(), r.rows);
    EXPECT_EQ(window->Listbox2->RowsText(), r.rows);
    window->Listbox2->userChoose(r.choose);
    EXPECT_EQ(window->popconvert->ListIndex(), r.choose);
    EXPECT_EQ(window->convertit, r.convertit);
  }
}

TEST_F(Convert, AFamilyFromThePopupSelectsItsFirstRowAndMirrorsOneWay) {
  start(table(category("Length", row("ft-&gt;m", "*0.3048")) +
              category("Power", row("hp-&gt;W", "*745.7") + row("kW-&gt;W", "*1000"))));
  newLogLines();
  window->PopupMenu2->setListIndex(1);
  EXPECT_EQ(window->convertit, "*745.7");
  EXPECT_EQ(window->popconvert->ListIndex(), 0);
  EXPECT_EQ(window->Listbox2->ListIndex(), 0);
  EXPECT_EQ(newLogLines(), QStringList{">>Power"});
  EXPECT_EQ(window->Listbox1->ListIndex(), -1) << "the mirroring runs from list box to popup only";
}

TEST_F(Convert, TheMousePressLogsTheRowShownAndLeavingClearsTheFlagOnlyUnderSettings) {
  start(table(category("Power", row("hp-&gt;W", "*745.7") + row("kW-&gt;W", "*1000"))));
  newLogLines();
  window->popconvert->userChoose(1);
  EXPECT_EQ(newLogLines(), QStringList{">hp->W"});
  EXPECT_EQ(window->popcon, 1);
  EXPECT_EQ(window->convertit, "*1000");
  struct Row {
    const char* name;
    int wincon;
    QString caption;
    int popconAfter;
  };
  const Row rows[] = {
      {"leaving in the expanded window keeps the flag", 1, "Settings", 1},
      {"leaving under another caption keeps the flag", 0, "Convert", 1},
      {"leaving the small window under Settings clears it", 0, "Settings", 0},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    window->popcon = 1;
    window->wincon = r.wincon;
    window->BevelButton1->setCaption(r.caption);
    window->popconvert->userLeave();
    EXPECT_EQ(window->popcon, r.popconAfter);
  }
}

TEST_F(Convert, AFolderWithoutTheTableIsReportedAndTheProgramRuns) {
  writeFile("ApplicationData/VXKSupport/other.txt", "x");
  writeFile("Preferences/VXKInstr", "do not show");
  program = std::make_unique<app::App>(desktop);
  program->_Startup();
  window = program->window1();
  const QStringList events = desktop.takeEvents();
  EXPECT_TRUE(std::any_of(events.begin(), events.end(), [](const QString& e) {
    return e.startsWith("msgbox An unexpected problem occurred and was stopped: NilObjectException") &&
           e.endsWith("VXKSupport/convert.txt");
  })) << events.join(" | ").toStdString();
  EXPECT_TRUE(window->EditField2->Text().contains("Conversion Data from XML file loaded\n"));
  EXPECT_EQ(window->iload, 0);
  EXPECT_EQ(window->PopupMenu2->ListCount(), 0);
}

class ConvertTab : public Convert {
 protected:
  void SetUp() override {
    Convert::SetUp();
    start(table(category("Number", row("Decimal(Integer)-&gt;Hex", "")) +
                category("Time", row("min-&gt;s", "*60") + row("s-&gt;min", "/60")) +
                category("Mass", row("kg-&gt;g", "*1000")) +
                category("Length", row("ft-&gt;m", "*0.3048") + row("m-&gt;ft", "/0.3048")) +
                category("Power", row("hp-&gt;W", "*745.7"))));
    window->BevelButton1->setCaption("Convert");
  }
};

TEST_F(ConvertTab, UnitsAreCutAtTheLastSlashAndGluedBack) {
  struct Row {
    const char* name;
    const char* family;
    const char* conversion;
    QString entry;
    platform::RadioButton* radio;
    QString result;
    int passes;
    QString lastLog;
  };
  const Row rows[] = {
      {"an empty entry converts 0", "Length", "ft->m", "", window->RadioButton8.get(), "0 m", 1,
       "---No Units included. Default Chosen"},
      {"normal replaces all units", "Power", "hp->W", "0.15 hp/ft^2", window->RadioButton7.get(),
       "111.855 W", 1, "Output:111.855 W"},
      {"upper without a divider: two passes", "Length", "ft->m", "5 ft",
       window->RadioButton8.get(), "1.524 m", 2, "---No Unit divider '/' included. Default Chosen"},
      {"lower without a divider: two passes", "Length", "ft->m", "5 ft",
       window->RadioButton9.get(), "1.524 m", 2, "---No Unit divider '/' included. Default Chosen"},
      {"upper takes all of kg/m as the upper unit", "Mass", "kg->g", "2 kg/m/s",
       window->RadioButton8.get(), "2000 g/s", 1, "Output:2000 g"},
      {"upper with blanks around the divider", "Mass", "kg->g", "2 kg / s",
       window->RadioButton8.get(), "2000 g/s", 1, "Output:2000 g"},
      {"lower keeps every upper part", "Time", "s->min", "120 kg/m/s", window->RadioButton9.get(),
       "7200   kg/m/min", 3, " kg/m/min"},
      {"a number base has no blank, so R is two blanks and N the whole answer", "Number",
       "Decimal(Integer)->Hex", "255 x/y", window->RadioButton9.get(), "FF  x/ ", 3, " x/ "},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    select(r.family, r.conversion);
    r.radio->setValue(true);
    window->TextField1->setText(r.entry);
    newLogLines();
    window->PushButton44->Push();
    const QStringList lines = newLogLines();
    EXPECT_EQ(window->TextField1->Text(), r.result);
    EXPECT_EQ(lines.filter(QRegularExpression("^Entered: ")).size(), r.passes) << lines.join(" | ").toStdString();
    EXPECT_EQ(lines.value(lines.size() - 1), r.lastLog);
  }
}

TEST_F(ConvertTab, RadioButtonsLogTheirChoiceAndPurgePrettyOffCopiesTheOldAnswer) {
  newLogLines();
  window->RadioButton8->userClick();
  window->RadioButton7->userClick();
  EXPECT_EQ(newLogLines(),
            (QStringList{"--Upper Unit Conversion Chosen", "--Normal Unit Conversion Chosen"}));
  select("Length", "ft->m");
  window->CheckBox1->setValue(false);
  window->EditField5->setText("earlier ");
  window->TextField1->setText("5 ft");
  window->PushButton44->Push();
  EXPECT_EQ(window->TextField1->Text(), "earlier ");
}

}  // namespace
