#pragma once
// The base of every control: a plain object that holds the state a widget would show,
// raises the events a user's actions would raise, and lets anyone reach its properties
// by name. It draws nothing; the Qt layer renders it and the scenario driver pokes it,
// both through the property registry and the observers, without per-control code.

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <type_traits>
#include <vector>

#include "platform/controls/control_spec.h"

namespace platform {

class Control;
class Desktop;
class Window;

// The properties of one control class, each registered once with its getter and, unless
// read-only, its setter. Parameterised properties such as Cell(R,C) take `arity`
// integer arguments. Names are matched without regard to case, as the program's
// language does.
class PropertyTable {
 public:
  using Args = QList<int>;
  using Getter = std::function<QVariant(const Control&, const Args&)>;
  using Setter = std::function<void(Control&, const Args&, const QVariant&)>;

  struct Entry {
    QString name;
    int arity = 0;
    Getter get;
    Setter set;  // empty for a read-only property
  };

  // A later entry of the same name and arity replaces an earlier one, so a class can
  // narrow what it inherits (a read-only Text, say).
  void add(Entry entry);
  const Entry* find(const QString& name, int arity) const;
  bool hasName(const QString& name) const;
  QStringList names() const;

 private:
  std::vector<Entry> entries_;
};

// "Cell(2, 0)" read as the name "Cell" and the arguments 2 and 0. Throws
// UnknownNameException when the text is no such name.
struct PropertyName {
  QString name;
  QList<int> args;
};
PropertyName parsePropertyName(const QString& text);

// Conversions of values set by name. A driver hands in words ("true", "12"), code hands
// in typed values; anything that does not read throws PropertyValueException.
bool boolFromVariant(const QVariant& value, const QString& property);
int intFromVariant(const QVariant& value, const QString& property);
QString stringFromVariant(const QVariant& value, const QString& property);
// A QStringList as it is, or a text split at line ends; the empty text is no line.
QStringList linesFromVariant(const QVariant& value, const QString& property);

template <class V>
V fromVariant(const QVariant& value, const QString& property);
template <>
inline bool fromVariant<bool>(const QVariant& v, const QString& p) { return boolFromVariant(v, p); }
template <>
inline int fromVariant<int>(const QVariant& v, const QString& p) { return intFromVariant(v, p); }
template <>
inline QString fromVariant<QString>(const QVariant& v, const QString& p) { return stringFromVariant(v, p); }
template <>
inline QStringList fromVariant<QStringList>(const QVariant& v, const QString& p) {
  return linesFromVariant(v, p);
}

// Registers the typed getters and setters of class T in a table:
//   PropertyRegistrar<TextField>(table).readWrite("Text", &TextField::Text, &TextField::setText);
template <class T>
class PropertyRegistrar {
 public:
  explicit PropertyRegistrar(PropertyTable& table) : table_(table) {}

  template <class R>
  PropertyRegistrar& readOnly(const QString& name, R (T::*get)() const) {
    table_.add({name, 0,
                [get](const Control& c, const PropertyTable::Args&) {
                  return QVariant::fromValue((static_cast<const T&>(c).*get)());
                },
                {}});
    return *this;
  }

  template <class R, class V>
  PropertyRegistrar& readWrite(const QString& name, R (T::*get)() const, void (T::*set)(V)) {
    using Value = std::remove_cvref_t<V>;
    table_.add({name, 0,
                [get](const Control& c, const PropertyTable::Args&) {
                  return QVariant::fromValue((static_cast<const T&>(c).*get)());
                },
                [set, name](Control& c, const PropertyTable::Args&, const QVariant& v) {
                  (static_cast<T&>(c).*set)(fromVariant<Value>(v, name));
                }});
    return *this;
  }

  // A property with integer arguments, e.g. Cell(R,C); set may be empty.
  PropertyRegistrar& indexed(const QString& name, int arity,
                             std::function<QVariant(const T&, const PropertyTable::Args&)> get,
                             std::function<void(T&, const PropertyTable::Args&, const QVariant&)> set = {}) {
    PropertyTable::Setter setter;
    if (set) {
      setter = [set](Control& c, const PropertyTable::Args& a, const QVariant& v) {
        set(static_cast<T&>(c), a, v);
      };
    }
    table_.add({name, arity,
                [get](const Control& c, const PropertyTable::Args& a) {
                  return get(static_cast<const T&>(c), a);
                },
                setter});
    return *this;
  }

 private:
  PropertyTable& table_;
};

class Control {
 public:
  Control(const QString& name, ControlKind kind);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  QString Name() const { return name_; }
  ControlKind kind() const { return kind_; }

