// The introduction window: the order of "Finished", and where on the picture a click
// toggles it or explains a part.

#include <QFileInfo>
#include <optional>

#include "guidance/texts.h"
#include "guidance/window2.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using guidance::TextKey;

const QString kFinishedNote =
    "msgbox To recall this window hold down the SHIFT key while launching Abacon";

class Intro : public testsupport::AppFixture {
 protected:
  // A launch that stops at the introduction; the marker is not written for it.
  app::Window2& start() {
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    return *program->window2();
  }
  QString introText() const { return program->window2()->StaticText1->Text(); }
};

// Notes, when the note of "Finished" comes up, whether the marker is already there.
class MarkerWatchingDesktop : public platform::RecordingDesktop {
 public:
  void msgBox(const QString& text) override {
    if (!markerAtNote) markerAtNote = QFileInfo::exists(markerPath);
    RecordingDesktop::msgBox(text);
  }
  QString markerPath;
  std::optional<bool> markerAtNote;
};

TEST_F(Intro, FinishedShowsItsNoteBeforeItWritesTheMarker) {
  QDir().mkpath(home.path() + "/Preferences");
  MarkerWatchingDesktop watching;
  watching.markerPath = home.path() + "/Preferences/VXKInstr";
  app::App own(watching);
  own._Startup();
  own.window2()->PushButton1->userClick();
  EXPECT_EQ(watching.markerAtNote, std::optional<bool>(false));
  EXPECT_EQ(watching.takeEvents().value(0), kFinishedNote);
  EXPECT_EQ(readFile("Preferences/VXKInstr"), "do not show");
  ASSERT_NE(own.window1(), nullptr);
  EXPECT_TRUE(own.window1()->Visible());
}

TEST_F(Intro, FinishedWithoutAPreferencesFolderShowsItsNoteAndStays) {
  app::Window2& intro = start();  // no Preferences folder: the marker cannot be looked up
  intro.PushButton1->userClick();
  EXPECT_EQ(desktop.takeEvents(), QStringList{kFinishedNote});
  EXPECT_TRUE(intro.Visible());
  EXPECT_EQ(program->window1(), nullptr);
}

TEST_F(Intro, PlainClicksToggleThePictureOnlyOnTheTarget) {
  struct Row {
    const char* name;
    int x, y;
    QString image;
    TextKey text;
  };
  const Row rows[] = {
      {"x 55 is beside the target", 55, 60, "fullwindow2", TextKey::introHintB},
      {"y 45 is above it", 20, 45, "fullwindow2", TextKey::introHintB},
      {"y 92 is below it", 20, 92, "fullwindow2", TextKey::introHintB},
      {"0, 91 is on it", 0, 91, "fullwindow1", TextKey::introHintA},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_FALSE(start().ImageWell1->MouseDown(row.x, row.y));
    EXPECT_EQ(program->window2()->ImageWell1->Image(), row.image);
    EXPECT_EQ(introText(), guidance::text(row.text));
  }
}

TEST_F(Intro, ShiftClicksExplainThePartsOfThePicture) {
  struct Row {
    const char* name;
    int x, y;
    std::optional<TextKey> text;  // nothing: the text stays as it was
  };
  const Row rows[] = {
      {"the selector", 10, 10, TextKey::introAction},
      {"the selector's far corner", 51, 32, TextKey::introAction},
      {"x 52 is beside the selector", 52, 10, std::nullopt},
      {"the target from y 33", 10, 33, TextKey::introTarget},
      {"the target's last row", 10, 94, TextKey::introTarget},
      {"below the target", 10, 95, std::nullopt},
      {"x 82 is before the Settings tab", 82, 40, std::nullopt},
      {"the Settings tab", 83, 40, TextKey::introTabSettings},
      {"179 is still Help", 179, 40, TextKey::introTabHelp},
      {"the Log tab", 180, 40, TextKey::introTabLog},
      {"the Directions tab", 215, 40, TextKey::introTabDirections},
      {"the Welcome tab", 281, 40, TextKey::introTabWelcome},
      {"the Calculate tab", 365, 40, TextKey::introTabCalculate},
      {"the Solve tab", 430, 40, TextKey::introTabSolve},
      {"the Convert tab", 477, 40, TextKey::introTabConvert},
      {"590 is the end of the Search tab", 590, 40, TextKey::introTabSearch},
      {"591 is past the tabs", 591, 40, std::nullopt},
      {"y 28 is above the tabs", 300, 28, std::nullopt},
      {"y 50 is below the tabs", 300, 50, std::nullopt},
      {"x 469 is before the mail button", 469, 140, std::nullopt},
      {"the mail button", 500, 140, TextKey::introEmail},
      {"the Back button", 30, 465, TextKey::introBack},
      {"the More Instructions button", 200, 460, TextKey::introDirections},
      {"the Reset button", 530, 470, TextKey::introReset},
      {"y 477 is below Reset", 530, 477, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    app::Window2& intro = start();
    desktop.setShiftKey(true);
    EXPECT_FALSE(intro.ImageWell1->MouseDown(row.x, row.y));
    desktop.setShiftKey(false);
    EXPECT_EQ(introText(), guidance::text(row.text.value_or(TextKey::introStart)));
    EXPECT_EQ(intro.ImageWell1->Image(), "fullwindow2") << "a shift-click never turns the picture";
  }
}

TEST_F(Intro, WithoutThePicturesTheTargetAlwaysTakesTheFirstBranch) {
  // Two missing pictures compare equal, as Nil pictures do.
  platform::SpecialFolder::setResources(home.path() + "/NoResources");
  app::Window2& intro = start();
  EXPECT_EQ(intro.ImageWell1->Image(), "");
  for (int round = 0; round < 2; ++round) {
    intro.ImageWell1->MouseDown(20, 60);
    EXPECT_EQ(introText(), guidance::text(TextKey::introHintA)) << "round " << round;
  }
}

}  // namespace
