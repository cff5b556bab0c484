#pragma once
// One row of a window's control table: everything about a control at its creation.
// Windows are built by iterating their table; the Qt renderer and the scenario driver
// read the controls made from it, so no code anywhere is written per control.

#include <QString>
#include <QVariant>
#include <utility>
#include <vector>

namespace platform {

enum class ControlKind {
  PushButton, BevelButton, RadioButton, CheckBox, TextField, TextArea, StaticText,
  PopupMenu, Listbox, TabPanel, PagePanel, GroupBox, Separator, ImageWell, Timer
};

struct ControlSpec {
  QString name;
  ControlKind kind;
  QString text = {};  // Caption or Text, by class; for a TabPanel its tabs, one per line
  int left = 0, top = 0, width = 0, height = 0;
  // Where it sits: on the window (empty), or on tab/page `page` of a TabPanel/PagePanel.
  QString panel = {};
  int page = 0;
  // The GroupBox it belongs to: radio buttons in one group box turn each other off.
  QString group = {};
  bool visible = true;
  bool enabled = true;
  // Attributes that differ from the class defaults, by registered property name,
  // applied in order after creation, without raising handlers
  // (e.g. {"Value", true}, {"TextSize", 9}, {"ReadOnly", true}, {"Alignment", "right"}).
  std::vector<std::pair<QString, QVariant>> attributes = {};
};

}  // namespace platform
