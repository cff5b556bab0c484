// Timers scheduled through the desktop, and what RecordingDesktop records.

#include <gtest/gtest.h>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "support/printers.h"

namespace platform {
namespace {

struct Blink {
  Blink() {
    timer = &window.add<Timer>({.name = "Timer1", .kind = ControlKind::Timer});
    timer->Action = [this] { modesSeen.append(timer->Mode()); };
  }
  RecordingDesktop desktop;
  Window window{desktop};
  Timer* timer = nullptr;
  QList<int> modesSeen;  // Mode as each Action found it
};

TEST(Timer, ModesDecideHowOftenActionRuns) {
  struct Row {
    const char* name;
    int mode;
    QList<int> modesSeen;  // after three rounds
    int modeAfter;
  };
  const Row rows[] = {
      {"off never fires", Timer::kOff, {}, 0},
      {"single fires once and is off inside its Action", Timer::kSingle, {0}, 0},
      {"multiple fires every round", Timer::kMultiple, {2, 2, 2}, 2},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Blink blink;
    blink.timer->setMode(row.mode);
    for (int i = 0; i < 3; ++i) blink.desktop.fireTimers();
    EXPECT_EQ(blink.modesSeen, row.modesSeen);
    EXPECT_EQ(blink.timer->Mode(), row.modeAfter);
    EXPECT_EQ(blink.desktop.isRunning(*blink.timer), row.modeAfter != 0);
  }
  Blink blink;
  EXPECT_THROW(blink.timer->setMode(3), OutOfBoundsException);
  EXPECT_THROW(blink.timer->setPeriod(-1), OutOfBoundsException);
}

TEST(Timer, ASingleShotMayStartItselfAgain) {
  Blink blink;
  blink.timer->Action = [&] {
    if (blink.modesSeen.size() < 2) blink.timer->setMode(Timer::kSingle);
    blink.modesSeen.append(0);
  };
  blink.timer->setMode(Timer::kSingle);
  for (int i = 0; i < 4; ++i) blink.desktop.fireTimers();
  EXPECT_EQ(blink.modesSeen.size(), 3);
}

TEST(Timer, AClosedOrDestroyedWindowLeavesNoTimerBehind) {
  RecordingDesktop desktop;
  int runs = 0;
  {
    Window window(desktop);
    auto& timer = window.add<Timer>({.name = "Timer1", .kind = ControlKind::Timer});
    timer.Action = [&] { ++runs; };
    timer.setMode(Timer::kMultiple);
    window.Close();
    EXPECT_EQ(desktop.fireTimers(), 0);
    timer.setMode(Timer::kMultiple);
  }
  EXPECT_TRUE(desktop.runningTimers().isEmpty());
  EXPECT_EQ(desktop.fireTimers(), 0);
  EXPECT_EQ(runs, 0);
}

TEST(RecordingDesktop, RecordsCallsAsTheDriverPrintsThemAndKeepsTheClipboardApart) {
  RecordingDesktop desktop;
  Clipboard clip(desktop);
  EXPECT_FALSE(clip.TextAvailable());
  clip.setText("");
  EXPECT_TRUE(clip.TextAvailable()) << "empty text is text";
  desktop.beep();
  desktop.msgBox("a\r\nb\rc\nd");
  desktop.playSound({"claves", "/r/claves.wav"});
  EXPECT_EQ(desktop.takeEvents(), (QStringList{"beep", "msgbox a\\nb\\nc\\nd", "sound claves"}));
  EXPECT_TRUE(desktop.events().isEmpty());
}

TEST(RecordingDesktop, ShortDatesAndTimesAreThoseOfEnUs) {
  RecordingDesktop desktop;
  const QDateTime evening(QDate(2011, 6, 21), QTime(21, 5));
  const QDateTime midnight(QDate(2030, 1, 1), QTime(0, 0));
  EXPECT_EQ(desktop.shortDate(evening) + " " + desktop.shortTime(evening), "6/21/11 9:05 PM");
  EXPECT_EQ(desktop.shortDate(midnight) + " " + desktop.shortTime(midnight), "1/1/30 12:00 AM");
}

}  // namespace
}  // namespace platform
