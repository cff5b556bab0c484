#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <optional>
#include <vector>

#include "guidance/texts.h"
#include "guidance/window2.h"
#include "support/app_fixture.h"

// Readable failures for Qt's strings.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& lines, std::ostream* out) {
  *out << '{';
  for (const QString& line : lines) *out << " \"" << line.toStdString() << '"';
  *out << " }";
}

namespace {

using guidance::TextKey;

const QString kFinishedNote =
    "msgbox To recall this window hold down the SHIFT key while launching Abacon";

class IntroTest : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    // Stand-ins for the two pictures: only their names and presence matter here.
    resources = home.path() + "/Resources";
    writeFile("Resources/fullwindow1.jpg", "1");
    writeFile("Resources/fullwindow2.jpg", "2");
    platform::SpecialFolder::setResources(resources);
  }

  // A launch as the driver makes it, without assuming where it ends.
  app::Window2& start() {
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    intro = program->window2();
    window = program->window1();
    return *intro;
  }

  void makePreferencesFolder() { QDir().mkpath(home.path() + "/Preferences"); }
  void writeMarker() { writeFile("Preferences/VXKInstr", "do not show"); }
  bool markerExists() const { return QFileInfo::exists(home.path() + "/Preferences/VXKInstr"); }

  QString introText() const { return intro->StaticText1->Text(); }

  QString resources;
  app::Window2* intro = nullptr;
};

TEST_F(IntroTest, FirstLaunchShowsTheIntroductionAndNoMainWindowYet) {
  makePreferencesFolder();
  start();
  ASSERT_NE(intro, nullptr);
  EXPECT_TRUE(intro->Visible());
  EXPECT_FALSE(intro->isClosed());
  EXPECT_EQ(intro->Title(), "Abacon Intro.");
  EXPECT_EQ(introText(), guidance::text(TextKey::introStart));
  EXPECT_EQ(intro->ImageWell1->Image(), "fullwindow2");
  EXPECT_TRUE(intro->PushButton1->Visible());
  EXPECT_EQ(intro->PushButton1->Caption(), "Finished");
  EXPECT_EQ(intro->PushButton2->Caption(), "Continue");
  EXPECT_TRUE(intro->PushButton2->Default());
  // Window1 is made only at its first Show, after the decision.
  EXPECT_EQ(program->window1(), nullptr);
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
}

TEST_F(IntroTest, ContinueOpensTheMainWindowAndLeavesNoMarker) {
  makePreferencesFolder();
  start();
  intro->PushButton2->userClick();
  EXPECT_TRUE(intro->isClosed());
  EXPECT_FALSE(intro->Visible());
  ASSERT_NE(program->window1(), nullptr);
  EXPECT_TRUE(program->window1()->Visible());
  EXPECT_TRUE(program->window1()->EditField2->Text().contains("Startup: Date "));
  EXPECT_FALSE(markerExists());
}

// A desktop that notes, when the note of "Finished" comes up, whether the marker is
// already there.
class MarkerWatchingDesktop : public platform::RecordingDesktop {
 public:
  explicit MarkerWatchingDesktop(QString markerPath) : markerPath_(std::move(markerPath)) {}
  void msgBox(const QString& text) override {
    if (!markerAtNote) markerAtNote = QFileInfo::exists(markerPath_);
    RecordingDesktop::msgBox(text);
  }
  std::optional<bool> markerAtNote;

 private:
  QString markerPath_;
};

TEST_F(IntroTest, FinishedShowsItsNoteThenWritesTheMarkerAndGoesOn) {
  makePreferencesFolder();
  MarkerWatchingDesktop watching(home.path() + "/Preferences/VXKInstr");
  app::App own(watching);
  own._Startup();
  own.window2()->PushButton1->userClick();

  ASSERT_TRUE(watching.markerAtNote.has_value());
  EXPECT_FALSE(*watching.markerAtNote);
  EXPECT_EQ(watching.takeEvents().value(0), kFinishedNote);
  EXPECT_EQ(readFile("Preferences/VXKInstr"), "do not show");
  EXPECT_TRUE(own.window2()->isClosed());
  ASSERT_NE(own.window1(), nullptr);
  EXPECT_TRUE(own.window1()->Visible());
}

