#include "app/app.h"
#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/strings/strings.h"

namespace app {

using platform::EndOfLine;

// physical and astronomical leave their hits in EditField1; empty means none. A
// missing file has already said so on the clipboard by then, and still gets the two
// lines of a search without result behind its own.
void Window1::searchPath(const QString& w, DataSet set, Input input) {
  const QString query = RadioButton5->Value() ? SmartParse(w) : w;
  EditField1->setText(QString());
  if (set == DataSet::Physical) {
    physical(query);
  } else {
    astronomical(query);
  }

  const QString found = EditField1->Text();
  if (found.isEmpty()) {
    logNotFound();
    return;
  }
  platform::Clipboard clip(desktop());
  clip.setText(found);
  log("Output:" + found);
  if (input == Input::Dropped) {
    // The drop answers like every other drop and leaves the result list as it was.
    blink();
    clip.Close();
  } else {
    clip.Close();
    platform::Listbox& results = set == DataSet::Physical ? *Listbox5 : *Listbox6;
    // Split once: line i by NthField would rescan the text from its start, and a
    // literal search of a large file would never finish filling the list.
    const QStringList lines =
        platform::Split(platform::ReplaceLineEndings(found, EndOfLine()), EndOfLine());
    results.DeleteAllRows();
    // The hits start with a line ending, so the list's first row is empty.
    for (const QString& line : lines) results.AddRow(platform::LTrim(line));
  }
  desktop().beep();
}

// No entry of the selector's menu leads here; the branches stay, loops and all, ready for
// a menu that offers the formula dictionaries.
void Window1::formulaPath(const QString& w, const std::shared_ptr<platform::Dictionary>& d) {
  const QString query = RadioButton5->Value() ? SmartParse(w) : w;
  const platform::Dictionary none;
  const platform::Dictionary& dict = d ? *d : none;
  const QVariantList keys = dict.Keys();
  EditField1->setText(QString());
  for (int i = 0; i < keys.size(); ++i) {
    // Only the first hit is headed by the search term.
    const QString prefix = EditField1->Text().isEmpty() ? query : platform::Chr(9);
    if (platform::InStr(keys.at(i).toString(), query) > 0) {
      EditField1->AppendText(EndOfLine() + prefix + ": " + dict.Value(dict.Key(i)).toString() +
                             platform::Chr(9) + "(" + platform::Str(BevelButton1->MenuValue()) +
                             "-" + platform::Str(i) + ")");
    }
  }

  const QString found = EditField1->Text();
  if (found.isEmpty()) {
    logNotFound();
    return;
  }
  platform::Clipboard clip(desktop());
  clip.setText(found);
  log("Output:" + found);
  clip.Close();
  desktop().beep();
}

// One log entry of two lines.
void Window1::logNotFound() {
  log("Error: Search Term not found" + EndOfLine() +
      "Try words in a different order or use a single word or part of a word");
}

// The first real text decides for the user; a help request leaves "Action" standing.
void Window1::defaultToCalculate() {
  if (platform::StrEq(BevelButton1->Caption(), "Action")) {
    BevelButton1->setCaption("calculate");
    log(">>>Calculate (default action)");
  }
}

// The last branches of the cascade, alike in both twins but for what a search shows.
void Window1::lookUpOrDecline(const QString& w, const QString& caption, Input input) {
  using platform::StrEq;
  if (StrEq(caption, "physical data")) {
    searchPath(w, DataSet::Physical, input);
  } else if (StrEq(caption, "astro data")) {
    searchPath(w, DataSet::Astro, input);
  } else if (StrEq(caption, "Formulas (math)")) {
    formulaPath(w, dict5);
  } else if (StrEq(caption, "Formulas (astro)")) {
    formulaPath(w, dict4);
  } else if (StrEq(caption, "Formulas (phys)")) {
    formulaPath(w, dict3);
  } else {
    // "Solve" and "Settings": the text was taken and logged, and has no use here.
    app().playClaves();
  }
}

}  // namespace app
