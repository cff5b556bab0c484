#include "platform/controls/control.h"

#include <QRegularExpression>

#include "platform/controls/window.h"
#include "platform/exceptions.h"

namespace platform {

// ---- the registry ----------------------------------------------------------------

void PropertyTable::add(Entry entry) {
  for (Entry& e : entries_) {
    if (e.arity == entry.arity && e.name.compare(entry.name, Qt::CaseInsensitive) == 0) {
      e = std::move(entry);
      return;
    }
  }
  entries_.push_back(std::move(entry));
}

const PropertyTable::Entry* PropertyTable::find(const QString& name, int arity) const {
  for (const Entry& e : entries_) {
    if (e.arity == arity && e.name.compare(name, Qt::CaseInsensitive) == 0) return &e;
  }
  return nullptr;
}

bool PropertyTable::hasName(const QString& name) const {
  for (const Entry& e : entries_) {
    if (e.name.compare(name, Qt::CaseInsensitive) == 0) return true;
  }
  return false;
}

QStringList PropertyTable::names() const {
  QStringList out;
  for (const Entry& e : entries_) {
    if (e.arity == 0) {
      out.append(e.name);
    } else {
      static const QString params[] = {QString(), QStringLiteral("(R)"), QStringLiteral("(R,C)")};
      out.append(e.name + (e.arity < 3 ? params[e.arity] : QStringLiteral("(...)")));
    }
  }
  return out;
}

PropertyName parsePropertyName(const QString& text) {
  static const QRegularExpression shape(
      QStringLiteral(R"(^\s*([A-Za-z_][A-Za-z0-9_]*)\s*(?:\(([^()]*)\))?\s*$)"));
  const QRegularExpressionMatch m = shape.match(text);
  if (!m.hasMatch()) {
    throw UnknownNameException(QStringLiteral("not a property name: ") + text);
  }
  PropertyName out{m.captured(1), {}};
  if (m.capturedStart(2) < 0) return out;
  const QStringList parts = m.captured(2).split(QLatin1Char(','));
  for (const QString& part : parts) {
    bool ok = false;
    const int value = part.trimmed().toInt(&ok);
    if (!ok) throw UnknownNameException(QStringLiteral("bad argument in property name: ") + text);
    out.args.append(value);
  }
  return out;
}

bool boolFromVariant(const QVariant& value, const QString& property) {
  if (value.typeId() == QMetaType::Bool) return value.toBool();
  if (value.typeId() == QMetaType::Int || value.typeId() == QMetaType::LongLong) {
    return value.toLongLong() != 0;
  }
  const QString word = value.toString().trimmed();
  if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) return true;
  if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) return false;
  throw PropertyValueException(property + QStringLiteral(" takes true or false, not ") + word);
}

int intFromVariant(const QVariant& value, const QString& property) {
  bool ok = false;
  int n = 0;
  if (value.typeId() == QMetaType::Bool) return value.toBool() ? 1 : 0;
  if (value.typeId() == QMetaType::QString) {
    n = value.toString().trimmed().toInt(&ok);
  } else {
    const qlonglong wide = value.toLongLong(&ok);
    ok = ok && wide >= INT_MIN && wide <= INT_MAX;
    n = static_cast<int>(wide);
  }
  if (!ok) {
    throw PropertyValueException(property + QStringLiteral(" takes a whole number, not ") +
                                 value.toString());
  }
  return n;
}

QString stringFromVariant(const QVariant& value, const QString& property) {
  if (value.typeId() == QMetaType::QStringList) return value.toStringList().join(QLatin1Char('\n'));
  if (!value.canConvert<QString>()) {
    throw PropertyValueException(property + QStringLiteral(" takes a text"));
  }
  return value.toString();
}

QStringList linesFromVariant(const QVariant& value, const QString& property) {
  if (value.typeId() == QMetaType::QStringList) return value.toStringList();
  const QString text = stringFromVariant(value, property);
  if (text.isEmpty()) return {};
  QString unified = text;
  unified.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  unified.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return unified.split(QLatin1Char('\n'));
}

QString controlKindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::PushButton: return QStringLiteral("PushButton");
    case ControlKind::BevelButton: return QStringLiteral("BevelButton");
    case ControlKind::RadioButton: return QStringLiteral("RadioButton");
    case ControlKind::CheckBox: return QStringLiteral("CheckBox");
    case ControlKind::TextField: return QStringLiteral("TextField");
    case ControlKind::TextArea: return QStringLiteral("TextArea");
    case ControlKind::StaticText: return QStringLiteral("StaticText");
    case ControlKind::PopupMenu: return QStringLiteral("PopupMenu");
    case ControlKind::Listbox: return QStringLiteral("Listbox");
    case ControlKind::TabPanel: return QStringLiteral("TabPanel");
    case ControlKind::PagePanel: return QStringLiteral("PagePanel");
    case ControlKind::GroupBox: return QStringLiteral("GroupBox");
    case ControlKind::Separator: return QStringLiteral("Separator");
    case ControlKind::ImageWell: return QStringLiteral("ImageWell");
    case ControlKind::Timer: return QStringLiteral("Timer");
  }
  return QStringLiteral("Control");
}

// ---- the control -----------------------------------------------------------------

Control::Control(const QString& name, ControlKind kind) : name_(name), kind_(kind) {}

Control::~Control() = default;

Desktop* Control::desktop() const { return window_ ? &window_->desktop() : nullptr; }

