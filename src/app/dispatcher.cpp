#include "app/app.h"
#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

using platform::StrEq;

// One cascade on the caption, compared as text. Event_DropObject (drop.cpp) runs the
// same tests in the same order; keep the two in step when either changes.
void Window1::ButtonAct(const QString& t) {
  if (StrEq(BevelButton1->Caption(), "Evaluate")) {
    // Only "?" is help here: "help" is a value like any other and lands behind the colon.
    if (StrEq(t, "?")) {
      help(t, Input::Typed);
    } else {
      EditField4->setText(platform::NthField(EditField4->Text(), ":", 1) + ":" + t);
      PushButton40->Push();
    }
    return;
  }

  if (t.isEmpty()) return;

  if (StrEq(t, "help") || StrEq(t, "?")) {
    help(t, Input::Typed);
    return;
  }

  defaultToCalculate();

  log("Entered: " + t);
  QString w = t;

  const QString caption = BevelButton1->Caption();
  if (StrEq(caption, "calculate") || StrEq(caption, "convert")) {
    // With Purge Pretty off the cleaning goes on without the purge, so there is always
    // a text.
    w = cleanStages(w, PurgeOff::Skip).value_or(w);
  }
  w = conversionNumber(w);

  if (StrEq(caption, "calculate")) {
    calculateStages(w);
  } else if (StrEq(caption, "convert")) {
    convertPath(w, RunBlink::None);
  } else {
    lookUpOrDecline(w, caption, Input::Typed);
  }
}

}  // namespace app
