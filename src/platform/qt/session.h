#pragma once
// Session is the desktop around the program's windows. It renders each window the
// program has as soon as it appears (the main window comes into being in the middle of
// a handler of the introduction), runs every model event through the program's guard,
// offers the menu bar and its shortcuts on every window, tells the program when it comes
// to the front, and ends the event loop when the last window has closed.
//
// It knows the program only through its hooks, so tests and tools can run it on any
// windows.

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/controls/window.h"
#include "platform/qt/guard.h"
#include "platform/qt/window_view.h"

class QAction;
class QMenu;

namespace platform::qt {

// What a menu item does: the standard work of the focused text field, or quitting.
enum class MenuRole { None, Quit, Undo, Cut, Copy, Paste, Clear, SelectAll };

struct MenuEntry {
  QString name;
  QString text;      // "&" marks the access letter; "-" is a separator
  QString shortcut;  // as the program writes it ("Cmd+Q"); Cmd is Ctrl here
  QString under;     // the menu that holds it; empty for a menu of the bar
  MenuRole role = MenuRole::None;
  bool enabled = true;
};

class Session : public QObject {
 public:
  struct Hooks {
    Guard guard;                                    // runs one event of the program
    std::function<std::vector<Window*>()> windows;  // the windows the program has now
    std::function<std::vector<MenuEntry>()> menu;   // the menu bar as it stands
    std::function<void()> enableMenuItems;          // a menu is about to open
    std::function<void()> activate;                 // the application came to the front
    std::function<bool()> autoQuit;                 // ends with its last window
    std::function<void()> quit;                     // closes the windows as a user quitting does
    std::function<void()> ended;                    // the last window has closed: stop the loop
  };

  explicit Session(Hooks hooks);
  ~Session() override;

  // The guard for every model event the desktop raises: the program's own, and then,
  // once the outermost event is over, follow().
  Guard guard();

  // Renders the windows that have appeared and, when none is open any more after one
  // was, ends the session.
  void follow();

  WindowView* view(const Window& window) const;
  std::vector<WindowView*> views() const;

  // The menu bar as a pop-up menu (the window's context menu): the small window has no
  // room for a bar of its own.
  std::unique_ptr<QMenu> makeMenu();
  // What the Quit item does: the program closes its windows, then the loop ends.
  void quitProgram();

  bool ended() const { return ended_; }

 private:
  void attachMenu(WindowView& view);
  void perform(MenuRole role);
  void end();

  Hooks hooks_;
  std::vector<std::unique_ptr<WindowView>> views_;
  std::vector<QAction*> shortcuts_;
  int depth_ = 0;
  bool shownOnce_ = false;
  bool ended_ = false;
};

// "Cmd+Q" as this desktop writes it.
QString shortcutText(const QString& shortcut);

}  // namespace platform::qt
