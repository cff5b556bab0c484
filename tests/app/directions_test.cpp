// The right tab panel steering the selector, and "More Instructions".

#include "guidance/texts.h"
#include "workbench/workbench_fixture.h"

namespace {

using guidance::TextKey;
using testsupport::WorkbenchFixture;

class TabCoupling : public WorkbenchFixture {
 protected:
  // The full window, with a caption the tabs are not going to leave in place by chance.
  void expand() {
    choose("Astro Data");
    window->ImageWell1->userClick();
    ASSERT_EQ(window->wincon, 1);
    newLogLines();
  }
};

TEST_F(TabCoupling, ClickOnATabChoosesItsEntry) {
  struct Row {
    const char* name;
    int tab;
    QString caption;
    int menuValue;
    QString tabsLine;
    int left;
  };
  const Row rows[] = {
      {"Welcome chooses Settings", 0, "Settings", 6, "---Tabs set to Instructions and Welcome", 0},
      {"Calculate", 1, "Calculate", 0, "---Tabs set to Directions and Calculate", 3},
      {"Solve", 2, "Solve", 2, "---Tabs set to Directions and Solve", 3},
      {"Convert", 3, "Convert", 1, "---Tabs set to Directions and Convert", 3},
      {"Search chooses Physical Data, never Astro Data", 4, "Physical Data", 3,
       "---Tabs set to Directions and Search(physical)", 3},
  };
  start();
  expand();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    // From another tab, so that the click changes the tab.
    window->TabPanel2->setValue(row.tab == 1 ? 2 : 1);
    window->PagePanel1->setValue(1);
    newLogLines();
    window->TabPanel2->userChoose(row.tab);
    EXPECT_EQ(window->BevelButton1->Caption(), row.caption);
    EXPECT_EQ(window->BevelButton1->MenuValue(), row.menuValue);
    EXPECT_EQ(newLogLines(),
              (QStringList{">>Tab " + QString::number(row.tab) + " chosen", row.tabsLine}));
    EXPECT_EQ(window->TabPanel2->Value(), row.tab);
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    if (row.tab == 4) {
      EXPECT_EQ(window->PagePanel1->Value(), 0);
    }
    EXPECT_EQ(window->tabclk, 0);
  }
}

TEST_F(TabCoupling, ProgramsOwnTabChangeMovesNothing) {
  start();
  expand();
  window->TabPanel2->setValue(2);
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_EQ(window->BevelButton1->Caption(), "Astro Data");
}

TEST_F(TabCoupling, PressThatChangesNoTabCountsForTheNextChange) {
  start();
  expand();
  window->TabPanel2->setValue(1);
  newLogLines();
  window->TabPanel2->userChoose(1);  // already shown: no change
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_NE(window->tabclk, 0);
  window->TabPanel2->setValue(2);
  EXPECT_EQ(newLogLines(), (QStringList{">>Tab 2 chosen", "---Tabs set to Directions and Solve"}));
  EXPECT_EQ(window->BevelButton1->Caption(), "Solve");
}

TEST_F(TabCoupling, FormulaListFollowsTheCaptionOnEveryTabChange) {
  start();
  window->BevelButton1->setCaption("Evaluate");
  window->TabPanel2->setValue(1);
  EXPECT_TRUE(window->Listbox3->Visible());
  EXPECT_TRUE(window->PushButton46->Visible());
  EXPECT_FALSE(window->PushButton34->Enabled());
  window->BevelButton1->setCaption("Calculate");
  window->TabPanel2->setValue(2);
  EXPECT_FALSE(window->Listbox3->Visible());
  EXPECT_TRUE(window->PushButton34->Enabled());
}

TEST_F(TabCoupling, MoreInstructionsTwice) {
  start();
  choose("Solve");
  const QString directions = guidance::text(TextKey::dirSolve);
  const QString note = guidance::text(TextKey::dirMoreNote);
  newLogLines();
  window->PushButton43->userClick();
  window->PushButton43->userClick();
  EXPECT_EQ(window->EditField10->Text(), note + "\n" + note + "\n" + directions);
  const QString answer = "? (Caption Solve): " + guidance::text(TextKey::helpSolve);
  EXPECT_EQ(desktop.clipboardText(), answer);
  EXPECT_EQ(window->TextArea8->Text(), answer);
  // Solve's help writes nothing to the log.
  EXPECT_TRUE(newLogLines().isEmpty());
  EXPECT_EQ(events(), (QStringList{"beep", "beep"}));
}

TEST_F(TabCoupling, MoreInstructionsUnderEvaluateLogsTheHelp) {
  start();
  choose("Evaluate");
  newLogLines();
  window->PushButton43->Push();
  EXPECT_TRUE(window->TextArea8->Text().startsWith("? (Caption Evaluate): 'Evaluate' is similar"));
  EXPECT_EQ(newLogLines().value(0), "Help(Caption:Evaluate):");
}

}  // namespace
