#include "app/window1.h"
#include "calc/evalit.h"
#include "platform/strings/strings.h"

namespace app {

// RUN: the one place where a formula is computed. The formula goes into the script as
// it stands; a line ending inside it simply ends the statement.
void Window1::PushButton1_Action() {
  const QString formula = EditField1->Text();
  calc::EvalIt host(*this);
  // The "=" key, greyed out while it works in the expanded window, comes back here,
  // before the script compiles, so a formula with an error leaves the key usable.
  if (!PushButton40->Enabled()) PushButton40->setEnabled(true);
  host.Reset();
  const QString eol = platform::EndOfLine();
  if (scibutton1->Value()) {
    host.Source = "Dim x As double" + eol + "x = " + formula + eol + "print Format(x," + fmt + ")";
  } else {
    host.Source = "Dim x As double" + eol + "x = " + formula + eol + "print Str(x)";
  }
  host.Run();
}

}  // namespace app
