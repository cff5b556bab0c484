// The action selector: its menu, and what a choice does to the caption, the directions,
// the window's size and the tabs.

#include "guidance/contact.h"
#include "guidance/directions.h"
#include "guidance/texts.h"
#include "workbench/workbench_fixture.h"

namespace {

using guidance::TextKey;
using testsupport::WorkbenchFixture;

class Selector : public WorkbenchFixture {};

TEST_F(Selector, MenuAndCaptionAtStart) {
  start();
  EXPECT_EQ(window->BevelButton1->Rows(),
            (QStringList{"Calculate", "Convert", "Solve", "Physical Data", "Astro Data", "Evaluate",
                         "Settings"}));
  EXPECT_EQ(window->BevelButton1->Caption(), "Action");
  EXPECT_EQ(window->BevelButton1->HasMenu(), 2);
  EXPECT_EQ(window->BevelButton1->CaptionAlign(), 0);
  EXPECT_EQ(window->EditField10->Text(), guidance::text(TextKey::ctlEditField10));
}

TEST_F(Selector, ChoiceInSmallMode) {
  struct Row {
    const char* name;
    QString entry;
    bool useClipboard;
    QStringList logged;
    int width, height, wincon;
    int left, right;  // TabPanel1, TabPanel2 Value
    bool hints;       // StaticText7 and StaticText27
    TextKey directions;
  };
  const Row rows[] = {
      {"Calculate stays small",
       "Calculate",
       false,
       {">>>Calculate"},
       64,
       96,
       0,
       0,
       0,
       false,
       TextKey::dirCalculate},
      {"Convert opens and sets its tabs twice",
       "Convert",
       false,
       {">>>Convert", "--Expanded Window Mode", "---Tabs set to Directions and Convert",
        "---Tabs set to Directions and Convert"},
       800,
       600,
       1,
       3,
       3,
       false,
       TextKey::dirConvert},
      {"Convert with Use Clipboard stays small for drops",
       "Convert",
       true,
       {">>>Convert"},
       64,
       96,
       0,
       0,
       0,
       false,
       TextKey::dirConvert},
      {"Solve opens and sets its tabs twice",
       "Solve",
       false,
       {">>>Solve", "--Expanded Window Mode", "---Tabs set to Directions and Solve",
        "---Tabs set to Directions and Solve"},
       800,
       600,
       1,
       3,
       2,
       false,
       TextKey::dirSolve},
      {"Physical Data stays small",
       "Physical Data",
       false,
       {">>>Physical Data"},
       64,
       96,
       0,
       0,
       0,
       false,
       TextKey::dirPhysical},
      {"Astro Data stays small",
       "Astro Data",
       false,
       {">>>Astro Data"},
       64,
       96,
       0,
       0,
       0,
       false,
       TextKey::dirAstro},
      {"Evaluate stays small",
       "Evaluate",
       false,
       {">>>Evaluate"},
       64,
       96,
       0,
       0,
       0,
       false,
       TextKey::dirEvaluate},
      {"Settings shows the left panel and both hints, tabs as they were",
       "Settings",
       false,
       {">>>Settings", "--Settings Window Mode", "---Tabs set to Settings and Welcome."},
       350,
       600,
       0,
       0,
       0,
       true,
       TextKey::dirSettings},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    window->CheckBox2->setValue(row.useClipboard);
    newLogLines();
    choose(row.entry);
    EXPECT_EQ(window->BevelButton1->Caption(), row.entry);
    EXPECT_EQ(newLogLines(), row.logged);
    EXPECT_EQ(window->Width(), row.width);
    EXPECT_EQ(window->Height(), row.height);
    EXPECT_EQ(window->wincon, row.wincon);
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    EXPECT_EQ(window->TabPanel2->Value(), row.right);
    EXPECT_EQ(window->StaticText7->Visible(), row.hints);
    EXPECT_EQ(window->StaticText27->Visible(), row.hints);
    EXPECT_EQ(window->EditField10->Text(), guidance::text(row.directions));
    program.reset();
  }
}

TEST_F(Selector, SettingsThenAnotherChoiceShrinksAndHidesTheHints) {
  start();
  choose("Settings");
  EXPECT_EQ(window->TabPanel1->TabIndex(), 0);
  newLogLines();
  choose("Calculate");
  EXPECT_EQ(newLogLines(), QStringList{">>>Calculate"});
  EXPECT_EQ(window->Width(), 64);
  EXPECT_EQ(window->Height(), 96);
  EXPECT_FALSE(window->StaticText7->Visible());
  EXPECT_FALSE(window->StaticText27->Visible());
}

TEST_F(Selector, ChoiceInLargeModeSetsTheTabsOnly) {
  struct Row {
    const char* name;
    QString entry;
    QString logged;
    int left, right;
    int page;  // -1: not looked at
  };
  const Row rows[] = {
      {"Calculate", "Calculate", "---Tabs set to Directions and Calculate", 3, 1, -1},
      {"Convert", "Convert", "---Tabs set to Directions and Convert", 3, 3, -1},
      {"Solve", "Solve", "---Tabs set to Directions and Solve", 3, 2, -1},
      {"Evaluate shows the calculator", "Evaluate", "---Tabs set to Directions and Calculate", 3, 1,
       -1},
      {"Settings shows the settings by Value", "Settings",
       "---Tabs set to Instructions and Welcome", 0, 0, -1},
      {"Physical Data, first page", "Physical Data",
       "---Tabs set to Directions and Search(physical)", 3, 4, 0},
      {"Astro Data, second page", "Astro Data", "---Tabs set to Directions and Search(Astro)", 3, 4,
       1},
  };
  start();
  window->ImageWell1->userClick();
  ASSERT_EQ(window->wincon, 1);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->TabPanel1->setValue(1);
    window->TabPanel2->setValue(0);
    newLogLines();
    choose(row.entry);
    EXPECT_EQ(newLogLines(), QStringList{row.logged});
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    EXPECT_EQ(window->TabPanel2->Value(), row.right);
    if (row.page >= 0) {
      EXPECT_EQ(window->PagePanel1->Value(), row.page);
    }
    EXPECT_EQ(window->Width(), 800);
    EXPECT_EQ(window->Height(), 600);
    EXPECT_EQ(window->wincon, 1);
  }
}

