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

// A control, a property or a window property that is not there, or a parameterised
// property name that does not read ("Cell(1)", "Cell(a,b)"). The scenario driver stops
// on it: it is a fault of the script, not of the program.
class UnknownNameException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("UnknownNameException"); }
};

// A value assigned by name that the property cannot take: a read-only property, or a
// text that is no number or boolean where one is needed.
class PropertyValueException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("PropertyValueException"); }
};

// A Dictionary asked for a key it does not hold.
class KeyNotFoundException : public FrameworkException {
 public:
  using FrameworkException::FrameworkException;
  QString kind() const override { return QStringLiteral("KeyNotFoundException"); }
};

}  // namespace platform
