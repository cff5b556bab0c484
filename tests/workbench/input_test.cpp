// ButtonAct and the drop, the two doors a text comes in by: help by caption, the
// Evaluate form, searches, conversions, and where the dropped text parts from the typed.

#include <optional>

#include "guidance/texts.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using guidance::TextKey;

class Input : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    writeFile("ApplicationData/VXKSupport/convert.txt",
              "<Table><Category><Name>Length</Name><List>"
              "<SubList convert=\"*1000\">km-&gt;m</SubList></List></Category>"
              "<Category><Name>Number</Name><List><SubList>Hex-&gt;Decimal</SubList></List>"
              "</Category><Category><Name>Temperature</Name><List><SubList>C-&gt;K</SubList>"
              "</List></Category></Table>");
    // Record 1's value has leading blanks.
    writeFile("ApplicationData/VXKSupport/physicaldata.txt",
              "<PhysicalData>"
              "<Category><Key>electron mass</Key><Value>Mass of the electron</Value></Category>"
              "<Category><Key>moon radius</Key><Value>   Mean radius of the Moon</Value></Category>"
              "<Category><Key>moon mass</Key><Value>Mass of the Moon</Value></Category>"
              "</PhysicalData>");
    writeFile("ApplicationData/VXKSupport/AstrDataXML.txt",
              "<AstroData><Category><Key>sirius star</Key><Value>Sirius</Value></Category>"
              "</AstroData>");
    launch();
  }
  // A family as the settings' popup menu picks it: Length, Number, Temperature.
  void family(const QString& name) {
    window->PopupMenu2->setListIndex(
        static_cast<int>(window->PopupMenu2->RowsText().split('\n').indexOf(name)));
  }
  // From now on atBlink holds the clipboard as it stood when the target last changed.
  void watchBlinks() {
    window->ImageWell1->addObserver([this](const QString&) { atBlink = desktop.clipboardText(); });
  }
  QString atBlink;
};

TEST_F(Input, HelpAnswersByCaptionTypedOrDropped) {
  enum Blink { None, AfterAnswer, BeforeAnswer };  // the drop's blink
  struct Row {
    const char* name;
    QString caption;
    QString t;
    TextKey body;
    bool logged;
    Blink blink;
  };
  const Row rows[] = {
      {"Action keeps its caption and puts placeit ahead", "Action", "help", TextKey::helpAction,
       true, AfterAnswer},
      {"Calculate", "Calculate", "?", TextKey::helpCalculate, true, BeforeAnswer},
      {"the default action's small letters", "calculate", "?", TextKey::helpCalculate, true,
       BeforeAnswer},
      {"the word opens the answer as typed", "Convert", "HELP", TextKey::helpConvert, true,
       BeforeAnswer},
      {"Physical Data", "Physical Data", "?", TextKey::helpPhysical, true, AfterAnswer},
      {"Astro Data", "Astro Data", "Help", TextKey::helpAstro, true, AfterAnswer},
      {"Solve writes nothing to the log", "Solve", "?", TextKey::helpSolve, false, BeforeAnswer},
      {"Settings writes nothing to the log", "Settings", "help", TextKey::helpSettings, false,
       BeforeAnswer},
      {"Evaluate answers ? without a blink", "Evaluate", "?", TextKey::helpEvaluate, true, None},
  };
  watchBlinks();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const QString lead = row.caption == "Action" ? window->placeit : QString();
    const QString answer = row.t + " (Caption " + row.caption + "): " + lead + guidance::text(row.body);
    for (const bool dropped : {false, true}) {
      SCOPED_TRACE(dropped ? "dropped" : "typed");
      window->Timer1_Action();
      desktop.setClipboardText("before");
      atBlink.clear();
      window->BevelButton1->setCaption(row.caption);
      dropped ? drop(row.t) : window->ButtonAct(row.t);
      EXPECT_EQ(desktop.clipboardText(), answer);
      const QString logged = newLogLines().join('\n');
      EXPECT_EQ(logged, row.logged ? "Help(Caption:" + row.caption + "):" + lead + "\n" +
                                         guidance::text(row.body).chopped(1)
                                   : QString());
      EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
      EXPECT_EQ(blinking(), dropped && row.blink != None);
      if (dropped && row.blink != None) {
        EXPECT_EQ(atBlink, row.blink == BeforeAnswer ? "before" : answer);
      }
      EXPECT_EQ(window->BevelButton1->Caption(), row.caption) << "help never takes the default";
    }
  }
}

TEST_F(Input, TypedTextsThatDoNothing) {
  desktop.setClipboardText("kept");
  window->ButtonAct("");  // an empty text is ignored, even under "Action"
  window->BevelButton1->setCaption("Formulas (math)");
  window->ButtonAct("?");  // no help under a caption without any
  EXPECT_EQ(desktop.clipboardText(), "kept");
  EXPECT_EQ(newLogLines(), QStringList());
  EXPECT_EQ(desktop.takeEvents(), QStringList());
}

