// Event_DropObject: what a user sees when text lands on the window, and where it
// parts from the typed path.

#include "guidance/texts.h"
#include "workbench/workbench_fixture.h"

namespace {

using guidance::TextKey;
using testsupport::WorkbenchFixture;

class Drop : public WorkbenchFixture {};

TEST_F(Drop, DefaultActionAnswersThroughTheClipboard) {
  start();
  drop("2+2");
  EXPECT_EQ(newLogLines(),
            (QStringList{">>>Calculate (default action)", "Entered: 2+2", "Output:4 "}));
  EXPECT_EQ(window->BevelButton1->Caption(), "calculate");
  EXPECT_EQ(desktop.clipboardText(), "4 ");
  EXPECT_EQ(events(), QStringList{"beep"});
  EXPECT_TRUE(blinking());
  desktop.fireTimer("Timer1");
  EXPECT_EQ(window->ImageWell1->Image(), "target");
  EXPECT_EQ(window->Timer1->Mode(), 0);
}

TEST_F(Drop, HelpBlinksByCaption) {
  struct Row {
    const char* name;
    QString caption;
    QString t;
    TextKey body;
    bool logged;
    bool blinks;
    bool blinkBeforeClipboard;
  };
  const Row rows[] = {
      {"Action blinks after the clipboard", "Action", "?", TextKey::helpAction, true, true, false},
      {"Physical Data", "Physical Data", "help", TextKey::helpPhysical, true, true, false},
      {"Astro Data", "Astro Data", "?", TextKey::helpAstro, true, true, false},
      {"Calculate blinks first", "Calculate", "Help", TextKey::helpCalculate, true, true, true},
      {"Convert blinks first", "Convert", "HELP", TextKey::helpConvert, true, true, true},
      {"Solve blinks, logs nothing", "Solve", "?", TextKey::helpSolve, false, true, true},
      {"Settings blinks, logs nothing", "Settings", "?", TextKey::helpSettings, false, true, true},
      {"Evaluate takes Help too, without a blink", "Evaluate", "Help", TextKey::helpEvaluate, true,
       false, false},
      {"Evaluate takes help in small letters", "Evaluate", "help", TextKey::helpEvaluate, true,
       false, false},
      {"Evaluate takes ?", "Evaluate", "?", TextKey::helpEvaluate, true, false, false},
  };
  start();
  QString clipboardAtBlink;
  window->ImageWell1->addObserver(
      [&](const QString&) { clipboardAtBlink = desktop.clipboardText(); });
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->Timer1_Action();
    desktop.setClipboardText("before");
    clipboardAtBlink.clear();
    window->BevelButton1->setCaption(row.caption);
    drop(row.t);

    const QString lead = row.caption == "Action" ? window->placeit : QString();
    const QString answer =
        row.t + " (Caption " + row.caption + "): " + lead + guidance::text(row.body);
    EXPECT_EQ(desktop.clipboardText(), answer);
    EXPECT_EQ(newLogLines().isEmpty(), !row.logged);
    EXPECT_EQ(events(), QStringList{"beep"});
    EXPECT_EQ(blinking(), row.blinks);
    if (row.blinks) {
      EXPECT_EQ(clipboardAtBlink, row.blinkBeforeClipboard ? "before" : answer);
    }
    // A help request never takes the default action.
    EXPECT_EQ(window->BevelButton1->Caption(), row.caption);
  }
}

TEST_F(Drop, ItemWithoutText) {
  start();
  dropWithoutText();
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_TRUE(events().isEmpty());
  EXPECT_EQ(window->BevelButton1->Caption(), "Action");

  // Under Evaluate the text is read before it is asked for: a bare colon, and "=".
  window->BevelButton1->setCaption("Evaluate");
  window->EditField4->setText("x+1:5");
  dropWithoutText();
  EXPECT_EQ(newLogLines().value(0), "Entered: +1");
  EXPECT_EQ(window->EditField4->Text(), "x+1:");
}

TEST_F(Drop, EmptyTextGoesAllTheWay) {
  start();
  window->BevelButton1->setCaption("Solve");
  drop("");
  EXPECT_EQ(newLogLines(), QStringList{"Entered: "});
  EXPECT_EQ(events(), QStringList{"sound claves"});

  window->BevelButton1->setCaption("Action");
  drop("");
  EXPECT_EQ(newLogLines().mid(0, 2), (QStringList{">>>Calculate (default action)", "Entered: "}));
}

TEST_F(Drop, EvaluateFillsTheFormula) {
  start();
  window->BevelButton1->setCaption("Evaluate");
  window->EditField4->setText("sqrt(x^2+y^2):");
  drop("3;4");
  EXPECT_EQ(desktop.clipboardText(), "5 ");
  EXPECT_TRUE(blinking());
  EXPECT_EQ(window->EditField4->Text(), "sqrt(x^2+y^2):");
}

