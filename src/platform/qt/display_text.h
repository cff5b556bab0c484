#pragma once
// Line ends between the model and the widgets. The program writes "\r" in its creation
// texts and "\n" in the log; a widget shows each of CR, LF and CR LF as one line break.
// When the user edits the shown form, the edit goes back into the model's text at the
// same place, so the line ends the user did not touch stay as the program wrote them.

#include <QString>
#include <vector>

namespace platform::qt {

QString displayText(const QString& text);

// Where each character of displayText(text) starts in text, plus text.size() at the end.
std::vector<int> displayToModel(const QString& text);

struct ModelEdit {
  QString text;
  int cursor = 0;  // in the new model text
};

// `edited` is what the widget holds after the user's edit of displayText(model), with
// the cursor at editedCursor.
ModelEdit applyDisplayEdit(const QString& model, const QString& edited, int editedCursor);

}  // namespace platform::qt
