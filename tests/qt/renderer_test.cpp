// The generic renderer on a window of every kind of control: where the widgets stand,
// how changes from code reach them, and how a user's input reaches the model.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>
#include <memory>

#include "platform/qt/window_view.h"
#include "qt_environment.h"
#include "support/printers.h"
#include "test_window.h"

namespace {

using platform::qt::WindowView;
using qttest::TestWindow;

class Renderer : public ::testing::Test {
 protected:
  void SetUp() override {
    window = std::make_unique<TestWindow>(desktop);
    window->AcceptTextDrop();
    view = std::make_unique<WindowView>(*window, [this](const std::function<void()>& event) {
      try {
        event();
      } catch (const std::exception& error) {
        faults.append(QString::fromUtf8(error.what()));
      }
    });
    view->show();
    qttest::settle();
    window->take();
  }
  void TearDown() override {
    view.reset();
    window.reset();
  }

  template <class W = QWidget>
  W* widget(const char* name) {
    return qobject_cast<W*>(view->widgetFor(QString::fromLatin1(name)));
  }
  template <class C>
  C& model(const char* name) {
    return window->control<C>(QString::fromLatin1(name));
  }
  QTabBar* tabBar() { return widget("Tabs")->findChild<QTabBar*>(); }

  platform::RecordingDesktop desktop;
  std::unique_ptr<TestWindow> window;
  std::unique_ptr<WindowView> view;
  QStringList faults;
};

TEST_F(Renderer, EveryControlStandsAtItsTableGeometryInWindowCoordinates) {
  struct Row {
    const char* name;
    QRect rect;
  } rows[] = {
      {"Field", {10, 10, 100, 22}},     {"RadioB", {380, 30, 60, 20}},
      {"OnSecond", {30, 260, 80, 22}},  {"Pages", {20, 240, 200, 150}},
      {"OnPage1", {40, 300, 80, 20}},   {"Image", {300, 280, 62, 62}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    QWidget* w = widget(row.name);
    EXPECT_EQ(QRect(w->mapTo(view.get(), QPoint(0, 0)), w->size()), row.rect);
  }
}

TEST_F(Renderer, ControlsOnATabOrPageShowOnlyWhileItIsShown) {
  EXPECT_FALSE(widget("OnSecond")->isVisibleTo(view.get()));
  EXPECT_FALSE(widget("OnPage1")->isVisibleTo(view.get()));
  model<platform::TabPanel>("Tabs").setValue(1);
  EXPECT_TRUE(widget("OnSecond")->isVisibleTo(view.get()));
  EXPECT_EQ(tabBar()->currentIndex(), 1);
  model<platform::TabPanel>("Tabs").setValue(0);
  model<platform::PagePanel>("Pages").setValue(1);
  EXPECT_FALSE(widget("OnSecond")->isVisibleTo(view.get()));
  EXPECT_TRUE(widget("OnPage1")->isVisibleTo(view.get()));
}

TEST_F(Renderer, ChangesFromCodeShowAtOnce) {
  model<platform::TextField>("Field").setText("from code");
  EXPECT_EQ(widget<QLineEdit>("Field")->text(), "from code");
  model<platform::PushButton>("Go").setCaption("Stop & go");
  EXPECT_EQ(widget<QPushButton>("Go")->text(), "Stop && go");
  model<platform::BevelButton>("Menu").setCaption("Settings");
  EXPECT_EQ(widget<QToolButton>("Menu")->text(), "Settings");
  model<platform::PopupMenu>("Pop").setListIndex(2);
  EXPECT_EQ(widget<QComboBox>("Pop")->currentText(), "blue");
  EXPECT_EQ(widget<QLabel>("Label")->text(), "one\ntwo");

  auto& list = model<platform::Listbox>("List");
  auto* table = widget<QTableWidget>("List");
  list.AddRow(QStringList{"third"});
  list.setListIndex(2);
  list.setCellCheck(1, true);
  ASSERT_EQ(table->rowCount(), 3);
  EXPECT_TRUE(table->item(2, 0)->isSelected());
  EXPECT_EQ(table->item(1, 1)->checkState(), Qt::Checked);
  list.RemoveRow(0);
  EXPECT_EQ(table->item(0, 0)->text(), "second");

  model<platform::Control>("Go").setEnabled(false);
  EXPECT_FALSE(widget("Go")->isEnabled());
  model<platform::Control>("Go").setVisible(false);
  EXPECT_FALSE(widget("Go")->isVisibleTo(view.get()));
  window->setWidth(64);
  window->setHeight(96);
  window->setTitle("RENAMED");
  EXPECT_EQ(view->size(), QSize(64, 96));
  EXPECT_EQ(view->minimumSize(), view->maximumSize()) << "only code sizes it";
  EXPECT_EQ(view->surface()->pos(), QPoint(0, 0));
  EXPECT_GE(view->surface()->width(), 480) << "the layout stays whole behind the corner";
  EXPECT_EQ(view->windowTitle(), "RENAMED");
  EXPECT_TRUE(faults.isEmpty());
}

TEST_F(Renderer, TypingRaisesKeyDownBeforeEachKeyReachesTheText) {
  auto* field = widget<QLineEdit>("Field");
  field->setFocus();
  QTest::keyClicks(field, "a!b");
  QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);  // a shortcut is no KeyDown
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(window->take(),
            (QStringList{"KeyDown a on \"\"", "TextChange \"a\"", "KeyDown ! on \"a\"",
                         "KeyDown b on \"a\"", "TextChange \"ab\"", "KeyDown \r on \"ab\""}));
  EXPECT_EQ(field->text(), "ab") << "a key KeyDown swallows never reaches the field";
  EXPECT_EQ(model<platform::TextField>("Field").Text(), "ab");
}

TEST_F(Renderer, LinedTextsKeepTheirCarriageReturnsAndAppendsOnlyAdd) {
  auto& area = model<platform::TextArea>("Area");
  auto* shown = widget<QPlainTextEdit>("Area");
  area.setText("first\rsecond\r\nthird");
  EXPECT_EQ(shown->toPlainText(), "first\nsecond\nthird");
  shown->moveCursor(QTextCursor::End);
  QTest::keyClicks(shown, "!");
  EXPECT_EQ(area.Text(), "first\rsecond\r\nthird!") << "a user's edit keeps the model's line ends";

  QString log;
  for (int line = 0; line < 2000; ++line) log += "line " + QString::number(line) + "\n";
  area.setText(log);
  QSignalSpy changes(shown->document(), &QTextDocument::contentsChange);
  area.setText(log + "one more\n");
  ASSERT_EQ(changes.count(), 1);
  EXPECT_EQ(changes[0][1].toInt(), 0) << "nothing of the old text was removed";
  EXPECT_GE(changes[0][0].toInt(), static_cast<int>(log.size()) - 1);
  area.setText("a\r");
  area.setText("a\r\nb");  // a CR followed by a LF is no append
  EXPECT_EQ(shown->toPlainText(), "a\nb");
}

TEST_F(Renderer, ClicksAndChoicesReachTheirHandlersInOrder) {
  QTest::mouseClick(widget<QPushButton>("Go"), Qt::LeftButton);
  QTest::mouseClick(widget<QCheckBox>("Check"), Qt::LeftButton);
  QMenu* menu = widget<QToolButton>("Menu")->menu();
  ASSERT_EQ(menu->actions().size(), 2);
  menu->actions()[1]->trigger();
  menu->actions()[1]->trigger();  // the entry already chosen runs Action again
  QTest::keyClick(widget<QComboBox>("Pop"), Qt::Key_Down);
  QTest::mouseClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(1).center());
  auto* table = widget<QTableWidget>("List");
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                    table->visualRect(table->model()->index(1, 0)).center());
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                    table->visualRect(table->model()->index(0, 1)).center());
  QTest::mouseClick(widget("Image"), Qt::LeftButton, {}, QPoint(5, 7));
  EXPECT_EQ(window->take(),
            (QStringList{"Go", "Menu 1", "Menu 1", "MouseDown Pop on red", "Change Pop to green",
                         "MouseDown Tabs", "Change Tabs to 1", "MouseUp Tabs", "Change List to 1",
                         "CellClick 1,0", "CellClick 0,1", "MouseDown Image 5,7"}));
  EXPECT_TRUE(model<platform::CheckBox>("Check").Value());
  EXPECT_TRUE(model<platform::Listbox>("List").CellCheck(0));
  EXPECT_EQ(table->item(0, 1)->checkState(), Qt::Checked);
  EXPECT_TRUE(table->item(1, 0)->isSelected());
}

