#pragma once
// The folders the framework names. Each has a default for this machine and can be put
// elsewhere, as tests and the scenario driver do (all under one home directory). The
// overrides are process-wide, like the folders they stand for.
//
//   Preferences        QStandardPaths::GenericConfigLocation     HOME/Preferences
//   ApplicationData    QStandardPaths::GenericDataLocation       HOME/ApplicationData
//   ApplicationFolder  the executable's folder                   HOME/Application
//   Resources          Resources/ beside the executable          (only by setResources)

#include <QString>

#include "platform/files/folder_item.h"

namespace platform {

class SpecialFolder {
 public:
  // Nil only when the machine names no such folder. The folder itself may be missing:
  // then every Child of it is Nil.
  static FolderItem Preferences();
  static FolderItem ApplicationData();
  // The folder that holds the application.
  static FolderItem ApplicationFolder();
  static FolderItem Resources();

  static void setPreferences(const QString& path);
  static void setApplicationData(const QString& path);
  static void setApplicationFolder(const QString& path);
  static void setResources(const QString& path);
  // Preferences, ApplicationData and the application's folder under one directory.
  static void setHome(const QString& directory);
  // Back to the machine's folders.
  static void clearOverrides();

  // The executable's folder, also before a QCoreApplication exists.
  static QString executableDirectory();
};

}  // namespace platform
