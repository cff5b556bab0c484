// The generic renderer on a window of every kind of control: where the widgets stand,
// how changes from code reach them, and how a user's input reaches the model.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
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
    qttest::settle();
  }
  void TearDown() override {
    view.reset();
    window.reset();
  }

  template <class W>
  W* widget(const char* name) {
    return qobject_cast<W*>(view->widgetFor(QString::fromLatin1(name)));
  }
  // Where a control's widget stands, in the window's coordinates.
  QRect placed(const char* name) {
    QWidget* w = view->widgetFor(QString::fromLatin1(name));
    return QRect(w->mapTo(view.get(), QPoint(0, 0)), w->size());
  }
  template <class C>
  C& model(const char* name) {
    return window->control<C>(QString::fromLatin1(name));
  }

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
      {"Field", {10, 10, 100, 22}},   {"Area", {10, 40, 200, 100}},
      {"Go", {220, 10, 80, 20}},      {"RadioB", {380, 30, 60, 20}},
      {"Tabs", {10, 200, 280, 240}},  {"OnSecond", {30, 260, 80, 22}},
      {"Pages", {20, 240, 200, 150}}, {"OnPage1", {40, 300, 80, 20}},
      {"Image", {300, 280, 62, 62}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(placed(row.name), row.rect);
  }
}

TEST_F(Renderer, ControlsOnATabOrPageShowOnlyWhileItIsShown) {
  view->show();
  QWidget* onSecond = view->widgetFor("OnSecond");
  QWidget* onPage1 = view->widgetFor("OnPage1");
  EXPECT_FALSE(onSecond->isVisibleTo(view.get()));
  EXPECT_FALSE(onPage1->isVisibleTo(view.get()));

  model<platform::TabPanel>("Tabs").setValue(1);
  EXPECT_TRUE(onSecond->isVisibleTo(view.get()));
  EXPECT_EQ(view->widgetFor("Tabs")->findChild<QTabBar*>()->currentIndex(), 1);

  model<platform::TabPanel>("Tabs").setValue(0);
  model<platform::PagePanel>("Pages").setValue(1);
  EXPECT_FALSE(onSecond->isVisibleTo(view.get()));
  EXPECT_TRUE(onPage1->isVisibleTo(view.get()));
}

TEST_F(Renderer, ChangesFromCodeShowAtOnce) {
  model<platform::TextField>("Field").setText("from code");
  EXPECT_EQ(widget<QLineEdit>("Field")->text(), "from code");

  model<platform::PushButton>("Go").setCaption("Stop & go");
  EXPECT_EQ(widget<QPushButton>("Go")->text(), "Stop && go");

  model<platform::BevelButton>("Menu").setCaption("Settings");
  EXPECT_EQ(widget<QToolButton>("Menu")->text(), "Settings");

  model<platform::RadioButton>("RadioB").setValue(true);
  EXPECT_TRUE(widget<QRadioButton>("RadioB")->isChecked());
  EXPECT_FALSE(widget<QRadioButton>("RadioA")->isChecked());

  model<platform::PopupMenu>("Pop").setListIndex(2);
  EXPECT_EQ(widget<QComboBox>("Pop")->currentText(), "blue");

  model<platform::Listbox>("List").AddRow(QStringList{"third"});
  model<platform::Listbox>("List").setListIndex(2);
  auto* table = widget<QTableWidget>("List");
  ASSERT_EQ(table->rowCount(), 3);
  EXPECT_EQ(table->item(2, 0)->text(), "third");
  EXPECT_TRUE(table->item(2, 0)->isSelected());

  model<platform::Control>("Go").setEnabled(false);
  EXPECT_FALSE(view->widgetFor("Go")->isEnabled());
  model<platform::Control>("Go").setVisible(false);
  EXPECT_FALSE(view->widgetFor("Go")->isVisibleTo(view.get()));
  EXPECT_TRUE(faults.isEmpty());
}

