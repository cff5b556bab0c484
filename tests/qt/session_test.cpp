// Session: windows that appear later, the menu bar, and the end of the run.

#include "platform/qt/session.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <memory>

#include "qt_environment.h"
#include "support/printers.h"
#include "test_window.h"

namespace {

using platform::qt::MenuEntry;
using platform::qt::MenuRole;
using platform::qt::Session;
using qttest::TestWindow;

class SessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Session::Hooks hooks;
    hooks.windows = [this] {
      std::vector<platform::Window*> all;
      for (const auto& w : windows) all.push_back(w.get());
      return all;
    };
    hooks.menu = [this] { return menu; };
    hooks.enableMenuItems = [this] { calls.append("enable"); };
    hooks.quit = [this] {
      calls.append("quit");
      if (!windows.empty()) windows.front()->Close();
    };
    session = std::make_unique<Session>(std::move(hooks));
  }
  void TearDown() override {
    session.reset();
    windows.clear();
  }
  TestWindow& addWindow() {
    windows.push_back(std::make_unique<TestWindow>(desktop));
    return *windows.back();
  }
  void clickGo(TestWindow& window) {
    QTest::mouseClick(session->view(window)->widgetFor("Go"), Qt::LeftButton);
  }

  platform::RecordingDesktop desktop;
  std::vector<std::unique_ptr<TestWindow>> windows;
  std::vector<MenuEntry> menu = {
      {"FileMenu", "&File", "", ""},
      {"FileQuit", "&Quit", "Cmd+Q", "FileMenu", MenuRole::Quit},
      {"EditMenu", "&Edit", "", ""},
      {"EditPaste", "&Paste", "Cmd+V", "EditMenu", MenuRole::Paste},
      {"Gap", "-", "", "EditMenu"},
  };
  QStringList calls;
  std::unique_ptr<Session> session;
};

TEST_F(SessionTest, AWindowMadeByAHandlerIsShownAndTheRunEndsWithTheLastWindow) {
  session->follow();
  EXPECT_FALSE(session->ended()) << "nothing ends before any window was shown";
  TestWindow& first = addWindow();
  session->follow();
  // A handler hides and closes its window and makes the next, as the introduction makes
  // the main window: the run goes on.
  first.control<platform::PushButton>("Go").Action = [this, &first] {
    first.Hide();
    addWindow();
    first.Close();
  };
  clickGo(first);
  ASSERT_EQ(windows.size(), 2u);
  ASSERT_NE(session->view(*windows[1]), nullptr);
  EXPECT_TRUE(session->view(*windows[1])->isVisible());
  EXPECT_FALSE(session->ended());
  session->view(*windows[1])->close();
  EXPECT_TRUE(session->ended());
}

TEST_F(SessionTest, QuitLetsTheProgramCloseItsWindowsThenClosesTheRest) {
  TestWindow& first = addWindow();
  TestWindow& second = addWindow();
  session->follow();
  second.take();
  session->quitProgram();
  EXPECT_EQ(calls, QStringList{"quit"});
  EXPECT_TRUE(first.isClosed() && second.isClosed());
  EXPECT_EQ(second.take(), QStringList{"Close List"});
  EXPECT_TRUE(session->ended());
}

TEST_F(SessionTest, TheMenuBarHasItsMenusAndShortcutsAndPasteGoesToTheFocusedField) {
  TestWindow& window = addWindow();
  session->follow();
  std::unique_ptr<QMenu> bar = session->makeMenu();
  EXPECT_EQ(calls, QStringList{"enable"});
  const QList<QAction*> menus = bar->actions();
  ASSERT_EQ(menus.size(), 2);
  EXPECT_EQ(menus[0]->text(), "&File");
  const QList<QAction*> edit = menus[1]->menu()->actions();
  ASSERT_EQ(edit.size(), 2);
  EXPECT_EQ(edit[0]->shortcut(), QKeySequence("Ctrl+V"));
  EXPECT_TRUE(edit[1]->isSeparator());

  QApplication::setActiveWindow(session->view(window));
  auto* field = qobject_cast<QLineEdit*>(session->view(window)->widgetFor("Field"));
  field->setFocus();
  ASSERT_EQ(QApplication::focusWidget(), field);
  QApplication::clipboard()->setText("pasted");
  edit[0]->trigger();
  EXPECT_EQ(window.control<platform::TextField>("Field").Text(), "pasted");

  // The quit shortcut works in every window.
  const QList<QAction*> actions = session->view(window)->actions();
  const auto quit = std::find_if(actions.begin(), actions.end(), [](QAction* a) {
    return a->shortcut() == QKeySequence("Ctrl+Q");
  });
  ASSERT_NE(quit, actions.end());
  (*quit)->trigger();
  EXPECT_TRUE(session->ended());
}

}  // namespace
