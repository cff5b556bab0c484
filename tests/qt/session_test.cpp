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

  platform::RecordingDesktop desktop;
  std::vector<std::unique_ptr<TestWindow>> windows;
  std::vector<MenuEntry> menu = {
      {"FileMenu", "&File", "", ""},
      {"FileQuit", "&Quit", "Cmd+Q", "FileMenu", MenuRole::Quit},
      {"EditMenu", "&Edit", "", ""},
      {"EditPaste", "&Paste", "Cmd+V", "EditMenu", MenuRole::Paste},
      {"Gap", "-", "", "EditMenu"},
      {"EditSelectAll", "Select &All", "Cmd+A", "EditMenu", MenuRole::SelectAll},
  };
  QStringList calls;
  std::unique_ptr<Session> session;
};

TEST_F(SessionTest, AWindowMadeByAHandlerIsRenderedWhenTheEventEnds) {
  TestWindow& first = addWindow();
  session->follow();
  ASSERT_NE(session->view(first), nullptr);

  // A handler of the first window makes the second, as the introduction makes the
  // main window.
  first.control<platform::PushButton>("Go").Action = [this] { addWindow(); };
  QTest::mouseClick(session->view(first)->widgetFor("Go"), Qt::LeftButton);
  ASSERT_EQ(windows.size(), 2u);
  ASSERT_NE(session->view(*windows[1]), nullptr);
  EXPECT_TRUE(session->view(*windows[1])->isVisible());
}

TEST_F(SessionTest, TheRunEndsWhenTheLastWindowHasClosed) {
  TestWindow& first = addWindow();
  TestWindow& second = addWindow();
  session->follow();
  session->view(first)->close();
  EXPECT_FALSE(session->ended());
  session->view(second)->close();
  EXPECT_TRUE(session->ended());
}

TEST_F(SessionTest, NothingEndsBeforeAnyWindowWasShown) {
  session->follow();
  EXPECT_FALSE(session->ended());
  TestWindow& hidden = addWindow();
  hidden.Hide();
  session->follow();
  EXPECT_FALSE(session->ended());
}

TEST_F(SessionTest, AWindowHiddenAndAnotherShownInOneHandlerKeepsTheRunGoing) {
  TestWindow& first = addWindow();
  session->follow();
  first.control<platform::PushButton>("Go").Action = [this, &first] {
    first.Hide();
    addWindow();
    first.Close();
  };
  QTest::mouseClick(session->view(first)->widgetFor("Go"), Qt::LeftButton);
  EXPECT_FALSE(session->ended());
  EXPECT_TRUE(session->view(*windows[1])->isVisible());
}

TEST_F(SessionTest, QuitLetsTheProgramCloseItsWindowsThenClosesTheRest) {
  TestWindow& first = addWindow();
  TestWindow& second = addWindow();
  session->follow();
  first.take();
  second.take();
  session->quitProgram();
  EXPECT_EQ(calls, QStringList{"quit"});
  EXPECT_TRUE(first.isClosed());
  EXPECT_TRUE(second.isClosed());
  EXPECT_EQ(second.take(), QStringList{"Close List"});
  EXPECT_TRUE(session->ended());
}

TEST_F(SessionTest, TheMenuBarHasItsMenusItemsAndShortcuts) {
  std::unique_ptr<QMenu> bar = session->makeMenu();
  EXPECT_EQ(calls, QStringList{"enable"});
  const QList<QAction*> menus = bar->actions();
  ASSERT_EQ(menus.size(), 2);
  EXPECT_EQ(menus[0]->text(), "&File");
  EXPECT_EQ(menus[1]->text(), "&Edit");
  const QList<QAction*> edit = menus[1]->menu()->actions();
  ASSERT_EQ(edit.size(), 3);
  EXPECT_EQ(edit[0]->shortcut(), QKeySequence("Ctrl+V"));
  EXPECT_TRUE(edit[1]->isSeparator());
  EXPECT_EQ(menus[0]->menu()->actions()[0]->shortcut(), QKeySequence("Ctrl+Q"));
}

TEST_F(SessionTest, PasteFromTheMenuIsTheFocusedFieldsOwnEdit) {
  TestWindow& window = addWindow();
  session->follow();
  QWidget* view = session->view(window);
  QApplication::setActiveWindow(view);
  auto* field = qobject_cast<QLineEdit*>(session->view(window)->widgetFor("Field"));
  field->setFocus();
  QApplication::clipboard()->setText("pasted");
  ASSERT_EQ(QApplication::focusWidget(), field);
  std::unique_ptr<QMenu> bar = session->makeMenu();
  bar->actions()[1]->menu()->actions()[0]->trigger();
  EXPECT_EQ(window.control<platform::TextField>("Field").Text(), "pasted");
}

TEST_F(SessionTest, TheQuitShortcutWorksInEveryWindow) {
  TestWindow& window = addWindow();
  session->follow();
  QWidget* view = session->view(window);
  bool found = false;
  for (QAction* action : view->actions()) {
    if (action->shortcut() == QKeySequence("Ctrl+Q")) {
      found = true;
      action->trigger();
    }
  }
  EXPECT_TRUE(found);
  EXPECT_TRUE(session->ended());
}

}  // namespace
