#pragma once
// App is the application object: the desktop it runs on, the menu bar, the file types,
// the pictures and the sound of the Resources folder, the start-up sequence and the
// handler of unhandled exceptions. It owns the windows; Window1 comes into being at
// its first Show.

#include <QString>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/desktop/desktop.h"
#include "platform/desktop/media.h"

namespace app {

class Window1;
class Window2;

struct MenuItem {
  QString name;
  QString className;  // "MenuItem" or "QuitMenuItem"
  QString text;       // "&" marks the access letter; "-" is a separator
  QString shortcut;
  QString under;      // the parent menu; empty for the menu bar itself
  bool autoEnable = true;
  bool enabled = true;
};

struct FileType {
  QString name, extensions, macType, macCreator;
};

class App {
 public:
  static constexpr int MajorVersion = ABACON_VERSION_MAJOR;
  static constexpr int MinorVersion = ABACON_VERSION_MINOR;
  static constexpr int BugVersion = ABACON_VERSION_BUG;

  explicit App(platform::Desktop& desktop);
  ~App();
  App(const App&) = delete;
  App& operator=(const App&) = delete;

  platform::Desktop& desktop() const { return desktop_; }

  // The launch: file types, menu bar, then the first window, the introduction, which
  // decides when Window1 is shown. Returns when the windows of the launch are open;
  // the event loop belongs to the caller.
  void _Startup();
  // Closing the windows as a user quitting does; the close events save what they save.
  void quit();

  bool AutoQuit = false;
  void Event_Activate();
  void Event_EnableMenuItems();

  const std::vector<MenuItem>& MenuBar1() const { return menuBar_; }
  MenuItem* menuItem(const QString& name);
  const FileType& pText() const { return pText_; }

  // The main window; null until its first Show.
  Window1* window1() const { return window1_.get(); }
  Window1& showWindow1();
  // The introduction, made at start-up; once either of its buttons (or a marked launch)
  // has led on to Window1 it stays closed.
  Window2* window2() const { return window2_.get(); }

  // Resources, fetched on first use and then kept. A picture getter that found no
  // Resources folder tries again at its next call; claves tries only once.
  std::optional<platform::Picture> target();
  std::optional<platform::Picture> target2();
  std::optional<platform::Picture> fullwindow1();
  std::optional<platform::Picture> fullwindow2();
  std::optional<platform::Sound> claves();
  // Plays claves when there is such a sound.
  void playClaves();

  // Runs a handler; a fault that escapes it is reported (a message box and a log line)
  // and the program goes on, as the framework's handler of unhandled exceptions does.
  void guard(const std::function<void()>& handler);
  void UnhandledException(const std::exception& error);

 private:
  std::optional<platform::Picture> picture(std::optional<platform::Picture>& cache,
                                           const QString& file);
  void _InitFileTypes();
  void _NewAppInstance();
  void _MakeDefaultView();

  platform::Desktop& desktop_;
  std::vector<MenuItem> menuBar_;
  FileType pText_;
  std::unique_ptr<Window1> window1_;
  std::unique_ptr<Window2> window2_;
  std::optional<platform::Picture> target_, target2_, fullwindow1_, fullwindow2_;
  std::optional<platform::Sound> claves_;
  bool clavesTried_ = false;
};

}  // namespace app
