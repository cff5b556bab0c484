#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

using platform::InStr;
using platform::NthField;
using platform::ReplaceAll;

// The values go in blindly, letter for letter and without parentheses: the x of
// "exp(" is replaced too, and -3 for x in x^2 gives -3^2. Only what stands between
// the first colon and a second one counts.
QString Window1::evaluateForm() {
  const QString t = EditField4->Text();
  if (InStr(t, ":") == 0) return t;
  const QString values = NthField(t, ":", 2);
  const QString bare = NthField(t, ":", 1);
  QString formula;
  if (InStr(values, ";") > 0) {
    formula = ReplaceAll(bare, "x", NthField(values, ";", 1));
    formula = ReplaceAll(formula, "y", NthField(values, ";", 2));
  } else {
    formula = ReplaceAll(bare, "x", values);
  }
  EditField4->setText(bare + ":");
  return formula;
}

}  // namespace app
