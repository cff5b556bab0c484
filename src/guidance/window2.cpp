#include "guidance/window2.h"

#include <climits>
#include <vector>

#include "app/app.h"
#include "guidance/texts.h"
#include "platform/files/folders.h"

namespace app {

namespace {

using guidance::TextKey;
using platform::ControlKind;
using platform::ControlSpec;

const QString kMarkerName = QStringLiteral("VXKInstr");
const QString kMarkerText = QStringLiteral("do not show");
const QString kFinishedNote =
    QStringLiteral("To recall this window hold down the SHIFT key while launching Abacon");

const std::vector<ControlSpec>& window2ControlTable() {
  static const std::vector<ControlSpec> table = {
      {"ImageWell1", ControlKind::ImageWell, "", 5, 5, 600, 493},
      {"StaticText1", ControlKind::StaticText, guidance::text(TextKey::introStart), 651, 40, 214, 428},
      {"Separator1", ControlKind::Separator, "", -1, 504, 621, 4},
      {"PushButton1", ControlKind::PushButton, "Finished", 29, 531, 141, 20},
      {"PushButton2", ControlKind::PushButton, "Continue", 402, 531, 80, 20, {}, 0, {}, true, true,
       {{"Default", true}}},
  };
  return table;
}

// A part of the picture that a shift-click explains. Upper bounds are always excluded;
// a lower bound only where it is not marked included. The tab row's boundaries belong
// to the tab on their right, so a click on 135 names "Help", not "Settings".
struct Region {
  int xFrom;
  bool xFromIncluded;
  int xTo;
  int yFrom;
  bool yFromIncluded;
  int yTo;
  TextKey text;

  bool holds(int x, int y) const {
    const bool inX = (xFromIncluded ? x >= xFrom : x > xFrom) && x < xTo;
    const bool inY = (yFromIncluded ? y >= yFrom : y > yFrom) && y < yTo;
    return inX && inY;
  }
};

constexpr int kNoBound = INT_MIN;

// In the picture's coordinates; the same for both pictures.
const Region kRegions[] = {
    {kNoBound, false, 52, kNoBound, false, 33, TextKey::introAction},
    {kNoBound, false, 52, 33, true, 95, TextKey::introTarget},
    {82, false, 135, 28, false, 50, TextKey::introTabSettings},
    {135, true, 180, 28, false, 50, TextKey::introTabHelp},
    {180, true, 215, 28, false, 50, TextKey::introTabLog},
    {215, true, 281, 28, false, 50, TextKey::introTabDirections},
    {281, true, 365, 28, false, 50, TextKey::introTabWelcome},
    {365, true, 430, 28, false, 50, TextKey::introTabCalculate},
    {430, true, 477, 28, false, 50, TextKey::introTabSolve},
    {477, true, 541, 28, false, 50, TextKey::introTabConvert},
    {541, true, 591, 28, false, 50, TextKey::introTabSearch},
    {469, false, 562, 129, false, 148, TextKey::introEmail},
    {8, false, 70, 459, false, 473, TextKey::introBack},
    {141, false, 251, 455, false, 479, TextKey::introDirections},
    {504, false, 568, 459, false, 477, TextKey::introReset},
};

}  // namespace

Window2::Window2(App& app) : platform::Window(app.desktop()), app_(app) {
  setTitle("Abacon Intro.");
  setMinWidth(64);
  setMinHeight(64);
  setMaxWidth(32000);
  setMaxHeight(32000);
  setWidth(900);
  setHeight(600);
  setResizeable(true);

  for (const ControlSpec& row : window2ControlTable()) addControl(row);
  controlRefs_.bindAll(*this);
  ImageWell1->setImage(app_.fullwindow2());

  PushButton1->Action = [this] { app_.guard([this] { PushButton1_Action(); }); };
  PushButton2->Action = [this] { app_.guard([this] { PushButton2_Action(); }); };
  ImageWell1->MouseDown = [this](int x, int y) { return ImageWell1_MouseDown(x, y); };
  ImageWell1->MouseExit = [this] { ImageWell1_MouseExit(); };
}

Window2::~Window2() = default;

void Window2::open() {
  for (const auto& control : controls()) {
    app_.guard([&control] { control->raiseOpen(); });
  }
  app_.guard([this] { Event_Open(); });
}

platform::FolderItem Window2::marker() {
  const platform::FolderItem preferences = platform::SpecialFolder::Preferences();
  return preferences.isNil() ? platform::FolderItem() : preferences.Child(kMarkerName);
}

void Window2::goOn() {
  Hide();
  app_.showWindow1();
  Close();
}

void Window2::Event_Open() {
  // Shift brings the introduction back whatever the marker says, but without
  // "Finished": the user who asked for it once more is not asked to dismiss it again.
  if (desktop().shiftKey()) {
    PushButton1->setVisible(false);
    return;
  }
  const platform::FolderItem item = marker();
  if (!item.isNil() && item.Exists()) goOn();
}

void Window2::PushButton2_Action() { goOn(); }

void Window2::PushButton1_Action() {
  // The note comes first: the user learns how to get the window back before it is gone.
  desktop().msgBox(kFinishedNote);
  const platform::FolderItem item = marker();
  if (item.isNil()) return;
  platform::TextOutputStream out = item.CreateTextFile();
  out.Write(kMarkerText);
  out.Close();
  goOn();
}

// The pictures compare as the framework compares them: two missing pictures are equal,
// so without the resources a click always takes the first branch.
bool Window2::showsSecondPicture() const {
  const std::optional<platform::Picture> second = app_.fullwindow2();
  return second ? ImageWell1->Image() == second->name : ImageWell1->Image().isEmpty();
}

bool Window2::showsFirstPicture() const {
  const std::optional<platform::Picture> first = app_.fullwindow1();
  return first ? ImageWell1->Image() == first->name : ImageWell1->Image().isEmpty();
}

bool Window2::ImageWell1_MouseDown(int x, int y) {
  if (!desktop().shiftKey()) {
    // The target in the picture toggles the picture, as the real one toggles the size.
    if (x < 55 && y > 45 && y < 92) {
      if (showsSecondPicture()) {
        ImageWell1->setImage(app_.fullwindow1());
        StaticText1->setText(guidance::text(TextKey::introHintA));
      } else if (showsFirstPicture()) {
        ImageWell1->setImage(app_.fullwindow2());
        StaticText1->setText(guidance::text(TextKey::introWelcome));
      }
    } else {
      StaticText1->setText(guidance::text(TextKey::introHintB));
    }
    return false;
  }
  for (const Region& region : kRegions) {
    if (region.holds(x, y)) StaticText1->setText(guidance::text(region.text));
  }
  return false;
}

void Window2::ImageWell1_MouseExit() {
  if (showsSecondPicture()) {
    StaticText1->setText(guidance::text(TextKey::introWelcome));
  } else if (showsFirstPicture()) {
    StaticText1->setText(guidance::text(TextKey::introHintC));
  }
}

}  // namespace app
