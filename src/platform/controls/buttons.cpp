#include "platform/controls/buttons.h"

#include "platform/controls/window.h"
#include "platform/exceptions.h"

namespace platform {

// ---- CaptionControl ----------------------------------------------------------------

void CaptionControl::setCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed(QStringLiteral("Caption"));
}

const PropertyTable& CaptionControl::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<CaptionControl>(t).readWrite("Caption", &CaptionControl::Caption,
                                                   &CaptionControl::setCaption);
    return t;
  }();
  return table;
}

// ---- PushButton --------------------------------------------------------------------

void PushButton::Push() {
  if (Action) Action();
}

void PushButton::userClick() {
  if (!Enabled()) return;
  raise(Action);
}

void PushButton::setDefault(bool on) {
  if (default_ == on) return;
  default_ = on;
  changed(QStringLiteral("Default"));
}

void PushButton::setCancel(bool on) {
  if (cancel_ == on) return;
  cancel_ = on;
  changed(QStringLiteral("Cancel"));
}

const PropertyTable& PushButton::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = CaptionControl::propertyTable();
    PropertyRegistrar<PushButton>(t)
        .readWrite("Default", &PushButton::Default, &PushButton::setDefault)
        .readWrite("Cancel", &PushButton::Cancel, &PushButton::setCancel);
    return t;
  }();
  return table;
}

// ---- BevelButton -------------------------------------------------------------------

void BevelButton::AddRow(const QString& text) {
  rows_.append(text);
  changed(QStringLiteral("Rows"));
}

void BevelButton::DeleteAllRows() {
  if (rows_.isEmpty()) return;
  rows_.clear();
  changed(QStringLiteral("Rows"));
}

QString BevelButton::List(int row) const {
  if (row < 0 || row >= rows_.size()) {
    throw OutOfBoundsException(Name() + QStringLiteral(" has no menu entry ") + QString::number(row));
  }
  return rows_.at(row);
}

void BevelButton::setRows(const QStringList& rows) {
  if (rows_ == rows) return;
  rows_ = rows;
  changed(QStringLiteral("Rows"));
}

void BevelButton::setMenuValue(int value) {
  if (value < -1 || value >= rows_.size()) {
    throw OutOfBoundsException(Name() + QStringLiteral(".MenuValue ") + QString::number(value) +
                               QStringLiteral(" is outside the menu"));
  }
  if (menuValue_ == value) return;
  menuValue_ = value;
  changed(QStringLiteral("MenuValue"));
}

void BevelButton::setCaptionAlign(int align) {
  if (captionAlign_ == align) return;
  captionAlign_ = align;
  changed(QStringLiteral("CaptionAlign"));
}

void BevelButton::setHasMenu(int kind) {
  if (hasMenu_ == kind) return;
  hasMenu_ = kind;
  changed(QStringLiteral("HasMenu"));
}

void BevelButton::userClick() {
  if (!Enabled()) return;
  raise(Action);
}

void BevelButton::userChoose(int row) {
  if (!Enabled()) return;
  if (row < 0 || row >= rows_.size()) {
    throw OutOfBoundsException(Name() + QStringLiteral(" has no menu entry ") + QString::number(row));
  }
  setMenuValue(row);
  raise(Action);
}

const PropertyTable& BevelButton::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = CaptionControl::propertyTable();
    PropertyRegistrar<BevelButton>(t)
        .readWrite("MenuValue", &BevelButton::MenuValue, &BevelButton::setMenuValue)
        .readOnly("ListCount", &BevelButton::ListCount)
        .indexed(
            "Rows", 0,
            [](const BevelButton& b, const PropertyTable::Args&) {
              return QVariant(b.Rows().join(QLatin1Char('\n')));
            },
            [](BevelButton& b, const PropertyTable::Args&, const QVariant& v) {
              b.setRows(linesFromVariant(v, QStringLiteral("Rows")));
            })
        .readWrite("CaptionAlign", &BevelButton::CaptionAlign, &BevelButton::setCaptionAlign)
        .readWrite("HasMenu", &BevelButton::HasMenu, &BevelButton::setHasMenu)
        .indexed("List", 1, [](const BevelButton& b, const PropertyTable::Args& a) {
          return QVariant(b.List(a[0]));
        });
    return t;
  }();
  return table;
}

// ---- RadioButton -------------------------------------------------------------------

QString RadioButton::exclusionGroup() const {
  if (!group().isEmpty()) return QStringLiteral("group:") + group().toLower();
  return QStringLiteral("page:") + panel().toLower() + QLatin1Char('#') + QString::number(page());
}

void RadioButton::turnOffQuietly() {
  if (!value_) return;
  value_ = false;
  changed(QStringLiteral("Value"));
}

void RadioButton::setValue(bool on) {
  if (value_ == on) return;
  if (on) {
    if (Window* w = window()) {
      const QString mine = exclusionGroup();
      for (const auto& control : w->controls()) {
        auto* partner = dynamic_cast<RadioButton*>(control.get());
        if (partner && partner != this && partner->exclusionGroup() == mine) partner->turnOffQuietly();
      }
    }
  }
  value_ = on;
  changed(QStringLiteral("Value"));
  if (on) raise(Action);
}

void RadioButton::userClick() {
  if (!Enabled()) return;
  setValue(true);
}

const PropertyTable& RadioButton::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = CaptionControl::propertyTable();
    PropertyRegistrar<RadioButton>(t).readWrite("Value", &RadioButton::Value, &RadioButton::setValue);
    return t;
  }();
  return table;
}

// ---- CheckBox ----------------------------------------------------------------------

void CheckBox::setValue(bool on) {
  if (value_ == on) return;
  value_ = on;
  changed(QStringLiteral("Value"));
  raise(Action);
}

void CheckBox::userClick() {
  if (!Enabled()) return;
  setValue(!value_);
}

const PropertyTable& CheckBox::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = CaptionControl::propertyTable();
    PropertyRegistrar<CheckBox>(t).readWrite("Value", &CheckBox::Value, &CheckBox::setValue);
    return t;
  }();
  return table;
}

}  // namespace platform
