#include "platform/qt/window_view.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QResizeEvent>

namespace platform::qt {

// The layout itself, and the window's own drop target: drags that no control takes
// for itself climb the widget tree to here.
class WindowView::Surface : public QWidget {
 public:
  explicit Surface(WindowView& owner) : QWidget(&owner), owner_(owner) {
    setAcceptDrops(true);
    setAutoFillBackground(true);
  }

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override { consider(event); }
  void dragMoveEvent(QDragMoveEvent* event) override { consider(event); }
  void dropEvent(QDropEvent* event) override {
    if (!takes(event)) {
      event->ignore();
      return;
    }
    DragItem item;
    item.text = event->mimeData()->text();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The drop handler may open a message box: the dragging application hears that the
    // drop is done first, and the handler runs from the event loop straight after.
    QMetaObject::invokeMethod(
        &owner_,
        [owner = &owner_, item] { owner->run([owner, item] { owner->window().userDrop(item); }); },
        Qt::QueuedConnection);
  }

 private:
  bool takes(const QDropEvent* event) const {
    return owner_.window().acceptsTextDrop() && !owner_.window().isClosed() && event->mimeData() &&
           event->mimeData()->hasText();
  }
  void consider(QDragMoveEvent* event) {
    if (takes(event)) {
      event->setDropAction(Qt::CopyAction);
      event->accept();
    } else {
      event->ignore();
    }
  }

  WindowView& owner_;
};

namespace {

Qt::WindowFlags flagsFor(const Window& window) {
  const Qt::WindowFlags frame = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowCloseButtonHint | Qt::WindowMinimizeButtonHint;
  // The desk accessory: a palette that stays above the applications it takes drops from.
  if (!window.Resizeable()) return Qt::Tool | Qt::WindowStaysOnTopHint | frame;
  return Qt::Window | frame;
}

}  // namespace

QFont WindowView::layoutFont() {
  // The layout's pixel positions were drawn for a Helvetica-like face of about 12
  // pixels; Liberation Sans has its widths, and DejaVu Sans stands in where it is missing.
  QFont font;
  font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
  font.setPixelSize(12);
  return font;
}

WindowView::WindowView(Window& window, const Guard& guard)
    : QWidget(nullptr, flagsFor(window)), window_(window), guard_(guard) {
  setFont(layoutFont());
  surface_ = new Surface(*this);
  surface_->setObjectName(QStringLiteral("surface"));
  buildViews();

  // The layout's extent: every control of the window's own surface, and the size the
  // window was drawn at.
  int right = window_.Width(), bottom = window_.Height();
  for (const auto& control : window_.controls()) {
    if (!control->panel().isEmpty() || control->kind() == ControlKind::Timer) continue;
    right = std::max(right, control->Left() + control->Width());
    bottom = std::max(bottom, control->Top() + control->Height());
  }
  layoutExtent_ = QSize(right, bottom);

  observer_ = window_.addObserver([this](const QString& property) { refresh(property); });
  for (const char* property : {"Title", "Width", "Visible"}) refresh(QString::fromLatin1(property));
}

WindowView::~WindowView() {
  window_.removeObserver(observer_);
  // The views let go of their controls before their widgets go with this window.
  views_.clear();
}

void WindowView::buildViews() {
  std::vector<Control*> waiting;
  for (const auto& control : window_.controls()) waiting.push_back(control.get());
  // In creation order, so later controls lie above earlier ones; a control whose panel
  // comes later in the table waits for it.
  while (!waiting.empty()) {
    std::vector<Control*> later;
    for (Control* control : waiting) {
      Host host{surface_, QPoint(0, 0)};
      if (!control->panel().isEmpty()) {
        const Control* panel = window_.findControl(control->panel());
        const auto found = byControl_.find(panel);
        if (found != byControl_.end()) {
          host = found->second->pageHost(control->page());
        } else if (panel && panel != control) {
          later.push_back(control);
          continue;
        }
      }
      auto view = makeControlView(*control, guard_);
      view->build(host, layoutFont());
      byControl_[control] = view.get();
      views_.push_back(std::move(view));
    }
    // A panel that is part of a loop of panels would wait forever: show the rest on the
    // surface rather than not at all.
    if (later.size() == waiting.size()) {
      for (Control* control : later) {
        auto view = makeControlView(*control, guard_);
        view->build({surface_, QPoint(0, 0)}, layoutFont());
        byControl_[control] = view.get();
        views_.push_back(std::move(view));
      }
      break;
    }
    waiting = std::move(later);
  }
}

ControlView* WindowView::view(const QString& name) const {
  const Control* control = window_.findControl(name);
  const auto found = byControl_.find(control);
  return found == byControl_.end() ? nullptr : found->second;
}

QWidget* WindowView::widgetFor(const QString& name) const {
  ControlView* found = view(name);
  return found ? found->widget() : nullptr;
}

void WindowView::refresh(const QString& property) {
  if (property == u"Title") {
    setWindowTitle(window_.Title());
  } else if (property == u"Visible") {
    setVisible(window_.Visible() && !window_.isClosed());
  } else if (property == u"Width" || property == u"Height" || property.startsWith(u"Min") ||
             property.startsWith(u"Max") || property == u"Resizeable") {
    fitSize();
  }
}

void WindowView::fitSize() {
  ++sizing_;
  const QSize size(window_.Width(), window_.Height());
  if (window_.Resizeable()) {
    setMinimumSize(window_.MinWidth(), window_.MinHeight());
    setMaximumSize(std::min(window_.MaxWidth(), QWIDGETSIZE_MAX),
                   std::min(window_.MaxHeight(), QWIDGETSIZE_MAX));
    resize(size);
  } else {
    setFixedSize(size);
  }
  surface_->setGeometry(0, 0, std::max(layoutExtent_.width(), size.width()),
                        std::max(layoutExtent_.height(), size.height()));
  --sizing_;
}

void WindowView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  // Only a resizable window's user changes its size; the model then holds it.
  if (sizing_ || !window_.Resizeable()) return;
  const QSize size = event->size();
  if (size == QSize(window_.Width(), window_.Height())) return;
  run([this, size] {
    window_.setWidth(size.width());
    window_.setHeight(size.height());
  });
}

void WindowView::closeEvent(QCloseEvent* event) {
  // The model closes the window (its controls' Close events run) and hides it.
  event->ignore();
  run([this] { window_.Close(); });
}

}  // namespace platform::qt
