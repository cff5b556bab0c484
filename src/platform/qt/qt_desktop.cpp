#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QAudioDevice>
#include <QClipboard>
#include <QDesktopServices>
#include <QLocale>
#include <QMediaDevices>
#include <QMessageBox>
#include <QMimeData>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include "platform/controls/timer.h"
#include "platform/qt/display_text.h"

namespace platform::qt {

QtDesktop::QtDesktop() : guard_(reportingGuard()) {}

QtDesktop::~QtDesktop() {
  for (auto& [timer, qtimer] : timers_) delete qtimer;
}

QString QtDesktop::clipboardText() const { return QGuiApplication::clipboard()->text(); }

bool QtDesktop::clipboardHasText() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data && data->hasText();
}

void QtDesktop::setClipboardText(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
}

void QtDesktop::beep() { QApplication::beep(); }

void QtDesktop::playSound(const Sound& sound) {
  if (sound.path.isEmpty()) return;
  // Without an audio output a sound effect only complains; the program carries on
  // without a word.
  if (QMediaDevices::audioOutputs().isEmpty()) return;
  QSoundEffect*& effect = sounds_[sound.path.toStdString()];
  if (!effect) {
    effect = new QSoundEffect(this);
    effect->setSource(QUrl::fromLocalFile(sound.path));
  }
  if (effect->status() == QSoundEffect::Error) return;
  // A sound still loading plays as soon as it has loaded.
  effect->play();
}

void QtDesktop::msgBox(const QString& text) {
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Abacon"), displayText(text),
                  QMessageBox::Ok);
  // Above the floating window that asked for it.
  box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.exec();
}

void QtDesktop::showURL(const QString& url) {
  QDesktopServices::openUrl(QUrl(url, QUrl::TolerantMode));
}

bool QtDesktop::shiftKey() const {
  return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

QDateTime QtDesktop::now() const { return QDateTime::currentDateTime(); }

QString QtDesktop::shortDate(const QDateTime& when) const {
  return QLocale::system().toString(when.date(), QLocale::ShortFormat);
}

QString QtDesktop::shortTime(const QDateTime& when) const {
  return QLocale::system().toString(when.time(), QLocale::ShortFormat);
}

void QtDesktop::startTimer(Timer& timer) {
  QTimer*& qtimer = timers_[&timer];
  if (!qtimer) {
    qtimer = new QTimer(this);
    Timer* model = &timer;
    connect(qtimer, &QTimer::timeout, this, [this, model] { guard_([model] { model->fire(); }); });
  }
  qtimer->setSingleShot(timer.Mode() == Timer::kSingle);
  qtimer->start(timer.Period());
}

void QtDesktop::stopTimer(Timer& timer) {
  const auto found = timers_.find(&timer);
  if (found == timers_.end()) return;
  // The timer may be stopping from inside its own timeout, or being destroyed.
  found->second->stop();
  found->second->deleteLater();
  timers_.erase(found);
}

bool QtDesktop::isRunning(const Timer& timer) const {
  const auto found = timers_.find(&timer);
  return found != timers_.end() && found->second->isActive();
}

}  // namespace platform::qt
