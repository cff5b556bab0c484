// QtDesktop: the program's way to the real desktop.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMimeData>
#include <QTimer>

#include "platform/controls/controls.h"
#include "platform/qt/qt_desktop.h"
#include "qt_environment.h"
#include "support/printers.h"

namespace {

using platform::Timer;
using platform::qt::QtDesktop;

// Runs the event loop until the condition holds, or gives up after a generous while.
template <class Condition>
bool waitFor(Condition condition, int milliseconds = 5000) {
  QElapsedTimer clock;
  clock.start();
  while (!condition() && clock.elapsed() < milliseconds) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
  }
  return condition();
}

// A window with one timer, whose Action counts its firings.
class TimerWindow : public platform::Window {
 public:
  explicit TimerWindow(platform::Desktop& desktop) : platform::Window(desktop) {
    timer = &add<Timer>({"Timer1", platform::ControlKind::Timer});
    timer->Action = [this] {
      ++fired;
      if (onFire) onFire();
    };
  }
  Timer* timer = nullptr;
  int fired = 0;
  std::function<void()> onFire;
};

TEST(QtDesktop, TheClipboardIsTheSystemClipboard) {
  QtDesktop desktop;
  desktop.setClipboardText("42 ");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "42 ");
  QGuiApplication::clipboard()->setText("from another application");
  EXPECT_EQ(desktop.clipboardText(), "from another application");
  auto* picture = new QMimeData;
  picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
  QGuiApplication::clipboard()->setMimeData(picture);
  EXPECT_FALSE(desktop.clipboardHasText());
}

TEST(QtDesktop, ASingleTimerStopsUnlessItsActionStartsItAgainAMultipleRepeatsUntilOff) {
  QtDesktop desktop;
  TimerWindow window(desktop);
  window.timer->setPeriod(2);
  window.onFire = [&] {
    EXPECT_EQ(window.timer->Mode(), Timer::kOff);
    if (window.fired < 3) window.timer->setMode(Timer::kSingle);
  };
  window.timer->setMode(Timer::kSingle);
  EXPECT_TRUE(desktop.isRunning(*window.timer));
  ASSERT_TRUE(waitFor([&] { return window.fired == 3; }));
  EXPECT_FALSE(desktop.isRunning(*window.timer));

  window.onFire = nullptr;
  window.timer->setMode(Timer::kMultiple);
  ASSERT_TRUE(waitFor([&] { return window.fired >= 6; }));
  window.timer->setMode(Timer::kOff);
  const int fired = window.fired;
  QTimer pause;
  pause.setSingleShot(true);
  pause.start(30);
  waitFor([&] { return !pause.isActive(); });
  EXPECT_EQ(window.fired, fired);
}

TEST(QtDesktop, AFaultInATimersActionGoesToTheGuardAndADestroyedTimerNeverFires) {
  QtDesktop desktop;
  QStringList faults;
  desktop.setGuard([&](const std::function<void()>& event) {
    try {
      event();
    } catch (const std::exception& error) {
      faults.append(QString::fromUtf8(error.what()));
    }
  });
  auto gone = std::make_unique<TimerWindow>(desktop);
  gone->timer->setPeriod(1);
  gone->timer->setMode(Timer::kSingle);
  gone.reset();
  TimerWindow window(desktop);
  window.onFire = [] { throw std::runtime_error("timer fault"); };
  window.timer->setPeriod(10);
  window.timer->setMode(Timer::kSingle);
  ASSERT_TRUE(waitFor([&] { return !faults.isEmpty(); }));
  EXPECT_EQ(faults, QStringList{"timer fault"});
}

}  // namespace
