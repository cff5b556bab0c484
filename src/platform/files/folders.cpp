#include "platform/files/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace platform {

namespace {

struct Overrides {
  QString preferences;
  QString applicationData;
  QString applicationFolder;
  QString resources;
};

Overrides& overrides() {
  static Overrides o;
  return o;
}

FolderItem chosen(const QString& override, const QString& fallback) {
  return FolderItem(override.isEmpty() ? fallback : override);
}

}  // namespace

QString SpecialFolder::executableDirectory() {
  if (QCoreApplication::instance()) return QCoreApplication::applicationDirPath();
  const QFileInfo self(QStringLiteral("/proc/self/exe"));
  return QFileInfo(self.symLinkTarget()).absolutePath();
}

FolderItem SpecialFolder::Preferences() {
  return chosen(overrides().preferences, QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

FolderItem SpecialFolder::ApplicationData() {
  return chosen(overrides().applicationData, QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

FolderItem SpecialFolder::ApplicationFolder() { return chosen(overrides().applicationFolder, executableDirectory()); }

FolderItem SpecialFolder::Resources() {
  return chosen(overrides().resources, QDir(executableDirectory()).filePath(QStringLiteral("Resources")));
}

void SpecialFolder::setPreferences(const QString& path) { overrides().preferences = path; }

void SpecialFolder::setApplicationData(const QString& path) { overrides().applicationData = path; }

void SpecialFolder::setApplicationFolder(const QString& path) { overrides().applicationFolder = path; }

void SpecialFolder::setResources(const QString& path) { overrides().resources = path; }

void SpecialFolder::setHome(const QString& directory) {
  const QDir home(directory);
  setPreferences(home.filePath(QStringLiteral("Preferences")));
  setApplicationData(home.filePath(QStringLiteral("ApplicationData")));
  setApplicationFolder(home.filePath(QStringLiteral("Application")));
}

void SpecialFolder::clearOverrides() { overrides() = Overrides{}; }

}  // namespace platform
