#include "app/window1.h"
#include "platform/strings/strings.h"

namespace app {

namespace {

// The tabs a click on the target opens to, by caption. The words of the log lines are
// this click's own; the selector writes other words for some of the same moves.
struct ExpandRow {
  const char* caption;
  int left;   // TabPanel1
  int right;  // TabPanel2
  int page;   // PagePanel1; -1 leaves it alone
  const char* logged;
};

const ExpandRow kExpandRows[] = {
    {"calculate", 3, 1, -1, "---Tabs set to Directions and Calculate"},
    {"convert", 3, 3, -1, "---Tabs set to Directions and Convert"},
    {"Evaluate", 3, 1, -1, "---Tabs set to Directions and Convert/Evaluate"},
    {"Solve", 3, 2, -1, "---Tabs set to Directions and Solve"},
    {"Physical Data", 3, 4, 0, "---Tabs set to Directions and Search(Physical Data)"},
    {"Astro Data", 3, 4, 1, "---Tabs set to Directions and Search(Astro Data)"},
};

}  // namespace

// The target is a toggle between the small window and the full one. The settings size
// counts as small here, so a click there opens the full window.
bool Window1::ImageWell1_MouseDown(int /*x*/, int /*y*/) {
  if (wincon != 0) {
    PushButton2->Push();
    return false;
  }
  wincon = 1;
  setWidth(800);
  setHeight(600);
  log("--Expanded Window Mode");

  const QString caption = BevelButton1->Caption();
  for (const ExpandRow& row : kExpandRows) {
    if (!platform::StrEq(caption, QString::fromLatin1(row.caption))) continue;
    TabPanel1->setValue(row.left);
    TabPanel2->setValue(row.right);
    if (row.page >= 0) PagePanel1->setValue(row.page);
    log(QString::fromLatin1(row.logged));
    break;
  }
  // "Action" and "Settings" open on the tabs as they stood.

  fitCalculatorToCaption();
  return false;
}

// Only the size and wincon go back; tabs and calculator stay for the next expansion.
void Window1::PushButton2_Action() {
  wincon = 0;
  setWidth(64);
  setHeight(96);
  log("--Back to Normal Window Mode");
}

void Window1::fitCalculatorToCaption() {
  const bool evaluate = platform::StrEq(BevelButton1->Caption(), "Evaluate");
  StaticText32->setVisible(evaluate);
  StaticText33->setVisible(evaluate);
  PushButton46->setVisible(evaluate);
  Listbox3->setVisible(evaluate);
  PushButton34->setEnabled(!evaluate);
}

}  // namespace app
