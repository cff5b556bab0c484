#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

namespace {

const char* const kSolutionsLine = "Solutions(X,Y):";

// An empty field stands for 0; any other text, 0.0 included, goes in as typed.
QString coefficient(const platform::TextField& field) {
  const QString text = field.Text();
  return platform::StrEq(text, "") ? QStringLiteral("0") : text;
}

}  // namespace

// a X + b Y = c, d X + e Y = f. Unlike the quadratic solver this one does test a
// number: the determinant goes through the "=" key, whose rewriting also turns PI into
// digits, and is read back from EditField5, so the test sees the answer as it is shown
// (cut to 7 digits in Normal mode). The roots go straight to RUN, unrewritten.
// X is Cramer's rule; Y is X put back into the first equation and so divides by b,
// which a determinant test does not guard.
void Window1::PushButton45_Action() {
  const QString a = coefficient(*A1);
  const QString b = coefficient(*B1);
  const QString c = coefficient(*C1);
  const QString d = coefficient(*D2);
  const QString e = coefficient(*E2);
  const QString f = coefficient(*F2);
  const QString determinant = a + "*" + e + "-" + b + "*" + d;

  log("**Begin 2 linear equation calculations");
  // The "=" key acts by the caption; it is set without bevelact, so the tabs stay.
  BevelButton1->setCaption("Calculate");
  EditField4->setText(determinant);
  PushButton40->Push();
  // A determinant that failed leaves the former answer here, and the test rests on it.
  const double dv = platform::Val(EditField5->Text());
  BevelButton1->setCaption("Solve");

  if (dv != 0.0) {
    const QString x = "(" + e + "*" + c + "-" + f + "*" + b + ")" + "/" + "(" + a + "*" + e + "-" +
                      b + "*" + d + ")";
    twodim = 1;
    EditField1->setText(x);
    log("Entered (2Dx): " + EditField1->Text());
    PushButton1->Push();

    // Print has cleared the flag if X came through.
    twodim = 1;
    EditField1->setText("(" + c + "-" + a + "*" + "(" + e + "*" + c + "-" + f + "*" + b + ")" +
                        "/" + "(" + a + "*" + e + "-" + b + "*" + d + "))" + "/" + b);
    log("Entered (2Dy): " + EditField1->Text());
    PushButton1->Push();
  } else {
    log("No Unique Solution");
    TextField2->setText(TextField2->Text() + " No Solution");
  }
  log("****End 2 linear equation calculations");
}

// Any key in the six fields clears the solutions, arrows too, and then goes on to the
// field; a paste without a key does not clear them.
bool Window1::A1_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}
bool Window1::B1_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}
bool Window1::C1_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}
bool Window1::D2_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}
bool Window1::E2_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}
bool Window1::F2_KeyDown(const QString&) {
  TextField2->setText(kSolutionsLine);
  return false;
}

}  // namespace app
