#include "app/window1.h"
#include "calc/keypad.h"

namespace app {

void Window1::wireCalc() {
  PushButton1->Action = [this] { PushButton1_Action(); };

  // Keys that only append their text to the calculation field, wherever the cursor is.
  for (const calc::KeypadKey& key : calc::keypadTable()) {
    if (key.appends.isEmpty()) continue;
    control<platform::PushButton>(key.name).Action = [this, text = key.appends] {
      EditField4->setText(EditField4->Text() + text);
    };
  }
}

}  // namespace app
