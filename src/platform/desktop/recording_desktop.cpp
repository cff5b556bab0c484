#include "platform/desktop/recording_desktop.h"

#include <QLocale>

#include "platform/controls/timer.h"

namespace platform {

namespace {

// The driver promises en_US dates ("11/23/26") and times ("9:30 AM") on every machine.
QLocale driverLocale() { return QLocale(QLocale::English, QLocale::UnitedStates); }

}  // namespace

QString RecordingDesktop::eventText(const QString& verb, const QString& text) {
  QString flat = text;
  flat.replace(QStringLiteral("\r\n"), QStringLiteral("\\n"));
  flat.replace(QLatin1Char('\r'), QStringLiteral("\\n"));
  flat.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
  return verb + QLatin1Char(' ') + flat;
}

void RecordingDesktop::record(const QString& event) { events_.append(event); }

QString RecordingDesktop::clipboardText() const { return clipboardHasText_ ? clipboard_ : QString(); }

bool RecordingDesktop::clipboardHasText() const { return clipboardHasText_; }

void RecordingDesktop::setClipboardText(const QString& text) {
  clipboard_ = text;
  clipboardHasText_ = true;
}

void RecordingDesktop::clearClipboard() {
  clipboard_.clear();
  clipboardHasText_ = false;
}

void RecordingDesktop::beep() { record(QStringLiteral("beep")); }

void RecordingDesktop::playSound(const Sound& sound) {
  record(eventText(QStringLiteral("sound"), sound.name));
}

void RecordingDesktop::msgBox(const QString& text) {
  record(eventText(QStringLiteral("msgbox"), text));
}

void RecordingDesktop::showURL(const QString& url) { record(eventText(QStringLiteral("url"), url)); }

bool RecordingDesktop::shiftKey() const { return shift_; }

void RecordingDesktop::setShiftKey(bool down) { shift_ = down; }

QDateTime RecordingDesktop::now() const {
  return clock_.isValid() ? clock_ : QDateTime::currentDateTime();
}

QString RecordingDesktop::shortDate(const QDateTime& when) const {
  return driverLocale().toString(when.date(), QLocale::ShortFormat);
}

QString RecordingDesktop::shortTime(const QDateTime& when) const {
  return driverLocale().toString(when.time(), QLocale::ShortFormat);
}

void RecordingDesktop::setClock(const QDateTime& fixed) { clock_ = fixed; }

void RecordingDesktop::startTimer(Timer& timer) {
  if (!timers_.contains(&timer)) timers_.append(&timer);
}

void RecordingDesktop::stopTimer(Timer& timer) { timers_.removeAll(&timer); }

QList<Timer*> RecordingDesktop::runningTimers() const { return timers_; }

bool RecordingDesktop::isRunning(const Timer& timer) const {
  return timers_.contains(const_cast<Timer*>(&timer));
}

int RecordingDesktop::fireTimers() {
  const QList<Timer*> round = timers_;
  int fired = 0;
  for (Timer* timer : round) {
    // An Action earlier in the round may have stopped or destroyed this one.
    if (!timers_.contains(timer)) continue;
    timer->fire();
    ++fired;
  }
  return fired;
}

bool RecordingDesktop::fireTimer(const QString& name) {
  for (Timer* timer : timers_) {
    if (timer->Name().compare(name, Qt::CaseInsensitive) == 0) {
      timer->fire();
      return true;
    }
  }
  return false;
}

QStringList RecordingDesktop::events() const { return events_; }

QStringList RecordingDesktop::takeEvents() {
  QStringList taken;
  taken.swap(events_);
  return taken;
}

}  // namespace platform
