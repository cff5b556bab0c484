#pragma once
// What the fault tests share: launches that keep the desktop calls of the start, a
// user's action run the way the event loop runs it (a fault that escapes reaches the
// program's handler of unhandled exceptions), and a guard that turns a hang into a
// failure instead of a test run that never ends.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

#include "guidance/window2.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace reliability {

// What App::UnhandledException puts in front of the fault, in its message box and its
// log line.
inline const QString kReportPrefix = QStringLiteral("An unexpected problem occurred and was stopped: ");

class ReliabilityFixture : public testsupport::AppFixture {
 protected:
  // As launch(), with the introduction dismissed, but the desktop calls made while the
  // windows opened stay readable in startEvents.
  app::Window1& launchKeepingEvents() {
    writeFile("Preferences/VXKInstr", "do not show");
    startAtIntroduction();
    window = program->window1();
    // Thrown, not asserted: the test reports it as a failure and goes no further.
    if (!window) throw std::runtime_error("Window1 did not open");
    logMark = window->EditField2->Text().size();
    return *window;
  }

  // Starts the program as it is; without the marker the introduction stays.
  void startAtIntroduction() {
    desktop.takeEvents();  // what an earlier launch of the same test left
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    startEvents = desktop.takeEvents();
  }

  // A user's action: the event loop runs it under the handler of unhandled exceptions.
  void asUser(const std::function<void()>& action) { program->guard(action); }

  void dropAsUser(const QString& text) {
    asUser([&] { window->userDrop(platform::DragItem{text}); });
  }

  // The program still answers: a formula dropped under "Calculate" reaches the
  // clipboard.
  void expectStillCalculates() {
    desktop.setClipboardText("before");
    asUser([&] { window->BevelButton1->userChoose(0); });
    dropAsUser("6*7");
    EXPECT_EQ(desktop.clipboardText(), "42 ");
  }

  // The message boxes among the events that are reports of a fault.
  static QStringList reports(const QStringList& events) {
    QStringList found;
    for (const QString& event : events) {
      if (event.startsWith("msgbox " + kReportPrefix)) found << event.mid(7);
    }
    return found;
  }

  // The first cell of every row.
  static QStringList rowTexts(const platform::Listbox& list) {
    QStringList texts;
    for (int row = 0; row < list.ListCount(); ++row) texts << list.Cell(row, 0);
    return texts;
  }

  QStringList startEvents;
};

// Ends the test program with a message when the guarded scope lasts longer than the
// limit: a hang then fails the run instead of stalling it. The limits are generous (a
// hang guard, not a speed target: speed is measured in bench/).
class HangGuard {
 public:
  HangGuard(std::string what, std::chrono::seconds limit)
      : what_(std::move(what)), watcher_([this, limit] {
          std::unique_lock<std::mutex> lock(mutex_);
          if (!done_cv_.wait_for(lock, limit, [this] { return done_; })) {
            std::fprintf(stderr, "HANG: %s took longer than %lld s\n", what_.c_str(),
                         static_cast<long long>(limit.count()));
            std::fflush(stderr);
            std::_Exit(1);
          }
        }) {}
  ~HangGuard() {
    {
      std::lock_guard<std::mutex> lock(mutex_);
      done_ = true;
    }
    done_cv_.notify_all();
    watcher_.join();
  }
  HangGuard(const HangGuard&) = delete;
  HangGuard& operator=(const HangGuard&) = delete;

 private:
  std::string what_;
  std::mutex mutex_;
  std::condition_variable done_cv_;
  bool done_ = false;
  std::thread watcher_;
};

}  // namespace reliability
