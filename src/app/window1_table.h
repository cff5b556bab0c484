#pragma once
// The control table of Window1: every control, in creation order, with everything
// about it at creation. Window1 is built by iterating it; adding a control is a row.

#include "platform/controls/control_spec.h"

#include <vector>

namespace app {

const std::vector<platform::ControlSpec>& window1ControlTable();

}  // namespace app
