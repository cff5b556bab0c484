// The action selector and the window's modes: what a choice does to the caption, the
// directions, the size and the tabs; the target's tabs by caption; the right tab panel
// steering the selector.

#include <optional>

#include "guidance/directions.h"
#include "guidance/texts.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using guidance::TextKey;

class Selector : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    launch();
  }
  // A user's choice on the selector's menu, by entry text.
  void choose(const QString& entry) {
    window->BevelButton1->userChoose(static_cast<int>(window->BevelButton1->Rows().indexOf(entry)));
  }
};

TEST_F(Selector, ChoiceInTheSmallWindow) {
  struct Row {
    const char* name;
    QString entry;
    bool useClipboard;
    QStringList logged;
    int width, left, right;  // TabPanel1, TabPanel2 Value
    TextKey directions;
  };
  const QString tabs = "---Tabs set to Directions and ";
  const Row rows[] = {
      {"Convert opens and sets its tabs twice", "Convert", false,
       {">>>Convert", "--Expanded Window Mode", tabs + "Convert", tabs + "Convert"}, 800, 3, 3,
       TextKey::dirConvert},
      {"Physical Data stays small", "Physical Data", false, {">>>Physical Data"}, 64, 0, 0,
       TextKey::dirPhysical},
      {"Astro Data stays small", "Astro Data", false, {">>>Astro Data"}, 64, 0, 0,
       TextKey::dirAstro},
      {"Evaluate stays small", "Evaluate", false, {">>>Evaluate"}, 64, 0, 0, TextKey::dirEvaluate},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    launch();
    window->CheckBox2->setValue(row.useClipboard);
    newLogLines();
    choose(row.entry);
    EXPECT_EQ(window->BevelButton1->Caption(), row.entry);
    EXPECT_EQ(newLogLines(), row.logged);
    EXPECT_EQ(window->Width(), row.width);
    EXPECT_EQ(window->wincon, row.width == 800 ? 1 : 0);
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    EXPECT_EQ(window->TabPanel2->Value(), row.right);
    EXPECT_EQ(window->EditField10->Text(), guidance::text(row.directions));
  }
}

TEST_F(Selector, ChoiceInTheLargeWindowSetsTheTabsOnly) {
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
      {"Evaluate shows the calculator", "Evaluate", "---Tabs set to Directions and Calculate", 3,
       1, -1},
      {"Physical Data, first page", "Physical Data",
       "---Tabs set to Directions and Search(physical)", 3, 4, 0},
  };
  window->ImageWell1->userClick();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->TabPanel1->setValue(1);
    window->TabPanel2->setValue(0);
    window->PagePanel1->setValue(1);
    newLogLines();
    choose(row.entry);
    EXPECT_EQ(newLogLines(), QStringList{row.logged});
    EXPECT_EQ(window->TabPanel1->Value(), row.left);
    EXPECT_EQ(window->TabPanel2->Value(), row.right);
    EXPECT_EQ(row.page >= 0 ? window->PagePanel1->Value() : -1, row.page);
    EXPECT_EQ(window->Width(), 800);
    EXPECT_EQ(window->wincon, 1);
  }
}

TEST(Directions, TextByCaption) {
  struct Row {
    const char* name;
    QString caption;
    std::optional<TextKey> key;  // nothing: the field stays as it is
  };
  const Row rows[] = {
      {"Action has directions of its own", "Action", TextKey::dirAction},
      {"case is ignored", "calculate", TextKey::dirCalculate},
      {"Convert", "CONVERT", TextKey::dirConvert},
      {"Formulas (math) leaves the field", "Formulas (math)", std::nullopt},
      {"Formulas (astro) is an error", "Formulas (astro)", TextKey::dirError},
      {"anything else is an error", "Search", TextKey::dirError},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const std::optional<QString> got = guidance::directionsFor(row.caption);
    ASSERT_EQ(got.has_value(), row.key.has_value());
    EXPECT_EQ(got.value_or(QString()), row.key ? guidance::text(*row.key) : QString());
  }
}

TEST_F(Selector, TheTargetOpensOnTheTabsOfTheCaption) {
  struct Row {
    const char* name;
    QString caption;
    QString logged;  // empty: no tab line
    int left, right, page;
  };
  const Row rows[] = {
      {"calculate", "calculate", "---Tabs set to Directions and Calculate", 3, 1, 2},
      {"convert", "Convert", "---Tabs set to Directions and Convert", 3, 3, 2},
      {"Solve", "Solve", "---Tabs set to Directions and Solve", 3, 2, 2},
      {"Astro Data, in any case", "astro data", "---Tabs set to Directions and Search(Astro Data)",
       3, 4, 1},
      {"Settings leaves the tabs", "Settings", "", 1, 0, 2},
  };
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
  }
}

TEST_F(Selector, ATabClickChoosesItsEntry) {
  struct Row {
    const char* name;
    int tab;
    QString caption;
    int menuValue;
  };
  const Row rows[] = {
      {"Calculate", 1, "Calculate", 0},
      {"Solve", 2, "Solve", 2},
      {"Convert", 3, "Convert", 1},
  };
  choose("Astro Data");
  window->ImageWell1->userClick();
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->TabPanel2->setValue(row.tab == 1 ? 2 : 1);  // from another tab
    newLogLines();
    window->TabPanel2->userChoose(row.tab);
    EXPECT_EQ(window->BevelButton1->Caption(), row.caption);
    EXPECT_EQ(window->BevelButton1->MenuValue(), row.menuValue);
    EXPECT_EQ(newLogLines(), (QStringList{">>Tab " + QString::number(row.tab) + " chosen",
                                          "---Tabs set to Directions and " + row.caption}));
    EXPECT_EQ(window->TabPanel1->Value(), 3);
  }
}

TEST_F(Selector, APressThatChangesNoTabCountsForTheNextChange) {
  window->ImageWell1->userClick();
  window->TabPanel2->setValue(1);
  newLogLines();
  window->TabPanel2->userChoose(1);  // already shown: no change
  EXPECT_TRUE(newLogLines().isEmpty());
  window->TabPanel2->setValue(2);
  EXPECT_EQ(newLogLines(), (QStringList{">>Tab 2 chosen", "---Tabs set to Directions and Solve"}));
  EXPECT_EQ(window->BevelButton1->Caption(), "Solve");
}

TEST_F(Selector, TheFormulaListFollowsTheCaptionOnEveryTabChange) {
  window->BevelButton1->setCaption("Evaluate");
  window->TabPanel2->setValue(1);
  for (const QString name : {"StaticText32", "StaticText33", "PushButton46", "Listbox3"}) {
    EXPECT_TRUE(window->control(name).Visible()) << name.toStdString();
  }
  EXPECT_FALSE(window->PushButton34->Enabled());
  window->BevelButton1->setCaption("Calculate");
  window->TabPanel2->setValue(2);
  EXPECT_FALSE(window->Listbox3->Visible());
  EXPECT_TRUE(window->PushButton34->Enabled());
}

}  // namespace
