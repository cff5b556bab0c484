#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

namespace {

using platform::StrEq;

const char* const kSolutionsLine = "Solutions(x1,x2):";

// "0" and the empty field are the only absent coefficients; this is a test of the text,
// so 0.0, 00 and -0 take part in the formulas as they stand.
bool absent(const QString& coefficient) {
  return StrEq(coefficient, "") || StrEq(coefficient, "0");
}

// A root is a formula that the runner computes; quad sends its answer to EditField9.
void run(Window1& w, const QString& label, const QString& formula) {
  w.log(label + formula);
  w.EditField1->setText(formula);
  w.PushButton1->Push();
}

}  // namespace

// The solver computes nothing but one sign test: the coefficients are pasted into the
// formulas as typed. The three blocks after the general case are separate tests, not
// alternatives, so a press with two absent coefficients runs more than one of them.
// quad is set again before every second run because Print clears it; a run that fails
// leaves it at 1, and the next result of any origin lands in EditField9.
void Window1::PushButton41_Action() {
  const QString a = EditA->Text();
  const QString b = EditB->Text();
  const QString c = EditC->Text();
  quad = 1;

  if (!absent(a) && !absent(b) && !absent(c)) {
    run(*this, "Entered (QE:1): ",
        "((-1)*" + b + "+sqrt((" + b + ")^2-4*" + a + "*" + c + "))/(2*" + a + ")");
    quad = 1;
    run(*this, "Entered (QE:1): ",
        "((-1)*" + b + "-sqrt((" + b + ")^2-4*" + a + "*" + c + "))/(2*" + a + ")");
    return;
  }

  if (absent(a)) {
    if (absent(b)) {
      EditField9->setText(EditField9->Text() + "No Solution");
    } else {
      run(*this, "Entered (QE): ", "-1*" + c + "/" + b);
    }
  }

  if (absent(b)) {
    const double av = platform::Val(a);
    const double cv = platform::Val(c);
    if ((av > 0.0 && cv > 0.0) || (av < 0.0 && cv < 0.0)) {
      EditField9->setText(EditField9->Text() + "No Solution");
    } else {
      run(*this, "Entered (QE:1): ", "sqrt((-1)*" + c + "/" + a + ")");
      quad = 1;
      run(*this, "Entered (QE:2): ", "(-1)*sqrt((-1)*" + c + "/" + a + ")");
    }
  }

  if (absent(c)) {
    run(*this, "Entered (QE:1): ", "0");
    if (!absent(a) && !absent(b)) {
      quad = 1;
      run(*this, "Entered (QE:1): ", "(-1)*" + b + "/" + a);
    }
  }
}

// Only a change of a coefficient clears the roots; a second press appends to them.
void Window1::EditA_TextChange() { EditField9->setText(kSolutionsLine); }
void Window1::EditB_TextChange() { EditField9->setText(kSolutionsLine); }
void Window1::EditC_TextChange() { EditField9->setText(kSolutionsLine); }

}  // namespace app
