// Any text as an XML data file: loading and the program's queries either work or raise
// the framework's exceptions, never crash.

#include <QString>
#include <cstddef>
#include <cstdint>

#include "platform/exceptions.h"
#include "platform/xml/xml.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString text =
      QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  try {
    platform::XmlDocument doc;
    doc.LoadXml(text);
    const platform::XmlNode root = doc.Child(0);
    const platform::XmlNodeList categories = root.Xql("Category");
    for (int i = 0; i < categories.Length() && i < 1000; ++i) {
      const platform::XmlNode category = categories.Item(i);
      (void)category.Xql("Name").Item(0).Child(0).Value();
      const platform::XmlNodeList rows = category.Xql("List/SubList");
      for (int j = 0; j < rows.Length() && j < 1000; ++j) {
        (void)rows.Item(j).Child(0).Value();
        (void)rows.Item(j).GetAttribute("convert");
      }
    }
    (void)doc.Xql("//Key").Length();
  } catch (const platform::FrameworkException&) {
    // Malformed text and missing nodes are reported this way, as designed.
  }
  return 0;
}
