#include <QCheckBox>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "platform/qt/views.h"

namespace platform::qt {

// ---- PushButton ----------------------------------------------------------------------

QWidget* PushButtonView::createWidget(QWidget* parent) {
  button_ = new QPushButton(parent);
  button_->setAutoDefault(false);
  connect(button_, &QPushButton::clicked, this, [this] { run([this] { button().userClick(); }); });
  return button_;
}

void PushButtonView::refresh(const QString& property) {
  if (property == u"Caption") {
    button_->setText(captionText(button().Caption()));
  } else if (property == u"Default") {
    button_->setDefault(button().Default());
  } else {
    ControlView::refresh(property);
  }
}

// ---- BevelButton -----------------------------------------------------------------------

QWidget* BevelButtonView::createWidget(QWidget* parent) {
  button_ = new QToolButton(parent);
  button_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  menu_ = new QMenu(button_);
  connect(button_, &QToolButton::clicked, this, [this] {
    // With a menu the click only opens it; the choice is what counts.
    if (button().ListCount() == 0) run([this] { button().userClick(); });
  });
  return button_;
}

void BevelButtonView::refresh(const QString& property) {
  if (property == u"Caption") {
    button_->setText(captionText(button().Caption()));
  } else if (property == u"Rows") {
    rebuildMenu();
  } else {
    ControlView::refresh(property);
  }
}

void BevelButtonView::rebuildMenu() {
  menu_->clear();
  const QStringList rows = button().Rows();
  for (int row = 0; row < rows.size(); ++row) {
    // A menu entry "-" is a separator line, as in every menu of the framework.
    if (rows[row] == u"-") {
      menu_->addSeparator();
      continue;
    }
    QAction* action = menu_->addAction(captionText(rows[row]));
    connect(action, &QAction::triggered, this,
            [this, row] { run([this, row] { button().userChoose(row); }); });
  }
  button_->setMenu(rows.isEmpty() ? nullptr : menu_);
  button_->setPopupMode(QToolButton::InstantPopup);
}

// ---- RadioButton, CheckBox ---------------------------------------------------------------

QWidget* ToggleView::createWidget(QWidget* parent) {
  if (control().kind() == ControlKind::RadioButton) {
    auto* radio = new QRadioButton(parent);
    radio->setAutoExclusive(false);
    button_ = radio;
  } else {
    button_ = new QCheckBox(parent);
  }
  connect(button_, &QAbstractButton::clicked, this, [this] {
    run([this] { control().userClick(); });
    refresh(QStringLiteral("Value"));
  });
  return button_;
}

bool ToggleView::value() const {
  if (control().kind() == ControlKind::RadioButton)
    return static_cast<RadioButton&>(control()).Value();
  return static_cast<CheckBox&>(control()).Value();
}

void ToggleView::refresh(const QString& property) {
  if (property == u"Caption") {
    button_->setText(captionText(static_cast<CaptionControl&>(control()).Caption()));
  } else if (property == u"Value") {
    Applying applying(*this);
    button_->setChecked(value());
  } else {
    ControlView::refresh(property);
  }
}

// ---- GroupBox ----------------------------------------------------------------------------

namespace {

// A frame with its caption set into the top line, as the framework draws a group box:
// the controls of the table sit just under the caption, inside the frame.
class FramedBox : public QWidget {
 public:
  using QWidget::QWidget;
  void setTitle(const QString& title) {
    title_ = title;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics(font());
    const QRectF frame = QRectF(rect()).adjusted(0.5, metrics.height() / 2 + 0.5, -0.5, -0.5);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Window).darker(104));
    painter.drawRoundedRect(frame, 3, 3);
    if (title_.isEmpty()) return;
    const QRect caption(8, 0, metrics.horizontalAdvance(title_) + 6, metrics.height());
    painter.fillRect(caption, palette().window());
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(caption, Qt::AlignCenter, title_);
  }

 private:
  QString title_;
};

}  // namespace

QWidget* GroupBoxView::createWidget(QWidget* parent) {
  auto* box = new FramedBox(parent);
  box_ = box;
  // A group box frames controls that sit beside it on the same page, never over them.
  box->lower();
  return box;
}

void GroupBoxView::refresh(const QString& property) {
  if (property == u"Caption") {
    static_cast<FramedBox*>(box_)->setTitle(static_cast<GroupBox&>(control()).Caption());
  } else {
    ControlView::refresh(property);
  }
}

}  // namespace platform::qt
