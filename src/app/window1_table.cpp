#include "app/window1_table.h"

#include "calc/keypad.h"
#include "guidance/contact.h"
#include "guidance/texts.h"

namespace app {
namespace {

using platform::ControlKind;
using platform::ControlSpec;
using guidance::TextKey;

// Texts set at creation keep the framework's habit of a carriage return between lines.
const QString CR = QStringLiteral("\r");

QString creationText(TextKey key) { return guidance::text(key); }

// The about block of the Welcome tab: our two opening lines, then the fixed five.
QString aboutText() {
  return QStringList{QStringLiteral("Abacon, the science desk"), QStringLiteral("accessory."),
                     QStringLiteral("AbaconB ver 2.1"), QStringLiteral("---------------"),
                     QStringLiteral("AbaconB is a compact"), QStringLiteral("version of Abacon"),
                     QStringLiteral("underdevelopment.")}
      .join(CR);
}

std::vector<ControlSpec> buildTable() {
  const ControlKind PB = ControlKind::PushButton, RB = ControlKind::RadioButton,
                    CB = ControlKind::CheckBox, TF = ControlKind::TextField,
                    TA = ControlKind::TextArea, ST = ControlKind::StaticText,
                    PM = ControlKind::PopupMenu, LB = ControlKind::Listbox,
                    GB = ControlKind::GroupBox;
  const QString TP1 = QStringLiteral("TabPanel1"), TP2 = QStringLiteral("TabPanel2"),
                PP1 = QStringLiteral("PagePanel1");
  enum { Settings = 0, Help = 1, Log = 2, Directions = 3 };
  enum { Welcome = 0, Calculate = 1, Solve = 2, Convert = 3, Search = 4 };

  // Attributes shared by several rows.
  const std::vector<std::pair<QString, QVariant>> readOnlyArea = {
      {"MultiLine", true}, {"ScrollbarVertical", true}, {"ReadOnly", true}};
  const std::vector<std::pair<QString, QVariant>> styledArea = {
      {"MultiLine", true}, {"Styled", true}, {"ScrollbarVertical", true}};
  const std::vector<std::pair<QString, QVariant>> rightAligned = {{"Alignment", "right"}};
  const std::vector<std::pair<QString, QVariant>> centred = {{"Alignment", "center"}};
  const std::vector<std::pair<QString, QVariant>> oneColumnList = {
      {"ColumnCount", 1}, {"ScrollbarVertical", true}, {"GridLinesHorizontal", true}};
  const std::vector<std::pair<QString, QVariant>> optionalAdds = {{"InitialValue", "Optional Adds"}};

  std::vector<ControlSpec> t = {
      // The window's frame, on no tab.
      {"PushButton1", PB, "RUN", 14, 404, 50, 20, {}, 0, {}, false},
      {"EditField1", TA, "", 14, 320, 67, 72, {}, 0, {}, false, true,
       {{"MultiLine", true}, {"ScrollbarVertical", false}, {"ScrollbarHorizontal", false}}},
      {"BevelButton1", ControlKind::BevelButton, "Action", 2, 1, 60, 22, {}, 0, {}, true, true,
       {{"TextSize", 9}}},
      {"ImageWell1", ControlKind::ImageWell, "", 2, 28, 62, 62, {}, 0, {}, true, true,
       {{"Image", "target"}}},
      {"StaticText7", ST, creationText(TextKey::ctlStaticText7), 14, 113, 74, 86, {}, 0,
       {}, false, true, {{"TextSize", 10}, {"Alignment", "center"}}},
      {"PushButton2", PB, "Back", 8, 546, 80, 20},
      {"Separator3", ControlKind::Separator, "", 12, 602, 314, 1},
      {"TabPanel1", ControlKind::TabPanel, "Settings\nHelp\nLog\nDirections", 100, 16, 250, 574},
      {"TabPanel2", ControlKind::TabPanel, "Welcome\nCalculate\nSolve\nConvert\nSearch", 368, 12,
       360, 578},
      {"StaticText27", ST, creationText(TextKey::ctlStaticText27), 12, 211, 76, 98, {}, 0, {},
       false},

      // TabPanel1, "Settings".
      {"GroupBox2", GB, "Math", 110, 51, 195, 56, TP1, Settings},
      {"normbutton", RB, "Normal", 117, 69, 74, 20, TP1, Settings, "GroupBox2", true, true,
       {{"Value", true}}},
      {"scibutton1", RB, "Scientific", 217, 69, 80, 20, TP1, Settings, "GroupBox2"},
      {"GroupBox1", GB, "Log", 117, 131, 197, 50, TP1, Settings},
      {"RadioButton3", RB, "base e", 117, 147, 68, 20, TP1, Settings, "GroupBox1", true, true,
       {{"Value", true}}},
      {"RadioButton4", RB, "base 10", 217, 149, 77, 20, TP1, Settings, "GroupBox1"},
      {"GroupBox3", GB, "Trig", 110, 211, 203, 53, TP1, Settings},
      {"RadioButton1", RB, "radians", 117, 236, 68, 20, TP1, Settings, "GroupBox3"},
      {"RadioButton2", RB, "degrees", 217, 236, 68, 20, TP1, Settings, "GroupBox3", true, true,
       {{"Value", true}}},
      {"GroupBox4", GB, "Search", 110, 291, 200, 50, TP1, Settings},
      {"RadioButton5", RB, "Smart", 117, 311, 78, 20, TP1, Settings, "GroupBox4", true, true,
       {{"Value", true}}},
      {"RadioButton6", RB, "Literal", 217, 311, 75, 20, TP1, Settings, "GroupBox4"},
      {"StaticText5", ST, "Conversions:", 117, 383, 97, 20, TP1, Settings},
      {"popconvert", PM, "", 187, 461, 118, 20, TP1, Settings},
      {"PopupMenu2", PM, "", 187, 423, 118, 20, TP1, Settings},
      {"CheckBox1", CB, "Purge Pretty", 121, 351, 100, 20, TP1, Settings, {}, true, true,
       {{"Value", true}}},
      {"CheckBox2", CB, "Use Clipboard", 208, 380, 97, 27, TP1, Settings, {}, true, true,
       {{"Value", false}}},
      {"PushButton42", PB, "Save Preferences", 123, 546, 190, 20, TP1, Settings},

      // TabPanel1, "Help".
      {"StaticText15", ST, "Math", 110, 49, 100, 20, TP1, Help},
      {"TextArea1", TA, creationText(TextKey::ctlTextArea1), 110, 69, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"TextArea2", TA, creationText(TextKey::ctlTextArea2), 110, 154, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"StaticText16", ST, "Log", 110, 133, 100, 20, TP1, Help},
      {"StaticText17", ST, "Trig", 110, 217, 100, 20, TP1, Help},
      {"TextArea3", TA, creationText(TextKey::ctlTextArea3), 110, 238, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"StaticText18", ST, "Math", 118, 333, 100, 20, TP1, Help},
      {"TextArea4", TA, creationText(TextKey::ctlTextArea4), 118, 332, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"TextArea5", TA, creationText(TextKey::ctlTextArea5), 118, 424, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"StaticText19", ST, "Purge Perfect", 118, 401, 100, 20, TP1, Help},
      {"StaticText20", ST, "Conversions", 118, 493, 100, 20, TP1, Help},
      {"TextArea6", TA, creationText(TextKey::ctlTextArea6), 119, 517, 200, 57, TP1, Help, {}, true,
       true, readOnlyArea},
      {"StaticText21", ST, "Search", 118, 311, 100, 20, TP1, Help},

      // TabPanel1, "Log".
      {"EditField2", TA, "", 110, 160, 207, 357, TP1, Log, {}, true, true, readOnlyArea},
      {"PushButton3", PB, "Save", 204, 546, 80, 20, TP1, Log},
      {"StaticText22", ST, creationText(TextKey::ctlStaticText22), 110, 52, 207, 96, TP1, Log, {},
       true, true, {{"TextSize", 10}}},

      // TabPanel1, "Directions".
      {"EditField10", TA, creationText(TextKey::ctlEditField10), 130, 56, 191, 470, TP1,
       Directions, {}, true, true, readOnlyArea},
      {"PushButton43", PB, "More Instructions", 170, 545, 142, 30, TP1, Directions},

      // TabPanel2, "Welcome".
      {"StaticText1", ST, "Welcome to Abacon", 388, 57, 301, 20, TP2, Welcome, {}, true, true,
       centred},
      {"StaticText23", ST, aboutText(), 400, 89, 166, 117, TP2, Welcome},
      {"StaticText24", ST, QString(guidance::kWebPageAddress), 388, 218, 275, 20, TP2, Welcome, {}, true, true,
       {{"Underline", true}, {"Italic", true}, {"TextColor", "#1a4fb4"}}},
      {"PushButton4", PB, "email abacon", 577, 145, 112, 20, TP2, Welcome},
      {"TextArea8", TA, creationText(TextKey::ctlTextArea8), 388, 276, 330, 262, TP2, Welcome, {},
       true, true, styledArea},
      {"StaticText36", ST, "Clipboard Viewer:", 388, 250, 134, 20, TP2, Welcome},
      {"PushButton48", PB, "Reset", 619, 550, 80, 20, TP2, Welcome},

      // TabPanel2, "Calculate": the group box, then its keys (from the keypad table).
      {"GroupBox6", GB, "Calculator", 382, 56, 322, 265, TP2, Calculate},
  };

  for (const calc::KeypadKey& key : calc::keypadTable()) {
    t.push_back({key.name, PB, key.caption, key.left, key.top, key.width, key.height, TP2,
                 Calculate, "GroupBox6", true, false});
  }

  const std::vector<ControlSpec> rest = {
      {"EditField5", TF, "", 520, 106, 164, 22, TP2, Calculate},
      {"EditField4", TA, "", 392, 76, 309, 22, TP2, Calculate, {}, true, true,
       {{"MultiLine", true}, {"Styled", true}, {"ScrollbarVertical", true},
        {"BackColor", "#ffff66"}}},
      {"StaticText8", ST, "Answer:", 390, 107, 118, 20, TP2, Calculate, {}, true, true,
       rightAligned},
      {"Listbox3", LB, "", 392, 350, 197, 200, TP2, Calculate, {}, false, true,
       {{"ColumnCount", 2}, {"ColumnWidths", "90%,10%"},
        {"GridLinesHorizontal", true}, {"GridLinesVertical", true}}},
      {"StaticText32", ST, "Saved Formulas:", 390, 315, 177, 20, TP2, Calculate, {}, false, true,
       centred},
      {"PushButton46", PB, "Delete", 624, 424, 80, 20, TP2, Calculate, {}, false},
      {"StaticText33", ST, "Checked" + CR + "Formulas", 617, 460, 100, 56, TP2, Calculate, {},
       false, true, centred},

      // TabPanel2, "Solve".
      {"GroupBox5", GB, "Quadratic Equation", 385, 75, 327, 124, TP2, Solve},
      {"PushButton41", PB, "Solve", 606, 170, 80, 20, TP2, Solve},
      {"EditField9", TF, "Solutions(x1,x2):", 392, 126, 292, 22, TP2, Solve},
      {"StaticText13", ST, "= 0", 631, 105, 30, 20, TP2, Solve},
      {"EditC", TF, "", 580, 103, 36, 22, TP2, Solve, {}, true, true, rightAligned},
      {"StaticText12", ST, "x + ", 541, 105, 27, 20, TP2, Solve},
      {"EditB", TF, "", 495, 103, 36, 22, TP2, Solve, {}, true, true, rightAligned},
      {"StaticText11", ST, "x^2 + ", 442, 105, 46, 20, TP2, Solve},
      {"EditA", TF, "", 394, 101, 36, 22, TP2, Solve, {}, true, true, rightAligned},
      {"GroupBox8", GB, "2 Linear Equations", 395, 240, 291, 186, TP2, Solve},
      {"A1", TF, "", 408, 269, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"B1", TF, "", 509, 269, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"C1", TF, "", 606, 269, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"StaticText28", ST, "X + ", 454, 270, 43, 20, TP2, Solve},
      {"StaticText29", ST, "Y = ", 556, 270, 32, 20, TP2, Solve},
      {"E2", TF, "", 509, 303, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"StaticText30", ST, "Y = ", 556, 304, 32, 20, TP2, Solve},
      {"D2", TF, "", 408, 303, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"F2", TF, "", 606, 303, 41, 22, TP2, Solve, {}, true, true, rightAligned},
      {"StaticText31", ST, "X + ", 454, 304, 43, 20, TP2, Solve},
      {"TextField2", TF, "Solutions(X,Y):", 411, 346, 236, 22, TP2, Solve},
      {"PushButton45", PB, "Solve", 567, 379, 80, 20, TP2, Solve},

      // TabPanel2, "Convert".
      {"TextField1", TF, "", 400, 56, 297, 22, TP2, Convert},
      {"Listbox1", LB, "", 400, 164, 125, 100, TP2, Convert, {}, true, true, oneColumnList},
      {"Listbox2", LB, "", 537, 177, 169, 132, TP2, Convert, {}, true, true, oneColumnList},
      {"PushButton44", PB, "Convert", 617, 371, 80, 20, TP2, Convert},
      {"StaticText25", ST, creationText(TextKey::ctlStaticText25), 400, 91, 299, 52, TP2, Convert},
      {"GroupBox7", GB, "Choose", 400, 323, 159, 147, TP2, Convert},
      {"RadioButton7", RB, "Normal", 413, 351, 100, 20, TP2, Convert, "GroupBox7", true, true,
       {{"Value", true}}},
      {"RadioButton8", RB, "Upper Unit", 413, 383, 100, 20, TP2, Convert, "GroupBox7"},
      {"RadioButton9", RB, "Lower Unit", 413, 423, 100, 20, TP2, Convert, "GroupBox7"},
      {"StaticText26", ST, creationText(TextKey::ctlStaticText26), 413, 482, 284, 91, TP2, Convert},

      // TabPanel2, "Search": the page panel and its two pages.
      {"PagePanel1", ControlKind::PagePanel, "", 372, 48, 343, 502, TP2, Search, {}, true, true,
       {{"PanelCount", 5}}},
      // Page 0: physical data.
      {"Listbox4", LB, "", 387, 141, 141, 139, PP1, 0, {}, true, true, oneColumnList},
      {"PopupMenu1", PM, "", 546, 141, 153, 20, PP1, 0, {}, true, true, optionalAdds},
      {"TextField3", TF, "", 387, 68, 211, 22, PP1, 0, {}, true, true, {{"TextSize", 10}}},
      {"PushButton47", PB, "Search", 610, 70, 80, 20, PP1, 0},
      {"StaticText34", ST, creationText(TextKey::ctlStaticText34), 385, 102, 143, 33, PP1, 0},
      {"Listbox5", LB, "", 387, 311, 303, 100, PP1, 0, {}, true, true, oneColumnList},
      {"StaticText35", ST, "Results: (Click for more Details-if needed)", 385, 279, 283, 20, PP1,
       0},
      {"TextArea7", TA, "", 390, 418, 300, 100, PP1, 0, {}, true, true, styledArea},
      // Page 1: astronomical data.
      {"TextArea9", TA, "", 399, 434, 300, 100, PP1, 1, {}, true, true, styledArea},
      {"Listbox6", LB, "", 399, 331, 303, 100, PP1, 1, {}, true, true, oneColumnList},
      {"StaticText37", ST, "Results: (Click for more Details-if needed)", 405, 299, 283, 20, PP1,
       1},
      {"Listbox7", LB, "", 399, 161, 141, 139, PP1, 1, {}, true, true, oneColumnList},
      {"PushButton49", PB, "Search", 622, 87, 80, 20, PP1, 1},
      {"TextField4", TF, "", 399, 85, 211, 22, PP1, 1, {}, true, true, {{"TextSize", 10}}},
      {"PopupMenu3", PM, "", 552, 161, 153, 20, PP1, 1, {}, true, true, optionalAdds},

      // Not on the window: it ends the blink of the target.
      {"Timer1", ControlKind::Timer, "", 0, 0, 0, 0, {}, 0, {}, true, true,
       {{"Mode", 0}, {"Period", 1000}}},
  };
  t.insert(t.end(), rest.begin(), rest.end());
  return t;
}

}  // namespace

const std::vector<ControlSpec>& window1ControlTable() {
  static const std::vector<ControlSpec> table = buildTable();
  return table;
}

}  // namespace app
