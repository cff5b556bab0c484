#include "app/window1.h"

namespace app {

void Window1::wireRecords() {
  PushButton3->Action = [this] { PushButton3_Action(); };

  PushButton42->Action = [this] { PushButton42_Action(); };
  normbutton->Action = [this] { normbutton_Action(); };
  scibutton1->Action = [this] { scibutton1_Action(); };
  RadioButton3->Action = [this] { RadioButton3_Action(); };
  RadioButton4->Action = [this] { RadioButton4_Action(); };
  RadioButton1->Action = [this] { RadioButton1_Action(); };
  RadioButton2->Action = [this] { RadioButton2_Action(); };
  RadioButton5->Action = [this] { RadioButton5_Action(); };
  RadioButton6->Action = [this] { RadioButton6_Action(); };
  CheckBox1->Action = [this] { CheckBox1_Action(); };
  CheckBox2->Action = [this] { CheckBox2_Action(); };
}

}  // namespace app