TEST_F(IntroTest, AfterFinishedThePlainLaunchSkipsTheIntroduction) {
  makePreferencesFolder();
  start().PushButton1->userClick();
  program.reset();
  desktop.takeEvents();

  start();
  EXPECT_TRUE(intro->isClosed());
  EXPECT_FALSE(intro->Visible());
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(window->Visible());
  EXPECT_FALSE(desktop.takeEvents().contains(kFinishedNote));
}

TEST_F(IntroTest, ShiftAtLaunchShowsTheIntroductionWithoutFinished) {
  struct Row {
    const char* name;
    bool marker;
  };
  const Row rows[] = {
      {"no marker yet", false},
      {"marker left by an earlier Finished", true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    QFile::remove(home.path() + "/Preferences/VXKInstr");
    makePreferencesFolder();
    if (row.marker) writeMarker();
    desktop.setShiftKey(true);
    start();
    desktop.setShiftKey(false);
    EXPECT_TRUE(intro->Visible());
    EXPECT_FALSE(intro->isClosed());
    EXPECT_FALSE(intro->PushButton1->Visible());
    EXPECT_TRUE(intro->PushButton2->Visible());
    EXPECT_EQ(program->window1(), nullptr);
    EXPECT_EQ(markerExists(), row.marker);

    intro->PushButton2->userClick();
    EXPECT_NE(program->window1(), nullptr);
    EXPECT_EQ(markerExists(), row.marker);
    program.reset();
  }
}

TEST_F(IntroTest, FinishedWithoutAPreferencesFolderShowsItsNoteAndStays) {
  start();  // the home has no Preferences folder: the marker cannot be looked up
  intro->PushButton1->userClick();
  EXPECT_EQ(desktop.takeEvents(), QStringList{kFinishedNote});
  EXPECT_FALSE(intro->isClosed());
  EXPECT_TRUE(intro->Visible());
  EXPECT_EQ(program->window1(), nullptr);
}

struct Press {
  int x, y;
};

TEST_F(IntroTest, PlainClicksToggleThePictureOnlyOnTheTarget) {
  struct Row {
    const char* name;
    std::vector<Press> presses;
    QString image;
    TextKey text;
  };
  const Row rows[] = {
      {"the target shows the first picture", {{20, 60}}, "fullwindow1", TextKey::introHintA},
      {"a second click on it shows the second again", {{20, 60}, {20, 60}}, "fullwindow2",
       TextKey::introWelcome},
      {"54, 46 is still the target", {{54, 46}}, "fullwindow1", TextKey::introHintA},
      {"x 55 is beside it", {{55, 60}}, "fullwindow2", TextKey::introHintB},
      {"y 45 is above it", {{20, 45}}, "fullwindow2", TextKey::introHintB},
      {"y 92 is below it", {{20, 92}}, "fullwindow2", TextKey::introHintB},
      {"y 91 is on it", {{0, 91}}, "fullwindow1", TextKey::introHintA},
      {"elsewhere while the first shows keeps the picture", {{20, 60}, {300, 300}},
       "fullwindow1", TextKey::introHintB},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    for (const Press& press : row.presses) {
      EXPECT_FALSE(intro->ImageWell1->MouseDown(press.x, press.y));
    }
    EXPECT_EQ(intro->ImageWell1->Image(), row.image);
    EXPECT_EQ(introText(), guidance::text(row.text));
    program.reset();
  }
}

TEST_F(IntroTest, ShiftClicksExplainThePartsOfThePicture) {
  struct Row {
    const char* name;
    Press press;
    std::optional<TextKey> text;  // nothing: the text stays as it was
  };
  const Row rows[] = {
      {"the selector", {10, 10}, TextKey::introAction},
      {"the selector's far corner", {51, 32}, TextKey::introAction},
      {"the target from y 33", {10, 33}, TextKey::introTarget},
      {"the target's last row", {10, 94}, TextKey::introTarget},
      {"below the target", {10, 95}, std::nullopt},
      {"54, 46 is no part with shift", {54, 46}, std::nullopt},
      {"x 52 is beside the selector", {52, 10}, std::nullopt},
      {"the Settings tab", {83, 40}, TextKey::introTabSettings},
      {"x 82 is before the Settings tab", {82, 40}, std::nullopt},
      {"135 is the Help tab, not Settings", {135, 40}, TextKey::introTabHelp},
      {"179 is still Help", {179, 40}, TextKey::introTabHelp},
      {"the Log tab", {180, 40}, TextKey::introTabLog},
      {"the Directions tab", {215, 40}, TextKey::introTabDirections},
      {"the Welcome tab", {281, 40}, TextKey::introTabWelcome},
      {"the Calculate tab", {365, 40}, TextKey::introTabCalculate},
      {"the Solve tab", {430, 40}, TextKey::introTabSolve},
      {"the Convert tab", {477, 40}, TextKey::introTabConvert},
      {"the Search tab", {541, 40}, TextKey::introTabSearch},
      {"590 is the end of the Search tab", {590, 40}, TextKey::introTabSearch},
      {"591 is past the tabs", {591, 40}, std::nullopt},
      {"y 28 is above the tabs", {300, 28}, std::nullopt},
      {"y 50 is below the tabs", {300, 50}, std::nullopt},
      {"the mail button", {500, 140}, TextKey::introEmail},
      {"x 469 is before the mail button", {469, 140}, std::nullopt},
      {"the Back button", {30, 465}, TextKey::introBack},
      {"the More Instructions button", {200, 460}, TextKey::introDirections},
      {"the Reset button", {530, 470}, TextKey::introReset},
      {"y 477 is below Reset", {530, 477}, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    desktop.setShiftKey(true);
    EXPECT_FALSE(intro->ImageWell1->MouseDown(row.press.x, row.press.y));
    desktop.setShiftKey(false);
    EXPECT_EQ(introText(), guidance::text(row.text.value_or(TextKey::introStart)));
    // A shift-click explains; it never turns the picture.
    EXPECT_EQ(intro->ImageWell1->Image(), "fullwindow2");
    program.reset();
  }
}

TEST_F(IntroTest, ShiftClicksExplainTheSameOnTheFirstPicture) {
  start();
  intro->ImageWell1->MouseDown(20, 60);
  desktop.setShiftKey(true);
  intro->ImageWell1->MouseDown(135, 40);
  EXPECT_EQ(intro->ImageWell1->Image(), "fullwindow1");
  EXPECT_EQ(introText(), guidance::text(TextKey::introTabHelp));
}

TEST_F(IntroTest, LeavingThePictureEndsTheExplanation) {
  start();
  desktop.setShiftKey(true);
  intro->ImageWell1->userPress(135, 40);
  EXPECT_EQ(introText(), guidance::text(TextKey::introTabHelp));
  intro->ImageWell1->userLeave();
  EXPECT_EQ(introText(), guidance::text(TextKey::introWelcome));

  desktop.setShiftKey(false);
  intro->ImageWell1->userPress(20, 60);
  intro->ImageWell1->userLeave();
  EXPECT_EQ(introText(), guidance::text(TextKey::introHintC));
}

TEST_F(IntroTest, WithoutThePicturesTheTargetAlwaysTakesTheFirstBranch) {
  // Two missing pictures compare equal, as Nil pictures do.
  platform::SpecialFolder::setResources(home.path() + "/NoResources");
  start();
  EXPECT_EQ(intro->ImageWell1->Image(), "");
  for (int round = 0; round < 2; ++round) {
    SCOPED_TRACE(round);
    intro->ImageWell1->MouseDown(20, 60);
    EXPECT_EQ(introText(), guidance::text(TextKey::introHintA));
  }
  intro->ImageWell1->MouseExit();
  EXPECT_EQ(introText(), guidance::text(TextKey::introWelcome));
}

}  // namespace
