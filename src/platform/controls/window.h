#pragma once
// Window owns its controls, in the order of creation, and its named properties. It is
// built from a control table: addControl makes each control from its ControlSpec row.
// The program's window classes derive from it, keep typed pointers to their controls,
// wire the handlers and register their own properties; the Qt renderer and the
// scenario driver reach everything by name through the same registry.

#include <QHash>
#include <QString>
#include <QVariant>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/controls/buttons.h"
#include "platform/controls/control.h"
#include "platform/controls/control_spec.h"
#include "platform/controls/image_well.h"
#include "platform/controls/list_controls.h"
#include "platform/controls/panels.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/timer.h"
#include "platform/exceptions.h"

namespace platform {

class Desktop;

// What a drag brings: text, or something without text (a file, a picture).
struct DragItem {
  std::optional<QString> text;

  bool TextAvailable() const { return text.has_value(); }
  QString Text() const { return text.value_or(QString()); }
};

// A control of the class that ControlSpec::kind names, with nothing applied.
std::unique_ptr<Control> createControl(ControlKind kind, const QString& name);

class Window {
 public:
  // The desktop must outlive the window.
  explicit Window(Desktop& desktop);
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  Desktop& desktop() const { return desktop_; }

  // ---- controls ----
  // Makes the control of the row and applies the row: geometry, place, group, Visible,
  // Enabled, the creation text, then the attributes in order, all without raising any
  // handler. A name already taken, or an attribute the class does not have, throws.
  Control& addControl(const ControlSpec& spec);
  // The same, for a row whose class the caller knows (or a base of it: TextEdit).
  template <class T>
  T& add(const ControlSpec& spec) {
    return static_cast<T&>(addChecked(spec, [](const Control& c) { return dynamic_cast<const T*>(&c) != nullptr; }));
  }

  // Names are matched without regard to case, as the program's language does.
  // findControl gives nullptr for an unknown name; control throws UnknownNameException.
  Control* findControl(const QString& name) const;
  Control& control(const QString& name) const;
  template <class T>
  T& control(const QString& name) const {
    Control& found = control(name);
    if (auto* typed = dynamic_cast<T*>(&found)) return *typed;
    throw UnknownNameException(name + QStringLiteral(" is a ") + controlKindName(found.kind()) +
                               QStringLiteral(", not of the class asked for"));
  }
  // In the order of creation.
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

  // ---- properties ----
  // Width, Height, Title, MinWidth, MinHeight, MaxWidth, MaxHeight, Visible and
  // Resizeable are built in; a subclass registers its own fields. Unknown names throw
  // UnknownNameException, a read-only one or an unreadable value PropertyValueException.
  using Getter = std::function<QVariant()>;
  using Setter = std::function<void(const QVariant&)>;
  void registerProperty(const QString& name, Getter get, Setter set = {});
  void registerProperty(const QString& name, QString& field);
  void registerProperty(const QString& name, int& field);
  void registerProperty(const QString& name, QStringList& field);
  QVariant property(const QString& name) const;
  void setProperty(const QString& name, const QVariant& value);
  bool hasProperty(const QString& name) const;
  QStringList propertyNames() const;

  // ---- the window's attributes ----
  QString Title() const { return title_; }
  void setTitle(const QString& title);
  // Kept between the minimum and the maximum.
  int Width() const { return width_; }
  void setWidth(int width);
  int Height() const { return height_; }
  void setHeight(int height);
  int MinWidth() const { return minWidth_; }
  void setMinWidth(int width);
  int MinHeight() const { return minHeight_; }
  void setMinHeight(int height);
  int MaxWidth() const { return maxWidth_; }
  void setMaxWidth(int width);
  int MaxHeight() const { return maxHeight_; }
  void setMaxHeight(int height);
  bool Visible() const { return visible_; }
  void setVisible(bool visible);
  bool Resizeable() const { return resizeable_; }
  void setResizeable(bool on);

  void Show() { setVisible(true); }
  void Hide() { setVisible(false); }
  // Raises Close of every control in creation order, turns the timers off and hides
  // the window. A closed window stays closed; a second Close does nothing.
  void Close();
  bool isClosed() const { return closed_; }

  // ---- events ----
  std::function<void()> Open;
  // The controls' Open events in creation order, then the window's own.
  void raiseOpenEvents();

  // From AcceptTextDrop on, drops reach DropObject; before it, they are refused.
  void AcceptTextDrop() { acceptsTextDrop_ = true; }
  bool acceptsTextDrop() const { return acceptsTextDrop_; }
  std::function<void(const DragItem& item, int action)> DropObject;
  void userDrop(const DragItem& item);

  // Told the name of each window property that changed ("Width", "Height", "Title",
  // "Visible", ...).
  using Observer = std::function<void(const QString& property)>;
  int addObserver(Observer observer);
  void removeObserver(int id);

 protected:
  void changed(const QString& property);

 private:
  // A row whose control `fits` refuses throws UnknownNameException and adds nothing.
  Control& addChecked(const ControlSpec& spec, const std::function<bool(const Control&)>& fits);

  struct Property {
    QString name;
    Getter get;
    Setter set;
  };
  const Property& lookUp(const QString& name) const;

  Desktop& desktop_;
  std::vector<std::unique_ptr<Control>> controls_;
  QHash<QString, Control*> byName_;  // lower-case names
  std::vector<Property> properties_;
  QHash<QString, size_t> propertyIndex_;  // lower-case names

  QString title_;
  int width_ = 300, height_ = 300;
  int minWidth_ = 64, minHeight_ = 64;
  int maxWidth_ = 32000, maxHeight_ = 32000;
  bool visible_ = true;
  bool resizeable_ = true;
  bool closed_ = false;
  bool acceptsTextDrop_ = false;

  int nextObserverId_ = 1;
  std::vector<std::pair<int, Observer>> observers_;
};

}  // namespace platform