TEST_F(Selector, ChoiceStartsAgainFromTheMenuAfterTheCaptionWasWritten) {
  start();
  window->ButtonAct("1+1");
  ASSERT_EQ(window->BevelButton1->Caption(), "calculate");
  newLogLines();
  choose("Physical Data");
  EXPECT_EQ(window->BevelButton1->Caption(), "Physical Data");
  EXPECT_EQ(window->BevelButton1->MenuValue(), 3);
  EXPECT_EQ(newLogLines(), QStringList{">>>Physical Data"});
}

TEST_F(Selector, CaptionsWithoutDirectionsOfTheirOwn) {
  start();
  // Entries no menu of the program holds: only a changed menu can reach them.
  window->BevelButton1->setRows({"Formulas (phys)", "Formulas (math)"});
  choose("Formulas (phys)");
  const QString error = guidance::text(TextKey::dirError);
  EXPECT_EQ(window->EditField10->Text(), error);
  EXPECT_TRUE(error.contains(guidance::kSupportMailAddress));
  EXPECT_TRUE(
      error.endsWith(QString(guidance::kSupportMailAddress) + ". Please iattach the Log File."));

  window->EditField10->setText("as it was");
  choose("Formulas (math)");
  EXPECT_EQ(window->EditField10->Text(), "as it was");
}

TEST(Directions, TextByCaption) {
  struct Row {
    const char* name;
    QString caption;
    std::optional<TextKey> key;  // nullopt: the field stays as it is
  };
  const Row rows[] = {
      {"Action has directions of its own", "Action", TextKey::dirAction},
      {"case is ignored", "calculate", TextKey::dirCalculate},
      {"Convert", "CONVERT", TextKey::dirConvert},
      {"Solve", "Solve", TextKey::dirSolve},
      {"Physical Data", "Physical Data", TextKey::dirPhysical},
      {"Astro Data", "Astro Data", TextKey::dirAstro},
      {"Evaluate", "Evaluate", TextKey::dirEvaluate},
      {"Settings", "Settings", TextKey::dirSettings},
      {"Formulas (math) leaves the field", "Formulas (math)", std::nullopt},
      {"Formulas (astro) is an error", "Formulas (astro)", TextKey::dirError},
      {"anything else is an error", "Search", TextKey::dirError},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::optional<QString> got = guidance::directionsFor(row.caption);
    ASSERT_EQ(got.has_value(), row.key.has_value());
    if (row.key) {
      EXPECT_EQ(*got, guidance::text(*row.key));
    }
  }
}

}  // namespace
