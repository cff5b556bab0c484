#pragma once
// Window2 is the introduction: a picture of the full main window that the user can
// explore with shift-clicks, and the two ways on to Window1. It is the first window of
// a launch and decides when Window1 comes into being; once "Finished" has written the
// marker VXKInstr it steps aside at every plain launch, and shift at launch brings it
// back without "Finished", so the marker can never be written in that run.

#include <QString>

#include "app/control_ref.h"
#include "platform/controls/window.h"
#include "platform/files/folder_item.h"

namespace app {

class App;

class Window2 : public platform::Window {
 public:
  explicit Window2(App& app);
  ~Window2() override;

  App& app() const { return app_; }

  // The controls' Open events, then Event_Open; a fault reaches the application's
  // handler of unhandled exceptions.
  void open();

  // ---- src/guidance/window2.cpp ----
  void Event_Open();
  void PushButton1_Action();  // "Finished"
  void PushButton2_Action();  // "Continue"
  bool ImageWell1_MouseDown(int x, int y);
  void ImageWell1_MouseExit();

 private:
  ControlRefs controlRefs_;

 public:
  CONTROL(ImageWell, ImageWell1);
  CONTROL(StaticText, StaticText1);
  CONTROL(Separator, Separator1);
  CONTROL(PushButton, PushButton1);
  CONTROL(PushButton, PushButton2);

 private:
  // The marker in the preferences folder; Nil when that folder is not there.
  static platform::FolderItem marker();
  // Hide, Show Window1, Close: both buttons and a marked launch leave this way.
  void goOn();
  bool showsFirstPicture() const;
  bool showsSecondPicture() const;

  App& app_;
};

}  // namespace app
