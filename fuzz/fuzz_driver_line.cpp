// Any text as a line of a driver script: it is read into words or refused with a reason,
// and running it either works or is refused as a command the driver cannot run.

#include <QString>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstddef>
#include <cstdint>

#include "driver.h"
#include "platform/files/folders.h"
#include "script_line.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QString line =
      QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const drive::ScriptLine parsed = drive::parseScriptLine(line);
  if (parsed.error.isEmpty()) {
    for (const drive::Word& w : parsed.words) {
      const drive::ScriptLine again = drive::parseScriptLine("x " + drive::quote(w.text));
      if (again.words.size() != 2 || again.words[1].text != w.text) __builtin_trap();
    }
  }
  // Lines that touch nothing outside the program: no files are read or written.
  if (line.contains("write") || line.contains("file")) return 0;
  static QTemporaryDir home;
  platform::SpecialFolder::setHome(home.path());
  QString out;
  QTextStream stream(&out);
  drive::Driver driver(home.path(), stream);
  try {
    driver.run(R"(write Preferences/VXKInstr "do not show")", 1);
    driver.run("launch", 2);
    for (const QString& one : line.split('\n').mid(0, 20)) driver.run(one, 3);
  } catch (const drive::CommandError&) {
  }
  return 0;
}
