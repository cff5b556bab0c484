#pragma once
// How the Qt layer runs anything of the program. Every model event that a widget, a
// timer or a drop raises goes through a Guard, so the program can report a fault that
// escapes a handler and carry on; an exception must never unwind through Qt's event
// dispatch. The renderer takes the Guard it is given and knows nothing of the program.

#include <functional>

namespace platform::qt {

using Guard = std::function<void(const std::function<void()>& event)>;

// For a renderer with no program around it (tools, tests): a fault is written to
// standard error and the event loop goes on.
Guard reportingGuard();

}  // namespace platform::qt
