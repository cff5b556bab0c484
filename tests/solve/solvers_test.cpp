// The two solvers where the transcripts do not reach: Y by substitution into the first
// equation, keys and code resetting the result lines, the old unit behind the roots,
// and "-0" as text.

#include "platform/strings/strings.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

class Solvers : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    launch();
  }
  void linear(const QStringList& six) {
    for (int i = 0; i < 6; ++i) sixFields()[i]->setText(six[i]);
    newLogLines();
    window->PushButton45->Push();
  }
  void quadratic(const QString& a, const QString& b, const QString& c) {
    window->EditA->setText(a);
    window->EditB->setText(b);
    window->EditC->setText(c);
    newLogLines();
    window->PushButton41->Push();
  }
  std::vector<platform::TextField*> sixFields() {
    return {window->A1.get(), window->B1.get(), window->C1.get(),
            window->D2.get(), window->E2.get(), window->F2.get()};
  }
};

// Y is not found by Cramer's rule but from the first equation, with X's formula written
// out: a b of 0 divides by the text "0" though the system has a solution.
TEST_F(Solvers, LinearYComesFromTheFirstEquation) {
  linear({"1", "0", "2", "0", "1", "3"});
  EXPECT_EQ(newLogLines(),
            (QStringList{"**Begin 2 linear equation calculations", "Entered: 1*1-0*0", "Output:1 ",
                         "Entered (2Dx): (1*2-3*0)/(1*1-0*0)", "Output:2 ",
                         "Entered (2Dy): (2-1*(1*2-3*0)/(1*1-0*0))/0", "Output:NAN ",
                         "****End 2 linear equation calculations"}));
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):, 2, NAN");
}

// Any key in any of the six fields empties the line, an arrow key too, and still
// reaches its field; a text put in without a key leaves the line.
TEST_F(Solvers, LinearLineResetsOnEveryKeyButNotOnCode) {
  const QString solved = "Solutions(X,Y):, 2, 1";
  linear({"1", "1", "3", "1", "-1", "1"});
  ASSERT_EQ(window->TextField2->Text(), solved);
  for (platform::TextField* field : sixFields()) {
    SCOPED_TRACE(field->Name().toStdString());
    window->TextField2->setText(solved);
    const QString before = field->Text();
    field->userKey("7");
    EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):");
    EXPECT_EQ(field->Text(), before + "7");
  }
  window->TextField2->setText(solved);
  window->E2->userKey(platform::Chr(29));
  EXPECT_EQ(window->TextField2->Text(), "Solutions(X,Y):");
  EXPECT_EQ(window->E2->Text(), "-17");
  window->TextField2->setText(solved);
  window->E2->setText("-2");
  EXPECT_EQ(window->TextField2->Text(), solved);
}

// Unlike the linear fields, a coefficient changed from code empties the line as well.
TEST_F(Solvers, QuadraticLineResetsOnAnyChangeOfACoefficient) {
  for (platform::TextField* field : {window->EditA.get(), window->EditB.get(), window->EditC.get()}) {
    SCOPED_TRACE(field->Name().toStdString());
    quadratic("1", "-3", "2");
    ASSERT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 2, 1");
    field->userType("5");
    EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):");
  }
  quadratic("1", "-3", "2");
  window->EditA->setText("2");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):");
}

TEST_F(Solvers, RootsCarryTheOldUnitAndDoNotBlink) {
  window->unt = " km";
  quadratic("1", "-3", "2");
  EXPECT_EQ(newLogLines(), (QStringList{"Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)",
                                        "Output:2 km",
                                        "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*2))/(2*1)",
                                        "Output:1 km"}));
  EXPECT_EQ(desktop.clipboardText(), "1 km");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, 2, 1");
  EXPECT_EQ(window->Timer1->Mode(), 0);
  EXPECT_EQ(desktop.takeEvents(), (QStringList{"beep", "beep"}));
}

TEST_F(Solvers, MinusZeroIsPresentTextAndGivesNoSignTest) {
  quadratic("1", "-0", "4");
  EXPECT_EQ(window->EditField9->Text(), "Solutions(x1,x2):, NAN, NAN");
  EXPECT_EQ(newLogLines().value(0), "Entered (QE:1): ((-1)*-0+sqrt((-0)^2-4*1*4))/(2*1)");
}

}  // namespace
