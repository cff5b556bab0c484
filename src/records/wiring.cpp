#include "app/window1.h"

namespace app {

void Window1::wireRecords() {
  PushButton3->Action = [this] { PushButton3_Action(); };
}

}  // namespace app
