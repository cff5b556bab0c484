#include "app/window1.h"
#include "guidance/texts.h"
#include "platform/desktop/desktop.h"
#include "platform/strings/strings.h"

namespace app {

namespace {

using guidance::TextKey;

// How each answer goes out. A drop blinks where `blinkFirst` and `logged` say; a typed
// request never blinks. "Evaluate" has its own order, without a blink either way.
enum class Order { Plain, Evaluate };

struct HelpRow {
  const char* caption;
  TextKey body;
  Order order;
  bool logged;      // Solve and Settings write nothing to the log
  bool blinkFirst;  // a drop blinks before the clipboard is set
};

const HelpRow kHelpRows[] = {
    {"Action", TextKey::helpAction, Order::Plain, true, false},
    {"Calculate", TextKey::helpCalculate, Order::Plain, true, true},
    {"Convert", TextKey::helpConvert, Order::Plain, true, true},
    {"Physical Data", TextKey::helpPhysical, Order::Plain, true, false},
    {"Astro Data", TextKey::helpAstro, Order::Plain, true, false},
    {"Solve", TextKey::helpSolve, Order::Plain, false, true},
    {"Settings", TextKey::helpSettings, Order::Plain, false, true},
    {"Evaluate", TextKey::helpEvaluate, Order::Evaluate, true, false},
};

}  // namespace

// The caption is shown as it stands, so after the default action the answer says
// "calculate" in small letters. Any other caption gets no answer at all.
void Window1::help(const QString& t, Input input) {
  const QString cap = BevelButton1->Caption();
  const HelpRow* row = nullptr;
  for (const HelpRow& candidate : kHelpRows) {
    if (platform::StrEq(cap, QString::fromLatin1(candidate.caption))) {
      row = &candidate;
      break;
    }
  }
  if (!row) return;

  // helpAction is the one body without placeit; it goes in front of it here.
  const QString lead = row->body == TextKey::helpAction ? placeit : QString();
  const QString body = guidance::text(row->body);
  const QString answer = t + " (Caption " + cap + "): " + lead + body;
  // The body ends in its own line ending, so nothing more is added to the log.
  const auto appendToLog = [&] {
    EditField2->AppendText("Help(Caption:" + cap + "):" + lead + platform::EndOfLine() + body);
  };

  platform::Clipboard clip(desktop());
  const bool dropped = input == Input::Dropped;
  if (row->order == Order::Evaluate) {
    clip.setText(answer);
    clip.Close();
    appendToLog();
    clip.Close();
  } else {
    if (dropped && row->blinkFirst) blink();
    clip.setText(answer);
    if (row->logged) {
      appendToLog();
      // Calculate and Convert blink twice when dropped; the second adds nothing.
      if (dropped) blink();
    }
    clip.Close();
  }
  desktop().beep();
}

}  // namespace app
