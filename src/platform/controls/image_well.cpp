#include "platform/controls/image_well.h"

namespace platform {

void ImageWell::show(const QString& name, const QString& path) {
  if (image_ == name && path_ == path) return;
  image_ = name;
  path_ = path;
  changed(QStringLiteral("Image"));
}

void ImageWell::setImage(const QString& name) { show(name, QString()); }

void ImageWell::setImage(const Picture& picture) { show(picture.name, picture.path); }

void ImageWell::setImage(const std::optional<Picture>& picture) {
  if (picture) {
    setImage(*picture);
  } else {
    show(QString(), QString());
  }
}

const PropertyTable& ImageWell::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<ImageWell>(t).indexed(
        "Image", 0, [](const ImageWell& w, const PropertyTable::Args&) { return QVariant(w.Image()); },
        [](ImageWell& w, const PropertyTable::Args&, const QVariant& v) {
          w.setImage(stringFromVariant(v, QStringLiteral("Image")));
        });
    return t;
  }();
  return table;
}

}  // namespace platform
