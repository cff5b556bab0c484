#include "guidance/directions.h"

#include "app/window1.h"
#include "guidance/texts.h"
#include "platform/desktop/desktop.h"
#include "platform/strings/strings.h"

namespace guidance {

namespace {

struct DirectionsRow {
  const char* caption;
  TextKey key;
};

// "Action" is no entry of the menu, so dirAction never comes up; the tab greets the
// user with the field's creation text instead.
// clang-format off
const DirectionsRow kDirections[] = {
    {"Action", TextKey::dirAction},
    {"Calculate", TextKey::dirCalculate},
    {"Convert", TextKey::dirConvert},
    {"Solve", TextKey::dirSolve},
    {"Physical Data", TextKey::dirPhysical},
    {"Astro Data", TextKey::dirAstro},
    {"Evaluate", TextKey::dirEvaluate},
    {"Settings", TextKey::dirSettings},
};
// clang-format on

}  // namespace

std::optional<QString> directionsFor(const QString& caption) {
  if (platform::StrEq(caption, "Formulas (math)")) return std::nullopt;
  for (const DirectionsRow& row : kDirections) {
    if (platform::StrEq(caption, QString::fromLatin1(row.caption))) return text(row.key);
  }
  return text(TextKey::dirError);
}

}  // namespace guidance

namespace app {

namespace {

// The selector entry a click on each tab of TabPanel2 stands for, by the tab's Value.
// No tab leads to "Astro Data" or "Evaluate".
const int kMenuValueOfTab[] = {
    6,  // "Welcome": "Settings"
    0,  // "Calculate"
    2,  // "Solve"
    1,  // "Convert"
    3,  // "Search": "Physical Data"
};

}  // namespace

// Remembers where the press was, so that the change it brings counts as the user's.
bool Window1::TabPanel2_MouseDown(int x, int /*y*/) {
  tabclk = x;
  return false;
}

// Runs for the program's own changes of tab too; only one after a press (tabclk not
// 0) moves the selector. A press that changed no tab leaves tabclk set, so the next
// change, whoever makes it, counts as pressed.
void Window1::TabPanel2_Change() {
  if (tabclk != 0) {
    const int tab = TabPanel2->Value();
    log(">>Tab " + platform::Str(tab) + " chosen");
    if (tab >= 0 && tab < static_cast<int>(std::size(kMenuValueOfTab))) {
      BevelButton1->setMenuValue(kMenuValueOfTab[tab]);
      bevelact("1");
    }
    tabclk = 0;
  }
  fitCalculatorToCaption();
}

// "More Instructions": the long text of the action to the clipboard, as a dropped "?"
// gives it, and a note on top of the directions saying where it went.
void Window1::PushButton43_Action() {
  ButtonAct("?");
  EditField10->setText(guidance::text(guidance::TextKey::dirMoreNote) + platform::EndOfLine() +
                       EditField10->Text());
  platform::Clipboard clip(desktop());
  if (clip.TextAvailable()) TextArea8->setText(clip.Text());
  clip.Close();
}

}  // namespace app
