#include "platform/qt/control_view.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPalette>

#include "platform/qt/views.h"

namespace platform::qt {

ControlView::ControlView(Control& control, const Guard& guard) : control_(control), guard_(guard) {}

ControlView::~ControlView() {
  if (observer_) control_.removeObserver(observer_);
}

void ControlView::build(const Host& host, const QFont& baseFont) {
  host_ = host;
  baseFont_ = baseFont;
  widget_ = createWidget(host.widget);
  if (!widget_) return;
  widget_->installEventFilter(this);
  widget_->setObjectName(control_.Name());
  observer_ = control_.addObserver([this](const QString& property) {
    if (widget_) refresh(property);
  });
  refreshAll();
}

Host ControlView::pageHost(int) const { return host_; }

void ControlView::refreshAll() {
  // The look and the place first, then what each class shows.
  for (const char* property : {"Left", "TextSize", "TextColor", "Enabled"}) {
    refresh(QString::fromLatin1(property));
  }
  for (const QString& property : control_.properties().names()) {
    // Parameterised properties (Cell(R,C), List(n)) come with "Rows".
    if (property == u"Left" || property == u"Top" || property == u"Width" ||
        property == u"Height" || property == u"Visible" || property == u"Text") {
      continue;
    }
    refresh(property);
  }
  // The text once the field knows how it shows it (read-only, wrapping, alignment).
  if (control_.properties().hasName(QStringLiteral("Text"))) refresh(QStringLiteral("Text"));
  refresh(QStringLiteral("Visible"));
}

void ControlView::refresh(const QString& property) {
  if (property == u"Left" || property == u"Top" || property == u"Width" || property == u"Height") {
    placeWidget();
  } else if (property == u"Visible") {
    widget_->setVisible(control_.Visible());
  } else if (property == u"Enabled") {
    widget_->setEnabled(control_.Enabled());
  } else if (property == u"TextSize" || property == u"TextFont" || property == u"Bold" ||
             property == u"Italic" || property == u"Underline") {
    applyFont();
  } else if (property == u"TextColor") {
    QPalette palette = widget_->palette();
    const QColor color(control_.TextColor());
    const QPalette defaults =
        widget_->parentWidget() ? widget_->parentWidget()->palette() : QPalette();
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, color.isValid() ? color : defaults.color(role));
    }
    widget_->setPalette(palette);
  }
}

void ControlView::placeWidget() {
  widget_->setGeometry(control_.Left() - host_.origin.x(), control_.Top() - host_.origin.y(),
                       std::max(0, control_.Width()), std::max(0, control_.Height()));
}

void ControlView::applyFont() {
  QFont font = baseFont_;
  const QString family = control_.TextFont();
  // "System" and "SmallSystem" are the framework's names for the toolkit's own fonts.
  if (!family.isEmpty() && family.compare(u"System", Qt::CaseInsensitive) != 0 &&
      family.compare(u"SmallSystem", Qt::CaseInsensitive) != 0) {
    font.setFamily(family);
  }
  // The framework's text sizes are points of 72 to the inch, that is pixels.
  if (control_.TextSize() > 0) font.setPixelSize(control_.TextSize());
  font.setBold(control_.Bold());
  font.setItalic(control_.Italic());
  font.setUnderline(control_.Underline());
  widget_->setFont(font);
}

void ControlView::run(const std::function<void()>& action) const { guard_(action); }

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress: {
      auto* press = static_cast<QMouseEvent*>(event);
      if (forwardsPresses() && press->button() == Qt::LeftButton) {
        const QPoint at = press->position().toPoint();
        run([this, at] { control_.userPress(at.x(), at.y()); });
        return true;
      }
      break;
    }
    case QEvent::Leave:
      if (leaveCounts()) run([this] { control_.userLeave(); });
      break;
    default:
      break;
  }
  return false;
}

QString captionText(const QString& caption) {
  QString text = caption;
  text.replace(u'&', QStringLiteral("&&"));
  return text;
}

std::unique_ptr<ControlView> makeControlView(Control& control, const Guard& guard) {
  switch (control.kind()) {
    case ControlKind::PushButton:
      return std::make_unique<PushButtonView>(control, guard);
    case ControlKind::BevelButton:
      return std::make_unique<BevelButtonView>(control, guard);
    case ControlKind::RadioButton:
    case ControlKind::CheckBox:
      return std::make_unique<ToggleView>(control, guard);
    case ControlKind::TextField:
      return std::make_unique<LineEditView>(control, guard);
    case ControlKind::TextArea:
      return std::make_unique<TextAreaView>(control, guard);
    case ControlKind::StaticText:
      return std::make_unique<LabelView>(control, guard);
    case ControlKind::PopupMenu:
      return std::make_unique<PopupMenuView>(control, guard);
    case ControlKind::Listbox:
      return std::make_unique<ListboxView>(control, guard);
    case ControlKind::TabPanel:
      return std::make_unique<TabPanelView>(control, guard);
    case ControlKind::PagePanel:
      return std::make_unique<PagePanelView>(control, guard);
    case ControlKind::GroupBox:
      return std::make_unique<GroupBoxView>(control, guard);
    case ControlKind::Separator:
      return std::make_unique<SeparatorView>(control, guard);
    case ControlKind::ImageWell:
      return std::make_unique<ImageView>(control, guard);
    case ControlKind::Timer:
      return std::make_unique<NoView>(control, guard);
  }
  return std::make_unique<NoView>(control, guard);
}

}  // namespace platform::qt
