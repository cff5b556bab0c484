#pragma once
// QtDesktop is the real desktop: the system clipboard, the alert sound, sounds through
// QSoundEffect, modal message boxes, links through the desktop's URL handler, the shift
// key as it is now, dates and times in the user's locale, and Timer periods on QTimer.
// A Timer's Action runs through the guard it is given, like every other model event.

#include <QObject>
#include <QString>
#include <memory>
#include <unordered_map>

#include "platform/desktop/desktop.h"
#include "platform/qt/guard.h"

class QSoundEffect;
class QTimer;

namespace platform::qt {

class QtDesktop : public QObject, public Desktop {
 public:
  QtDesktop();
  ~QtDesktop() override;

  void setGuard(Guard guard) { guard_ = std::move(guard); }

  QString clipboardText() const override;
  bool clipboardHasText() const override;
  void setClipboardText(const QString& text) override;

  void beep() override;
  // Silent when the machine has no audio output or the file cannot be played.
  void playSound(const Sound& sound) override;
  void msgBox(const QString& text) override;
  void showURL(const QString& url) override;

  bool shiftKey() const override;

  QDateTime now() const override;
  QString shortDate(const QDateTime& when) const override;
  QString shortTime(const QDateTime& when) const override;

  void startTimer(Timer& timer) override;
  void stopTimer(Timer& timer) override;
  bool isRunning(const Timer& timer) const;

 private:
  Guard guard_;
  std::unordered_map<const Timer*, QTimer*> timers_;
  std::unordered_map<std::string, QSoundEffect*> sounds_;
};

}  // namespace platform::qt
