#pragma once
// The pictures that image wells show, read from their files once and kept.

#include <QPixmap>
#include <QString>

namespace platform::qt {

// The file of a picture: `path` when the program fetched the picture itself, otherwise
// the file named `name` (with its extension .gif, .jpg or .png) in the Resources folder.
// Empty when there is none.
QString pictureFile(const QString& name, const QString& path);

// A null pixmap when the file is missing or unreadable: the well then shows nothing.
QPixmap loadPicture(const QString& file);

}  // namespace platform::qt
