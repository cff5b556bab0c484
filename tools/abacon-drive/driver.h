#pragma once
// The scenario driver: runs the real program on a recording desktop and carries out a
// script of user actions, code actions and checks, one command a line. It reaches every
// control and property by name through the windows' registries, with no per-control
// code, and it does not check that a user could reach what it acts on.

#include <QString>
#include <QStringList>
#include <QTextStream>
#include <memory>
#include <stdexcept>

#include "platform/desktop/recording_desktop.h"
#include "script_line.h"

namespace app {
class App;
}
namespace platform {
class Control;
class Window;
}  // namespace platform

namespace drive {

// A command the driver cannot run: unknown control or property, bad syntax.
class CommandError : public std::runtime_error {
 public:
  explicit CommandError(const QString& message)
      : std::runtime_error(message.toStdString()), message_(message) {}
  QString message() const { return message_; }

 private:
  QString message_;
};

class Driver {
 public:
  Driver(QString home, QTextStream& out);
  ~Driver();

  platform::RecordingDesktop& desktop() { return desktop_; }

  // Runs one line; a failed expect is counted and reported, a command that cannot run
  // throws CommandError.
  void run(const QString& line, int lineNumber);
  int failures() const { return failures_; }

 private:
  struct Target {
    platform::Window* window = nullptr;
    platform::Control* control = nullptr;  // null: a property of the window
    QString property;
  };

  void launch();
  void quit();
  app::App& running();
  platform::Window& windowNamed(const QString& name);
  platform::Control& controlNamed(const QString& spec);
  Target target(const QString& spec);
  QVariant read(const Target& t);
  void guarded(const std::function<void()>& action);

  QStringList takeLogLines();
  void expectLines(const QStringList& actual, const std::vector<Word>& expected,
                   const QString& command, int lineNumber);
  void fail(int lineNumber, const QString& command, const QString& got);
  QString homePath(const QString& relative) const;

  QString home_;
  QTextStream& out_;
  platform::RecordingDesktop desktop_;
  std::unique_ptr<app::App> app_;
  qsizetype logOffset_ = 0;
  int failures_ = 0;
};

// The printed form of a property value: booleans as true/false, integers in decimal,
// texts quoted.
QString printed(const QVariant& value);
// The form an expected word is compared with: texts as they are, others printed.
QString comparable(const QVariant& value);

}  // namespace drive
