#include "app/app.h"
#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

using platform::StrEq;

// The desk accessory's front door: ButtonAct's cascade for a dropped text, test for
// test. Where it parts from ButtonAct is on purpose: "Help" counts under "Evaluate",
// an empty text goes on, the help blinks, a convert drop with "Use Clipboard" off only
// readies the Convert tab, and a search blinks instead of filling its list.
void Window1::Event_DropObject(const platform::DragItem& obj, int /*action*/) {
  // Element 1 "zz" stands for a drop without a second word.
  QStringList split = {QStringLiteral("x"), QStringLiteral("zz")};

  if (StrEq(BevelButton1->Caption(), "Evaluate")) {
    // The text is read before anyone asks whether there is one: a drop without text
    // puts a bare colon behind the formula.
    if (StrEq(obj.Text(), "?") || StrEq(obj.Text(), "Help")) {
      help(obj.Text(), Input::Dropped);
    } else {
      EditField4->setText(platform::NthField(EditField4->Text(), ":", 1) + ":" + obj.Text());
      PushButton40->Push();
    }
    return;
  }

  // No test for an empty text: an item that offers one goes all the way through.
  if (!obj.TextAvailable()) return;

  if (StrEq(obj.Text(), "help") || StrEq(obj.Text(), "?")) {
    help(obj.Text(), Input::Dropped);
    return;
  }

  defaultToCalculate();

  log("Entered: " + obj.Text());
  QString w = obj.Text();

  const QString caption = BevelButton1->Caption();
  if (StrEq(caption, "calculate") || StrEq(caption, "convert")) {
    // Taken before the blanks go: the second word is the unit a convert drop brings.
    if (platform::InStr(w, " ") > 0) split = platform::Split(w, " ");
    w = cleanStages(w, PurgeOff::Skip).value_or(w);
  }
  w = conversionNumber(w);

  if (StrEq(caption, "calculate")) {
    // No blink of its own: the answer's printer blinks.
    calculateStages(w);
  } else if (StrEq(caption, "convert")) {
    if (CheckBox2->Value()) {
      convertPath(w, RunBlink::BeforeRun);
      return;
    }
    // "Use Clipboard" off: the drop only readies the Convert tab; the user converts.
    if (wincon == 0) {
      wincon = 1;
      setWidth(800);
      setHeight(600);
      log("--Expanded Window Mode");
      TabPanel1->setValue(3);
      TabPanel2->setValue(3);
      log("---Tabs set to Directions and Convert");
    }
    if (!StrEq(split.at(1), "zz")) {
      TextField1->setText(w + " " + split.at(1));
    } else {
      TextField1->setText(w);
    }
  } else {
    lookUpOrDecline(w, caption, Input::Dropped);
  }
}

}  // namespace app