TEST_F(Renderer, ATabThatMouseDownClaimsStaysAsItWas) {
  model<platform::TabPanel>("Tabs").MouseDown = [](int, int) { return true; };
  QTest::mouseClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(1).center());
  EXPECT_EQ(model<platform::TabPanel>("Tabs").Value(), 0);
  EXPECT_EQ(tabBar()->currentIndex(), 0);
}

TEST_F(Renderer, AFixedSizeWindowFloatsAboveOtherApplicationsAndFollowsTheModel) {
  EXPECT_EQ(view->windowType(), Qt::Tool);
  const Qt::WindowFlags flags = view->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::WindowStaysOnTopHint) &&
              flags.testFlag(Qt::WindowCloseButtonHint) &&
              flags.testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
  window->Hide();
  EXPECT_FALSE(view->isVisible());
  window->Show();
  view->close();  // the close box
  EXPECT_TRUE(window->isClosed());
  EXPECT_FALSE(view->isVisible());
  EXPECT_EQ(window->take(), QStringList{"Close List"});
}

TEST_F(Renderer, DropsReachDropObjectUnlessAnEditableFieldTakesThem) {
  const auto dropOn = [this](const char* name, const QString& text) {
    return qttest::dropText(view.get(), qttest::inWindow(widget(name), {5, 5}), text);
  };
  EXPECT_TRUE(qttest::dropText(view.get(), QPoint(480, 440), "on the window"));
  EXPECT_TRUE(dropOn("Image", "on the picture"));
  EXPECT_TRUE(dropOn("Label", "on a label"));
  EXPECT_TRUE(dropOn("Field", "typed"));
  EXPECT_EQ(window->take(), (QStringList{"Drop on the window", "Drop on the picture",
                                         "Drop on a label", "TextChange \"typed\""}));

  TestWindow refusing(desktop);
  WindowView refusingView(refusing, platform::qt::reportingGuard());
  refusing.Show();
  EXPECT_FALSE(qttest::dropText(&refusingView, QPoint(480, 440), "too early"));
  EXPECT_TRUE(refusing.take().isEmpty()) << "no drop before the window accepts them";
}

TEST_F(Renderer, AFaultInAHandlerReachesTheGuardAndTheWindowGoesOn) {
  model<platform::PushButton>("Go").Action = [] { throw std::runtime_error("broken handler"); };
  QTest::mouseClick(widget<QPushButton>("Go"), Qt::LeftButton);
  EXPECT_EQ(faults, QStringList{"broken handler"});
  QTest::mouseClick(widget<QCheckBox>("Check"), Qt::LeftButton);
  EXPECT_TRUE(model<platform::CheckBox>("Check").Value());
}

}  // namespace
