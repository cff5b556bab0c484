#include "app/window1.h"

namespace app {

void Window1::wireWorkbench() {
  Timer1->Action = [this] { Timer1_Action(); };
  DropObject = [this](const platform::DragItem& obj, int action) { Event_DropObject(obj, action); };
  BevelButton1->Open = [this] { BevelButton1_Open(); };
  BevelButton1->Action = [this] { BevelButton1_Action(); };
  ImageWell1->MouseDown = [this](int x, int y) { return ImageWell1_MouseDown(x, y); };
  PushButton2->Action = [this] { PushButton2_Action(); };
}

}  // namespace app
