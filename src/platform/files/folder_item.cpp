#include "platform/files/folder_item.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include "platform/exceptions.h"
#include "platform/files/folders.h"

namespace platform {

FolderItem::FolderItem(const QString& path)
    : path_(path.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(path).absoluteFilePath())) {}

void FolderItem::requireItem(const char* method) const {
  if (isNil()) {
    throw NilObjectException(QStringLiteral("FolderItem.") + QLatin1String(method) + QStringLiteral(" called on Nil"));
  }
}

QString FolderItem::Name() const {
  requireItem("Name");
  return QFileInfo(path_).fileName();
}

bool FolderItem::Exists() const {
  requireItem("Exists");
  return QFileInfo::exists(path_);
}

bool FolderItem::Directory() const {
  requireItem("Directory");
  return QFileInfo(path_).isDir();
}

FolderItem FolderItem::Child(const QString& name) const {
  requireItem("Child");
  if (name.isEmpty() || name == u"." || name == u".." || name.contains(u'/') || name.contains(QChar(0))) {
    return {};
  }
  if (!QFileInfo(path_).isDir()) return {};
  return FolderItem(QDir(path_).filePath(name));
}

FolderItem FolderItem::Parent() const {
  requireItem("Parent");
  if (path_ == QDir::rootPath()) return {};
  return FolderItem(QFileInfo(path_).absolutePath());
}

TextInputStream FolderItem::OpenAsTextFile() const {
  requireItem("OpenAsTextFile");
  const QFileInfo info(path_);
  if (!info.exists() || info.isDir()) {
    throw NilObjectException(QStringLiteral("no file to open: ") + path_);
  }
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) {
    throw IOException(QStringLiteral("cannot read ") + path_ + QStringLiteral(": ") + file.errorString());
  }
  // The default decoder drops a byte order mark and turns bad bytes into U+FFFD.
  QStringDecoder decode(QStringDecoder::Utf8);
  return TextInputStream(decode(file.readAll()));
}

TextOutputStream FolderItem::CreateTextFile() const {
  requireItem("CreateTextFile");
  return TextOutputStream(path_, TextOutputStream::Mode::Rewrite);
}

TextOutputStream FolderItem::AppendToTextFile() const {
  requireItem("AppendToTextFile");
  return TextOutputStream(path_, TextOutputStream::Mode::Append);
}

void FolderItem::CreateAsFolder() const {
  requireItem("CreateAsFolder");
  if (!QDir().mkpath(path_)) throw IOException(QStringLiteral("cannot make the folder ") + path_);
}

void FolderItem::Delete() const {
  requireItem("Delete");
  const QFileInfo info(path_);
  const bool gone = info.isDir() ? QDir().rmdir(path_) : QFile::remove(path_);
  if (!gone) throw IOException(QStringLiteral("cannot delete ") + path_);
}

std::optional<Picture> FolderItem::OpenAsPicture() const {
  requireItem("OpenAsPicture");
  const QFileInfo info(path_);
  if (!info.isFile()) return std::nullopt;
  return Picture{info.completeBaseName(), path_};
}

std::optional<Sound> FolderItem::OpenAsSound() const {
  requireItem("OpenAsSound");
  const QFileInfo info(path_);
  if (!info.isFile()) return std::nullopt;
  return Sound{info.completeBaseName(), path_};
}

FolderItem GetFolderItem(const QString& path) {
  if (path.isEmpty()) return SpecialFolder::ApplicationFolder();
  QString full = path;
  if (QFileInfo(path).isRelative()) {
    const FolderItem base = SpecialFolder::ApplicationFolder();
    if (base.isNil()) return {};
    full = QDir(base.path()).filePath(path);
  }
  const FolderItem item(full);
  if (!QFileInfo(QFileInfo(item.path()).absolutePath()).isDir()) return {};
  return item;
}

}  // namespace platform
