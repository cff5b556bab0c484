#include "app/window1.h"
#include "guidance/directions.h"
#include "platform/strings/strings.h"

namespace app {

using platform::StrEq;

namespace {

// What a choice does to the tabs once the window counts as expanded. The first row
// whose caption matches wins.
struct TabsRow {
  const char* caption;
  int left;   // TabPanel1
  int right;  // TabPanel2, left alone when the choice came from a tab
  int page;   // PagePanel1; -1 leaves it alone
  const char* logged;
};

const TabsRow kTabsRows[] = {
    {"Calculate", 3, 1, -1, "---Tabs set to Directions and Calculate"},
    {"Convert", 3, 3, -1, "---Tabs set to Directions and Convert"},
    {"Solve", 3, 2, -1, "---Tabs set to Directions and Solve"},
    {"Evaluate", 3, 1, -1, "---Tabs set to Directions and Calculate"},
    {"Settings", 0, 0, -1, "---Tabs set to Instructions and Welcome"},
    {"Physical Data", 3, 4, 0, "---Tabs set to Directions and Search(physical)"},
    {"Astro Data", 3, 4, 1, "---Tabs set to Directions and Search(Astro)"},
};

}  // namespace

void Window1::BevelButton1_Open() {
  BevelButton1->setCaption("Action");
  BevelButton1->setCaptionAlign(0);
  BevelButton1->setHasMenu(2);
  const QString entries =
      QStringLiteral("Calculate,Convert,Solve,Physical Data,Astro Data,Evaluate,Settings");
  const int n = platform::CountFields(entries, ",");
  for (int i = 1; i <= n; ++i) BevelButton1->AddRow(platform::NthField(entries, ",", i));
}

void Window1::BevelButton1_Action() { bevelact("0"); }

// The caption follows the menu again here, whatever ButtonAct or a solver wrote into it
// meanwhile.
void Window1::bevelact(const QString& source) {
  const bool fromMenu = source == QLatin1String("0");
  const QString cap = BevelButton1->List(BevelButton1->MenuValue());
  BevelButton1->setCaption(cap);

  if (const std::optional<QString> directions = guidance::directionsFor(cap)) {
    EditField10->setText(*directions);
  }

  if (wincon == 0) {
    const bool settings = StrEq(cap, "Settings");
    StaticText27->setVisible(settings);
    StaticText7->setVisible(settings);

    if (settings) {
      log(">>>" + cap);
      log("--Settings Window Mode");
      log("---Tabs set to Settings and Welcome.");
      // TabIndex is the keyboard order, not the tab shown: both panels stay where they
      // are, whatever the line above says.
      TabPanel1->setTabIndex(0);
      if (fromMenu) TabPanel2->setTabIndex(0);
      setWidth(350);
      setHeight(600);
    } else if (StrEq(cap, "Convert") && !CheckBox2->Value()) {
      log(">>>" + cap);
      log("--Expanded Window Mode");
      TabPanel1->setValue(3);
      if (fromMenu) TabPanel2->setValue(3);
      log("---Tabs set to Directions and Convert");
      wincon = 1;
      setWidth(800);
      setHeight(600);
    } else if (StrEq(cap, "Solve")) {
      log(">>>" + cap);
      log("--Expanded Window Mode");
      TabPanel1->setValue(3);
      if (fromMenu) TabPanel2->setValue(2);
      log("---Tabs set to Directions and Solve");
      wincon = 1;
      setWidth(800);
      setHeight(600);
    } else {
      log(">>>" + cap);
      setWidth(64);
      setHeight(96);
    }
  }

  // wincon is read afresh: a window just expanded above sets its tabs a second time,
  // and its "---Tabs set to" line stands twice in the log.
  if (wincon == 0) return;
  for (const TabsRow& row : kTabsRows) {
    if (!StrEq(cap, QString::fromLatin1(row.caption))) continue;
    TabPanel1->setValue(row.left);
    if (fromMenu) TabPanel2->setValue(row.right);
    if (row.page >= 0) PagePanel1->setValue(row.page);
    log(QString::fromLatin1(row.logged));
    break;
  }
}

}  // namespace app
