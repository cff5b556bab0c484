// ButtonAct, driven as its callers drive it: a caption on the selector, a text in.

#include <memory>

#include "guidance/texts.h"
#include "workbench/workbench_fixture.h"

namespace {

using guidance::TextKey;
using testsupport::WorkbenchFixture;

class Dispatcher : public WorkbenchFixture {};

TEST_F(Dispatcher, HelpAnswersByCaption) {
  struct Row {
    const char* name;
    QString caption;
    QString t;
    TextKey body;
    bool logged;
    bool placeitFirst = false;
  };
  const Row rows[] = {
      {"Action keeps its caption and puts placeit ahead", "Action", "help", TextKey::helpAction,
       true, true},
      {"Calculate", "Calculate", "?", TextKey::helpCalculate, true},
      {"the default action's small letters show", "calculate", "?", TextKey::helpCalculate, true},
      {"the word opens the answer as typed", "Convert", "HELP", TextKey::helpConvert, true},
      {"Physical Data", "Physical Data", "?", TextKey::helpPhysical, true},
      {"Astro Data", "Astro Data", "Help", TextKey::helpAstro, true},
      {"Solve writes nothing to the log", "Solve", "?", TextKey::helpSolve, false},
      {"Settings writes nothing to the log", "Settings", "help", TextKey::helpSettings, false},
      {"Evaluate answers ?", "Evaluate", "?", TextKey::helpEvaluate, true},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->BevelButton1->setCaption(row.caption);
    window->ButtonAct(row.t);

    const QString lead = row.placeitFirst ? window->placeit : QString();
    const QString body = guidance::text(row.body);
    EXPECT_EQ(desktop.clipboardText(), row.t + " (Caption " + row.caption + "): " + lead + body);
    const QString added = newLogLines().join('\n');
    if (row.logged) {
      EXPECT_EQ(added + "\n", "Help(Caption:" + row.caption + "):" + lead + "\n" + body);
    } else {
      EXPECT_EQ(added, QString());
    }
    EXPECT_EQ(events(), QStringList{"beep"});
    EXPECT_FALSE(blinking());
    EXPECT_EQ(window->BevelButton1->Caption(), row.caption);
  }
}

TEST_F(Dispatcher, HelpUnderAnUnknownCaptionDoesNothing) {
  start();
  desktop.setClipboardText("kept");
  window->BevelButton1->setCaption("Formulas (math)");
  window->ButtonAct("?");
  EXPECT_EQ(desktop.clipboardText(), "kept");
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_TRUE(events().isEmpty());
}

TEST_F(Dispatcher, EvaluatePutsTheTextBehindTheColon) {
  struct Row {
    const char* name;
    QString t;
    QString entered;  // what the "=" key logs
  };
  const Row rows[] = {
      {"a value for x", "3", "Entered: 3*2+y"},
      {"x and y", "3;4", "Entered: 3*2+4"},
      {"help is a value, not a request", "help", "Entered: help*2+y"},
      {"an empty text still pushes =", "", "Entered: *2+y"},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->BevelButton1->setCaption("Evaluate");
    window->EditField4->setText("x*2+y:old");
    window->ButtonAct(row.t);
    const QStringList lines = newLogLines();
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines.first(), row.entered);
    EXPECT_EQ(window->EditField4->Text(), "x*2+y:");
  }
}

TEST_F(Dispatcher, EmptyTextIsIgnored) {
  start();
  window->ButtonAct("");
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_TRUE(events().isEmpty());
  EXPECT_EQ(window->BevelButton1->Caption(), "Action");
}

TEST_F(Dispatcher, FirstTextTakesTheDefaultAction) {
  start();
  window->ButtonAct("2+2");
  EXPECT_EQ(newLogLines(),
            (QStringList{">>>Calculate (default action)", "Entered: 2+2", "Output:4 "}));
  EXPECT_EQ(window->BevelButton1->Caption(), "calculate");
  EXPECT_EQ(window->BevelButton1->MenuValue(), 0);
  EXPECT_EQ(desktop.clipboardText(), "4 ");
  EXPECT_EQ(events(), QStringList{"beep"});

  // The caption stays "calculate": no second default-action line.
  window->ButtonAct("1,000 + 1");
  EXPECT_EQ(newLogLines(), (QStringList{"Entered: 1,000 + 1", "Output:1001 "}));
}

TEST_F(Dispatcher, TextWithoutUseGetsClaves) {
  start();
  for (const QString caption : {"Solve", "Settings"}) {
    SCOPED_TRACE(caption.toStdString());
    window->BevelButton1->setCaption(caption);
    window->ButtonAct("12");
    EXPECT_EQ(newLogLines(), QStringList{"Entered: 12"});
    EXPECT_EQ(events(), QStringList{"sound claves"});
  }
}

