#pragma once
// One launched program for a whole fuzzing run: a home with the shipped support files,
// the introduction dismissed, Window1 open on a recording desktop.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "app/app.h"
#include "app/window1.h"
#include "platform/desktop/recording_desktop.h"
#include "platform/files/folders.h"

namespace fuzzsupport {

struct Program {
  QTemporaryDir home;
  platform::RecordingDesktop desktop;
  std::unique_ptr<app::App> app;
  app::Window1* window = nullptr;

  Program() {
    const QString source = QString::fromLocal8Bit(qgetenv("ABACON_SOURCE_DIR"));
    platform::SpecialFolder::setHome(home.path());
    platform::SpecialFolder::setResources(source + "/Resources");
    const QString support = home.path() + "/ApplicationData/VXKSupport";
    QDir().mkpath(support);
    QDir().mkpath(home.path() + "/Preferences");
    QDir().mkpath(home.path() + "/Application");
    for (const char* name : {"convert.txt", "physicaldata.txt", "AstrDataXML.txt"}) {
      QFile::copy(source + "/support/VXKSupport/" + name, support + "/" + name);
    }
    QFile marker(home.path() + "/Preferences/VXKInstr");
    if (marker.open(QIODevice::WriteOnly)) marker.write("do not show");
    marker.close();
    app = std::make_unique<app::App>(desktop);
    app->_Startup();
    window = app->window1();
  }

  // Keeps a long run from growing without end: the log and the recorded events go.
  void forget() {
    window->EditField2->setText(QString());
    desktop.takeEvents();
  }
};

inline Program& program() {
  static Program p;
  return p;
}

}  // namespace fuzzsupport
