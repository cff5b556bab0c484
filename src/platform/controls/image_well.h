#pragma once
// ImageWell shows one picture of the Resources folder. Image is the resource's name
// ("target", "target2"), empty for none; the path, when the program fetched the
// picture itself, tells the renderer where the file lies.

#include <optional>

#include "platform/controls/control.h"
#include "platform/desktop/media.h"

namespace platform {

class ImageWell : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::ImageWell;
  explicit ImageWell(const QString& name) : Control(name, Kind) {}

  QString Image() const { return image_; }
  QString imagePath() const { return path_; }
  // By name alone; the renderer looks the file up in the Resources folder.
  void setImage(const QString& name);
  void setImage(const Picture& picture);
  // A Nil picture empties the well, as it does in the framework.
  void setImage(const std::optional<Picture>& picture);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();
  void applyCreationText(const QString& text) override { setImage(text); }

 private:
  void show(const QString& name, const QString& path);

  QString image_;
  QString path_;
};

}  // namespace platform
