#pragma once
// A home folder for benchmarks, laid out as a user's after the first start: the shipped
// support files in place and the introduction dismissed, so Window1 opens at launch.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/app.h"
#include "app/window1.h"
#include "platform/desktop/recording_desktop.h"
#include "platform/files/folders.h"

namespace benchsupport {

inline QString sourceDir() {
  const QByteArray fromEnv = qgetenv("ABACON_SOURCE_DIR");
  return fromEnv.isEmpty() ? QStringLiteral(ABACON_BENCH_SOURCE_DIR) : QString::fromLocal8Bit(fromEnv);
}

class BenchHome {
 public:
  BenchHome() {
    platform::SpecialFolder::setHome(dir_.path());
    platform::SpecialFolder::setResources(sourceDir() + "/Resources");
    const QString support = dir_.path() + "/ApplicationData/VXKSupport";
    QDir().mkpath(support);
    QDir().mkpath(dir_.path() + "/Preferences");
    QDir().mkpath(dir_.path() + "/Application");
    for (const char* name : {"convert.txt", "physicaldata.txt", "AstrDataXML.txt"}) {
      QFile::copy(sourceDir() + "/support/VXKSupport/" + name, support + "/" + name);
    }
    QFile marker(dir_.path() + "/Preferences/VXKInstr");
    if (marker.open(QIODevice::WriteOnly)) marker.write("do not show");
  }
  ~BenchHome() { platform::SpecialFolder::clearOverrides(); }
  QString path() const { return dir_.path(); }

 private:
  QTemporaryDir dir_;
};

// The program launched on such a home, Window1 open.
struct Launched {
  BenchHome home;
  platform::RecordingDesktop desktop;
  app::App program{desktop};
  app::Window1* window = nullptr;
  Launched() {
    program._Startup();
    window = program.window1();
  }
};

}  // namespace benchsupport
