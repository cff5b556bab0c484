#include "app/window1.h"

namespace app {

void Window1::wireSearch() {
  TabPanel2->Open = [this] { TabPanel2_Open(); };
  Listbox4->CellClick = [this](int row, int column) { return Listbox4_CellClick(row, column); };
  Listbox7->CellClick = [this](int row, int column) { return Listbox7_CellClick(row, column); };
  PopupMenu1->Change = [this] { PopupMenu1_Change(); };
  PopupMenu3->Change = [this] { PopupMenu3_Change(); };
  PushButton47->Action = [this] { PushButton47_Action(); };
  PushButton49->Action = [this] { PushButton49_Action(); };
  Listbox5->CellClick = [this](int row, int column) { return Listbox5_CellClick(row, column); };
  Listbox6->CellClick = [this](int row, int column) { return Listbox6_CellClick(row, column); };
}

}  // namespace app
