#include "driver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "app/app.h"
#include "app/window1.h"
#include "guidance/window2.h"
#include "platform/controls/controls.h"
#include "platform/exceptions.h"
#include "platform/strings/strings.h"

namespace drive {

namespace {

int toInt(const Word& word, const QString& what) {
  bool ok = false;
  const int value = word.text.toInt(&ok);
  if (!ok) throw CommandError(what + " must be a whole number, not " + quote(word.text));
  return value;
}

void needWords(const std::vector<Word>& words, size_t count, const QString& usage) {
  if (words.size() != count) throw CommandError("usage: " + usage);
}

}  // namespace

QString printed(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      return QString::number(value.toLongLong());
    case QMetaType::Double:
      return platform::Str(value.toDouble());
    case QMetaType::QStringList:
      return quote(value.toStringList().join('\n'));
    default:
      return quote(value.toString());
  }
}

QString comparable(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QString:
      return value.toString();
    case QMetaType::QStringList:
      return value.toStringList().join('\n');
    default:
      return printed(value);
  }
}

Driver::Driver(QString home, QTextStream& out) : home_(std::move(home)), out_(out) {}

Driver::~Driver() {
  if (app_) app_->quit();
}

app::App& Driver::running() {
  if (!app_) throw CommandError(QStringLiteral("the program is not running: use launch first"));
  return *app_;
}

void Driver::launch() {
  if (app_) throw CommandError(QStringLiteral("the program is already running: quit it first"));
  app_ = std::make_unique<app::App>(desktop_);
  logOffset_ = 0;
  app_->guard([this] { app_->_Startup(); });
}

void Driver::quit() {
  running().quit();
  app_.reset();
}

platform::Window& Driver::windowNamed(const QString& name) {
  app::App& app = running();
  if (platform::StrEq(name, "Window1")) {
    if (!app.window1()) throw CommandError(QStringLiteral("Window1 is not open"));
    return *app.window1();
  }
  if (platform::StrEq(name, "Window2")) {
    if (!app.window2()) throw CommandError(QStringLiteral("Window2 is not open"));
    return *app.window2();
  }
  throw CommandError("unknown window " + name);
}

platform::Control& Driver::controlNamed(const QString& spec) {
  QString windowName = QStringLiteral("Window1");
  QString name = spec;
  const qsizetype dot = spec.indexOf('.');
  if (dot >= 0) {
    windowName = spec.left(dot);
    name = spec.mid(dot + 1);
  }
  platform::Window& window = windowNamed(windowName);
  platform::Control* control = window.findControl(name);
  if (!control) throw CommandError("unknown control " + spec);
  return *control;
}

// NAME.PROP, Window1.PROP, Window2.NAME.PROP.
Driver::Target Driver::target(const QString& spec) {
  const QStringList parts = spec.split('.');
  if (parts.size() < 2 || parts.contains(QString())) {
    throw CommandError("expected NAME.PROPERTY, not " + spec);
  }
  Target t;
  const bool windowFirst = platform::StrEq(parts[0], "Window1") || platform::StrEq(parts[0], "Window2");
  if (windowFirst && parts.size() == 2) {
    t.window = &windowNamed(parts[0]);
    t.property = parts[1];
    if (!t.window->hasProperty(t.property)) throw CommandError("unknown property " + spec);
    return t;
  }
  const QString windowName = windowFirst ? parts[0] : QStringLiteral("Window1");
  const QString controlName = windowFirst ? parts[1] : parts[0];
  t.property = parts.mid(windowFirst ? 2 : 1).join('.');
  t.window = &windowNamed(windowName);
  t.control = t.window->findControl(controlName);
  if (!t.control) throw CommandError("unknown control " + controlName);
  if (!t.control->hasProperty(t.property)) throw CommandError("unknown property " + spec);
  return t;
}

QVariant Driver::read(const Target& t) {
  try {
    return t.control ? t.control->property(t.property) : t.window->property(t.property);
  } catch (const platform::FrameworkException& e) {
    throw CommandError(e.message());
  }
}

void Driver::guarded(const std::function<void()>& action) { running().guard(action); }

QStringList Driver::takeLogLines() {
  if (!app_ || !app_->window1()) return {};
  const QString text = app_->window1()->EditField2->Text();
  if (logOffset_ > text.size()) logOffset_ = 0;  // the log was replaced, not appended to
  QString added = text.mid(logOffset_);
  logOffset_ = text.size();
  if (added.isEmpty()) return {};
  if (added.endsWith(platform::EndOfLine())) added.chop(platform::EndOfLine().size());
  return added.split(platform::EndOfLine());
}

