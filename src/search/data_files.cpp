#include "search/data_files.h"

#include "platform/files/folders.h"

namespace search {

platform::FolderItem dataFile(QLatin1StringView name) {
  const platform::FolderItem appData = platform::SpecialFolder::ApplicationData();
  if (appData.isNil()) return {};
  const platform::FolderItem support = appData.Child(QStringLiteral("VXKSupport"));
  if (support.isNil()) return {};
  return support.Child(QString(name));
}

QString firstText(const platform::XmlNode& record, const QString& element) {
  return record.Xql(element).Item(0).Child(0).Value();
}

}  // namespace search
