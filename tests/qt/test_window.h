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
        {.name = "RadioA", .kind = K::RadioButton, .text = "A", .left = 310, .top = 30, .width = 60,
         .height = 20, .group = "Box", .attributes = {{"Value", true}}},
        {.name = "RadioB", .kind = K::RadioButton, .text = "B", .left = 380, .top = 30, .width = 60,
         .height = 20, .group = "Box"},
        {"Check", K::CheckBox, "Check", 300, 100, 100, 20},
        {"Pop", K::PopupMenu, "red\ngreen\nblue", 300, 130, 100, 20},
        {.name = "List", .kind = K::Listbox, .left = 300, .top = 160, .width = 180, .height = 100,
         .attributes = {{"ColumnCount", 2}, {"ColumnWidths", "80%,20%"}}},
        {"Tabs", K::TabPanel, "First\nSecond", 10, 200, 280, 240},
        {"OnSecond", K::TextField, "", 30, 260, 80, 22, "Tabs", 1},
        {.name = "Pages", .kind = K::PagePanel, .left = 20, .top = 240, .width = 200, .height = 150,
         .panel = "Tabs", .attributes = {{"PanelCount", 2}}},
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
    menu.setRows({"alpha", "beta"});
    menu.Action = [this, &menu] { note("Menu " + QString::number(menu.MenuValue())); };
    auto& pop = control<platform::PopupMenu>("Pop");
    pop.MouseDown = [this, &pop](int, int) {
      return note("MouseDown Pop on " + pop.Text()), false;
    };
    pop.Change = [this, &pop] { note("Change Pop to " + pop.Text()); };
    auto& list = control<platform::Listbox>("List");
    list.setColumnType(1, platform::ColumnType::CheckBox);
    list.setRows({"first", "second"});
    list.Change = [this, &list] { note("Change List to " + QString::number(list.ListIndex())); };
    list.CellClick = [this](int row, int column) {
      return note("CellClick " + QString::number(row) + "," + QString::number(column)), false;
    };
    list.Close = [this] { note("Close List"); };
    auto& tabs = control<platform::TabPanel>("Tabs");
    tabs.MouseDown = [this](int x, int) {
      return note(x > 0 ? "MouseDown Tabs" : "MouseDown Tabs at 0"), false;
    };
    tabs.MouseUp = [this](int, int) { note("MouseUp Tabs"); };
    tabs.Change = [this, &tabs] { note("Change Tabs to " + QString::number(tabs.Value())); };
    control<platform::ImageWell>("Image").MouseDown = [this](int x, int y) {
      return note("MouseDown Image " + QString::number(x) + "," + QString::number(y)), false;
    };
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
