#include "platform/qt/session.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace platform::qt {

QString shortcutText(const QString& shortcut) {
  QString text = shortcut;
  text.replace(QStringLiteral("Cmd"), QStringLiteral("Ctrl"), Qt::CaseInsensitive);
  return text;
}

Session::Session(Hooks hooks) : hooks_(std::move(hooks)) {
  if (!hooks_.guard) hooks_.guard = reportingGuard();
  connect(qApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive && hooks_.activate) guard()(hooks_.activate);
          });
}

Session::~Session() {
  // Views first: they let go of the controls while the windows still exist.
  views_.clear();
}

Guard Session::guard() {
  return [this](const std::function<void()>& event) {
    ++depth_;
    try {
      hooks_.guard(event);
    } catch (...) {
      // Whatever the program's guard lets through must not unwind through Qt.
      qWarning("An event stopped with an error the program did not report");
    }
    --depth_;
    if (depth_ == 0) follow();
  };
}

void Session::follow() {
  if (ended_ || !hooks_.windows) return;
  bool open = false;
  for (Window* window : hooks_.windows()) {
    if (!window) continue;
    if (!view(*window)) {
      views_.push_back(std::make_unique<WindowView>(*window, guard()));
      attachMenu(*views_.back());
    }
    if (window->Visible() && !window->isClosed()) open = true;
  }
  if (open) {
    shownOnce_ = true;
  } else if (shownOnce_ && (!hooks_.autoQuit || hooks_.autoQuit())) {
    end();
  }
}

WindowView* Session::view(const Window& window) const {
  for (const auto& v : views_) {
    if (&v->window() == &window) return v.get();
  }
  return nullptr;
}

std::vector<WindowView*> Session::views() const {
  std::vector<WindowView*> all;
  for (const auto& v : views_) all.push_back(v.get());
  return all;
}

std::unique_ptr<QMenu> Session::makeMenu() {
  if (hooks_.enableMenuItems) guard()(hooks_.enableMenuItems);
  auto bar = std::make_unique<QMenu>();
  if (!hooks_.menu) return bar;
  const std::vector<MenuEntry> entries = hooks_.menu();
  for (const MenuEntry& top : entries) {
    if (!top.under.isEmpty()) continue;
    QMenu* menu = bar->addMenu(top.text);
    menu->setEnabled(top.enabled);
    for (const MenuEntry& item : entries) {
      if (item.under != top.name) continue;
      if (item.text == u"-") {
        menu->addSeparator();
        continue;
      }
      QAction* action = menu->addAction(item.text);
      action->setShortcut(QKeySequence(shortcutText(item.shortcut)));
      action->setEnabled(item.enabled);
      const MenuRole role = item.role;
      connect(action, &QAction::triggered, this, [this, role] { perform(role); });
    }
  }
  return bar;
}

void Session::attachMenu(WindowView& view) {
  view.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&view, &QWidget::customContextMenuRequested, this,
          [this, target = &view](const QPoint& at) {
            std::unique_ptr<QMenu> menu = makeMenu();
            menu->exec(target->mapToGlobal(at));
          });
  if (!hooks_.menu) return;
  // The shortcuts work without opening the menu, in every window.
  for (const MenuEntry& item : hooks_.menu()) {
    if (item.shortcut.isEmpty() || item.role == MenuRole::None) continue;
    auto* action = new QAction(item.text, &view);
    action->setShortcut(QKeySequence(shortcutText(item.shortcut)));
    action->setShortcutContext(Qt::WindowShortcut);
    const MenuRole role = item.role;
    connect(action, &QAction::triggered, this, [this, role] { perform(role); });
    view.addAction(action);
  }
}

void Session::perform(MenuRole role) {
  if (role == MenuRole::Quit) {
    quitProgram();
    return;
  }
  // The edit items do what the focused field does for its own keys; the field reports
  // the edit to the model as the user's.
  QWidget* focus = QApplication::focusWidget();
  if (auto* line = qobject_cast<QLineEdit*>(focus)) {
    switch (role) {
      case MenuRole::Undo:
        line->undo();
        break;
      case MenuRole::Cut:
        line->cut();
        break;
      case MenuRole::Copy:
        line->copy();
        break;
      case MenuRole::Paste:
        line->paste();
        break;
      case MenuRole::Clear:
        line->del();
        break;
      case MenuRole::SelectAll:
        line->selectAll();
        break;
      default:
        break;
    }
  } else if (auto* area = qobject_cast<QPlainTextEdit*>(focus)) {
    switch (role) {
      case MenuRole::Undo:
        area->undo();
        break;
      case MenuRole::Cut:
        area->cut();
        break;
      case MenuRole::Copy:
        area->copy();
        break;
      case MenuRole::Paste:
        area->paste();
        break;
      case MenuRole::Clear:
        if (!area->isReadOnly()) area->textCursor().removeSelectedText();
        break;
      case MenuRole::SelectAll:
        area->selectAll();
        break;
      default:
        break;
    }
  }
}

void Session::quitProgram() {
  if (ended_) return;
  guard()([this] {
    if (hooks_.quit) hooks_.quit();
    // Whatever window the program left open closes as its close box would.
    if (hooks_.windows) {
      for (Window* window : hooks_.windows()) {
        if (window && !window->isClosed()) window->Close();
      }
    }
  });
  end();
}

void Session::end() {
  if (ended_) return;
  ended_ = true;
  for (const auto& v : views_) v->hide();
  if (hooks_.ended) hooks_.ended();
}

}  // namespace platform::qt
