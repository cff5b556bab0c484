// Buttons: radio exclusivity, when Action runs, and what a disabled button does.

#include <gtest/gtest.h>

#include <QStringList>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace platform {
namespace {

ControlSpec radio(const QString& name, const QString& group, bool on = false, const QString& panel = {},
                  int page = 0) {
  ControlSpec spec{name, ControlKind::RadioButton, name};
  spec.group = group;
  spec.panel = panel;
  spec.page = page;
  if (on) spec.attributes = {{"Value", true}};
  return spec;
}

// Three group boxes' worth of radio buttons, each recording its Action.
struct Radios {
  Radios() {
    for (const ControlSpec& spec : {radio("A1", "G1", true), radio("A2", "G1"), radio("A3", "G1"),
                                    radio("B1", "G2", true), radio("B2", "G2"),
                                    radio("P1", "", true, "Tabs", 0), radio("P2", "", false, "Tabs", 0),
                                    radio("Q1", "", true, "Tabs", 1)}) {
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
  enum class How { Code, UserClick };
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
      {"radios outside group boxes exclude each other on their page", "P2", How::UserClick, "A1 B1 P2 Q1", {"P2"}},
      {"a radio on another page of the panel is no partner", "Q1", How::Code, "A1 B1 P1 Q1", {}},
      {"clicking the radio already on runs nothing", "A1", How::UserClick, "A1 B1 P1 Q1", {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Radios r;
    auto& target = r.window.control<RadioButton>(row.target);
    if (row.how == How::Code) {
      target.setValue(true);
    } else {
      target.userClick();
    }
    EXPECT_EQ(r.onButtons(), row.on);
    EXPECT_EQ(r.actions, row.actions);
  }
}

TEST(RadioButton, TurningOffFromCodeRunsNoAction) {
  Radios r;
  r.window.control<RadioButton>("A1").setValue(false);
  EXPECT_EQ(r.onButtons(), "B1 P1 Q1");
  EXPECT_TRUE(r.actions.isEmpty());
}

TEST(RadioButton, ActionSeesThePartnerAlreadyOff) {
  Radios r;
  auto& a1 = r.window.control<RadioButton>("A1");
  auto& a2 = r.window.control<RadioButton>("A2");
  bool partnerOnDuringAction = true;
  a2.Action = [&] { partnerOnDuringAction = a1.Value(); };
  a2.setValue(true);
  EXPECT_FALSE(partnerOnDuringAction);
}

TEST(PushButton, PushRunsActionEvenDisabledButAUserClickNeedsItEnabled) {
  enum class How { Push, UserClick };
  struct Row {
    const char* name;
    bool enabled;
    How how;
    int runs;
  };
  const Row rows[] = {
      {"Push on an enabled button runs Action", true, How::Push, 1},
      {"Push on a disabled button runs Action all the same", false, How::Push, 1},
      {"a user's click on an enabled button runs Action", true, How::UserClick, 1},
      {"a user's click on a disabled button does nothing", false, How::UserClick, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    PushButton button("PushButton40");
    button.setEnabled(row.enabled);
    int runs = 0;
    button.Action = [&] { ++runs; };
    row.how == How::Push ? button.Push() : button.userClick();
    EXPECT_EQ(runs, row.runs);
  }
}

TEST(PushButton, PushReturnsAfterNestedPushesHaveFinished) {
  // The "=" key's callers read the answer field straight after the push.
  PushButton run("PushButton1"), equals("PushButton40");
  QString answer;
  run.Action = [&] { answer = "42"; };
  equals.Action = [&] { run.Push(); };
  QString seen;
  PushButton caller("PushButton44");
  caller.Action = [&] {
    equals.Push();
    seen = answer;
  };
  caller.Push();
  EXPECT_EQ(seen, "42");
}

TEST(CheckBox, UserClickTogglesAndRunsActionEachWay) {
  CheckBox box("CheckBox1");
  QList<bool> seen;
  box.Action = [&] { seen.append(box.Value()); };
  box.userClick();
  box.userClick();
  box.setEnabled(false);
  box.userClick();
  EXPECT_EQ(seen, (QList<bool>{true, false}));
}

class Selector : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* entry : {"Calculate", "Convert", "Solve"}) selector.AddRow(entry);
    selector.setCaption("Action");
    selector.Action = [this] { chosen.append(selector.MenuValue()); };
  }
  BevelButton selector{"BevelButton1"};
  QList<int> chosen;
};

TEST_F(Selector, EveryChoiceRunsActionAlsoForTheEntryShown) {
  selector.userChoose(2);
  selector.userChoose(2);
  EXPECT_EQ(chosen, (QList<int>{2, 2}));
  EXPECT_EQ(selector.Caption(), "Action");  // the caption is the program's to set
}

TEST_F(Selector, MenuValueFromCodeRunsNothing) {
  selector.setMenuValue(1);
  EXPECT_EQ(selector.MenuValue(), 1);
  EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(Selector, EntriesOutsideTheMenuAreOutOfBounds) {
  EXPECT_EQ(selector.List(1), "Convert");
  EXPECT_THROW(selector.List(3), OutOfBoundsException);
  EXPECT_THROW(selector.setMenuValue(3), OutOfBoundsException);
  EXPECT_THROW(selector.userChoose(-1), OutOfBoundsException);
  EXPECT_TRUE(chosen.isEmpty());
}

}  // namespace
}  // namespace platform
