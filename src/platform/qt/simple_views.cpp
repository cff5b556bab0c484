#include <QFrame>
#include <QLabel>

#include "platform/qt/pictures.h"
#include "platform/qt/views.h"

namespace platform::qt {

// ---- Separator ---------------------------------------------------------------------------

QWidget* SeparatorView::createWidget(QWidget* parent) {
  frame_ = new QFrame(parent);
  frame_->setFrameShadow(QFrame::Sunken);
  return frame_;
}

void SeparatorView::refresh(const QString& property) {
  ControlView::refresh(property);
  if (property == u"Width" || property == u"Height" || property == u"Left") {
    frame_->setFrameShape(control().Width() >= control().Height() ? QFrame::HLine : QFrame::VLine);
  }
}

// ---- ImageWell ---------------------------------------------------------------------------

QWidget* ImageView::createWidget(QWidget* parent) {
  image_ = new QLabel(parent);
  // The framework centres a picture in its well; a picture of the well's size then
  // takes presses at its own coordinates.
  image_->setAlignment(Qt::AlignCenter);
  return image_;
}

void ImageView::refresh(const QString& property) {
  if (property == u"Image") {
    image_->setPixmap(loadPicture(pictureFile(well().Image(), well().imagePath())));
  } else {
    ControlView::refresh(property);
  }
}

}  // namespace platform::qt