// Expected lines against actual ones; a bare * matches any number of lines.
void Driver::expectLines(const QStringList& actual, const std::vector<Word>& expected,
                         const QString& command, int lineNumber) {
  std::function<bool(size_t, qsizetype)> match = [&](size_t e, qsizetype a) -> bool {
    if (e == expected.size()) return a == actual.size();
    if (!expected[e].quoted && expected[e].text == "*") {
      for (qsizetype k = a; k <= actual.size(); ++k) {
        if (match(e + 1, k)) return true;
      }
      return false;
    }
    return a < actual.size() && actual[a] == expected[e].text && match(e + 1, a + 1);
  };
  if (!match(0, 0)) {
    QStringList shown;
    for (const QString& line : actual) shown << quote(line);
    fail(lineNumber, command, shown.isEmpty() ? QStringLiteral("nothing") : shown.join(' '));
  }
}

void Driver::fail(int lineNumber, const QString& command, const QString& got) {
  ++failures_;
  out_ << "FAIL " << lineNumber << ": " << command << " got " << got << "\n";
}

QString Driver::homePath(const QString& relative) const {
  if (relative.isEmpty() || QDir::isAbsolutePath(relative) || relative.split('/').contains("..")) {
    throw CommandError("a path under the home folder is expected, not " + relative);
  }
  return home_ + "/" + relative;
}

