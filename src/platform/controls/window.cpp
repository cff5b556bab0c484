#include "platform/controls/window.h"

#include <algorithm>

#include "platform/desktop/desktop.h"

namespace platform {

std::unique_ptr<Control> createControl(ControlKind kind, const QString& name) {
  switch (kind) {
    case ControlKind::PushButton: return std::make_unique<PushButton>(name);
    case ControlKind::BevelButton: return std::make_unique<BevelButton>(name);
    case ControlKind::RadioButton: return std::make_unique<RadioButton>(name);
    case ControlKind::CheckBox: return std::make_unique<CheckBox>(name);
    case ControlKind::TextField: return std::make_unique<TextField>(name);
    case ControlKind::TextArea: return std::make_unique<TextArea>(name);
    case ControlKind::StaticText: return std::make_unique<StaticText>(name);
    case ControlKind::PopupMenu: return std::make_unique<PopupMenu>(name);
    case ControlKind::Listbox: return std::make_unique<Listbox>(name);
    case ControlKind::TabPanel: return std::make_unique<TabPanel>(name);
    case ControlKind::PagePanel: return std::make_unique<PagePanel>(name);
    case ControlKind::GroupBox: return std::make_unique<GroupBox>(name);
    case ControlKind::Separator: return std::make_unique<Separator>(name);
    case ControlKind::ImageWell: return std::make_unique<ImageWell>(name);
    case ControlKind::Timer: return std::make_unique<Timer>(name);
  }
  throw FrameworkException(QStringLiteral("no control class for ") + name);
}

Window::Window(Desktop& desktop) : desktop_(desktop) {
  registerProperty(QStringLiteral("Title"), [this] { return QVariant(title_); },
                   [this](const QVariant& v) { setTitle(stringFromVariant(v, QStringLiteral("Title"))); });
  registerProperty(QStringLiteral("Width"), [this] { return QVariant(width_); },
                   [this](const QVariant& v) { setWidth(intFromVariant(v, QStringLiteral("Width"))); });
  registerProperty(QStringLiteral("Height"), [this] { return QVariant(height_); },
                   [this](const QVariant& v) { setHeight(intFromVariant(v, QStringLiteral("Height"))); });
  registerProperty(QStringLiteral("MinWidth"), [this] { return QVariant(minWidth_); },
                   [this](const QVariant& v) { setMinWidth(intFromVariant(v, QStringLiteral("MinWidth"))); });
  registerProperty(QStringLiteral("MinHeight"), [this] { return QVariant(minHeight_); },
                   [this](const QVariant& v) { setMinHeight(intFromVariant(v, QStringLiteral("MinHeight"))); });
  registerProperty(QStringLiteral("MaxWidth"), [this] { return QVariant(maxWidth_); },
                   [this](const QVariant& v) { setMaxWidth(intFromVariant(v, QStringLiteral("MaxWidth"))); });
  registerProperty(QStringLiteral("MaxHeight"), [this] { return QVariant(maxHeight_); },
                   [this](const QVariant& v) { setMaxHeight(intFromVariant(v, QStringLiteral("MaxHeight"))); });
  registerProperty(QStringLiteral("Visible"), [this] { return QVariant(visible_); },
                   [this](const QVariant& v) { setVisible(boolFromVariant(v, QStringLiteral("Visible"))); });
  registerProperty(QStringLiteral("Resizeable"), [this] { return QVariant(resizeable_); },
                   [this](const QVariant& v) { setResizeable(boolFromVariant(v, QStringLiteral("Resizeable"))); });
}

Window::~Window() {
  // Controls go first, while the window they ask for the desktop is still whole.
  byName_.clear();
  while (!controls_.empty()) controls_.pop_back();
}

// ---- controls ----------------------------------------------------------------------

Control& Window::addControl(const ControlSpec& spec) { return addChecked(spec, {}); }

Control& Window::addChecked(const ControlSpec& spec, const std::function<bool(const Control&)>& fits) {
  const QString key = spec.name.toLower();
  if (spec.name.isEmpty()) throw UnknownNameException(QStringLiteral("a control needs a name"));
  if (byName_.contains(key)) throw UnknownNameException(QStringLiteral("a second control named ") + spec.name);

  std::unique_ptr<Control> made = createControl(spec.kind, spec.name);
  if (fits && !fits(*made)) {
    throw UnknownNameException(spec.name + QStringLiteral(" is a ") + controlKindName(spec.kind) +
                               QStringLiteral(", not of the class asked for"));
  }
  Control& c = *made;
  c.window_ = this;
  c.panel_ = spec.panel;
  c.page_ = spec.page;
  c.group_ = spec.group;
  c.left_ = spec.left;
  c.top_ = spec.top;
  c.width_ = spec.width;
  c.height_ = spec.height;
  c.visible_ = spec.visible;
  c.enabled_ = spec.enabled;
  // In the list before the attributes, so that a radio button turned on finds its
  // partners made before it.
  controls_.push_back(std::move(made));
  byName_.insert(key, &c);
  try {
    Control::EventsBlocked quiet(c);
    c.applyCreationText(spec.text);
    for (const auto& [name, value] : spec.attributes) c.setProperty(name, value);
  } catch (...) {
    byName_.remove(key);
    controls_.pop_back();
    throw;
  }
  return c;
}

Control* Window::findControl(const QString& name) const { return byName_.value(name.toLower(), nullptr); }

Control& Window::control(const QString& name) const {
  if (Control* c = findControl(name)) return *c;
  throw UnknownNameException(QStringLiteral("no control named ") + name);
}

// ---- properties --------------------------------------------------------------------

void Window::registerProperty(const QString& name, Getter get, Setter set) {
  const QString key = name.toLower();
  if (propertyIndex_.contains(key)) {
    throw FrameworkException(QStringLiteral("window property registered twice: ") + name);
  }
  propertyIndex_.insert(key, properties_.size());
  properties_.push_back({name, std::move(get), std::move(set)});
}

void Window::registerProperty(const QString& name, QString& field) {
  registerProperty(name, [&field] { return QVariant(field); },
                   [&field, name](const QVariant& v) { field = stringFromVariant(v, name); });
}

void Window::registerProperty(const QString& name, int& field) {
  registerProperty(name, [&field] { return QVariant(field); },
                   [&field, name](const QVariant& v) { field = intFromVariant(v, name); });
}

void Window::registerProperty(const QString& name, QStringList& field) {
  registerProperty(name, [&field] { return QVariant(field); },
                   [&field, name](const QVariant& v) { field = linesFromVariant(v, name); });
}

const Window::Property& Window::lookUp(const QString& name) const {
  const auto it = propertyIndex_.constFind(name.trimmed().toLower());
  if (it == propertyIndex_.constEnd()) throw UnknownNameException(QStringLiteral("the window has no property ") + name);
  return properties_[*it];
}

QVariant Window::property(const QString& name) const { return lookUp(name).get(); }

void Window::setProperty(const QString& name, const QVariant& value) {
  const Property& p = lookUp(name);
  if (!p.set) throw PropertyValueException(QStringLiteral("the window's ") + p.name + QStringLiteral(" is read-only"));
  p.set(value);
}

bool Window::hasProperty(const QString& name) const { return propertyIndex_.contains(name.trimmed().toLower()); }

QStringList Window::propertyNames() const {
  QStringList names;
  for (const Property& p : properties_) names.append(p.name);
  return names;
}

// ---- attributes --------------------------------------------------------------------

void Window::setTitle(const QString& title) {
  if (title_ == title) return;
  title_ = title;
  changed(QStringLiteral("Title"));
}

void Window::setWidth(int width) {
  width = std::clamp(width, minWidth_, std::max(minWidth_, maxWidth_));
  if (width_ == width) return;
  width_ = width;
  changed(QStringLiteral("Width"));
}

void Window::setHeight(int height) {
  height = std::clamp(height, minHeight_, std::max(minHeight_, maxHeight_));
  if (height_ == height) return;
  height_ = height;
  changed(QStringLiteral("Height"));
}

void Window::setMinWidth(int width) {
  if (minWidth_ == width) return;
  minWidth_ = width;
  changed(QStringLiteral("MinWidth"));
}

void Window::setMinHeight(int height) {
  if (minHeight_ == height) return;
  minHeight_ = height;
  changed(QStringLiteral("MinHeight"));
}

void Window::setMaxWidth(int width) {
  if (maxWidth_ == width) return;
  maxWidth_ = width;
  changed(QStringLiteral("MaxWidth"));
}

void Window::setMaxHeight(int height) {
  if (maxHeight_ == height) return;
  maxHeight_ = height;
  changed(QStringLiteral("MaxHeight"));
}

void Window::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(QStringLiteral("Visible"));
}

