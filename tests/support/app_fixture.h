#pragma once
// A launched program on a recording desktop, in a home folder of its own that is
// removed afterwards. Tests act on Window1 through its controls, as the driver does.

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "app/app.h"
#include "app/window1.h"
#include "platform/desktop/recording_desktop.h"
#include "platform/files/folders.h"

namespace testsupport {

inline QString sourceDir() { return QString::fromLocal8Bit(qgetenv("ABACON_SOURCE_DIR")); }

class AppFixture : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(home.isValid());
    platform::SpecialFolder::setHome(home.path());
    platform::SpecialFolder::setResources(sourceDir() + "/Resources");
    desktop.setClock(QDateTime(QDate(2026, 11, 23), QTime(9, 30)));
  }
  void TearDown() override { platform::SpecialFolder::clearOverrides(); }

  // Starts the program with the introduction dismissed, so Window1 opens at once; call
  // after putting files in place.
  app::Window1& launch() {
    if (!QFile::exists(home.path() + "/Preferences/VXKInstr")) {
      writeFile("Preferences/VXKInstr", "do not show");
    }
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    window = program->window1();
    desktop.takeEvents();
    logMark = window->EditField2->Text().size();
    return *window;
  }

  // The log lines written since the last call (or since the launch).
  QStringList newLogLines() {
    const QString text = window->EditField2->Text();
    QString added = text.mid(logMark);
    logMark = text.size();
    if (added.endsWith('\n')) added.chop(1);
    return added.isEmpty() ? QStringList() : added.split('\n');
  }

  // A text dropped on the window by a user.
  void drop(const QString& text) { window->userDrop(platform::DragItem{text}); }
  // The target lit, with the timer that puts it out running.
  bool blinking() const {
    return window->ImageWell1->Image() == "target2" && window->Timer1->Mode() != 0;
  }

  // Writes a file under the home folder, making folders as needed.
  void writeFile(const QString& relative, const QString& text) {
    const QString path = home.path() + "/" + relative;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
  }
  QString readFile(const QString& relative) {
    QFile file(home.path() + "/" + relative);
    if (!file.open(QIODevice::ReadOnly)) return QString();
    return QString::fromUtf8(file.readAll());
  }
  // The shipped data files, in the home's application data folder.
  void installSupportFiles() {
    for (const char* name : {"convert.txt", "physicaldata.txt", "AstrDataXML.txt"}) {
      QFile source(sourceDir() + "/support/VXKSupport/" + name);
      if (source.open(QIODevice::ReadOnly)) {
        writeFile(QStringLiteral("ApplicationData/VXKSupport/") + name,
                  QString::fromUtf8(source.readAll()));
      }
    }
  }

  QTemporaryDir home;
  platform::RecordingDesktop desktop;
  std::unique_ptr<app::App> program;
  app::Window1* window = nullptr;
  qsizetype logMark = 0;
};

}  // namespace testsupport
