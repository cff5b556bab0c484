#pragma once
// The 36 keys of the calculator, one row each: name, caption, place in the window
// and what the key appends to the calculation field. Keys with no text to append
// ("de", "pa", "m", "mr", "clear", "=") have handlers of their own.

#include <QString>
#include <vector>

namespace calc {

struct KeypadKey {
  QString name;
  QString caption;
  int left, top, width, height;
  QString appends;  // empty: the key has its own handler
};

// In the order of the rows on the panel.
const std::vector<KeypadKey>& keypadTable();

}  // namespace calc
