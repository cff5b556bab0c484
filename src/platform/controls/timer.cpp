#include "platform/controls/timer.h"

#include "platform/desktop/desktop.h"
#include "platform/exceptions.h"

namespace platform {

Timer::~Timer() {
  if (mode_ != kOff) {
    if (Desktop* d = desktop()) d->stopTimer(*this);
  }
}

void Timer::setMode(int mode) {
  if (mode < kOff || mode > kMultiple) {
    throw OutOfBoundsException(Name() + QStringLiteral(".Mode takes 0, 1 or 2, not ") + QString::number(mode));
  }
  const bool modeChanged = mode != mode_;
  mode_ = mode;
  if (Desktop* d = desktop()) {
    if (mode == kOff) {
      d->stopTimer(*this);
    } else {
      d->startTimer(*this);
    }
  }
  if (modeChanged) changed(QStringLiteral("Mode"));
}

void Timer::setPeriod(int milliseconds) {
  if (milliseconds < 0) {
    throw OutOfBoundsException(Name() + QStringLiteral(".Period cannot be negative"));
  }
  if (milliseconds == period_) return;
  period_ = milliseconds;
  changed(QStringLiteral("Period"));
  if (mode_ != kOff) {
    if (Desktop* d = desktop()) d->startTimer(*this);
  }
}

void Timer::fire() {
  if (mode_ == kOff) return;
  if (mode_ == kSingle) setMode(kOff);
  raise(Action);
}

const PropertyTable& Timer::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<Timer>(t)
        .readWrite("Mode", &Timer::Mode, &Timer::setMode)
        .readWrite("Period", &Timer::Period, &Timer::setPeriod);
    return t;
  }();
  return table;
}

}  // namespace platform
