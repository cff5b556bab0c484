#pragma once
// Buttons: the push button, the bevel button with its menu, radio buttons and check
// boxes. Their framework rules live in the setters here and nowhere else: Push runs
// Action even on a disabled button; a Value assigned from code raises Action as a click
// does, when the value changes; a radio button turned on turns off the others of its
// group box, and only the one turned on runs its Action.

#include "platform/controls/control.h"

namespace platform {

// The shared Caption of buttons and group boxes.
class CaptionControl : public Control {
 public:
  using Control::Control;

  QString Caption() const { return caption_; }
  void setCaption(const QString& caption);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();
  void applyCreationText(const QString& text) override { setCaption(text); }

 private:
  QString caption_;
};

class PushButton : public CaptionControl {
 public:
  static constexpr ControlKind Kind = ControlKind::PushButton;
  explicit PushButton(const QString& name) : CaptionControl(name, Kind) {}

  std::function<void()> Action;

  // Runs Action to its end before returning, whether the button is enabled or not:
  // callers read the results straight after the push.
  void Push();
  void userClick() override;

  // The button that Return presses, and the one that Escape presses.
  bool Default() const { return default_; }
  void setDefault(bool on);
  bool Cancel() const { return cancel_; }
  void setCancel(bool on);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  bool default_ = false;
  bool cancel_ = false;
};

// A button with a pop-up menu. Choosing an entry sets MenuValue and runs Action, also
// for the entry already chosen; the caption is the program's to set. MenuValue assigned
// from code raises nothing.
class BevelButton : public CaptionControl {
 public:
  static constexpr ControlKind Kind = ControlKind::BevelButton;
  explicit BevelButton(const QString& name) : CaptionControl(name, Kind) {}

  std::function<void()> Action;

  void AddRow(const QString& text);
  void DeleteAllRows();
  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The text of menu entry `row`; OutOfBoundsException outside the menu.
  QString List(int row) const;
  QStringList Rows() const { return rows_; }
  void setRows(const QStringList& rows);

  // -1 (no entry) up to ListCount - 1; anything else is an OutOfBoundsException.
  int MenuValue() const { return menuValue_; }
  void setMenuValue(int value);

  // Where the caption sits and where the menu opens, as the toolkit numbers them.
  int CaptionAlign() const { return captionAlign_; }
  void setCaptionAlign(int align);
  int HasMenu() const { return hasMenu_; }
  void setHasMenu(int kind);

  void userClick() override;
  void userChoose(int row) override;

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  QStringList rows_;
  int menuValue_ = 0;
  int captionAlign_ = 0;
  int hasMenu_ = 0;
};

class RadioButton : public CaptionControl {
 public:
  static constexpr ControlKind Kind = ControlKind::RadioButton;
  explicit RadioButton(const QString& name) : CaptionControl(name, Kind) {}

  // Runs when the button is turned on, by the user or by code; never when it goes off.
  std::function<void()> Action;

  bool Value() const { return value_; }
  void setValue(bool on);

  // Turns the button on; a button already on stays so and runs nothing.
  void userClick() override;

  // Radio buttons turn each other off within their group box; those outside any group
  // box do so within their panel page.
  QString exclusionGroup() const;

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  void turnOffQuietly();
  bool value_ = false;
};

class CheckBox : public CaptionControl {
 public:
  static constexpr ControlKind Kind = ControlKind::CheckBox;
  explicit CheckBox(const QString& name) : CaptionControl(name, Kind) {}

  // Runs whenever the value changes, either way, by the user or by code.
  std::function<void()> Action;

  bool Value() const { return value_; }
  void setValue(bool on);

  void userClick() override;

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  bool value_ = false;
};

}  // namespace platform
