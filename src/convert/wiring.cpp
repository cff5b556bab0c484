#include "app/window1.h"

namespace app {

void Window1::wireConvert() {
  PopupMenu2->Open = [this] { PopupMenu2_Open(); };
  PopupMenu2->Change = [this] { PopupMenu2_Change(); };
  popconvert->Change = [this] { popconvert_Change(); };
  popconvert->MouseDown = [this](int x, int y) { return popconvert_MouseDown(x, y); };
  popconvert->MouseExit = [this] { popconvert_MouseExit(); };
  Listbox1->CellClick = [this](int row, int column) { return Listbox1_CellClick(row, column); };
  Listbox2->CellClick = [this](int row, int column) { return Listbox2_CellClick(row, column); };

  PushButton44->Action = [this] { PushButton44_Action(); };
  RadioButton7->Action = [this] { RadioButton7_Action(); };
  RadioButton8->Action = [this] { RadioButton8_Action(); };
  RadioButton9->Action = [this] { RadioButton9_Action(); };
}

}  // namespace app
