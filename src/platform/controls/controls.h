#pragma once
// Everything of the control model in one include.

#include "platform/controls/buttons.h"
#include "platform/controls/control.h"
#include "platform/controls/control_spec.h"
#include "platform/controls/image_well.h"
#include "platform/controls/list_controls.h"
#include "platform/controls/panels.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/timer.h"
#include "platform/controls/window.h"