void Driver::run(const QString& rawLine, int lineNumber) {
  const QString command = rawLine.trimmed();
  if (command.isEmpty() || command.startsWith('#')) return;
  const ScriptLine line = parseScriptLine(command);
  if (!line.error.isEmpty()) throw CommandError(line.error);
  const std::vector<Word>& w = line.words;
  const QString verb = w[0].text;
  auto arg = [&](size_t i) -> const QString& { return w[i].text; };

  if (verb == "launch") {
    needWords(w, 1, "launch");
    launch();
  } else if (verb == "quit") {
    needWords(w, 1, "quit");
    quit();
  } else if (verb == "shift") {
    needWords(w, 2, "shift down|up");
    if (arg(1) != "down" && arg(1) != "up") throw CommandError("usage: shift down|up");
    desktop_.setShiftKey(arg(1) == "down");
  } else if (verb == "drop") {
    if (w.size() > 2) throw CommandError("usage: drop [\"TEXT\"]");
    platform::Window& window = windowNamed("Window1");
    platform::DragItem item;
    if (w.size() == 2) item.text = arg(1);
    guarded([&] { window.userDrop(item); });
  } else if (verb == "click") {
    if (w.size() != 2 && w.size() != 4) throw CommandError("usage: click NAME [X Y]");
    platform::Control& control = controlNamed(arg(1));
    if (w.size() == 2) {
      guarded([&] { control.userClick(); });
    } else {
      const int x = toInt(w[2], "X"), y = toInt(w[3], "Y");
      guarded([&] { control.userPress(x, y); });
    }
  } else if (verb == "choose") {
    needWords(w, 3, "choose NAME N");
    platform::Control& control = controlNamed(arg(1));
    const int n = toInt(w[2], "N");
    if (auto* bevel = dynamic_cast<platform::BevelButton*>(&control)) {
      guarded([&] { bevel->userChoose(n); });
    } else if (auto* popup = dynamic_cast<platform::PopupMenu*>(&control)) {
      guarded([&] { popup->userChoose(n); });
    } else if (auto* tabs = dynamic_cast<platform::TabPanel*>(&control)) {
      guarded([&] { tabs->userChoose(n); });
    } else if (auto* list = dynamic_cast<platform::Listbox*>(&control)) {
      guarded([&] { list->userChoose(n); });
    } else {
      throw CommandError(arg(1) + " has no entries to choose");
    }
  } else if (verb == "leave") {
    needWords(w, 2, "leave NAME");
    platform::Control& control = controlNamed(arg(1));
    guarded([&] { control.userLeave(); });
  } else if (verb == "check") {
    needWords(w, 4, "check NAME ROW on|off");
    auto* list = dynamic_cast<platform::Listbox*>(&controlNamed(arg(1)));
    if (!list) throw CommandError(arg(1) + " is not a list box");
    const int row = toInt(w[2], "ROW");
    if (arg(3) != "on" && arg(3) != "off") throw CommandError("usage: check NAME ROW on|off");
    guarded([&] { list->userCheck(row, arg(3) == "on"); });
  } else if (verb == "type") {
    needWords(w, 3, "type NAME \"TEXT\"");
    auto* field = dynamic_cast<platform::TextEdit*>(&controlNamed(arg(1)));
    if (!field) throw CommandError(arg(1) + " does not take typing");
    guarded([&] { field->userType(arg(2)); });
  } else if (verb == "set") {
    needWords(w, 3, "set NAME.PROP VALUE");
    const Target t = target(arg(1));
    const QVariant value(arg(2));
    // A value the property cannot take is the script's fault; a fault in a handler the
    // assignment raises is the program's, and goes to its handler.
    bool rejected = false;
    QString why;
    guarded([&] {
      try {
        if (t.control) t.control->setProperty(t.property, value);
        else t.window->setProperty(t.property, value);
      } catch (const platform::PropertyValueException& e) {
        rejected = true;
        why = e.message();
      }
    });
    if (rejected) throw CommandError(why);
  } else if (verb == "push") {
    needWords(w, 2, "push NAME");
    auto* button = dynamic_cast<platform::PushButton*>(&controlNamed(arg(1)));
    if (!button) throw CommandError(arg(1) + " is not a push button");
    guarded([&] { button->Push(); });
  } else if (verb == "get") {
    needWords(w, 2, "get NAME.PROP");
    const QString value = printed(read(target(arg(1))));
    out_ << arg(1) << " = " << value << "\n";
  } else if (verb == "clipboard") {
    if (w.size() == 1) {
      out_ << "clipboard = " << quote(desktop_.clipboardText()) << "\n";
    } else {
      needWords(w, 2, "clipboard [\"TEXT\"]");
      desktop_.setClipboardText(arg(1));
    }
  } else if (verb == "log") {
    needWords(w, 1, "log");
    for (const QString& l : takeLogLines()) out_ << "| " << l << "\n";
  } else if (verb == "events") {
    needWords(w, 1, "events");
    for (const QString& e : desktop_.takeEvents()) out_ << e << "\n";
  } else if (verb == "timer") {
    needWords(w, 1, "timer");
    guarded([&] { desktop_.fireTimer("Timer1"); });
  } else if (verb == "file") {
    needWords(w, 2, "file PATH");
    QFile file(homePath(arg(1)));
    if (file.open(QIODevice::ReadOnly)) {
      out_ << "file " << arg(1) << " = " << quote(QString::fromUtf8(file.readAll())) << "\n";
    } else {
      out_ << "file " << arg(1) << " is not there\n";
    }
  } else if (verb == "write") {
    needWords(w, 3, "write PATH \"TEXT\"");
    const QString path = homePath(arg(1));
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(arg(2).toUtf8()) < 0) {
      throw CommandError("cannot write " + arg(1));
    }
  } else if (verb == "expect") {
    if (w.size() < 2) throw CommandError("usage: expect WHAT ...");
    const QString what = arg(1);
    if (what == "log") {
      expectLines(takeLogLines(), {w.begin() + 2, w.end()}, command, lineNumber);
    } else if (what == "events") {
      expectLines(desktop_.takeEvents(), {w.begin() + 2, w.end()}, command, lineNumber);
    } else if (what == "clipboard") {
      needWords(w, 3, "expect clipboard \"TEXT\"");
      if (desktop_.clipboardText() != arg(2)) fail(lineNumber, command, quote(desktop_.clipboardText()));
    } else if (what == "file") {
      needWords(w, 4, "expect file PATH \"TEXT\"");
      QFile file(homePath(arg(2)));
      if (!file.open(QIODevice::ReadOnly)) {
        fail(lineNumber, command, QStringLiteral("no file"));
      } else {
        const QString text = QString::fromUtf8(file.readAll());
        if (text != arg(3)) fail(lineNumber, command, quote(text));
      }
    } else if (what == "nofile") {
      needWords(w, 3, "expect nofile PATH");
      QFile file(homePath(arg(2)));
      if (file.exists()) fail(lineNumber, command, QStringLiteral("a file"));
    } else {
      needWords(w, 3, "expect NAME.PROP VALUE");
      const QVariant value = read(target(what));
      if (comparable(value) != arg(2)) fail(lineNumber, command, printed(value));
    }
  } else {
    throw CommandError("unknown command " + verb);
  }
}

}  // namespace drive
