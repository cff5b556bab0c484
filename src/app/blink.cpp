#include "app/app.h"
#include "app/window1.h"
#include "platform/controls/timer.h"

namespace app {

// The target shows target2 until Timer1 fires once and puts target back.
void Window1::blink() {
  ImageWell1->setImage(app_.target2());
  Timer1->setMode(platform::Timer::kSingle);
}

void Window1::Timer1_Action() {
  ImageWell1->setImage(app_.target());
  Timer1->setMode(platform::Timer::kOff);
}

}  // namespace app
