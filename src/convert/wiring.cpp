#include "app/window1.h"

namespace app {

void Window1::wireConvert() {}

}  // namespace app