  // The window that owns the control, and that window's desktop; null for a control
  // made on its own (in tests).
  Window* window() const { return window_; }
  Desktop* desktop() const;

  // Where it sits: on the window (empty panel) or on page `page` of a TabPanel or
  // PagePanel; and the GroupBox it belongs to.
  QString panel() const { return panel_; }
  int page() const { return page_; }
  QString group() const { return group_; }

  int Left() const { return left_; }
  void setLeft(int left);
  int Top() const { return top_; }
  void setTop(int top);
  int Width() const { return width_; }
  void setWidth(int width);
  int Height() const { return height_; }
  void setHeight(int height);

  bool Visible() const { return visible_; }
  void setVisible(bool visible);
  // A disabled control ignores the user; code may still act on it (Push runs Action).
  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  // Looks; 0 and empty mean the toolkit's default.
  int TextSize() const { return textSize_; }
  void setTextSize(int size);
  QString TextFont() const { return textFont_; }
  void setTextFont(const QString& font);
  bool Bold() const { return bold_; }
  void setBold(bool bold);
  bool Italic() const { return italic_; }
  void setItalic(bool italic);
  bool Underline() const { return underline_; }
  void setUnderline(bool underline);
  // "#rrggbb", or empty for the default colour.
  QString TextColor() const { return textColor_; }
  void setTextColor(const QString& color);
  // The place in the keyboard's order; it has nothing to do with the tab a panel shows.
  int TabIndex() const { return tabIndex_; }
  void setTabIndex(int index);

  // Properties by name, e.g. property("Text"), property("Cell(2,0)"). Unknown names and
  // malformed arguments throw UnknownNameException; a value the property cannot take,
  // or a read-only property, throws PropertyValueException. Setting by name has the
  // side effects of the setter, handlers included.
  virtual const PropertyTable& properties() const { return propertyTable(); }
  static const PropertyTable& propertyTable();
  QVariant property(const QString& name) const;
  void setProperty(const QString& name, const QVariant& value);
  bool hasProperty(const QString& name) const;

  // Listeners told the name of each property that changed, after the change and before
  // any handler runs. A change of rows, cells or check boxes is told as "Rows".
  using Observer = std::function<void(const QString& property)>;
  int addObserver(Observer observer);
  void removeObserver(int id);

  // Events every control class has. MouseDown returns true to claim the press, which
  // then ends with MouseUp; false lets the control do its normal work.
  std::function<void()> Open;
  std::function<void()> Close;
  std::function<bool(int x, int y)> MouseDown;
  std::function<void(int x, int y)> MouseUp;
  std::function<void()> MouseExit;

  // The user's side, for the Qt layer and the scenario driver. A disabled control
  // ignores them all. A click is a press in the middle of the control, unless the
  // class knows better (buttons run Action).
  virtual void userClick();
  void userPress(int x, int y);
  // A user's choice of entry `entry`, from 0: a menu row, a tab, a list row. Classes
  // without entries throw UnknownNameException; an entry that is not there is an
  // OutOfBoundsException.
  virtual void userChoose(int entry);
  void userLeave();

  void raiseOpen();
  void raiseClose();

  // While one lives, the control raises no handlers: the window uses it to apply the
  // attributes of a control's creation.
  class EventsBlocked {
   public:
    explicit EventsBlocked(Control& control) : control_(control) { ++control_.blocked_; }
    ~EventsBlocked() { --control_.blocked_; }
    EventsBlocked(const EventsBlocked&) = delete;
    EventsBlocked& operator=(const EventsBlocked&) = delete;

   private:
    Control& control_;
  };
  bool eventsBlocked() const { return blocked_ > 0; }

  // The creation text of the control table ("Caption or text"), by class.
  virtual void applyCreationText(const QString& text);

 protected:
  void changed(const QString& property);
  void raise(const std::function<void()>& handler) {
    if (handler && !eventsBlocked()) handler();
  }

 private:
  friend class Window;

  QString name_;
  ControlKind kind_;
  Window* window_ = nullptr;
  QString panel_;
  int page_ = 0;
  QString group_;
  int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  int textSize_ = 0;
  QString textFont_;
  bool bold_ = false, italic_ = false, underline_ = false;
  QString textColor_;
  int tabIndex_ = 0;
  int blocked_ = 0;
  int nextObserverId_ = 1;
  std::vector<std::pair<int, Observer>> observers_;
};

QString controlKindName(ControlKind kind);

}  // namespace platform
