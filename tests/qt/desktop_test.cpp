// QtDesktop: the program's way to the real desktop.

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>

#include "platform/controls/controls.h"
#include "platform/qt/qt_desktop.h"
#include "qt_environment.h"

namespace {

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
    timer = &add<platform::Timer>({"Timer1", platform::ControlKind::Timer});
    timer->Action = [this] {
      ++fired;
      if (onFire) onFire();
    };
  }
  platform::Timer* timer = nullptr;
  int fired = 0;
  std::function<void()> onFire;
};

TEST(QtDesktop, TheClipboardIsTheSystemClipboard) {
  QtDesktop desktop;
  desktop.setClipboardText("42 ");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "42 ");
  EXPECT_TRUE(desktop.clipboardHasText());

  QGuiApplication::clipboard()->setText("from another application");
  EXPECT_EQ(desktop.clipboardText(), "from another application");

  auto* picture = new QMimeData;
  picture->setImageData(QImage(2, 2, QImage::Format_RGB32));
  QGuiApplication::clipboard()->setMimeData(picture);
  EXPECT_FALSE(desktop.clipboardHasText());
}

TEST(QtDesktop, ATimerFiresOnceAndStops) {
  QtDesktop desktop;
  TimerWindow window(desktop);
  window.timer->setPeriod(5);
  window.timer->setMode(platform::Timer::kSingle);
  EXPECT_TRUE(desktop.isRunning(*window.timer));
  ASSERT_TRUE(waitFor([&] { return window.fired == 1; }));
  EXPECT_EQ(window.timer->Mode(), platform::Timer::kOff);
  EXPECT_FALSE(desktop.isRunning(*window.timer));
}

TEST(QtDesktop, ATimerThatStartsItselfAgainFromItsActionFiresAgain) {
  QtDesktop desktop;
  TimerWindow window(desktop);
  window.timer->setPeriod(5);
  window.onFire = [&] {
    if (window.fired < 3) window.timer->setMode(platform::Timer::kSingle);
  };
  window.timer->setMode(platform::Timer::kSingle);
  ASSERT_TRUE(waitFor([&] { return window.fired == 3; }));
  EXPECT_FALSE(desktop.isRunning(*window.timer));
}

TEST(QtDesktop, AMultipleTimerRepeatsUntilTurnedOff) {
  QtDesktop desktop;
  TimerWindow window(desktop);
  window.timer->setPeriod(2);
  window.timer->setMode(platform::Timer::kMultiple);
  ASSERT_TRUE(waitFor([&] { return window.fired >= 3; }));
  window.timer->setMode(platform::Timer::kOff);
  const int fired = window.fired;
  QTimer pause;
  pause.setSingleShot(true);
  pause.start(30);
  waitFor([&] { return !pause.isActive(); });
  EXPECT_EQ(window.fired, fired);
}

TEST(QtDesktop, AFaultInATimersActionGoesToTheGuard) {
  QtDesktop desktop;
  QStringList faults;
  desktop.setGuard([&](const std::function<void()>& event) {
    try {
      event();
    } catch (const std::exception& error) {
      faults.append(QString::fromUtf8(error.what()));
    }
  });
  TimerWindow window(desktop);
  window.onFire = [] { throw std::runtime_error("timer fault"); };
  window.timer->setPeriod(1);
  window.timer->setMode(platform::Timer::kSingle);
  ASSERT_TRUE(waitFor([&] { return !faults.isEmpty(); }));
  EXPECT_EQ(faults, QStringList{"timer fault"});
}

TEST(QtDesktop, ATimerDestroyedWhileRunningNeverFires) {
  QtDesktop desktop;
  auto window = std::make_unique<TimerWindow>(desktop);
  window->timer->setPeriod(1);
  window->timer->setMode(platform::Timer::kSingle);
  window.reset();
  QTimer pause;
  pause.setSingleShot(true);
  pause.start(20);
  EXPECT_TRUE(waitFor([&] { return !pause.isActive(); }));  // and nothing crashed
}

TEST(QtDesktop, AMessageBoxIsModalAndShowsTheTextsLines) {
  QtDesktop desktop;
  QString shown;
  bool modal = false;
  QTimer::singleShot(0, [&] {
    QWidget* box = QApplication::activeModalWidget();
    if (!box) return;
    modal = box->isModal();
    if (auto* message = qobject_cast<QMessageBox*>(box)) shown = message->text();
    box->close();
  });
  desktop.msgBox("first\rsecond");
  EXPECT_TRUE(modal);
  EXPECT_EQ(shown, "first\nsecond");
}

TEST(QtDesktop, ASoundGoesOnSilentlyWhateverTheMachineHas) {
  QtDesktop desktop;
  desktop.playSound({"missing", "/nonexistent/claves.wav"});
  desktop.playSound({"none", ""});
  desktop.beep();
  SUCCEED();
}

}  // namespace
