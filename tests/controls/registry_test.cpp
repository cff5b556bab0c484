// Properties by name, as the renderer and the scenario driver reach them, and windows
// built from control table rows.

#include <gtest/gtest.h>

#include <functional>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace platform {
namespace {

// A window with one control of most classes, as a control table would make it.
struct Built {
  Built() {
    for (const ControlSpec& spec : std::initializer_list<ControlSpec>{
             {.name = "BevelButton1", .kind = ControlKind::BevelButton, .text = "Action", .left = 2, .top = 1,
              .width = 60, .height = 22, .attributes = {{"TextSize", 9}}},
             {.name = "ImageWell1", .kind = ControlKind::ImageWell, .text = "target"},
             {.name = "EditField5", .kind = ControlKind::TextField},
             {.name = "EditA", .kind = ControlKind::TextField, .attributes = {{"Alignment", "right"}}},
             {.name = "EditField2", .kind = ControlKind::TextArea, .attributes = {{"ReadOnly", true}}},
             {.name = "CheckBox1", .kind = ControlKind::CheckBox, .text = "Purge Pretty",
              .attributes = {{"Value", true}}},
             {.name = "Listbox3", .kind = ControlKind::Listbox, .visible = false,
              .attributes = {{"ColumnCount", 2}, {"ColumnWidths", "90%,10%"}, {"ColumnType(1)", "checkbox"}}},
             {.name = "TabPanel1", .kind = ControlKind::TabPanel, .text = "Settings\nHelp\nLog\nDirections"},
             {.name = "Timer1", .kind = ControlKind::Timer, .attributes = {{"Period", 1000}}},
         }) {
      window.addControl(spec);
    }
    auto& list = window.control<Listbox>("Listbox3");
    list.AddRow("x^2:");
    list.AddRow("sqrt(x):");
  }
  RecordingDesktop desktop;
  Window window{desktop};
};

TEST(Registry, PropertiesByNameReadAndWriteTheControl) {
  struct Row {
    const char* name;
    const char* control;
    const char* property;
    QVariant assigned;  // invalid: read only
    QString expected;
  };
  const Row rows[] = {
      {"a caption from the creation text", "BevelButton1", "Caption", {}, "Action"},
      {"geometry from the row", "BevelButton1", "Width", {}, "60"},
      {"an attribute of the row", "BevelButton1", "TextSize", {}, "9"},
      {"the picture shown", "ImageWell1", "Image", {}, "target"},
      {"a picture assigned", "ImageWell1", "Image", "target2", "target2"},
      {"Text assigned", "EditField5", "Text", "42 ", "42 "},
      {"names ignore case", "EditField5", "text", "x", "x"},
      {"an alignment", "EditA", "Alignment", {}, "right"},
      {"a boolean from a word", "CheckBox1", "Value", "false", "false"},
      {"Visible from the row", "Listbox3", "Visible", {}, "false"},
      {"ListCount", "Listbox3", "ListCount", {}, "2"},
      {"Rows joined by line ends", "Listbox3", "Rows", {}, "x^2:\nsqrt(x):"},
      {"Rows assigned", "Listbox3", "Rows", "a\nb\nc", "a\nb\nc"},
      {"a cell", "Listbox3", "Cell(1,0)", {}, "sqrt(x):"},
      {"a cell assigned, blanks in the name", "Listbox3", "Cell( 0 , 0 )", "y:", "y:"},
      {"a check box in the check column", "Listbox3", "CellCheck(1)", true, "true"},
      {"a check box by row and column", "Listbox3", "CellCheck(0,1)", {}, "false"},
      {"the tabs", "TabPanel1", "PanelCount", {}, "4"},
      {"a tab assigned", "TabPanel1", "Value", "3", "3"},
      {"Mode of a timer", "Timer1", "Mode", 1, "1"},
      {"Enabled", "Timer1", "Enabled", {}, "true"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    Control& c = built.window.control(row.control);
    if (row.assigned.isValid()) c.setProperty(row.property, row.assigned);
    EXPECT_EQ(c.property(row.property).toString(), row.expected);
  }
}

TEST(Registry, UnknownOrMalformedNamesThrow) {
  struct Row {
    const char* name;
    const char* control;
    const char* property;
  };
  const Row rows[] = {
      {"a property the class lacks", "EditField5", "Caption"},
      {"a name that is nothing", "EditField5", "Nope"},
      {"too few arguments", "Listbox3", "Cell(1)"},
      {"arguments that are no numbers", "Listbox3", "Cell(a,b)"},
      {"an unclosed parenthesis", "Listbox3", "Cell(1,0"},
      {"a number too large for an index", "Listbox3", "Cell(99999999999,0)"},
      {"arguments to a plain property", "EditField5", "Text(1)"},
      {"CellCheck without a row", "Listbox3", "CellCheck"},
      {"the empty name", "EditField5", ""},
      {"a dotted name", "EditField5", "Text.Length"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    Control& c = built.window.control(row.control);
    EXPECT_THROW(c.property(row.property), UnknownNameException);
    EXPECT_THROW(c.setProperty(row.property, "1"), UnknownNameException);
    EXPECT_FALSE(c.hasProperty(row.property));
  }
}

TEST(Registry, ValuesAPropertyCannotTakeThrow) {
  struct Row {
    const char* name;
    const char* control;
    const char* property;
    QVariant value;
  };
  const Row rows[] = {
      {"a read-only count", "Listbox3", "ListCount", 3},
      {"a word that is no boolean", "CheckBox1", "Value", "maybe"},
      {"a word that is no number", "BevelButton1", "Width", "wide"},
      {"a number beyond 32 bits", "BevelButton1", "Width", "4294967296"},
      {"an alignment that is none", "EditA", "Alignment", "justified"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    EXPECT_THROW(built.window.control(row.control).setProperty(row.property, row.value), PropertyValueException);
  }
}

TEST(Registry, ObserversHearEachChangeOnce) {
  Built built;
  auto& field = built.window.control<TextField>("EditField5");
  QStringList heard;
  const int id = field.addObserver([&](const QString& property) { heard.append(property); });
  field.setText("1");
  field.setText("1");
  field.setProperty("Visible", false);
  field.removeObserver(id);
  field.setText("2");
  EXPECT_EQ(heard, QStringList({"Text", "Visible"}));
}

TEST(WindowControls, LookUpIgnoresCaseAndTellsMissingNames) {
  Built built;
  EXPECT_EQ(&built.window.control("listbox3"), built.window.findControl("Listbox3"));
  EXPECT_EQ(built.window.findControl("Listbox9"), nullptr);
  EXPECT_THROW(built.window.control("Listbox9"), UnknownNameException);
  EXPECT_THROW(built.window.control<PushButton>("Listbox3"), UnknownNameException) << "wrong class";
  EXPECT_EQ(built.window.control<Listbox>("Listbox3").ColumnCount(), 2);
}

TEST(WindowControls, ControlsKeepTheOrderOfCreation) {
  Built built;
  QStringList names;
  for (const auto& c : built.window.controls()) names.append(c->Name());
  EXPECT_EQ(names, QStringList({"BevelButton1", "ImageWell1", "EditField5", "EditA", "EditField2", "CheckBox1",
                                "Listbox3", "TabPanel1", "Timer1"}));
}

TEST(WindowControls, ABadRowLeavesNoControlBehind) {
  Built built;
  EXPECT_THROW(built.window.addControl({.name = "PopupMenu1", .kind = ControlKind::PopupMenu,
                                        .attributes = {{"Caption", "x"}}}),
               UnknownNameException);
  EXPECT_EQ(built.window.findControl("PopupMenu1"), nullptr);
  EXPECT_THROW(built.window.addControl({.name = "editfield5", .kind = ControlKind::TextField}), UnknownNameException)
      << "names are unique without regard to case";
  EXPECT_THROW(built.window.add<TextArea>({.name = "EditField9", .kind = ControlKind::TextField}),
               UnknownNameException)
      << "a row of another class than the caller expects";
  EXPECT_EQ(built.window.findControl("EditField9"), nullptr);
  EXPECT_EQ(built.window.controls().size(), 9u);
  EXPECT_NO_THROW(built.window.control<TextEdit>("EditField5")) << "a base class will do";
}

TEST(WindowControls, CreationRaisesNoHandlers) {
  RecordingDesktop desktop;
  Window window(desktop);
  auto& first = window.add<RadioButton>({.name = "normbutton", .kind = ControlKind::RadioButton,
                                         .group = "GroupBox2", .attributes = {{"Value", true}}});
  int actions = 0;
  first.Action = [&] { ++actions; };
  window.add<RadioButton>({.name = "scibutton1", .kind = ControlKind::RadioButton, .group = "GroupBox2",
                           .attributes = {{"Value", true}}});
  EXPECT_FALSE(first.Value());
  EXPECT_EQ(actions, 0);
  auto& popup = window.add<PopupMenu>({.name = "PopupMenu2", .kind = ControlKind::PopupMenu, .text = "a\nb",
                                       .attributes = {{"ListIndex", 1}}});
  EXPECT_EQ(popup.ListIndex(), 1);
}

TEST(WindowControls, AChoiceReachesEveryClassThroughTheBase) {
  // The driver's `choose` knows no classes: it calls the base and reads a property.
  struct Row {
    const char* name;
    const char* control;
    int entry;
    const char* property;
    QString expected;
  };
  const Row rows[] = {
      {"a menu entry of a bevel button", "BevelButton1", 1, "MenuValue", "1"},
      {"a tab", "TabPanel1", 2, "Value", "2"},
      {"a list row", "Listbox3", 1, "ListIndex", "1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    built.window.control<BevelButton>("BevelButton1").setRows({"Calculate", "Convert"});
    Control& c = built.window.control(row.control);
    c.userChoose(row.entry);
    EXPECT_EQ(c.property(row.property).toString(), row.expected);
  }
  Built built;
  EXPECT_THROW(built.window.control("EditField5").userChoose(0), UnknownNameException);
  EXPECT_THROW(built.window.control("TabPanel1").userChoose(4), OutOfBoundsException);
}

TEST(Registry, RowsOfSeveralColumnsKeepTheirCells) {
  Built built;
  Control& list = built.window.control("Listbox3");
  list.setProperty("Rows", "x^2:\tnote\nsqrt(x):");
  EXPECT_EQ(list.property("Cell(0,1)").toString(), "note");
  EXPECT_EQ(list.property("Rows").toString(), "x^2:\tnote\nsqrt(x):");
}

TEST(WindowProperties, RegisteredFieldsAndBuiltInsByName) {
  RecordingDesktop desktop;
  Window window(desktop);
  QString unt;
  int wincon = 0;
  window.registerProperty("unt", unt);
  window.registerProperty("wincon", wincon);
  window.setProperty("unt", " m");
  window.setProperty("WINCON", "1");
  EXPECT_EQ(unt, " m");
  EXPECT_EQ(wincon, 1);
  EXPECT_EQ(window.property("wincon").toInt(), 1);
  EXPECT_THROW(window.property("nosuch"), UnknownNameException);
  EXPECT_THROW(window.setProperty("wincon", "one"), PropertyValueException);
  EXPECT_THROW(window.registerProperty("unt", unt), FrameworkException);
  window.registerProperty("choices", [] { return QVariant(3); });
  EXPECT_THROW(window.setProperty("choices", 4), PropertyValueException);
}

TEST(WindowProperties, SizeStaysWithinTheLimitsAndIsAnnounced) {
  RecordingDesktop desktop;
  Window window(desktop);
  QStringList heard;
  window.addObserver([&](const QString& property) { heard.append(property); });
  window.setWidth(800);
  window.setHeight(600);
  window.setHeight(600);
  window.setProperty("Width", 10);
  EXPECT_EQ(window.Width(), 64) << "MinWidth holds";
  EXPECT_EQ(heard, QStringList({"Width", "Height", "Width"}));
}

TEST(WindowEvents, OpenRunsControlsFirstAndCloseReachesEachControl) {
  RecordingDesktop desktop;
  Window window(desktop);
  QStringList order;
  const std::pair<const char*, ControlKind> made[] = {{"BevelButton1", ControlKind::BevelButton},
                                                      {"Listbox3", ControlKind::Listbox}};
  for (const auto& [name, kind] : made) {
    Control& c = window.addControl({.name = name, .kind = kind});
    c.Open = [&order, name] { order.append(QString(name) + ".Open"); };
    c.Close = [&order, name] { order.append(QString(name) + ".Close"); };
  }
  window.Open = [&] { order.append("Window.Open"); };
  window.raiseOpenEvents();
  window.Close();
  window.Close();
  EXPECT_EQ(order, QStringList({"BevelButton1.Open", "Listbox3.Open", "Window.Open", "BevelButton1.Close",
                                "Listbox3.Close"}));
  EXPECT_FALSE(window.Visible());
}

TEST(WindowEvents, DropsArriveOnlyAfterAcceptTextDrop) {
  RecordingDesktop desktop;
  Window window(desktop);
  QStringList drops;
  window.DropObject = [&](const DragItem& item, int) {
    drops.append(item.TextAvailable() ? item.Text() : "(no text)");
  };
  window.userDrop({QString("early")});
  window.AcceptTextDrop();
  window.userDrop({QString("3+4")});
  window.userDrop({});
  EXPECT_EQ(drops, QStringList({"3+4", "(no text)"}));
}

}  // namespace
}  // namespace platform
