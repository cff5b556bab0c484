// Timers scheduled through the desktop, and what RecordingDesktop records.

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace platform {
namespace {

struct Blink {
  Blink() {
    timer = &window.add<Timer>({.name = "Timer1", .kind = ControlKind::Timer, .attributes = {{"Period", 1000}}});
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
    int rounds;
    QList<int> modesSeen;
    int modeAfter;
    bool runningAfter;
  };
  const Row rows[] = {
      {"off never fires", Timer::kOff, 2, {}, 0, false},
      {"single fires once and is off inside its Action", Timer::kSingle, 3, {0}, 0, false},
      {"multiple fires every round", Timer::kMultiple, 3, {2, 2, 2}, 2, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Blink blink;
    blink.timer->setMode(row.mode);
    for (int i = 0; i < row.rounds; ++i) blink.desktop.fireTimers();
    EXPECT_EQ(blink.modesSeen, row.modesSeen);
    EXPECT_EQ(blink.timer->Mode(), row.modeAfter);
    EXPECT_EQ(blink.desktop.isRunning(*blink.timer), row.runningAfter);
  }
}

TEST(Timer, ASingleShotMayStartItselfAgain) {
  Blink blink;
  int runs = 0;
  blink.timer->Action = [&] {
    if (++runs == 1) blink.timer->setMode(Timer::kSingle);
  };
  blink.timer->setMode(Timer::kSingle);
  blink.desktop.fireTimers();
  EXPECT_TRUE(blink.desktop.isRunning(*blink.timer));
  blink.desktop.fireTimers();
  blink.desktop.fireTimers();
  EXPECT_EQ(runs, 2);
}

TEST(Timer, ModeZeroCancelsAndBadModesThrow) {
  Blink blink;
  blink.timer->setMode(Timer::kMultiple);
  blink.timer->setMode(Timer::kOff);
  EXPECT_EQ(blink.desktop.fireTimers(), 0);
  EXPECT_THROW(blink.timer->setMode(3), OutOfBoundsException);
  EXPECT_THROW(blink.timer->setPeriod(-1), OutOfBoundsException);
  EXPECT_TRUE(blink.modesSeen.isEmpty());
}

TEST(Timer, FiringByNameFindsOnlyARunningTimer) {
  Blink blink;
  EXPECT_FALSE(blink.desktop.fireTimer("Timer1"));
  blink.timer->setMode(Timer::kSingle);
  EXPECT_TRUE(blink.desktop.fireTimer("timer1"));
  EXPECT_EQ(blink.modesSeen, QList<int>{0});
}

TEST(Timer, AClosedOrDestroyedWindowLeavesNoTimerBehind) {
  RecordingDesktop desktop;
  {
    Window window(desktop);
    auto& timer = window.add<Timer>({.name = "Timer1", .kind = ControlKind::Timer});
    int runs = 0;
    timer.Action = [&] { ++runs; };
    timer.setMode(Timer::kMultiple);
    window.Close();
    EXPECT_EQ(desktop.fireTimers(), 0);
    timer.setMode(Timer::kMultiple);
    EXPECT_EQ(runs, 0);
  }
  EXPECT_TRUE(desktop.runningTimers().isEmpty());
  EXPECT_EQ(desktop.fireTimers(), 0);
}

TEST(RecordingDesktop, RecordsEachCallAsTheDriverPrintsIt) {
  struct Row {
    const char* name;
    std::function<void(Desktop&)> call;
    QStringList events;
  };
  const Row rows[] = {
      {"a beep", [](Desktop& d) { d.beep(); }, {"beep"}},
      {"a sound by its resource name", [](Desktop& d) { d.playSound({"claves", "/r/claves.wav"}); },
       {"sound claves"}},
      {"a message box", [](Desktop& d) { d.msgBox("Nothing In Memory"); }, {"msgbox Nothing In Memory"}},
      {"line ends of every kind inside a message", [](Desktop& d) { d.msgBox("a\r\nb\rc\nd"); },
       {"msgbox a\\nb\\nc\\nd"}},
      {"a link", [](Desktop& d) { d.showURL("mailto:x@y?subject=AbaCon&body=Put your"); },
       {"url mailto:x@y?subject=AbaCon&body=Put your"}},
      {"calls in their order", [](Desktop& d) {
         d.beep();
         d.msgBox("x");
         d.beep();
       },
       {"beep", "msgbox x", "beep"}},
      {"the clipboard is no event", [](Desktop& d) { d.setClipboardText("5 "); }, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingDesktop desktop;
    row.call(desktop);
    EXPECT_EQ(desktop.events(), row.events);
  }
}

TEST(RecordingDesktop, TakeEventsEmptiesTheRecord) {
  RecordingDesktop desktop;
  desktop.beep();
  EXPECT_EQ(desktop.takeEvents(), QStringList{"beep"});
  EXPECT_TRUE(desktop.events().isEmpty());
}

TEST(RecordingDesktop, ClipboardHoldsTextOnlyOnceSomeoneSetsIt) {
  RecordingDesktop desktop;
  Clipboard clip(desktop);
  EXPECT_FALSE(clip.TextAvailable());
  clip.setText("");
  EXPECT_TRUE(clip.TextAvailable()) << "empty text is text";
  clip.setText("12 km");
  clip.Close();
  EXPECT_EQ(desktop.clipboardText(), "12 km");
  desktop.clearClipboard();
  EXPECT_FALSE(desktop.clipboardHasText());
}

TEST(RecordingDesktop, ShortDatesAndTimesAreThoseOfEnUs) {
  struct Row {
    const char* name;
    QDateTime when;
    QString date;
    QString time;
  };
  const Row rows[] = {
      {"a morning", QDateTime(QDate(2026, 11, 23), QTime(9, 30)), "11/23/26", "9:30 AM"},
      {"an evening early in the year", QDateTime(QDate(2011, 6, 21), QTime(21, 5)), "6/21/11", "9:05 PM"},
      {"midnight", QDateTime(QDate(2030, 1, 1), QTime(0, 0)), "1/1/30", "12:00 AM"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RecordingDesktop desktop;
    desktop.setClock(row.when);
    EXPECT_EQ(desktop.now(), row.when);
    EXPECT_EQ(desktop.shortDate(desktop.now()), row.date);
    EXPECT_EQ(desktop.shortTime(desktop.now()), row.time);
  }
}

TEST(RecordingDesktop, ShiftKeyIsWhatTheCallerSets) {
  RecordingDesktop desktop;
  EXPECT_FALSE(desktop.shiftKey());
  desktop.setShiftKey(true);
  EXPECT_TRUE(desktop.shiftKey());
}

}  // namespace
}  // namespace platform
