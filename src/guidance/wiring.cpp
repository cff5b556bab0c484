#include "app/window1.h"

namespace app {

void Window1::wireGuidance() {
  PushButton48->Action = [this] { PushButton48_Action(); };
  PushButton4->Action = [this] { PushButton4_Action(); };
  StaticText24->MouseDown = [this](int x, int y) { return StaticText24_MouseDown(x, y); };

  TabPanel2->MouseDown = [this](int x, int y) { return TabPanel2_MouseDown(x, y); };
  TabPanel2->Change = [this] { TabPanel2_Change(); };
  PushButton43->Action = [this] { PushButton43_Action(); };
}

}  // namespace app