// The text goes behind the formula's colon and "=" is pushed; "help" is a value here,
// and a drop without text is read all the same, as an empty text.
TEST_F(Input, EvaluatePutsTheTextBehindTheColon) {
  struct Row {
    const char* name;
    bool dropped;
    std::optional<QString> t;  // nothing: a drop without text
    QString entered;           // what the "=" key logs
  };
  const Row rows[] = {
      {"a value for x", false, "3", "Entered: 3*2+y"},
      {"x and y", false, "3;4", "Entered: 3*2+4"},
      {"help is a value, not a request", false, "help", "Entered: help*2+y"},
      {"an empty text still pushes =", false, "", "Entered: *2+y"},
      {"a dropped value", true, "3;4", "Entered: 3*2+4"},
      {"a drop without text", true, std::nullopt, "Entered: *2+y"},
  };
  window->BevelButton1->setCaption("Evaluate");
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->EditField4->setText("x*2+y:old");
    if (!row.dropped) window->ButtonAct(*row.t);
    else window->userDrop(row.t ? platform::DragItem{*row.t} : platform::DragItem{});
    EXPECT_EQ(newLogLines().value(0), row.entered);
    EXPECT_EQ(window->EditField4->Text(), "x*2+y:");
  }
  EXPECT_EQ(desktop.clipboardText(), "10 ");
  EXPECT_TRUE(blinking());
}

TEST_F(Input, ATypedSearchFillsTheListADroppedOneBlinksInstead) {
  window->BevelButton1->setCaption("Physical Data");
  window->BevelButton1->setMenuValue(3);
  window->ButtonAct("moon");
  const QString hits = "\nmoon:    Mean radius of the Moon\t(3-1)\n\t: Mass of the Moon\t(3-2)";
  EXPECT_EQ(desktop.clipboardText(), hits);
  EXPECT_EQ(newLogLines().join('\n'), "Entered: moon\nOutput:" + hits);
  // Rows are left-trimmed; the first row is the empty line the hits start with.
  const QString rows = "\nmoon:    Mean radius of the Moon\t(3-1)\n: Mass of the Moon\t(3-2)";
  EXPECT_EQ(window->Listbox5->RowsText(), rows);
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
  EXPECT_FALSE(blinking());

  drop("electron");
  EXPECT_EQ(desktop.clipboardText(), "\nelectron: Mass of the electron\t(3-0)");
  EXPECT_EQ(window->Listbox5->RowsText(), rows);
  EXPECT_TRUE(blinking());
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
}

TEST_F(Input, ASearchWithoutResultKeepsClipboardAndListTypedOrDropped) {
  window->BevelButton1->setCaption("Astro Data");
  window->BevelButton1->setMenuValue(4);
  window->ButtonAct("sirius");
  newLogLines();
  desktop.takeEvents();
  window->Timer1_Action();
  const QStringList notFound = {"Error: Search Term not found",
                                "Try words in a different order or use a single word or part of a word"};
  window->ButtonAct("quasar");
  drop("quasar");
  EXPECT_EQ(newLogLines(), QStringList{"Entered: quasar"} + notFound + QStringList{"Entered: quasar"} +
                               notFound);
  EXPECT_EQ(desktop.clipboardText(), "\nsirius: Sirius\t(4-0)");
  EXPECT_EQ(window->Listbox6->ListCount(), 2);
  EXPECT_FALSE(blinking());
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
}

TEST_F(Input, FormulaDictionariesAreSearchedByKey) {
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
  EXPECT_EQ(newLogLines().join('\n'), "Entered: area\nOutput:" + hits);
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
  // A dictionary never filled counts as empty.
  window->BevelButton1->setCaption("Formulas (phys)");
  window->ButtonAct("mass");
  EXPECT_EQ(newLogLines().value(1), "Error: Search Term not found");
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
}

TEST_F(Input, ConversionsTypedAndDroppedWithUseClipboard) {
  struct Row {
    const char* name;
    QString family;
    QString t;
    QString formula;  // EditField1 after the typed text; number bases run nothing
    QString clipboard;
    bool blinkBeforeAnswer;  // the drop's own blink, ahead of the run
  };
  const Row rows[] = {
      {"the unit goes and the number keeps 7 digits", "Length", "1234567891 km",
       "1.234568e+9*1000", "1.234568e+12 m", true},
      {"temperature formula", "Temperature", "20", "20+273.15", "293.15 K", true},
      {"number bases keep the text and blink in evconvert2", "Number", "1F", "untouched", "31",
       false},
  };
  watchBlinks();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    family(row.family);
    window->BevelButton1->setCaption("Convert");
    window->CheckBox2->setValue(false);
    window->EditField1->setText("untouched");
    window->ButtonAct(row.t);
    EXPECT_EQ(window->EditField1->Text(), row.formula);
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);

    window->Timer1_Action();
    window->CheckBox2->setValue(true);
    desktop.setClipboardText("before");
    drop(row.t);
    EXPECT_EQ(desktop.clipboardText(), row.clipboard);
    EXPECT_TRUE(blinking());
    EXPECT_EQ(atBlink, row.blinkBeforeAnswer ? "before" : row.clipboard);
    EXPECT_EQ(window->wincon, 0);
  }
}

TEST_F(Input, ANumberBaseDroppedWithoutUseClipboardKeepsItsText) {
  family("Number");
  window->BevelButton1->setCaption("Convert");
  drop("1F hex");
  EXPECT_EQ(window->TextField1->Text(), "1Fhex hex");
  EXPECT_EQ(window->TabPanel2->Value(), 3);
}

TEST_F(Input, DropsOnTheLargeWindowBehaveAsOnTheSmall) {
  window->ImageWell1->userClick();
  ASSERT_EQ(window->wincon, 1);
  const int left = window->TabPanel1->Value(), right = window->TabPanel2->Value();
  newLogLines();
  drop("6*7");
  EXPECT_EQ(newLogLines(), (QStringList{">>>Calculate (default action)", "Entered: 6*7", "Output:42 "}));
  EXPECT_TRUE(blinking());
  EXPECT_EQ(window->Width(), 800);
  EXPECT_EQ(window->TabPanel1->Value(), left);
  EXPECT_EQ(window->TabPanel2->Value(), right);
}

}  // namespace
