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

  // ---- src/app/dispatcher.cpp ----
  // A text typed or pushed in (More Instructions, the Search buttons), done with as the
  // selector's caption says. Results go to controls and the clipboard, never back.
  void ButtonAct(const QString& t);

  // ---- src/app/drop.cpp ----
  // ButtonAct's twin for a text dropped on the window, in either window mode.
  void Event_DropObject(const platform::DragItem& obj, int action);

  // ---- src/app/input_paths.cpp ----
  // The branches the twins share. Input says which twin runs them where they differ:
  // a typed search fills the result list, a dropped one blinks instead.
  enum class Input { Typed, Dropped };
  enum class DataSet { Physical, Astro };
  void searchPath(const QString& w, DataSet set, Input input);
  // The dormant look-up in a formula dictionary; a dictionary never filled counts as
  // empty.
  void formulaPath(const QString& w, const std::shared_ptr<platform::Dictionary>& d);
  // The two lines a search without result leaves in the log.
  void logNotFound();
  // "Action" becomes "calculate", with its log line, at the first text that is not help.
  void defaultToCalculate();
  // The search, formula and decline branches of the cascade, the same in both twins.
  void lookUpOrDecline(const QString& w, const QString& caption, Input input);

  // ---- src/app/window_modes.cpp ----
  bool ImageWell1_MouseDown(int x, int y);
  void PushButton2_Action();  // "Back"
  // The formula list and its Delete key show, and "mr" greys out, only under "Evaluate".
  void fitCalculatorToCaption();

  // ---- src/app/selector.cpp ----
  void BevelButton1_Open();
  void BevelButton1_Action();
  // source "0": chosen from the menu; "1": from a click on a tab of TabPanel2, whose
  // Value is then left as the click put it.
  void bevelact(const QString& source);

  // ---- src/calc/runner.cpp ----
  void PushButton1_Action();

  // ---- src/calc/rewrite.cpp ----
  // The rewriting a formula gets before RUN, one routine for the three entries that
  // take formulas (ButtonAct, Event_DropObject, the "=" key). Each entry logs
  // "Entered: " itself and tests the caption itself; then, in this order:
  //   cleanStages(text, purgeOff)  blanks and commas out; the pretty characters
  //       replaced if Purge Pretty is on (with "Unprettfied: " when that changed the
  //       text); "x10" to "e". When Purge Pretty is off, PurgeOff::Skip goes on
  //       without the purge (ButtonAct, Event_DropObject), PurgeOff::Stop plays claves
  //       after the blanks are gone and gives back nothing (the "=" key).
  //   conversionNumber(text)  Str(Val(text)) under the caption "convert" unless the
  //       family is "Number"; otherwise the text unchanged.
  //   calculateStages(text)   unt to " ", base-10 log, degrees, factorials, PI, then
  //       the text into EditField1 and PushButton1.Push. ButtonAct and the drop call it
  //       for "calculate", the "=" key for "calculate" or "evaluate".
  enum class PurgeOff { Skip, Stop };
  std::optional<QString> cleanStages(const QString& text, PurgeOff purgeOff);
  QString conversionNumber(const QString& text);
  void calculateStages(const QString& text);
  // n! in 32-bit arithmetic that wraps; "1" for 0, "" for a negative n.
  QString fact(qint32 n);

  // ---- src/calc/keypad.cpp ----
  void PushButton40_Action();  // "="
  void PushButton38_Action();  // "de"
  void PushButton39_Action();  // "pa"
  void PushButton35_Action();  // "clear"

  // ---- src/calc/evaluate_form.cpp ----
  // The formula of EditField4 with its "formula:x;y" values put in; leaves EditField4
  // at the bare formula and its colon, ready for the next values.
  QString evaluateForm();

  // ---- src/calc/memory.cpp ----
  void PushButton33_Action();  // "m"
  void PushButton34_Action();  // "mr"
  void PushButton46_Action();  // "Delete"
  void Listbox3_Open();
  void Listbox3_Close();
  bool Listbox3_CellClick(int row, int column);

  // ---- src/convert/table.cpp ----
  void PopupMenu2_Open();
  void popmenu();
  void PopupMenu2_Change();
  void popconvert_Change();
  bool popconvert_MouseDown(int x, int y);
  void popconvert_MouseExit();
  bool Listbox1_CellClick(int row, int column);
  bool Listbox2_CellClick(int row, int column);

  // ---- src/convert/evconvert.cpp ----
  // The convert path of ButtonAct, Event_DropObject and the "=" key, by PopupMenu2.Text:
  // "Number" goes to evconvert2, which delivers the answer itself; "Temperature" and
  // the table rows become a formula in EditField1 and run. The number has been through
  // conversionNumber. RunBlink::BeforeRun blinks just before the push (the drop with
  // "Use Clipboard" on).
  enum class RunBlink { None, BeforeRun };
  void convertPath(const QString& number, RunBlink runBlink);
  // The table row's value, to go behind the number; sets unt. The argument, the
  // family's row, is not used.
  QString evconvert(int family);
  // Number bases: answer to the clipboard, EditField5 and the log, without unt.
  void evconvert2(const QString& s);
  // The temperature formula for the number; sets unt.
  QString evconvert3(const QString& n);
  // CheckBox2_Action, which only logs, is with the other settings (preferences.cpp).

  // ---- src/convert/convert_tab.cpp ----
  void PushButton44_Action();  // "Convert"
  void RadioButton7_Action();
  void RadioButton8_Action();
  void RadioButton9_Action();

  // ---- src/solve/quadratic.cpp ----
  void PushButton41_Action();  // "Solve", a x^2 + b x + c = 0
  void EditA_TextChange();
  void EditB_TextChange();
  void EditC_TextChange();

  // ---- src/solve/linear.cpp ----
  void PushButton45_Action();  // "Solve", two linear equations
  bool A1_KeyDown(const QString& key);
  bool B1_KeyDown(const QString& key);
  bool C1_KeyDown(const QString& key);
  bool D2_KeyDown(const QString& key);
  bool E2_KeyDown(const QString& key);
  bool F2_KeyDown(const QString& key);

  // ---- src/records/log.cpp ----
  // EditField2 gets the line and a line ending; the log is the only record of what
  // happened, so everything that does anything writes here.
  void log(const QString& line);
  void PushButton3_Action();

  // ---- src/records/preferences.cpp ----
  // "Save Preferences": the settings as one line in VXKPreferences.
  void PushButton42_Action();
  // The step of Event_Open after "Initial State:": the saved line applied through the
  // controls' values, so each control that changes logs its line; no file, no change.
  void restorePreferences();
  void normbutton_Action();
  void scibutton1_Action();
  void RadioButton3_Action();
  void RadioButton4_Action();
  void RadioButton1_Action();
  void RadioButton2_Action();
  void RadioButton5_Action();
  void RadioButton6_Action();
  void CheckBox1_Action();
  void CheckBox2_Action();  // wired with the conversions, which read the box

  // ---- src/search/data_search.cpp ----
  // Both append hit lines to EditField1, which the caller has emptied; a missing file
  // puts its note on the clipboard and in the log and plays claves instead.
  void physical(const QString& t);
  void astronomical(const QString& t);
  // The phrase without its noise words, for the smart search.
  QString SmartParse(const QString& t);

  // ---- src/search/search_tabs.cpp ----
  // Builds knum3/Listbox4 from the physical file, then knum4/Listbox7 from the
  // astronomical one, once; a missing or broken file breaks it off.
  void TabPanel2_Open();
  // A key reduced to the words the lists are built from.
  QString clean(const QString& t);
  bool Listbox4_CellClick(int row, int column);
  bool Listbox7_CellClick(int row, int column);
  void PopupMenu1_Change();
  void PopupMenu3_Change();
  void PushButton47_Action();  // "Search", physical page
  void PushButton49_Action();  // "Search", astronomical page
  bool Listbox5_CellClick(int row, int column);
  bool Listbox6_CellClick(int row, int column);

  // ---- src/search/formulas.cpp ----
  // Kept for formula look-ups that nothing offers yet: empty, and called by nothing.
  void mathfor();
  void physfor();
  void physfor2();
  void physfor3();
  void physfor4();
  void physfor5();
  void astrofor();
  void PartStars();
  void PartStars1();
  void Constellations();
  void galaxy();
  void planets();
  void moons();
  void asteroid();
  void comets();
  void stars();
  void shapes();
  QString evaluator(const QString& s);

  // ---- src/guidance/welcome.cpp ----
  void PushButton48_Action();
  void PushButton4_Action();
  bool StaticText24_MouseDown(int x, int y);

  // ---- src/guidance/help.cpp ----
  // The answer to "?" and "help" for the caption as it stands, the same text for both
  // twins; only where the target blinks depends on the input.
  void help(const QString& t, Input input);

  // ---- src/guidance/directions.cpp ----
  bool TabPanel2_MouseDown(int x, int y);
  void TabPanel2_Change();
  void PushButton43_Action();  // "More Instructions"

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
