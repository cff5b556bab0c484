#include "app/window1.h"

namespace app {

void Window1::wireWorkbench() {
  Timer1->Action = [this] { Timer1_Action(); };
}

}  // namespace app
