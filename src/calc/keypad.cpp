#include "app/app.h"
#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

using platform::StrEq;

// "=": every evaluation that starts from EditField4 comes through here, also pushes
// from code (the Convert tab, the solvers, the Evaluate action), and they read
// EditField5 as soon as the push returns.
void Window1::PushButton40_Action() {
  // In the expanded window the key greys out until a run gives it back.
  if (PushButton40->Enabled() && wincon == 1) PushButton40->setEnabled(false);

  const QString formula = evaluateForm();
  log("Entered: " + formula);

  // Here Purge Pretty gates the whole key: off, nothing is computed and the key stays
  // grey in the expanded window until another path runs a formula.
  const std::optional<QString> cleaned = cleanStages(formula, PurgeOff::Stop);
  if (!cleaned) return;
  const QString text = conversionNumber(*cleaned);

  const QString caption = BevelButton1->Caption();
  if (StrEq(caption, "calculate") || StrEq(caption, "evaluate")) {
    calculateStages(text);
  } else if (StrEq(caption, "convert")) {
    convertPath(text, RunBlink::None);
    // evconvert2 runs nothing, so nothing else gives the key back.
    if (StrEq(PopupMenu2->Text(), "Number") && !PushButton40->Enabled()) {
      PushButton40->setEnabled(true);
    }
  } else {
    log("Error: Search Term not found" + platform::EndOfLine() +
        "Try words in a different order or use a single word or part of a word");
    PushButton40->setEnabled(true);
  }
}

// "de" takes one character, even out of a function name such as "sin(".
void Window1::PushButton38_Action() {
  const QString text = EditField4->Text();
  EditField4->setText(platform::Left(text, platform::Len(text) - 1));
}

// "pa" is the one key that works at the cursor.
void Window1::PushButton39_Action() { EditField4->Paste(); }

// "clear" leaves the answer where it is.
void Window1::PushButton35_Action() { EditField4->setText(QString()); }

}  // namespace app
