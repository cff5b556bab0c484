// Buttons: radio exclusivity, when Action runs, and what a disabled button does.

#include <gtest/gtest.h>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "support/printers.h"

namespace platform {
namespace {

// Two group boxes and a tab panel's pages' worth of radio buttons, each recording its
// Action; A1, B1, P1 and Q1 start on.
struct Radios {
  Radios() {
    const struct {
      const char* name;
      const char* group;
      const char* panel;
      int page;
    } made[] = {{"A1", "G1", "", 0}, {"A2", "G1", "", 0},     {"A3", "G1", "", 0},
                {"B1", "G2", "", 0}, {"B2", "G2", "", 0},     {"P1", "", "Tabs", 0},
                {"P2", "", "Tabs", 0}, {"Q1", "", "Tabs", 1}};
    for (const auto& m : made) {
      ControlSpec spec{m.name, ControlKind::RadioButton, m.name};
      spec.group = m.group;
      spec.panel = m.panel;
      spec.page = m.page;
      if (QString(m.name).endsWith('1')) spec.attributes = {{"Value", true}};
      auto& r = window.add<RadioButton>(spec);
      r.Action = [this, &r] { actions.append(r.Name()); };
    }
  }
  // The names of the buttons that are on, in creation order.
  QString onButtons() const {
    QStringList on;
    for (const auto& c : window.controls()) {
      if (static_cast<RadioButton&>(*c).Value()) on.append(c->Name());
    }
    return on.join(u' ');
  }
  RecordingDesktop desktop;
  Window window{desktop};
  QStringList actions;
};

TEST(RadioButton, TurningOneOnTurnsOffOnlyItsPartners) {
  enum class How { Code, CodeOff, UserClick };
  struct Row {
    const char* name;
    const char* target;
    How how;
    QString on;
    QStringList actions;
  };
  const Row rows[] = {
      {"a radio turned on by code turns off its group box partner", "A2", How::Code, "A2 B1 P1 Q1", {"A2"}},
      {"a user's click does the same", "A3", How::UserClick, "A3 B1 P1 Q1", {"A3"}},
      {"another group box is left alone", "B2", How::Code, "A1 B2 P1 Q1", {"B2"}},
      {"radios outside group boxes exclude each other on their page", "P2", How::UserClick,
       "A1 B1 P2 Q1", {"P2"}},
      {"a radio on another page of the panel is no partner", "Q1", How::Code, "A1 B1 P1 Q1", {}},
      {"clicking the radio already on runs nothing", "A1", How::UserClick, "A1 B1 P1 Q1", {}},
      {"turning one off from code runs nothing", "A1", How::CodeOff, "B1 P1 Q1", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Radios r;
    auto& target = r.window.control<RadioButton>(row.target);
    if (row.how == How::UserClick) {
      target.userClick();
    } else {
      target.setValue(row.how == How::Code);
    }
    EXPECT_EQ(r.onButtons(), row.on);
    EXPECT_EQ(r.actions, row.actions);
  }
  Radios r;
  bool partnerOnDuringAction = true;
  auto& a1 = r.window.control<RadioButton>("A1");
  r.window.control<RadioButton>("A2").Action = [&] { partnerOnDuringAction = a1.Value(); };
  r.window.control<RadioButton>("A2").setValue(true);
  EXPECT_FALSE(partnerOnDuringAction) << "Action sees its partner already off";
}

TEST(Buttons, PushRunsActionEvenDisabledButAUserNeedsThemEnabled) {
  struct Row {
    const char* name;
    bool enabled;
    bool push;  // else a user's click
    int runs;
  };
  const Row rows[] = {
      {"Push on an enabled button runs Action", true, true, 1},
      {"Push on a disabled button runs Action all the same", false, true, 1},
      {"a user's click on an enabled button runs Action", true, false, 1},
      {"a user's click on a disabled button does nothing", false, false, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    PushButton button("PushButton40");
    button.setEnabled(row.enabled);
    int runs = 0;
    button.Action = [&] { ++runs; };
    row.push ? button.Push() : button.userClick();
    EXPECT_EQ(runs, row.runs);
  }
  CheckBox box("CheckBox1");
  QList<bool> seen;
  box.Action = [&] { seen.append(box.Value()); };
  box.userClick();
  box.userClick();
  box.setEnabled(false);
  box.userClick();
  EXPECT_EQ(seen, (QList<bool>{true, false})) << "a check box toggles and runs Action each way";
}

TEST(BevelButton, EveryChoiceRunsActionButCodeAndOutOfRangeRunNothing) {
  BevelButton selector("BevelButton1");
  for (const char* entry : {"Calculate", "Convert", "Solve"}) selector.AddRow(entry);
  selector.setCaption("Action");
  QList<int> chosen;
  selector.Action = [&] { chosen.append(selector.MenuValue()); };
  selector.userChoose(2);
  selector.userChoose(2);  // the entry shown counts again
  selector.setMenuValue(1);
  EXPECT_THROW(selector.List(3), OutOfBoundsException);
  EXPECT_THROW(selector.setMenuValue(3), OutOfBoundsException);
  EXPECT_THROW(selector.userChoose(-1), OutOfBoundsException);
  EXPECT_EQ(chosen, (QList<int>{2, 2}));
  EXPECT_EQ(selector.MenuValue(), 1);
  EXPECT_EQ(selector.Caption(), "Action") << "the caption is the program's to set";
}

}  // namespace
}  // namespace platform