TEST_F(Drop, ConvertWithoutClipboardReadiesTheConvertTab) {
  struct Row {
    const char* name;
    QString family;
    QString t;
    QString field;  // TextField1
  };
  const Row rows[] = {
      {"number and unit", "Length", "5 km", "5 km"},
      {"number alone", "Length", "5", "5"},
      {"zz is no word, in any case", "Length", "5 ZZ", "5"},
      {"two blanks leave an empty unit", "Length", "5  km", "5 "},
      {"a leading blank doubles the number", "Length", " 5 km", "5 5"},
      {"the unit goes before the number is cleaned", "Length", "1234567891 km", "1.234568e+9 km"},
      {"number bases keep the text as dropped", "Number", "1F hex", "1Fhex hex"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    family(row.family);
    window->BevelButton1->setCaption("Convert");
    newLogLines();
    events();
    drop(row.t);
    EXPECT_EQ(newLogLines(), (QStringList{"Entered: " + row.t, "--Expanded Window Mode",
                                          "---Tabs set to Directions and Convert"}));
    EXPECT_EQ(window->TextField1->Text(), row.field);
    EXPECT_EQ(window->wincon, 1);
    EXPECT_EQ(window->Width(), 800);
    EXPECT_EQ(window->Height(), 600);
    EXPECT_EQ(window->TabPanel1->Value(), 3);
    EXPECT_EQ(window->TabPanel2->Value(), 3);
    EXPECT_TRUE(events().isEmpty());
    EXPECT_FALSE(blinking());
    program.reset();
  }
}

TEST_F(Drop, ConvertWithoutClipboardInTheLargeWindowOnlyFillsTheField) {
  start();
  family("Length");
  window->BevelButton1->setCaption("Convert");
  window->ImageWell1->userClick();
  window->TabPanel2->setValue(1);
  newLogLines();
  drop("7 m");
  EXPECT_EQ(newLogLines(), QStringList{"Entered: 7 m"});
  EXPECT_EQ(window->TabPanel2->Value(), 1);
  EXPECT_EQ(window->TextField1->Text(), "7 m");
}

TEST_F(Drop, ConvertWithClipboardAnswersAndBlinks) {
  struct Row {
    const char* name;
    QString family;
    QString t;
    QString clipboard;
    bool blinkBeforeAnswer;  // the drop's own blink, ahead of the run
  };
  const Row rows[] = {
      {"table row", "Length", "2 km", "2000 m", true},
      {"temperature", "Temperature", "0", "273.15 K", true},
      {"number bases blink in evconvert2", "Number", "FF", "255", false},
  };
  start();
  window->CheckBox2->setValue(true);
  QString clipboardAtBlink;
  window->ImageWell1->addObserver(
      [&](const QString&) { clipboardAtBlink = desktop.clipboardText(); });
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    family(row.family);
    window->BevelButton1->setCaption("Convert");
    window->Timer1_Action();
    desktop.setClipboardText("before");
    drop(row.t);
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);
    EXPECT_TRUE(blinking());
    EXPECT_EQ(clipboardAtBlink, row.blinkBeforeAnswer ? "before" : row.clipboard);
    EXPECT_EQ(events(), QStringList{"beep"});
    EXPECT_EQ(window->wincon, 0);
  }
}

TEST_F(Drop, SearchAnswersWithoutTouchingTheList) {
  start();
  window->BevelButton1->setCaption("Physical Data");
  window->BevelButton1->setMenuValue(3);
  window->ButtonAct("electron");
  const QString rowsBefore = window->Listbox5->RowsText();
  window->Timer1_Action();
  newLogLines();
  events();

  drop("Mass ELECTRON");
  const QString hits = "\nMass ELECTRON: Mass of the electron: 9.109e-31 kg\t(3-0)";
  EXPECT_EQ(desktop.clipboardText(), hits);
  EXPECT_EQ(newLogLines(), linesOf("Entered: Mass ELECTRON\nOutput:" + hits));
  EXPECT_EQ(window->Listbox5->RowsText(), rowsBefore);
  EXPECT_TRUE(blinking());
  EXPECT_EQ(events(), QStringList{"beep"});
}

TEST_F(Drop, LiteralSearchListsEveryRecord) {
  start();
  window->RadioButton6->setValue(true);
  window->BevelButton1->setCaption("Physical Data");
  window->BevelButton1->setMenuValue(3);
  drop("nothing like it");
  EXPECT_EQ(desktop.clipboardText(),
            "\nnothing like it: Mass of the electron: 9.109e-31 kg\t(3-0)"
            "\n\t:    Mean radius of the Moon: 1738000 m\t(3-1)"
            "\n\t: Mass of the Moon: 7.3458e22 kg\t(3-2)"
            "\n\t: Radius of the Earth:\n6371000 m\t(3-3)");
}

TEST_F(Drop, SearchWithoutResultIsQuiet) {
  start();
  window->BevelButton1->setCaption("Astro Data");
  desktop.setClipboardText("kept");
  drop("quasar");
  EXPECT_EQ(newLogLines(),
            (QStringList{"Entered: quasar", "Error: Search Term not found",
                         "Try words in a different order or use a single word or part of a word"}));
  EXPECT_EQ(desktop.clipboardText(), "kept");
  EXPECT_FALSE(blinking());
  EXPECT_TRUE(events().isEmpty());
}

TEST_F(Drop, LargeWindowDropsBehaveAsSmall) {
  start();
  window->ImageWell1->userClick();
  ASSERT_EQ(window->wincon, 1);
  const int left = window->TabPanel1->Value(), right = window->TabPanel2->Value();
  newLogLines();
  drop("6*7");
  EXPECT_EQ(newLogLines(),
            (QStringList{">>>Calculate (default action)", "Entered: 6*7", "Output:42 "}));
  EXPECT_TRUE(blinking());
  EXPECT_EQ(window->Width(), 800);
  EXPECT_EQ(window->TabPanel1->Value(), left);
  EXPECT_EQ(window->TabPanel2->Value(), right);
}

}  // namespace
