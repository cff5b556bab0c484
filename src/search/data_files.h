#pragma once
// Where the two data files lie and how a record's texts are read. Shared by the
// searches and by the building of the search tabs' word lists; neither keeps a file
// or a document beyond one call.

#include <QLatin1StringView>
#include <QString>

#include "platform/files/folder_item.h"
#include "platform/xml/xml.h"

namespace search {

inline constexpr QLatin1StringView kPhysicalFile{"physicaldata.txt"};
inline constexpr QLatin1StringView kAstronomicalFile{"AstrDataXML.txt"};

// The file's item under ApplicationData/VXKSupport; Nil when a folder on the way is
// not there. A file missing from a folder that exists still gives an item, which then
// fails to open.
platform::FolderItem dataFile(QLatin1StringView name);

// The text of a record's first element of that name: its first child node's Value, so
// an element inside the text cuts it there. A record without the element, or with the
// element empty, raises the platform's fault (NilObjectException), which breaks off the
// caller.
QString firstText(const platform::XmlNode& record, const QString& element);

}  // namespace search
