#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

using platform::InStr;

// The tab has no arithmetic and no parser of units of its own: each pass copies the
// entry into the calculator and pushes "=", whose convert path leaves the number with
// its new unit in EditField5. What is its own is cutting the units at the last "/" and
// gluing them back. A lower unit is converted by V^2/(V*f) = V/f, which holds only for
// a value that is a pure factor, since the table keeps no inverse.
void Window1::PushButton44_Action() {
  // V comes from the raw field, where Val stops at a thousands comma that the pass
  // itself strips: 3,000 ft/s converts 3000 but divides with 3.
  const double v = platform::Val(TextField1->Text());
  const QString t = platform::Trim(TextField1->Text());
  const auto pass = [this] {
    EditField4->setText(TextField1->Text());
    PushButton40->Push();
  };

  if (InStr(t, " ") == 0) {
    pass();
    TextField1->setText(EditField5->Text());
    log("---No Units included. Default Chosen");
    return;
  }
  pass();

  if (RadioButton7->Value()) {
    TextField1->setText(EditField5->Text());
    return;
  }
  if (!RadioButton8->Value() && !RadioButton9->Value()) return;

  if (InStr(t, "/") == 0) {
    // Both ways of a partial conversion come to a whole one, by a second pass.
    pass();
    TextField1->setText(EditField5->Text());
    log("---No Unit divider '/' included. Default Chosen");
    return;
  }

  const QStringList words = platform::Split(t, " ");
  const QStringList units = platform::Split(words.last(), "/");
  if (RadioButton8->Value()) {
    TextField1->setText(EditField5->Text() + "/" + units.last());
    return;
  }

  // Lower unit. The words of the first pass's result: number, then the new unit.
  const QString first = EditField5->Text();
  const QStringList r = InStr(first, " ") > 0 ? platform::Split(first, " ") : QStringList{" ", " "};
  QString h = " ";
  for (qsizetype i = 0; i + 1 < units.size(); ++i) h += units.at(i) + "/";

  pass();
  const QString answer = EditField5->Text();
  const QString n = InStr(answer, " ") > 0 ? platform::NthField(answer, " ", 1) : answer;
  EditField4->setText(platform::Str(v) + "^2/" + n);
  BevelButton1->setCaption("Calculate");
  PushButton40->Push();
  // EditField5 ends in the blank of unt, one more goes here and h starts with one:
  // three blanks between number and units, which a later pass does not mind.
  TextField1->setText(EditField5->Text() + " " + h + r.at(1));
  BevelButton1->setCaption("Convert");
  log(h + r.at(1));
}

void Window1::RadioButton7_Action() { log("--Normal Unit Conversion Chosen"); }
void Window1::RadioButton8_Action() { log("--Upper Unit Conversion Chosen"); }
void Window1::RadioButton9_Action() { log("--Lower Unit Conversion Chosen"); }

}  // namespace app
