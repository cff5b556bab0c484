#pragma once
// Program is the desk accessory on the real desktop: QtDesktop, the application object
// and the Session that renders its windows, put together in the order of a launch.
// main() runs one; the snapshot tool, the start-up benchmark and the GUI tests run the
// same, offscreen. A QApplication must exist first.

#include <memory>

#include "app/app.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/session.h"

namespace platform::qt {

class Program {
 public:
  Program();
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The launch: App's start-up routine makes the introduction, which goes on to the
  // main window or waits; every window it opens is on screen when this returns.
  void start();
  // The event loop, until the last window has closed; the exit status.
  int exec();

  app::App& app() { return app_; }
  QtDesktop& desktop() { return desktop_; }
  Session& session() { return *session_; }

 private:
  QtDesktop desktop_;
  app::App app_;
  // Made after App and gone before it: the views hold observers on App's windows.
  std::unique_ptr<Session> session_;
  bool looping_ = false;
};

// The application's names and the one style the fixed pixel layout was drawn in.
void setUpApplication();

}  // namespace platform::qt
