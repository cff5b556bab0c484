// Properties by name, as the renderer and the scenario driver reach them, and windows
// built from control table rows.

#include <gtest/gtest.h>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "support/printers.h"

namespace platform {
namespace {

// A window with one control of most classes, as a control table would make it.
struct Built {
  Built() {
    for (const ControlSpec& spec : std::initializer_list<ControlSpec>{
             {.name = "BevelButton1", .kind = ControlKind::BevelButton, .text = "Action", .left = 2,
              .top = 1, .width = 60, .height = 22, .attributes = {{"TextSize", 9}}},
             {.name = "EditField5", .kind = ControlKind::TextField},
             {.name = "EditA", .kind = ControlKind::TextField, .attributes = {{"Alignment", "right"}}},
             {.name = "CheckBox1", .kind = ControlKind::CheckBox, .attributes = {{"Value", true}}},
             {.name = "Listbox3", .kind = ControlKind::Listbox, .visible = false,
              .attributes = {{"ColumnCount", 2}, {"ColumnType(1)", "checkbox"}}},
         }) {
      window.addControl(spec);
    }
    window.control<Listbox>("Listbox3").setRows({"x^2:", "sqrt(x):"});
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
      {"geometry from the row", "BevelButton1", "Width", {}, "60"},
      {"an attribute of the row", "BevelButton1", "TextSize", {}, "9"},
      {"an alignment", "EditA", "Alignment", {}, "right"},
      {"Rows of several columns keep their cells", "Listbox3", "Rows", "x^2:\tnote\ny", "x^2:\tnote\ny"},
      {"a cell assigned, blanks in the name", "Listbox3", "Cell( 0 , 0 )", "y:", "y:"},
      {"a check box in the check column", "Listbox3", "CellCheck(1)", true, "true"},
      {"a check box by row and column", "Listbox3", "CellCheck(0,1)", {}, "false"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    Control& c = built.window.control(row.control);
    if (row.assigned.isValid()) c.setProperty(row.property, row.assigned);
    EXPECT_EQ(c.property(row.property).toString(), row.expected);
  }
}

TEST(Registry, UnknownNamesAndImpossibleValuesThrow) {
  struct Row {
    const char* name;
    const char* control;
    const char* property;
    QVariant value;  // invalid: the name itself is wrong
  };
  const Row rows[] = {
      {"a property the class lacks", "EditField5", "Caption", {}},
      {"too few arguments", "Listbox3", "Cell(1)", {}},
      {"an unclosed parenthesis", "Listbox3", "Cell(1,0", {}},
      {"a number too large for an index", "Listbox3", "Cell(99999999999,0)", {}},
      {"arguments to a plain property", "EditField5", "Text(1)", {}},
      {"a read-only count", "Listbox3", "ListCount", 3},
      {"a word that is no boolean", "CheckBox1", "Value", "maybe"},
      {"a number beyond 32 bits", "BevelButton1", "Width", "4294967296"},
      {"an alignment that is none", "EditA", "Alignment", "justified"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Built built;
    Control& c = built.window.control(row.control);
    if (row.value.isValid()) {
      EXPECT_THROW(c.setProperty(row.property, row.value), PropertyValueException);
    } else {
      EXPECT_THROW(c.property(row.property), UnknownNameException);
      EXPECT_THROW(c.setProperty(row.property, "1"), UnknownNameException);
      EXPECT_FALSE(c.hasProperty(row.property));
    }
  }
}

TEST(WindowControls, LookUpIgnoresCaseAndABadRowLeavesNoControlBehind) {
  Built built;
  Window& w = built.window;
  EXPECT_EQ(&w.control("listbox3"), w.findControl("Listbox3"));
  EXPECT_EQ(w.findControl("Listbox9"), nullptr);
  EXPECT_THROW(w.control("Listbox9"), UnknownNameException);
  EXPECT_THROW(w.control<PushButton>("Listbox3"), UnknownNameException) << "wrong class";
  EXPECT_NO_THROW(w.control<TextEdit>("EditField5")) << "a base class will do";
  EXPECT_THROW(w.addControl({.name = "PopupMenu1", .kind = ControlKind::PopupMenu,
                             .attributes = {{"Caption", "x"}}}),
               UnknownNameException);
  EXPECT_THROW(w.addControl({.name = "editfield5", .kind = ControlKind::TextField}), UnknownNameException)
      << "names are unique without regard to case";
  EXPECT_THROW(w.add<TextArea>({.name = "EditField9", .kind = ControlKind::TextField}), UnknownNameException);
  EXPECT_EQ(w.findControl("PopupMenu1"), nullptr);
  EXPECT_EQ(w.findControl("EditField9"), nullptr);
  EXPECT_EQ(w.controls().size(), 5u);
}

TEST(WindowControls, CreationRaisesNoHandlers) {
  RecordingDesktop desktop;
  Window window(desktop);
  auto& first = window.add<RadioButton>({.name = "normbutton", .kind = ControlKind::RadioButton,
                                         .group = "GroupBox2", .attributes = {{"Value", true}}});
  int actions = 0;
  first.Action = [&] { ++actions; };
  window.add<RadioButton>({.name = "scibutton1", .kind = ControlKind::RadioButton,
                           .group = "GroupBox2", .attributes = {{"Value", true}}});
  EXPECT_FALSE(first.Value());
  EXPECT_EQ(actions, 0);
}

TEST(WindowProperties, RegisteredFieldsTakeOnlyTheirTypeAndTheSizeItsLimits) {
  RecordingDesktop desktop;
  Window window(desktop);
  int wincon = 0;
  window.registerProperty("wincon", wincon);
  window.setProperty("WINCON", "1");
  EXPECT_EQ(wincon, 1);
  EXPECT_THROW(window.property("nosuch"), UnknownNameException);
  EXPECT_THROW(window.setProperty("wincon", "one"), PropertyValueException);
  EXPECT_THROW(window.registerProperty("wincon", wincon), FrameworkException);
  window.registerProperty("choices", [] { return QVariant(3); });
  EXPECT_THROW(window.setProperty("choices", 4), PropertyValueException);
  window.setProperty("Width", 10);
  EXPECT_EQ(window.Width(), 64) << "MinWidth holds";
}

TEST(WindowEvents, OpenRunsControlsFirstCloseReachesEachControlAndDropsWaitForAccept) {
  RecordingDesktop desktop;
  Window window(desktop);
  QStringList order;
  for (const auto& [name, kind] : {std::pair{"BevelButton1", ControlKind::BevelButton},
                                   std::pair{"Listbox3", ControlKind::Listbox}}) {
    Control& c = window.addControl({.name = name, .kind = kind});
    c.Open = [&order, name] { order.append(QString(name) + ".Open"); };
    c.Close = [&order, name] { order.append(QString(name) + ".Close"); };
  }
  window.Open = [&] { order.append("Window.Open"); };
  window.DropObject = [&](const DragItem& item, int) {
    order.append(item.TextAvailable() ? item.Text() : "(no text)");
  };
  window.raiseOpenEvents();
  window.userDrop({QString("early")});
  window.AcceptTextDrop();
  window.userDrop({QString("3+4")});
  window.userDrop({});
  window.Close();
  window.Close();
  EXPECT_EQ(order, QStringList({"BevelButton1.Open", "Listbox3.Open", "Window.Open", "3+4",
                                "(no text)", "BevelButton1.Close", "Listbox3.Close"}));
  EXPECT_FALSE(window.Visible());
}

}  // namespace
}  // namespace platform
