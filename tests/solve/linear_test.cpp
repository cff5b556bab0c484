// The two-equation solver end to end: the determinant's pass through the "=" key, the
// test of its answer as read back, the X and Y formulas and the twodim flag.

#include "platform/strings/strings.h"
#include "support/app_fixture.h"

namespace {

using testsupport::AppFixture;

const QString kBegin = "**Begin 2 linear equation calculations";
const QString kEnd = "****End 2 linear equation calculations";

class Linear : public AppFixture {
 protected:
  app::Window1& start() {
    writeFile("Preferences/VXKInstr", "do not show");
    launch();
    newLogLines();
    return *window;
  }
  void solve(const QStringList& six) {
    window->A1->setText(six.at(0));
    window->B1->setText(six.at(1));
    window->C1->setText(six.at(2));
    window->D2->setText(six.at(3));
    window->E2->setText(six.at(4));
    window->F2->setText(six.at(5));
    window->PushButton45->Push();
  }
  std::vector<platform::TextField*> sixFields() {
    return {window->A1.get(), window->B1.get(), window->C1.get(),
            window->D2.get(), window->E2.get(), window->F2.get()};
  }
};

TEST_F(Linear, Systems) {
  struct Row {
    const char* name;
    QStringList six;
    QString line;  // TextField2 after the press
    QStringList log;
  };
  const QString head = "Solutions(X,Y):";
  const Row rows[] = {
      {"a unique solution, X first", {"1", "1", "3", "1", "-1", "1"}, head + ", 2, 1",
       {kBegin, "Entered: 1*-1-1*1", "Output:-2 ", "Entered (2Dx): (-1*3-1*1)/(1*-1-1*1)",
        "Output:2 ", "Entered (2Dy): (3-1*(-1*3-1*1)/(1*-1-1*1))/1", "Output:1 ", kEnd}},
      {"a zero determinant", {"2", "4", "6", "1", "2", "3"}, head + " No Solution",
       {kBegin, "Entered: 2*2-4*1", "Output:0 ", "No Unique Solution", kEnd}},
      {"all empty: every coefficient is 0", {"", "", "", "", "", ""}, head + " No Solution",
       {kBegin, "Entered: 0*0-0*0", "Output:0 ", "No Unique Solution", kEnd}},
      {"b = 0: X is right, Y divides by the text 0", {"1", "0", "2", "0", "1", "3"},
       head + ", 2, NAN",
       {kBegin, "Entered: 1*1-0*0", "Output:1 ", "Entered (2Dx): (1*2-3*0)/(1*1-0*0)",
        "Output:2 ", "Entered (2Dy): (2-1*(1*2-3*0)/(1*1-0*0))/0", "Output:NAN ", kEnd}},
      {"0.0 is not replaced and takes part as text", {"0.0", "1", "2", "1", "", "3"},
       head + ", 3, 2",
       {kBegin, "Entered: 0.0*0-1*1", "Output:-1 ", "Entered (2Dx): (0*2-3*1)/(0.0*0-1*1)",
        "Output:3 ", "Entered (2Dy): (2-0.0*(0*2-3*1)/(0.0*0-1*1))/1", "Output:2 ", kEnd}},
      {"PI passes the determinant but not the runner", {"PI", "1", "1", "1", "1", "2"}, head,
       {kBegin, "Entered: PI*1-1*1", "Output:2.141593 ", "Entered (2Dx): (1*1-2*1)/(PI*1-1*1)",
        "ERROR: Undefined identifier.", "Entered (2Dy): (1-PI*(1*1-2*1)/(PI*1-1*1))/1",
        "ERROR: Undefined identifier.", kEnd}},
      {"a determinant that nearly vanishes passes the test", {"0.1", "0.3", "1", "1", "3", "1"},
       head + ", 4.863888e+16, -1.621296e+16",
       {kBegin, "Entered: 0.1*3-0.3*1", "Output:5.551115e-17 ",
        "Entered (2Dx): (3*1-1*0.3)/(0.1*3-0.3*1)", "Output:4.863888e+16 ",
        "Entered (2Dy): (1-0.1*(3*1-1*0.3)/(0.1*3-0.3*1))/0.3", "Output:-1.621296e+16 ", kEnd}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    solve(row.six);
    EXPECT_EQ(window->TextField2->Text(), row.line);
    EXPECT_EQ(newLogLines(), row.log);
  }
}

TEST_F(Linear, TheDeterminantGoesThroughTheEqualsKey) {
  start();
  window->BevelButton1->setCaption("Physical Data");
  window->unt = " km";
  window->wincon = 1;
  solve({"1", "1", "3", "1", "-1", "1"});
  // The caption is "Solve" afterwards, whatever it was.
  EXPECT_EQ(window->BevelButton1->Caption(), "Solve");
  EXPECT_EQ(window->EditField4->Text(), "1*-1-1*1");
  // The key's pass set unt, so Y ends with a blank in the answer field.
  EXPECT_EQ(window->EditField5->Text(), "1 ");
  EXPECT_EQ(desktop.clipboardText(), "1 ");
  EXPECT_TRUE(window->PushButton40->Enabled());
  // The determinant blinks as a calculation does.
  EXPECT_EQ(window->Timer1->Mode(), 1);
  EXPECT_EQ(desktop.takeEvents(), (QStringList{"beep", "beep", "beep"}));
  EXPECT_EQ(window->twodim, 0);
}

TEST_F(Linear, ScientificDeterminantReadsTheSame) {
  start();
  window->scibutton1->setValue(true);
  newLogLines();
  solve({"1", "1", "3", "1", "-1", "1"});
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):, 2.0e+0, 1.0e+0");
  EXPECT_EQ(newLogLines().at(2), "Output:-2.0e+0 ");
}

// When the determinant yields no answer, the test reads whatever the answer field held.
TEST_F(Linear, AFailedDeterminantLeavesTheDecisionToTheOldAnswer) {
  struct Row {
    const char* name;
    QString oldAnswer;
    bool purgePretty;
    QString line;
    int twodim;
  };
  const Row rows[] = {
      {"an old 0 means no solution", "0 ", true, "Solutions(X,Y): No Solution", 0},
      {"an old 7 lets the failing formulas run", "7 ", true, "Solutions(X,Y):", 1},
      {"Purge Pretty off: the key only plays, an old 0 decides", "0 ", false,
       "Solutions(X,Y): No Solution", 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    window->EditField5->setText(row.oldAnswer);
    window->CheckBox1->setValue(row.purgePretty);
    newLogLines();
    solve({"w", "1", "3", "1", "-1", "1"});
    EXPECT_EQ(window->TextField2->Text(), row.line);
    EXPECT_EQ(window->EditField5->Text(), row.oldAnswer);
    EXPECT_EQ(window->twodim, row.twodim);
    const QStringList lines = newLogLines();
    EXPECT_EQ(lines.first(), kBegin);
    EXPECT_EQ(lines.last(), kEnd);
  }
}

TEST_F(Linear, AFailedRunLeavesTwodimForTheNextResult) {
  start();
  solve({"PI", "1", "1", "1", "1", "2"});
  EXPECT_EQ(window->twodim, 1);
  // The determinant's blink ends first, so the timer shows whether the next one blinks.
  desktop.fireTimer("Timer1");
  ASSERT_EQ(window->Timer1->Mode(), 0);
  window->BevelButton1->setCaption("Calculate");
  window->EditField4->setText("4*5");
  window->PushButton40->Push();
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):, 20");
  EXPECT_EQ(window->Timer1->Mode(), 0);
}

TEST_F(Linear, TheLineAccumulatesUntilAKeyInAnyField) {
  start();
  solve({"1", "1", "3", "1", "-1", "1"});
  window->PushButton45->Push();
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):, 2, 1, 2, 1");

  for (platform::TextField* field : sixFields()) {
    SCOPED_TRACE(field->Name().toStdString());
    window->TextField2->setText("Solutions(X,Y):, 2, 1");
    const QString before = field->Text();
    field->userKey("7");
    EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):");
    // The key still reaches the field.
    EXPECT_EQ(field->Text(), before + "7");
  }
}

TEST_F(Linear, KeysWithoutTextResetButATextWithoutKeyDoesNot) {
  start();
  solve({"1", "1", "3", "1", "-1", "1"});
  const QString solved = "Solutions(X,Y):, 2, 1";

  // An arrow key changes nothing in the field and still clears the line.
  window->E2->userKey(platform::Chr(29));
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):");
  EXPECT_EQ(window->E2->Text(), "-1");

  window->TextField2->setText(solved);
  window->E2->setText("-2");  // as a paste from the menu
  EXPECT_EQ(window->TextField2->Text(), solved);
}

}  // namespace
