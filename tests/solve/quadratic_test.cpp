// The quadratic solver end to end: the coefficients as typed, the formulas that reach
// the log, what lands in the result line, and the one-shot quad flag around them.

#include "support/app_fixture.h"

namespace {

using testsupport::AppFixture;

class Quadratic : public AppFixture {
 protected:
  app::Window1& start() {
    writeFile("Preferences/VXKInstr", "do not show");
    launch();
    newLogLines();
    return *window;
  }
  void solve(const QString& a, const QString& b, const QString& c) {
    window->EditA->setText(a);
    window->EditB->setText(b);
    window->EditC->setText(c);
    window->PushButton41->Push();
  }
};

TEST_F(Quadratic, CombinationsOfCoefficients) {
  struct Row {
    const char* name;
    QString a, b, c;
    QString line;  // EditField9 after the press
    QStringList log;
  };
  const QString head = "Solutions(x1,x2):";
  const Row rows[] = {
      {"two roots, the plus root first", "1", "-3", "2", head + ", 2, 1",
       {"Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)", "Output:2 ",
        "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*2))/(2*1)", "Output:1 "}},
      {"a zero discriminant shows its root twice", "1", "2", "1", head + ", -1, -1",
       {"Entered (QE:1): ((-1)*2+sqrt((2)^2-4*1*1))/(2*1)", "Output:-1 ",
        "Entered (QE:1): ((-1)*2-sqrt((2)^2-4*1*1))/(2*1)", "Output:-1 "}},
      {"b absent, a and c positive: No Solution behind the colon", "1", "0", "4",
       head + "No Solution", {}},
      {"b absent, a and c negative: No Solution", "-1", "0", "-4", head + "No Solution", {}},
      {"b absent, signs differ: plus and minus sqrt(-c/a)", "1", "0", "-4", head + ", 2, -2",
       {"Entered (QE:1): sqrt((-1)*-4/1)", "Output:2 ", "Entered (QE:2): (-1)*sqrt((-1)*-4/1)",
        "Output:-2 "}},
      {"a absent: the one root -c/b", "0", "2", "4", head + ", -2",
       {"Entered (QE): -1*4/2", "Output:-2 "}},
      {"a and b absent: No Solution, then Block B still divides by 0", "0", "0", "5",
       head + "No Solution, NAN, NAN",
       {"Entered (QE:1): sqrt((-1)*5/0)", "Output:NAN ", "Entered (QE:2): (-1)*sqrt((-1)*5/0)",
        "Output:NAN "}},
      {"c absent: the root 0, then -b/a", "2", "4", "0", head + ", 0, -2",
       {"Entered (QE:1): 0", "Output:0 ", "Entered (QE:1): (-1)*4/2", "Output:-2 "}},
      {"a and c absent: -c/b takes quad, so the run of 0 stays out of the line", "0", "3",
       "0", head + ", 0",
       {"Entered (QE): -1*0/3", "Output:0 ", "Entered (QE:1): 0", "Output:0 "}},
      {"all empty: No Solution, two compile errors, and quad carries the 0", "", "", "",
       head + "No Solution, 0",
       {"Entered (QE:1): sqrt((-1)*/)", "ERROR: Syntax does not make sense.",
        "Entered (QE:2): (-1)*sqrt((-1)*/)", "ERROR: Syntax does not make sense.",
        "Entered (QE:1): 0", "Output:0 "}},
      {"a typed, b and c empty: the sqrt runs fail and the 0 reaches the line", "1", "", "",
       head + ", 0",
       {"Entered (QE:1): sqrt((-1)*/1)", "ERROR: Syntax does not make sense.",
        "Entered (QE:2): (-1)*sqrt((-1)*/1)", "ERROR: Syntax does not make sense.",
        "Entered (QE:1): 0", "Output:0 "}},
      {"0.0 is present text, so the general case divides by zero", "0.0", "2", "4",
       head + ", NAN, -INF",
       {"Entered (QE:1): ((-1)*2+sqrt((2)^2-4*0.0*4))/(2*0.0)", "Output:NAN ",
        "Entered (QE:1): ((-1)*2-sqrt((2)^2-4*0.0*4))/(2*0.0)", "Output:-INF "}},
      {"-0 is present text and gives no sign test", "1", "-0", "4", head + ", NAN, NAN",
       {"Entered (QE:1): ((-1)*-0+sqrt((-0)^2-4*1*4))/(2*1)", "Output:NAN ",
        "Entered (QE:1): ((-1)*-0-sqrt((-0)^2-4*1*4))/(2*1)", "Output:NAN "}},
      {"1+1 goes in as text and changes 4ac", "1", "-3", "1+1", head + ", 2.724745, 0.2752551",
       {"Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*1+1))/(2*1)", "Output:2.724745 ",
        "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*1+1))/(2*1)", "Output:0.2752551 "}},
      {"a coefficient in parentheses is safe", "1", "-3", "(1+1)", head + ", 2, 1",
       {"Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*(1+1)))/(2*1)", "Output:2 ",
        "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*(1+1)))/(2*1)", "Output:1 "}},
      {"a word gives errors and no root", "1", "w", "1", head,
       {"Entered (QE:1): ((-1)*w+sqrt((w)^2-4*1*1))/(2*1)", "ERROR: Undefined identifier.",
        "Entered (QE:1): ((-1)*w-sqrt((w)^2-4*1*1))/(2*1)", "ERROR: Undefined identifier."}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    solve(row.a, row.b, row.c);
    EXPECT_EQ(window->EditField9->Text(), row.line);
    EXPECT_EQ(newLogLines(), row.log);
  }
}

// With 1, 0, 0 the two sqrt runs use up quad, so the run of 0 behind them is an
// ordinary result: it blinks and stays out of the line.
TEST_F(Quadratic, TheRunAfterTwoDeliveredRootsIsAnOrdinaryResult) {
  start();
  solve("1", "0", "0");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 0, 0");
  EXPECT_EQ(window->EditField5->Text(), "0 ");
  EXPECT_EQ(window->Timer1->Mode(), 1);
  EXPECT_EQ(window->quad, 0);
  EXPECT_EQ(desktop.takeEvents(), (QStringList{"beep", "beep", "beep"}));
}

TEST_F(Quadratic, RootsDoNotBlinkAndCarryTheOldUnit) {
  start();
  window->unt = " km";
  solve("1", "-3", "2");
  EXPECT_EQ(window->Timer1->Mode(), 0);
  EXPECT_EQ(newLogLines(), (QStringList{"Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)",
                                        "Output:2 km",
                                        "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*2))/(2*1)",
                                        "Output:1 km"}));
  EXPECT_EQ(window->EditField5->Text(), "1 km");
  EXPECT_EQ(desktop.clipboardText(), "1 km");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 2, 1");
  EXPECT_EQ(window->unt, " km");
  EXPECT_EQ(desktop.takeEvents(), (QStringList{"beep", "beep"}));
}

TEST_F(Quadratic, NoSolutionIsQuietAndLeavesQuadForTheNextResult) {
  start();
  desktop.setClipboardText("before");
  solve("1", "0", "4");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):No Solution");
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
  EXPECT_EQ(desktop.clipboardText(), "before");
  EXPECT_EQ(window->quad, 1);

  // A calculation that follows is taken for a root.
  window->BevelButton1->setCaption("Calculate");
  window->EditField4->setText("2+3");
  window->PushButton40->Push();
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):No Solution, 5");
  EXPECT_EQ(window->Timer1->Mode(), 0);
  EXPECT_EQ(window->quad, 0);
}

TEST_F(Quadratic, TheLineAccumulatesUntilACoefficientChanges) {
  start();
  solve("1", "-3", "2");
  window->PushButton41->Push();
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 2, 1, 2, 1");

  struct Row {
    const char* name;
    platform::TextField* field;
  };
  const Row rows[] = {{"a", window->EditA.get()}, {"b", window->EditB.get()},
                      {"c", window->EditC.get()}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->EditField9->setText("Solutions(x1,x2):, 2, 1");
    row.field->userType("5");
    EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):");
  }
}

TEST_F(Quadratic, ChangingACoefficientFromCodeAlsoResets) {
  start();
  solve("1", "-3", "2");
  window->EditA->setText("2");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):");
}

TEST_F(Quadratic, ScientificModeWritesRootsInExponentForm) {
  start();
  window->scibutton1->setValue(true);
  newLogLines();
  solve("1", "-3", "2");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 2.0e+0, 1.0e+0");
}

}  // namespace
