#include "app/window1.h"

namespace app {

void Window1::wireGuidance() {}

}  // namespace app
