#pragma once
// Faults of the framework layer. Any of them that escapes a handler reaches the
// program's handler of unhandled exceptions, which reports it and lets the program
// run on. XmlException is the one the program itself catches (the conversion table).

#include <QString>
#include <stdexcept>

namespace platform {

class FrameworkException : public std::runtime_error {
 public:
  explicit FrameworkException(const QString& message)
      : std::runtime_error(message.toStdString()), message_(message) {}
  virtual QString kind() const { return QStringLiteral("RuntimeException"); }
  QString message() const { return message_; }

 private:
  QString message_;
};

// A method called on an object that is not there (a Nil FolderItem, a missing file).
class NilObjectException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("NilObjectException"); }
};

class IOException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("IOException"); }
};

class OutOfBoundsException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("OutOfBoundsException"); }
};

}  // namespace platform
