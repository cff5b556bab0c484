// Any text as the saved preferences line: restoring it sets what it can and ignores the
// rest, and a save afterwards writes a well-formed line again.

#include <QFile>
#include <QString>
#include <cstddef>
#include <cstdint>

#include "fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzzsupport::Program& p = fuzzsupport::program();
  const QString path = p.home.path() + "/Preferences/VXKPreferences";
  {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return 0;
    file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size));
  }
  p.app->guard([&] { p.window->restorePreferences(); });
  p.app->guard([&] { p.window->PushButton42->Push(); });
  QFile saved(path);
  if (saved.open(QIODevice::ReadOnly)) {
    const QStringList fields = QString::fromUtf8(saved.readAll()).split(';');
    if (fields.size() != 8) __builtin_trap();  // a save always writes the eight fields
  }
  p.forget();
  return 0;
}
