#pragma once
// Window1 is the whole program: one window, one instance. Its properties are the
// program's state and its controls are the message bus between the subsystems (a
// formula travels in EditField1 and runs on PushButton1.Push). This header is the
// table of contents: every handler and method is listed under the file defining it.

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "app/control_ref.h"
#include "platform/collections/dictionary.h"
#include "platform/controls/window.h"
#include "platform/xml/xml.h"

namespace app {

class App;

class Window1 : public platform::Window {
 public:
  explicit Window1(App& app);
  ~Window1() override;

  App& app() const { return app_; }

  // Builds the controls' state as a launch does: the controls' Open events in their
  // order, then Event_Open. Each step that fails reaches the application's handler of
  // unhandled exceptions, and the window opens all the same.
  void open();

  // ---- properties, in their order of declaration ----
  QString unt;                                 // suffix behind a result
  QString fmt;                                 // number mask of Scientific mode
  std::shared_ptr<platform::Dictionary> dict;  // declared, used by nothing
  int wincon = 0;                              // 1 when the window counts as expanded
  std::shared_ptr<platform::Dictionary> dict2; // declared, used by nothing
  QString placeit;
  QString placeit2;
  std::shared_ptr<platform::Dictionary> dict3;  // formulas of physics
  std::shared_ptr<platform::Dictionary> dict5;  // formulas of mathematics
  std::shared_ptr<platform::Dictionary> dict4;  // formulas of astronomy
  int pcconvert = 0;                            // declared, used by nothing
  int popcon = 0;
  QStringList choices;
  QStringList changeit;
  QString convertit;
  int iload = 0;
  int formnumber = 1;
  int quad = 0;
  int twodim = 0;
  int tabclk = 0;
  std::optional<platform::XmlDocument> doc;
  QStringList knum3;
  QStringList knum4;

  // ---- src/app/startup.cpp ----
  void Event_Open();
  void Event_EnableMenuItems();

  // ---- src/app/blink.cpp ----
  void blink();
  void Timer1_Action();

  // ---- src/calc/runner.cpp ----
  void PushButton1_Action();

  // ---- src/records/log.cpp ----
  // EditField2 gets the line and a line ending; the log is the only record of what
  // happened, so everything that does anything writes here.
  void log(const QString& line);
  void PushButton3_Action();

 protected:
  ControlRefs controlRefs_;

 public:
  // ---- controls (handles bound by name to the control table's rows) ----
  // The frame.
  CONTROL(PushButton, PushButton1);
  CONTROL(TextArea, EditField1);
  CONTROL(BevelButton, BevelButton1);
  CONTROL(ImageWell, ImageWell1);
  CONTROL(StaticText, StaticText7);
  CONTROL(PushButton, PushButton2);
  CONTROL(TabPanel, TabPanel1);
  CONTROL(TabPanel, TabPanel2);
  CONTROL(StaticText, StaticText27);
  CONTROL(Timer, Timer1);
  // Settings.
  CONTROL(RadioButton, normbutton);
  CONTROL(RadioButton, scibutton1);
  CONTROL(RadioButton, RadioButton1);
  CONTROL(RadioButton, RadioButton2);
  CONTROL(RadioButton, RadioButton3);
  CONTROL(RadioButton, RadioButton4);
  CONTROL(RadioButton, RadioButton5);
  CONTROL(RadioButton, RadioButton6);
  CONTROL(PopupMenu, popconvert);
  CONTROL(PopupMenu, PopupMenu2);
  CONTROL(CheckBox, CheckBox1);
  CONTROL(CheckBox, CheckBox2);
  CONTROL(PushButton, PushButton42);
  // Log and Directions.
  CONTROL(TextArea, EditField2);
  CONTROL(PushButton, PushButton3);
  CONTROL(TextArea, EditField10);
  CONTROL(PushButton, PushButton43);
  // Welcome.
  CONTROL(StaticText, StaticText24);
  CONTROL(PushButton, PushButton4);
  CONTROL(TextArea, TextArea8);
  CONTROL(PushButton, PushButton48);
  // Calculate.
  CONTROL(TextField, EditField5);
  CONTROL(TextArea, EditField4);
  CONTROL(Listbox, Listbox3);
  CONTROL(StaticText, StaticText32);
  CONTROL(PushButton, PushButton46);
  CONTROL(StaticText, StaticText33);
  CONTROL(PushButton, PushButton33);
  CONTROL(PushButton, PushButton34);
  CONTROL(PushButton, PushButton35);
  CONTROL(PushButton, PushButton38);
  CONTROL(PushButton, PushButton39);
  CONTROL(PushButton, PushButton40);
  // Solve.
  CONTROL(PushButton, PushButton41);
  CONTROL(TextField, EditField9);
  CONTROL(TextField, EditA);
  CONTROL(TextField, EditB);
  CONTROL(TextField, EditC);
  CONTROL(TextField, A1);
  CONTROL(TextField, B1);
  CONTROL(TextField, C1);
  CONTROL(TextField, D2);
  CONTROL(TextField, E2);
  CONTROL(TextField, F2);
  CONTROL(TextField, TextField2);
  CONTROL(PushButton, PushButton45);
  // Convert.
  CONTROL(TextField, TextField1);
  CONTROL(Listbox, Listbox1);
  CONTROL(Listbox, Listbox2);
  CONTROL(PushButton, PushButton44);
  CONTROL(RadioButton, RadioButton7);
  CONTROL(RadioButton, RadioButton8);
  CONTROL(RadioButton, RadioButton9);
  // Search.
  CONTROL(PagePanel, PagePanel1);
  CONTROL(Listbox, Listbox4);
  CONTROL(PopupMenu, PopupMenu1);
  CONTROL(TextField, TextField3);
  CONTROL(PushButton, PushButton47);
  CONTROL(Listbox, Listbox5);
  CONTROL(TextArea, TextArea7);
  CONTROL(TextArea, TextArea9);
  CONTROL(Listbox, Listbox6);
  CONTROL(Listbox, Listbox7);
  CONTROL(PushButton, PushButton49);
  CONTROL(TextField, TextField4);
  CONTROL(PopupMenu, PopupMenu3);

 private:
  void registerProperties();
  // The event wiring, one function per subsystem, each in its folder's wiring.cpp.
  void wireEvents();
  void wireWorkbench();
  void wireCalc();
  void wireConvert();
  void wireSolve();
  void wireSearch();
  void wireRecords();
  void wireGuidance();

  App& app_;
};

}  // namespace app
