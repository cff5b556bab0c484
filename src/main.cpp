// abacon: the desk accessory on the desktop.

#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/qt/program.h"

namespace {

// Qt aborts with a message about platform plugins when it finds no display; say plainly
// what is wrong and how to run the program anyway.
bool displayReachable() {
  if (const char* platform = std::getenv("QT_QPA_PLATFORM"); platform && *platform) return true;
  if (const char* wayland = std::getenv("WAYLAND_DISPLAY"); wayland && *wayland) return true;
  const char* display = std::getenv("DISPLAY");
  if (!display || !*display) return false;
  // A local X display ":N" or ":N.S" answers on its socket; a remote one is taken on trust.
  const std::string name(display);
  if (name.front() != ':') return true;
  const std::string number = name.substr(1, name.find('.') - 1);
  return QFileInfo::exists(QString::fromStdString("/tmp/.X11-unix/X" + number));
}

}  // namespace

int main(int argc, char** argv) {
  if (!displayReachable()) {
    const char* display = std::getenv("DISPLAY");
    if (display && *display) {
      std::fprintf(stderr, "abacon: the display %s cannot be reached.\n", display);
    } else {
      std::fputs("abacon: there is no display to open the window on.\n", stderr);
    }
    std::fputs(
        "Start it from a desktop session, or on a virtual display (Debian package xvfb):\n"
        "  xvfb-run -a abacon\n",
        stderr);
    return 2;
  }
  QApplication application(argc, argv);
  platform::qt::setUpApplication();
  platform::qt::Program program;
  program.start();
  return program.exec();
}