TEST_F(Renderer, ListRowsFollowEveryKindOfChange) {
  auto& list = model<platform::Listbox>("List");
  auto* table = widget<QTableWidget>("List");
  list.setCell(0, 0, "renamed");
  list.setCellCheck(1, true);
  EXPECT_EQ(table->item(0, 0)->text(), "renamed");
  EXPECT_EQ(table->item(1, 1)->checkState(), Qt::Checked);
  list.RemoveRow(0);
  ASSERT_EQ(table->rowCount(), 1);
  EXPECT_EQ(table->item(0, 0)->text(), "second");
  list.DeleteAllRows();
  EXPECT_EQ(table->rowCount(), 0);

  auto& pop = model<platform::PopupMenu>("Pop");
  pop.DeleteAllRows();
  pop.AddRow("only");
  auto* combo = widget<QComboBox>("Pop");
  ASSERT_EQ(combo->count(), 1);
  EXPECT_EQ(combo->itemText(0), "only");
}

TEST_F(Renderer, TextsWithCarriageReturnsShowTheirLines) {
  EXPECT_EQ(widget<QLabel>("Label")->text(), "one\ntwo");
  model<platform::TextArea>("Area").setText("first\rsecond\r\nthird");
  auto* area = widget<QPlainTextEdit>("Area");
  EXPECT_EQ(area->document()->blockCount(), 3);
  EXPECT_EQ(area->toPlainText(), "first\nsecond\nthird");
}

TEST_F(Renderer, TypingRaisesKeyDownBeforeEachKeyReachesTheText) {
  view->show();
  auto* field = widget<QLineEdit>("Field");
  field->setFocus();
  window->take();
  QTest::keyClicks(field, "ab");
  EXPECT_EQ(window->take(), (QStringList{"KeyDown a on \"\"", "TextChange \"a\"",
                                         "KeyDown b on \"a\"", "TextChange \"ab\""}));
  EXPECT_EQ(model<platform::TextField>("Field").Text(), "ab");
}

TEST_F(Renderer, AKeyThatKeyDownSwallowsNeverReachesTheField) {
  view->show();
  auto* field = widget<QLineEdit>("Field");
  QTest::keyClicks(field, "a!b");
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(model<platform::TextField>("Field").Text(), "ab");
}

TEST_F(Renderer, KeysReachKeyDownAsTheFrameworkNamesThem) {
  view->show();
  auto* field = widget<QLineEdit>("Field");
  window->take();
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClick(field, Qt::Key_Backspace);
  QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);  // a shortcut is no KeyDown
  EXPECT_EQ(window->take(), (QStringList{"KeyDown \r on \"\"",
                                         QStringLiteral("KeyDown ") + QChar(8) + " on \"\""}));
}

TEST_F(Renderer, AUsersEditOfALinedTextKeepsItsCarriageReturns) {
  auto& area = model<platform::TextArea>("Area");
  area.setText("one\rtwo");
  view->show();
  auto* widgetArea = widget<QPlainTextEdit>("Area");
  widgetArea->moveCursor(QTextCursor::End);
  QTest::keyClicks(widgetArea, "!");
  EXPECT_EQ(area.Text(), "one\rtwo!");
}

TEST_F(Renderer, AnAppendToALongTextOnlyAddsAtTheEnd) {
  auto& area = model<platform::TextArea>("Area");
  QString log;
  for (int line = 0; line < 2000; ++line) log += "line " + QString::number(line) + "\n";
  area.setText(log);
  auto* document = widget<QPlainTextEdit>("Area")->document();
  QSignalSpy changes(document, &QTextDocument::contentsChange);
  area.setText(log + "one more\n");
  ASSERT_EQ(changes.count(), 1);
  // (position, removed, added): nothing of the old text was touched.
  EXPECT_EQ(changes[0][1].toInt(), 0);
  EXPECT_GE(changes[0][0].toInt(), static_cast<int>(log.size()) - 1);
  EXPECT_EQ(widget<QPlainTextEdit>("Area")->toPlainText(), log + "one more\n");

  // A change that is no append replaces the text.
  area.setText("short");
  EXPECT_EQ(widget<QPlainTextEdit>("Area")->toPlainText(), "short");
}

TEST_F(Renderer, ACarriageReturnFollowedByALineFeedIsNoAppend) {
  auto& area = model<platform::TextArea>("Area");
  area.setText("a\r");
  area.setText("a\r\nb");
  EXPECT_EQ(widget<QPlainTextEdit>("Area")->toPlainText(), "a\nb");
}

