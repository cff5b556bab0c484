#pragma once
// Desktop is the program's one way to the world outside its windows: clipboard, sounds,
// message boxes, links, the shift key, the clock and the scheduling of timers. The Qt
// layer implements it for real; RecordingDesktop stands in for tests and the scenario
// driver. It is passed to each Window, never reached through a global.

#include <QDateTime>
#include <QString>

#include "platform/desktop/media.h"

namespace platform {

class Timer;

class Desktop {
 public:
  virtual ~Desktop() = default;

  virtual QString clipboardText() const = 0;
  virtual bool clipboardHasText() const = 0;
  virtual void setClipboardText(const QString& text) = 0;

  virtual void beep() = 0;
  virtual void playSound(const Sound& sound) = 0;
  // Modal: returns when the user has dismissed the box.
  virtual void msgBox(const QString& text) = 0;
  virtual void showURL(const QString& url) = 0;

  // The state of the key at the moment of asking, not of some earlier event.
  virtual bool shiftKey() const = 0;

  virtual QDateTime now() const = 0;
  virtual QString shortDate(const QDateTime& when) const = 0;
  virtual QString shortTime(const QDateTime& when) const = 0;

  // Starting a running timer starts its period afresh. The desktop calls Timer::fire
  // when a period has run out; a timer stops itself on destruction.
  virtual void startTimer(Timer& timer) = 0;
  virtual void stopTimer(Timer& timer) = 0;
};

// The framework's Clipboard object, made for one handler call and closed at its end.
// Closing only marks the end of its use: the text stays on the desktop's clipboard.
class Clipboard {
 public:
  explicit Clipboard(Desktop& desktop) : desktop_(desktop) {}

  QString Text() const { return desktop_.clipboardText(); }
  void setText(const QString& text) { desktop_.setClipboardText(text); }
  bool TextAvailable() const { return desktop_.clipboardHasText(); }
  void Close() { closed_ = true; }
  bool closed() const { return closed_; }

 private:
  Desktop& desktop_;
  bool closed_ = false;
};

}  // namespace platform
