// abacon-drive [--home DIR] [--clock "YYYY-MM-DD HH:MM"] [--support] [SCRIPT]
// Runs the program's windows on a recording desktop, driven by a script (or standard
// input), and prints what the script asks for. Exit status: 0 when every expect held,
// 1 when one failed, 2 for a command that cannot run.

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdio>
#include <optional>

#include "driver.h"
#include "platform/files/folders.h"

namespace {

int usage(const QString& problem) {
  QTextStream err(stderr);
  err << "abacon-drive: " << problem << "\n"
      << "usage: abacon-drive [--home DIR] [--clock \"YYYY-MM-DD HH:MM\"] [--support] [SCRIPT]\n";
  return 2;
}

// The shipped support files lie beside the executable after a build, or in the sources.
QString shippedSupportFolder() {
  const QString beside = platform::SpecialFolder::executableDirectory() + "/support/VXKSupport";
  if (QDir(beside).exists()) return beside;
  return QString::fromLocal8Bit(qgetenv("ABACON_SOURCE_DIR")) + "/support/VXKSupport";
}

bool copySupportFiles(const QString& home) {
  const QDir source(shippedSupportFolder());
  const QString target = home + "/ApplicationData/VXKSupport";
  if (!QDir().mkpath(target)) return false;
  for (const QString& name : source.entryList(QDir::Files)) {
    QFile::remove(target + "/" + name);
    if (!QFile::copy(source.filePath(name), target + "/" + name)) return false;
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  QStringList args = application.arguments().mid(1);

  QString home, scriptPath;
  std::optional<QDateTime> clock;
  bool support = false;
  while (!args.isEmpty()) {
    const QString a = args.takeFirst();
    if (a == "--home") {
      if (args.isEmpty()) return usage("--home needs a folder");
      home = args.takeFirst();
    } else if (a == "--clock") {
      if (args.isEmpty()) return usage("--clock needs a date and time");
      const QDateTime when = QDateTime::fromString(args.takeFirst(), "yyyy-MM-dd HH:mm");
      if (!when.isValid()) return usage("--clock wants \"YYYY-MM-DD HH:MM\"");
      clock = when;
    } else if (a == "--support") {
      support = true;
    } else if (a.startsWith("--")) {
      return usage("unknown option " + a);
    } else if (scriptPath.isEmpty()) {
      scriptPath = a;
    } else {
      return usage("only one script at a time");
    }
  }

  std::optional<QTemporaryDir> scratch;
  if (home.isEmpty()) {
    scratch.emplace();
    if (!scratch->isValid()) return usage("cannot make a temporary home folder");
    home = scratch->path();
  }
  home = QDir(home).absolutePath();
  for (const char* folder : {"Preferences", "ApplicationData", "Application"}) {
    if (!QDir().mkpath(home + "/" + folder)) return usage("cannot make folders under " + home);
  }
  platform::SpecialFolder::setHome(home);
  if (support && !copySupportFiles(home)) return usage("cannot copy the support files");

  QFile script;
  if (scriptPath.isEmpty()) {
    if (!script.open(stdin, QIODevice::ReadOnly)) return usage("cannot read standard input");
  } else {
    script.setFileName(scriptPath);
    if (!script.open(QIODevice::ReadOnly)) return usage("cannot read " + scriptPath);
  }

  QTextStream out(stdout);
  int status = 0;
  {
    drive::Driver driver(home, out);
    if (clock) driver.desktop().setClock(*clock);
    QTextStream in(&script);
    int lineNumber = 0;
    while (!in.atEnd()) {
      const QString line = in.readLine();
      ++lineNumber;
      try {
        driver.run(line, lineNumber);
      } catch (const drive::CommandError& e) {
        out.flush();
        QTextStream(stderr) << "abacon-drive: line " << lineNumber << ": " << e.message() << "\n";
        return 2;
      } catch (const std::exception& e) {
        out.flush();
        QTextStream(stderr) << "abacon-drive: line " << lineNumber << ": " << e.what() << "\n";
        return 2;
      }
      out.flush();
    }
    status = driver.failures() > 0 ? 1 : 0;
  }
  out.flush();
  return status;
}
