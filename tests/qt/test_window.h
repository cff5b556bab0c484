#pragma once
// A small window of every kind of control, on a recording desktop, with handlers that
// write down what they were told, in order. The renderer must handle it with no more
// knowledge of it than of the program's own windows.

#include <QStringList>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace qttest {

class TestWindow : public platform::Window {
 public:
  explicit TestWindow(platform::Desktop& desktop) : platform::Window(desktop) {
    using K = platform::ControlKind;
    setTitle("TEST");
    setResizeable(false);
    setWidth(500);
    setHeight(460);
    const std::vector<platform::ControlSpec> table = {
        {"Field", K::TextField, "", 10, 10, 100, 22},
        {"Area", K::TextArea, "", 10, 40, 200, 100},
        {"Label", K::StaticText, "one\rtwo", 10, 150, 100, 40},
        {"Go", K::PushButton, "Go", 220, 10, 80, 20},
        {"Menu", K::BevelButton, "Pick", 220, 40, 60, 22},
        {"Box", K::GroupBox, "Box", 300, 10, 150, 80},
        {"RadioA",
         K::RadioButton,
         "A",
         310,
         30,
         60,
         20,
         {},
         0,
         "Box",
         true,
         true,
         {{"Value", true}}},
        {"RadioB", K::RadioButton, "B", 380, 30, 60, 20, {}, 0, "Box"},
        {"Check", K::CheckBox, "Check", 300, 100, 100, 20},
        {"Pop", K::PopupMenu, "red\ngreen\nblue", 300, 130, 100, 20},
        {"List",
         K::Listbox,
         "",
         300,
         160,
         180,
         100,
         {},
         0,
         {},
         true,
         true,
         {{"ColumnCount", 2}, {"ColumnWidths", "80%,20%"}}},
        {"Tabs", K::TabPanel, "First\nSecond", 10, 200, 280, 240},
        {"OnSecond", K::TextField, "", 30, 260, 80, 22, "Tabs", 1},
        {"Pages",
         K::PagePanel,
         "",
         20,
         240,
         200,
         150,
         "Tabs",
         0,
         {},
         true,
         true,
         {{"PanelCount", 2}}},
        {"OnPage1", K::StaticText, "page one", 40, 300, 80, 20, "Pages", 1},
        {"Image", K::ImageWell, "", 300, 280, 62, 62},
        {"Timer1", K::Timer},
    };
    for (const auto& row : table) addControl(row);

    auto& field = control<platform::TextField>("Field");
    field.KeyDown = [this, &field](const QString& key) {
      note("KeyDown " + key + " on \"" + field.Text() + "\"");
      return key == "!";
    };
    field.TextChange = [this, &field] { note("TextChange \"" + field.Text() + "\""); };
    control<platform::PushButton>("Go").Action = [this] { note("Go"); };
    auto& menu = control<platform::BevelButton>("Menu");
    menu.AddRow("alpha");
    menu.AddRow("beta");
    menu.Action = [this, &menu] { note("Menu " + QString::number(menu.MenuValue())); };
    for (const char* name : {"RadioA", "RadioB"}) {
      control<platform::RadioButton>(name).Action = [this, name] {
        note(QStringLiteral("Action ") + name);
      };
    }
    auto& pop = control<platform::PopupMenu>("Pop");
    pop.MouseDown = [this, &pop](int, int) {
      note("MouseDown Pop on " + pop.Text());
      return false;
    };
    pop.Change = [this, &pop] { note("Change Pop to " + pop.Text()); };
    auto& list = control<platform::Listbox>("List");
    list.setColumnType(1, platform::ColumnType::CheckBox);
    list.AddRow(QStringList{"first"});
    list.AddRow(QStringList{"second"});
    list.Change = [this, &list] { note("Change List to " + QString::number(list.ListIndex())); };
    list.CellClick = [this](int row, int column) {
      note("CellClick " + QString::number(row) + "," + QString::number(column));
      return false;
    };
    auto& tabs = control<platform::TabPanel>("Tabs");
    tabs.MouseDown = [this](int x, int) {
      note(x > 0 ? "MouseDown Tabs" : "MouseDown Tabs at 0");
      return false;
    };
    tabs.MouseUp = [this](int, int) { note("MouseUp Tabs"); };
    tabs.Change = [this, &tabs] { note("Change Tabs to " + QString::number(tabs.Value())); };
    auto& image = control<platform::ImageWell>("Image");
    image.MouseDown = [this](int x, int y) {
      note("MouseDown Image " + QString::number(x) + "," + QString::number(y));
      return false;
    };
    image.MouseExit = [this] { note("MouseExit Image"); };
    control<platform::Listbox>("List").Close = [this] { note("Close List"); };
    DropObject = [this](const platform::DragItem& item, int) { note("Drop " + item.Text()); };
  }

  void note(const QString& event) { events.append(event); }
  QStringList take() {
    QStringList taken = events;
    events.clear();
    return taken;
  }

  QStringList events;
};

}  // namespace qttest