TEST_F(Dispatcher, ConvertPaths) {
  struct Row {
    const char* name;
    QString family;
    QString t;
    QString formula;  // EditField1 afterwards; the table rows run through it
    QString clipboard;
  };
  const Row rows[] = {
      {"the unit goes and the number keeps 7 digits", "Length", "1234567891 km", "1.234568e+9*1000",
       "1.234568e+12 m"},
      {"temperature formula", "Temperature", "20", "20+273.15", "293.15 K"},
      {"number bases keep the text as typed", "Number", "1F", "untouched", "31"},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    family(row.family);
    window->BevelButton1->setCaption("Convert");
    window->EditField1->setText("untouched");
    window->ButtonAct(row.t);
    EXPECT_EQ(window->EditField1->Text(), row.formula);
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);
    // "Use Clipboard" is the drop's business: the typed path never blinks for it.
    window->Timer1_Action();
  }
}

TEST_F(Dispatcher, PhysicalSearchFillsTheResultList) {
  start();
  window->BevelButton1->setCaption("Physical Data");
  window->BevelButton1->setMenuValue(3);
  window->ButtonAct("moon");
  const QString hits =
      "\nmoon:    Mean radius of the Moon: 1738000 m\t(3-1)"
      "\n\t: Mass of the Moon: 7.3458e22 kg\t(3-2)";
  EXPECT_EQ(desktop.clipboardText(), hits);
  EXPECT_EQ(newLogLines(), linesOf("Entered: moon\nOutput:" + hits));
  // Rows are left-trimmed; the first row is the empty line the hits start with.
  EXPECT_EQ(window->Listbox5->RowsText(),
            "\nmoon:    Mean radius of the Moon: 1738000 m\t(3-1)\n: Mass of the Moon: 7.3458e22 "
            "kg\t(3-2)");
  EXPECT_EQ(events(), QStringList{"beep"});
  EXPECT_FALSE(blinking());
}

TEST_F(Dispatcher, SmartSearchDropsNoiseWords) {
  start();
  window->BevelButton1->setCaption("Physical Data");
  window->BevelButton1->setMenuValue(3);
  window->ButtonAct("the radius of the moon");
  const QString first = desktop.clipboardText();
  window->ButtonAct("moon radius");
  const QString second = desktop.clipboardText();
  // Same records; only the heading query differs.
  EXPECT_EQ(first, "\nradius moon:    Mean radius of the Moon: 1738000 m\t(3-1)");
  EXPECT_EQ(second, "\nmoon radius:    Mean radius of the Moon: 1738000 m\t(3-1)");
}

TEST_F(Dispatcher, SearchWithoutResultKeepsClipboardAndList) {
  start();
  window->BevelButton1->setCaption("Astro Data");
  window->BevelButton1->setMenuValue(4);
  window->ButtonAct("sirius");
  ASSERT_EQ(window->Listbox6->ListCount(), 2);
  newLogLines();
  events();

  window->ButtonAct("quasar");
  EXPECT_EQ(newLogLines(),
            (QStringList{"Entered: quasar", "Error: Search Term not found",
                         "Try words in a different order or use a single word or part of a word"}));
  EXPECT_EQ(desktop.clipboardText(), "\nsirius: Sirius: magnitude -1.46\t(4-0)");
  EXPECT_EQ(window->Listbox6->ListCount(), 2);
  EXPECT_TRUE(events().isEmpty());
}

TEST_F(Dispatcher, MissingDataFileIsToldBeforeTheErrorLines) {
  start(Data::Missing);
  window->BevelButton1->setCaption("Astro Data");
  window->ButtonAct("moon");
  EXPECT_EQ(desktop.clipboardText(), "Astro Data file is missing. See log at startup.");
  EXPECT_EQ(newLogLines(),
            (QStringList{"Entered: moon", "AstroData file is missing. See log at startup.",
                         "Error: Search Term not found",
                         "Try words in a different order or use a single word or part of a word"}));
  EXPECT_EQ(events(), QStringList{"sound claves"});
}

TEST_F(Dispatcher, FormulaDictionariesAreSearchedByKey) {
  start();
  window->dict5 = std::make_shared<platform::Dictionary>();
  window->dict5->setValue("area circle", "PI*r^2");
  window->dict5->setValue("volume sphere", "4/3*PI*r^3");
  window->dict5->setValue("area square", "a^2");
  window->BevelButton1->setCaption("Formulas (math)");
  window->BevelButton1->setMenuValue(5);
  window->RadioButton6->setValue(true);  // literal: the phrase as typed
  newLogLines();
  window->ButtonAct("area");
  const QString hits = "\narea: PI*r^2\t(5-0)\n\t: a^2\t(5-2)";
  EXPECT_EQ(desktop.clipboardText(), hits);
  EXPECT_EQ(newLogLines(), linesOf("Entered: area\nOutput:" + hits));
  EXPECT_EQ(events(), QStringList{"beep"});
  EXPECT_FALSE(blinking());
}

TEST_F(Dispatcher, FormulaDictionaryNeverFilledFindsNothing) {
  start();
  for (const QString caption : {"Formulas (astro)", "Formulas (phys)"}) {
    SCOPED_TRACE(caption.toStdString());
    window->BevelButton1->setCaption(caption);
    window->ButtonAct("mass");
    EXPECT_EQ(
        newLogLines(),
        (QStringList{"Entered: mass", "Error: Search Term not found",
                     "Try words in a different order or use a single word or part of a word"}));
    EXPECT_TRUE(events().isEmpty());
  }
}

}  // namespace
