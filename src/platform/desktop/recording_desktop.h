#pragma once
// A desktop that does nothing but remember. Every call that the program makes to the
// outside becomes one line, in the form the scenario driver prints ("beep",
// "sound claves", "msgbox TEXT", "url TEXT", line endings inside TEXT written as \n).
// Its clipboard is its own, the shift key and the clock are set by the caller, short
// dates and times are those of en_US whatever the machine's locale, and timers fire
// only when told to.

#include <QList>
#include <QStringList>

#include "platform/desktop/desktop.h"

namespace platform {

class RecordingDesktop : public Desktop {
 public:
  RecordingDesktop() = default;
  ~RecordingDesktop() override = default;
  RecordingDesktop(const RecordingDesktop&) = delete;
  RecordingDesktop& operator=(const RecordingDesktop&) = delete;

  QString clipboardText() const override;
  bool clipboardHasText() const override;
  void setClipboardText(const QString& text) override;
  // Another application put something on the clipboard that is not text.
  void clearClipboard();

  void beep() override;
  void playSound(const Sound& sound) override;
  void msgBox(const QString& text) override;
  void showURL(const QString& url) override;

  bool shiftKey() const override;
  void setShiftKey(bool down);

  QDateTime now() const override;
  QString shortDate(const QDateTime& when) const override;
  QString shortTime(const QDateTime& when) const override;
  // A null time gives the machine's clock back.
  void setClock(const QDateTime& fixed);

  void startTimer(Timer& timer) override;
  void stopTimer(Timer& timer) override;
  // In the order they were started.
  QList<Timer*> runningTimers() const;
  bool isRunning(const Timer& timer) const;
  // Fires every timer that runs now, once each, in the order they were started; a timer
  // stopped by an earlier one's Action in the same round does not fire. Returns how
  // many fired.
  int fireTimers();
  // Fires the running timer of that name (case ignored); false when none runs.
  bool fireTimer(const QString& name);

  // Everything recorded since the start or the last takeEvents.
  QStringList events() const;
  QStringList takeEvents();

  // "msgbox " + text as it is recorded.
  static QString eventText(const QString& verb, const QString& text);

 private:
  void record(const QString& event);

  QString clipboard_;
  bool clipboardHasText_ = false;
  bool shift_ = false;
  QDateTime clock_;
  QList<Timer*> timers_;
  QStringList events_;
};

}  // namespace platform
