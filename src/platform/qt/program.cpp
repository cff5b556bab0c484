#include "platform/qt/program.h"

#include <QApplication>
#include <QStyleFactory>

#include "app/window1.h"
#include "guidance/window2.h"
#include "platform/strings/strings.h"

namespace platform::qt {

namespace {

// The items of the menu bar have no handlers of their own: they do what text fields do
// with their own keys, and what quitting does.
MenuRole roleOf(const app::MenuItem& item) {
  if (StrEq(item.className, QStringLiteral("QuitMenuItem"))) return MenuRole::Quit;
  static const struct {
    const char* name;
    MenuRole role;
  } kEditItems[] = {{"EditUndo", MenuRole::Undo},   {"EditCut", MenuRole::Cut},
                    {"EditCopy", MenuRole::Copy},   {"EditPaste", MenuRole::Paste},
                    {"EditClear", MenuRole::Clear}, {"EditSelectAll", MenuRole::SelectAll}};
  for (const auto& edit : kEditItems) {
    if (StrEq(item.name, QString::fromLatin1(edit.name))) return edit.role;
  }
  return MenuRole::None;
}

}  // namespace

void setUpApplication() {
  // No display name: the desktop would add it to every window title, and the main
  // window's title is "ABACON" alone.
  QApplication::setApplicationName(QStringLiteral("abacon"));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

Program::Program() : app_(desktop_) {
  Session::Hooks hooks;
  hooks.guard = [this](const std::function<void()>& event) { app_.guard(event); };
  hooks.windows = [this] {
    std::vector<Window*> windows;
    if (app_.window2()) windows.push_back(app_.window2());
    if (app_.window1()) windows.push_back(app_.window1());
    return windows;
  };
  hooks.menu = [this] {
    std::vector<MenuEntry> entries;
    for (const app::MenuItem& item : app_.MenuBar1()) {
      entries.push_back(
          {item.name, item.text, item.shortcut, item.under, roleOf(item), item.enabled});
    }
    return entries;
  };
  hooks.enableMenuItems = [this] {
    app_.Event_EnableMenuItems();
    if (app_.window1()) app_.window1()->Event_EnableMenuItems();
  };
  hooks.activate = [this] { app_.Event_Activate(); };
  hooks.autoQuit = [this] { return app_.AutoQuit; };
  hooks.quit = [this] { app_.quit(); };
  // Only a running loop may be told to stop: an exit asked for with no loop running
  // would end the next one at once, a message box's included.
  hooks.ended = [this] {
    if (looping_) QCoreApplication::exit(0);
  };
  session_ = std::make_unique<Session>(std::move(hooks));
  desktop_.setGuard(session_->guard());
}

Program::~Program() { session_.reset(); }

void Program::start() {
  Guard guard = session_->guard();
  // The launch brings the application to the front.
  guard([this] { app_.Event_Activate(); });
  guard([this] { app_._Startup(); });
}

int Program::exec() {
  if (session_->ended()) return 0;
  looping_ = true;
  const int status = QApplication::exec();
  looping_ = false;
  return status;
}

}  // namespace platform::qt
