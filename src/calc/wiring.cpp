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
  PushButton40->Action = [this] { PushButton40_Action(); };
  PushButton38->Action = [this] { PushButton38_Action(); };
  PushButton39->Action = [this] { PushButton39_Action(); };
  PushButton35->Action = [this] { PushButton35_Action(); };

  PushButton33->Action = [this] { PushButton33_Action(); };
  PushButton34->Action = [this] { PushButton34_Action(); };
  PushButton46->Action = [this] { PushButton46_Action(); };
  Listbox3->Open = [this] { Listbox3_Open(); };
  Listbox3->Close = [this] { Listbox3_Close(); };
  Listbox3->CellClick = [this](int row, int column) { return Listbox3_CellClick(row, column); };
}

}  // namespace app