TEST_F(Renderer, AClickOnAButtonRunsItsAction) {
  view->show();
  window->take();
  QTest::mouseClick(widget<QPushButton>("Go"), Qt::LeftButton);
  EXPECT_EQ(window->take(), QStringList{"Go"});
}

TEST_F(Renderer, RadioButtonsOfOneGroupBoxExcludeEachOther) {
  view->show();
  window->take();
  QTest::mouseClick(widget<QRadioButton>("RadioB"), Qt::LeftButton);
  EXPECT_TRUE(model<platform::RadioButton>("RadioB").Value());
  EXPECT_FALSE(model<platform::RadioButton>("RadioA").Value());
  EXPECT_TRUE(widget<QRadioButton>("RadioB")->isChecked());
  EXPECT_FALSE(widget<QRadioButton>("RadioA")->isChecked());
  // A second click on the button that is on leaves it on and runs nothing.
  QTest::mouseClick(widget<QRadioButton>("RadioB"), Qt::LeftButton);
  EXPECT_TRUE(widget<QRadioButton>("RadioB")->isChecked());
  EXPECT_EQ(window->take(), QStringList{"Action RadioB"});
}

TEST_F(Renderer, ACheckBoxClickTogglesTheModel) {
  view->show();
  QTest::mouseClick(widget<QCheckBox>("Check"), Qt::LeftButton);
  EXPECT_TRUE(model<platform::CheckBox>("Check").Value());
  EXPECT_TRUE(widget<QCheckBox>("Check")->isChecked());
}

TEST_F(Renderer, AChoiceInTheBevelMenuSetsMenuValueAndRunsAction) {
  window->take();
  QMenu* menu = widget<QToolButton>("Menu")->menu();
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 2);
  menu->actions()[1]->trigger();
  EXPECT_EQ(window->take(), QStringList{"Menu 1"});
  // Choosing the entry already chosen runs Action again.
  menu->actions()[1]->trigger();
  EXPECT_EQ(window->take(), QStringList{"Menu 1"});
}

TEST_F(Renderer, APopupChoiceRaisesMouseDownOnTheOldRowThenChange) {
  view->show();
  window->take();
  QTest::keyClick(widget<QComboBox>("Pop"), Qt::Key_Down);
  EXPECT_EQ(window->take(), (QStringList{"MouseDown Pop on red", "Change Pop to green"}));
  EXPECT_EQ(widget<QComboBox>("Pop")->currentIndex(), 1);
}

TEST_F(Renderer, APressOnATabIsMouseDownThenChangeThenMouseUp) {
  view->show();
  window->take();
  auto* bar = view->widgetFor("Tabs")->findChild<QTabBar*>();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
  EXPECT_EQ(window->take(), (QStringList{"MouseDown Tabs", "Change Tabs to 1", "MouseUp Tabs"}));
  EXPECT_EQ(bar->currentIndex(), 1);
}

TEST_F(Renderer, ATabThatMouseDownClaimsStaysAsItWas) {
  view->show();
  model<platform::TabPanel>("Tabs").MouseDown = [](int, int) { return true; };
  auto* bar = view->widgetFor("Tabs")->findChild<QTabBar*>();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
  EXPECT_EQ(model<platform::TabPanel>("Tabs").Value(), 0);
  EXPECT_EQ(bar->currentIndex(), 0);
}

TEST_F(Renderer, AClickOnAListRowSelectsItThenRaisesCellClick) {
  view->show();
  window->take();
  auto* table = widget<QTableWidget>("List");
  const QRect cell = table->visualRect(table->model()->index(1, 0));
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
  EXPECT_EQ(window->take(), (QStringList{"Change List to 1", "CellClick 1,0"}));
  EXPECT_TRUE(table->item(1, 0)->isSelected());
}

TEST_F(Renderer, AClickInTheCheckColumnChecksTheRow) {
  view->show();
  window->take();
  auto* table = widget<QTableWidget>("List");
  const QRect cell = table->visualRect(table->model()->index(0, 1));
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
  EXPECT_TRUE(model<platform::Listbox>("List").CellCheck(0));
  EXPECT_EQ(table->item(0, 1)->checkState(), Qt::Checked);
  EXPECT_EQ(window->take(), QStringList{"CellClick 0,1"});
}