const PropertyTable& Control::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t;
    PropertyRegistrar<Control>(t)
        .readOnly("Name", &Control::Name)
        .readWrite("Left", &Control::Left, &Control::setLeft)
        .readWrite("Top", &Control::Top, &Control::setTop)
        .readWrite("Width", &Control::Width, &Control::setWidth)
        .readWrite("Height", &Control::Height, &Control::setHeight)
        .readWrite("Visible", &Control::Visible, &Control::setVisible)
        .readWrite("Enabled", &Control::Enabled, &Control::setEnabled)
        .readWrite("TextSize", &Control::TextSize, &Control::setTextSize)
        .readWrite("TextFont", &Control::TextFont, &Control::setTextFont)
        .readWrite("Bold", &Control::Bold, &Control::setBold)
        .readWrite("Italic", &Control::Italic, &Control::setItalic)
        .readWrite("Underline", &Control::Underline, &Control::setUnderline)
        .readWrite("TextColor", &Control::TextColor, &Control::setTextColor)
        .readWrite("TabIndex", &Control::TabIndex, &Control::setTabIndex);
    return t;
  }();
  return table;
}

namespace {

const PropertyTable::Entry& lookUp(const Control& c, const PropertyName& parsed, const QString& text) {
  const PropertyTable& table = c.properties();
  if (const PropertyTable::Entry* e = table.find(parsed.name, static_cast<int>(parsed.args.size()))) {
    return *e;
  }
  if (table.hasName(parsed.name)) {
    throw UnknownNameException(c.Name() + QStringLiteral(" has no property ") + text +
                               QStringLiteral(" with that many arguments"));
  }
  throw UnknownNameException(controlKindName(c.kind()) + QLatin1Char(' ') + c.Name() +
                             QStringLiteral(" has no property ") + parsed.name);
}

}  // namespace

QVariant Control::property(const QString& name) const {
  const PropertyName parsed = parsePropertyName(name);
  return lookUp(*this, parsed, name).get(*this, parsed.args);
}

void Control::setProperty(const QString& name, const QVariant& value) {
  const PropertyName parsed = parsePropertyName(name);
  const PropertyTable::Entry& e = lookUp(*this, parsed, name);
  if (!e.set) throw PropertyValueException(Name() + QLatin1Char('.') + e.name + QStringLiteral(" is read-only"));
  e.set(*this, parsed.args, value);
}

bool Control::hasProperty(const QString& name) const {
  try {
    const PropertyName parsed = parsePropertyName(name);
    return properties().find(parsed.name, static_cast<int>(parsed.args.size())) != nullptr;
  } catch (const UnknownNameException&) {
    return false;
  }
}

int Control::addObserver(Observer observer) {
  const int id = nextObserverId_++;
  observers_.emplace_back(id, std::move(observer));
  return id;
}

void Control::removeObserver(int id) {
  std::erase_if(observers_, [id](const auto& entry) { return entry.first == id; });
}

void Control::changed(const QString& property) {
  // A copy, so an observer may remove itself or add another while being told.
  const auto current = observers_;
  for (const auto& [id, observer] : current) {
    if (observer) observer(property);
  }
}

namespace {

// Stores the value; false when it was already so.
template <class T>
bool assign(T& field, const T& value) {
  if (field == value) return false;
  field = value;
  return true;
}

}  // namespace

void Control::setLeft(int v) {
  if (assign(left_, v)) changed(QStringLiteral("Left"));
}

void Control::setTop(int v) {
  if (assign(top_, v)) changed(QStringLiteral("Top"));
}

void Control::setWidth(int v) {
  if (assign(width_, v)) changed(QStringLiteral("Width"));
}

void Control::setHeight(int v) {
  if (assign(height_, v)) changed(QStringLiteral("Height"));
}

void Control::setVisible(bool v) {
  if (assign(visible_, v)) changed(QStringLiteral("Visible"));
}

void Control::setEnabled(bool v) {
  if (assign(enabled_, v)) changed(QStringLiteral("Enabled"));
}

void Control::setTextSize(int v) {
  if (assign(textSize_, v)) changed(QStringLiteral("TextSize"));
}

void Control::setTextFont(const QString& v) {
  if (assign(textFont_, v)) changed(QStringLiteral("TextFont"));
}

void Control::setBold(bool v) {
  if (assign(bold_, v)) changed(QStringLiteral("Bold"));
}

void Control::setItalic(bool v) {
  if (assign(italic_, v)) changed(QStringLiteral("Italic"));
}

void Control::setUnderline(bool v) {
  if (assign(underline_, v)) changed(QStringLiteral("Underline"));
}

void Control::setTextColor(const QString& v) {
  if (assign(textColor_, v)) changed(QStringLiteral("TextColor"));
}

void Control::setTabIndex(int v) {
  if (assign(tabIndex_, v)) changed(QStringLiteral("TabIndex"));
}

void Control::userClick() { userPress(width_ / 2, height_ / 2); }

void Control::userPress(int x, int y) {
  if (!enabled_ || eventsBlocked()) return;
  // The framework's rule: MouseUp belongs to a press that MouseDown claimed.
  if (MouseDown && MouseDown(x, y) && MouseUp) MouseUp(x, y);
}

void Control::userChoose(int) {
  throw UnknownNameException(controlKindName(kind_) + QLatin1Char(' ') + name_ +
                             QStringLiteral(" has nothing to choose"));
}

void Control::userLeave() {
  if (!enabled_) return;
  raise(MouseExit);
}

void Control::raiseOpen() { raise(Open); }

void Control::raiseClose() { raise(Close); }

void Control::applyCreationText(const QString&) {}

}  // namespace platform