void Window::setResizeable(bool on) {
  if (resizeable_ == on) return;
  resizeable_ = on;
  changed(QStringLiteral("Resizeable"));
}

void Window::Close() {
  if (closed_) return;
  closed_ = true;
  for (const auto& c : controls_) c->raiseClose();
  for (const auto& c : controls_) {
    if (auto* timer = dynamic_cast<Timer*>(c.get())) timer->setMode(Timer::kOff);
  }
  setVisible(false);
}

// ---- events ------------------------------------------------------------------------

void Window::raiseOpenEvents() {
  // By index: an Open handler may add controls.
  for (size_t i = 0; i < controls_.size(); ++i) controls_[i]->raiseOpen();
  if (Open) Open();
}

void Window::userDrop(const DragItem& item) {
  if (!acceptsTextDrop_ || closed_) return;
  if (DropObject) DropObject(item, 0);
}

int Window::addObserver(Observer observer) {
  const int id = nextObserverId_++;
  observers_.emplace_back(id, std::move(observer));
  return id;
}

void Window::removeObserver(int id) {
  std::erase_if(observers_, [id](const auto& entry) { return entry.first == id; });
}

void Window::changed(const QString& property) {
  const auto current = observers_;
  for (const auto& [id, observer] : current) {
    if (observer) observer(property);
  }
}

}  // namespace platform
