// The target as a toggle between the small window and the full one, and "Back".

#include "workbench/workbench_fixture.h"

namespace {

using testsupport::WorkbenchFixture;

class WindowModes : public WorkbenchFixture {};

TEST_F(WindowModes, TargetClickOpensAndClosesTheWindow) {
  start();
  window->TabPanel1->setValue(2);
  window->ImageWell1->userClick();
  // "Action" has no tabs of its own: they stay as they stood.
  EXPECT_EQ(newLogLines(), QStringList{"--Expanded Window Mode"});
  EXPECT_EQ(window->wincon, 1);
  EXPECT_EQ(window->Width(), 800);
  EXPECT_EQ(window->Height(), 600);
  EXPECT_EQ(window->TabPanel1->Value(), 2);

  window->ImageWell1->userClick();
  EXPECT_EQ(newLogLines(), QStringList{"--Back to Normal Window Mode"});
  EXPECT_EQ(window->wincon, 0);
  EXPECT_EQ(window->Width(), 64);
  EXPECT_EQ(window->Height(), 96);
  EXPECT_EQ(window->TabPanel1->Value(), 2);
}

TEST_F(WindowModes, TabsByCaptionOnExpanding) {
  struct Row {
    const char* name;
    QString caption;
    QString logged;  // empty: no tab line
    int left, right, page;
    bool formulaList;
  };
  const Row rows[] = {
      {"calculate", "calculate", "---Tabs set to Directions and Calculate", 3, 1, 2, false},
      {"convert", "Convert", "---Tabs set to Directions and Convert", 3, 3, 2, false},
      {"Evaluate has words of its own", "Evaluate",
       "---Tabs set to Directions and Convert/Evaluate", 3, 1, 2, true},
      {"Solve", "Solve", "---Tabs set to Directions and Solve", 3, 2, 2, false},
      {"Physical Data", "Physical Data", "---Tabs set to Directions and Search(Physical Data)", 3,
       4, 0, false},
      {"Astro Data", "astro data", "---Tabs set to Directions and Search(Astro Data)", 3, 4, 1,
       false},
      {"Settings leaves the tabs", "Settings", "", 1, 0, 2, false},
  };
  start();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->PushButton2->Push();
    window->TabPanel1->setValue(1);
    window->TabPanel2->setValue(0);
    window->PagePanel1->setValue(2);
    window->BevelButton1->setCaption(row.caption);
    newLogLines();
    window->ImageWell1->userClick();
    QStringList expected{"--Expanded Window Mode"};
    if (!row.logged.isEmpty()) expected << row.logged;
    EXPECT_EQ(newLogLines(), expected);
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    EXPECT_EQ(window->TabPanel2->Value(), row.right);
    EXPECT_EQ(window->PagePanel1->Value(), row.page);
    for (const QString name : {"StaticText32", "StaticText33", "PushButton46", "Listbox3"}) {
      const platform::Control* c = &window->control(name);
      EXPECT_EQ(c->Visible(), row.formulaList) << c->Name().toStdString();
    }
    EXPECT_EQ(window->PushButton34->Enabled(), !row.formulaList);
  }
}

TEST_F(WindowModes, TargetClickInSettingsModeKeepsTheHints) {
  start();
  choose("Settings");
  ASSERT_EQ(window->Width(), 350);
  newLogLines();
  window->ImageWell1->userClick();
  EXPECT_EQ(window->wincon, 1);
  EXPECT_EQ(window->Width(), 800);
  EXPECT_EQ(window->Height(), 600);
  EXPECT_TRUE(window->StaticText7->Visible());
  EXPECT_TRUE(window->StaticText27->Visible());
  EXPECT_EQ(newLogLines(), QStringList{"--Expanded Window Mode"});
}

TEST_F(WindowModes, BackFromSettingsModeSaysNormalMode) {
  start();
  choose("Settings");
  newLogLines();
  window->PushButton2->userClick();
  EXPECT_EQ(newLogLines(), QStringList{"--Back to Normal Window Mode"});
  EXPECT_EQ(window->wincon, 0);
  EXPECT_EQ(window->Width(), 64);
  EXPECT_EQ(window->Height(), 96);
}

}  // namespace
