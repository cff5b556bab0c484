#include "platform/qt/pictures.h"

#include <QFileInfo>
#include <QHash>

#include "platform/files/folders.h"

namespace platform::qt {

QString pictureFile(const QString& name, const QString& path) {
  if (!path.isEmpty()) return path;
  if (name.isEmpty()) return {};
  const FolderItem resources = SpecialFolder::Resources();
  if (!resources) return {};
  for (const char* extension : {".gif", ".jpg", ".png"}) {
    const FolderItem file = resources.Child(name + QString::fromLatin1(extension));
    if (file && file.Exists()) return file.path();
  }
  return {};
}

QPixmap loadPicture(const QString& file) {
  // A blink swaps two pictures every second: decode each file once.
  static QHash<QString, QPixmap> cache;
  if (file.isEmpty()) return {};
  const auto found = cache.constFind(file);
  if (found != cache.constEnd()) return *found;
  QPixmap picture;
  if (QFileInfo(file).isFile()) picture.load(file);
  cache.insert(file, picture);
  return picture;
}

}  // namespace platform::qt