TEST_F(Renderer, APressOnAPictureIsMouseDownAtItsOwnCoordinates) {
  view->show();
  window->take();
  QTest::mouseClick(view->widgetFor("Image"), Qt::LeftButton, {}, QPoint(5, 7));
  EXPECT_EQ(window->take(), QStringList{"MouseDown Image 5,7"});
}

TEST_F(Renderer, TheWindowIsSizedByTheModelAndShowsTheTopLeftOfTheLayout) {
  EXPECT_EQ(view->size(), QSize(500, 460));
  window->setWidth(64);
  window->setHeight(96);
  EXPECT_EQ(view->size(), QSize(64, 96));
  EXPECT_EQ(view->minimumSize(), view->maximumSize());  // only code sizes it
  EXPECT_EQ(view->surface()->pos(), QPoint(0, 0));
  EXPECT_GE(view->surface()->width(), 480);  // the layout stays whole behind the corner
  window->setTitle("RENAMED");
  EXPECT_EQ(view->windowTitle(), "RENAMED");
}

TEST_F(Renderer, AFixedSizeWindowFloatsAboveOtherApplications) {
  EXPECT_TRUE(view->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(view->windowType(), Qt::Tool);
  EXPECT_TRUE(view->windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_TRUE(view->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_FALSE(view->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(Renderer, TheModelsVisibilityShowsAndHidesTheWindow) {
  window->Show();
  EXPECT_TRUE(view->isVisible());
  window->Hide();
  EXPECT_FALSE(view->isVisible());
}

TEST_F(Renderer, TheCloseBoxClosesTheModelWindow) {
  window->Show();
  window->take();
  view->close();
  EXPECT_TRUE(window->isClosed());
  EXPECT_FALSE(view->isVisible());
  EXPECT_EQ(window->take(), QStringList{"Close List"});
}

TEST_F(Renderer, ATextDroppedOnTheBareWindowOrAPictureReachesDropObject) {
  window->Show();
  window->take();
  EXPECT_TRUE(qttest::dropText(view.get(), QPoint(480, 440), "on the window"));
  EXPECT_TRUE(qttest::dropText(view.get(), qttest::inWindow(view->widgetFor("Image"), {10, 10}),
                               "on the picture"));
  EXPECT_TRUE(qttest::dropText(view.get(), qttest::inWindow(view->widgetFor("Label"), {5, 5}),
                               "on a label"));
  EXPECT_EQ(window->take(),
            (QStringList{"Drop on the window", "Drop on the picture", "Drop on a label"}));
}

TEST_F(Renderer, AnEditableFieldTakesATextDropForItself) {
  window->Show();
  window->take();
  EXPECT_TRUE(
      qttest::dropText(view.get(), qttest::inWindow(view->widgetFor("Field"), {5, 5}), "typed"));
  EXPECT_EQ(model<platform::TextField>("Field").Text(), "typed");
  EXPECT_FALSE(window->take().contains("Drop typed"));
}

TEST_F(Renderer, NoDropIsTakenBeforeTheWindowAcceptsThem) {
  TestWindow refusing(desktop);
  WindowView refusingView(refusing, platform::qt::reportingGuard());
  refusing.Show();
  EXPECT_FALSE(qttest::dropText(&refusingView, QPoint(480, 440), "too early"));
  EXPECT_TRUE(refusing.take().isEmpty());
}

TEST_F(Renderer, AFaultInAHandlerReachesTheGuardAndTheWindowGoesOn) {
  view->show();
  model<platform::PushButton>("Go").Action = [] { throw std::runtime_error("broken handler"); };
  QTest::mouseClick(widget<QPushButton>("Go"), Qt::LeftButton);
  EXPECT_EQ(faults, QStringList{"broken handler"});
  QTest::mouseClick(widget<QCheckBox>("Check"), Qt::LeftButton);
  EXPECT_TRUE(model<platform::CheckBox>("Check").Value());
}

}  // namespace
