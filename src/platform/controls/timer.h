#pragma once
// Timer: Mode 0 is off, 1 fires once, 2 fires every Period milliseconds. Setting a
// running Mode, or a new Period while running, asks the window's desktop to start the
// period afresh; Mode 0 cancels. A timer firing once turns itself off before its
// Action runs, so the Action may start it again.

#include "platform/controls/control.h"

namespace platform {

class Timer : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Timer;
  static constexpr int kOff = 0;
  static constexpr int kSingle = 1;
  static constexpr int kMultiple = 2;

  explicit Timer(const QString& name) : Control(name, Kind) {}
  ~Timer() override;

  std::function<void()> Action;

  // 0, 1 or 2; OutOfBoundsException for anything else.
  int Mode() const { return mode_; }
  void setMode(int mode);
  // Milliseconds, at least 0.
  int Period() const { return period_; }
  void setPeriod(int milliseconds);

  // Called by the desktop when the period has run out; a timer that is off ignores it.
  void fire();

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 private:
  int mode_ = kOff;
  int period_ = 1000;
};

}  // namespace platform
