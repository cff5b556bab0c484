#include "platform/qt/guard.h"

#include <QtGlobal>
#include <exception>

namespace platform::qt {

Guard reportingGuard() {
  return [](const std::function<void()>& event) {
    try {
      event();
    } catch (const std::exception& error) {
      qWarning("An event stopped with an error: %s", error.what());
    }
  };
}

}  // namespace platform::qt
