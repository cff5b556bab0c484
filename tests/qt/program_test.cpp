// The desk accessory itself on the real widgets: launch, drops, the target, the
// selector, the settings, closing, and faults.

#include "platform/qt/program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <memory>

#include "guidance/window2.h"
#include "platform/qt/pictures.h"
#include "qt_environment.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

using platform::qt::Program;
using platform::qt::WindowView;

class ProgramTest : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    installSupportFiles();
    QDir().mkpath(home.path() + "/Application");
    // A modal message box would wait for a user: note its text and dismiss it.
    dismisser.setInterval(20);
    QObject::connect(&dismisser, &QTimer::timeout, [this] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        messages.append(box->text());
        box->close();
      }
    });
    dismisser.start();
  }
  void TearDown() override {
    gui.reset();
    AppFixture::TearDown();
  }

  // Past the introduction unless `introduction` asks for it.
  void start(bool introduction = false) {
    if (!introduction) writeFile("Preferences/VXKInstr", "do not show");
    gui = std::make_unique<Program>();
    gui->start();
    qttest::settle();
  }
  app::Window1& main() { return *gui->app().window1(); }
  WindowView& view(platform::Window& window) { return *gui->session().view(window); }
  WindowView& mainView() { return view(main()); }
  QWidget* widget(const char* name) { return mainView().widgetFor(QString::fromLatin1(name)); }
  void clickTarget() {
    QTest::mouseClick(widget("ImageWell1"), Qt::LeftButton, {}, QPoint(31, 31));
    qttest::settle();
  }

  QTimer dismisser;
  QStringList messages;
  std::unique_ptr<Program> gui;
};

TEST_F(ProgramTest, AFirstLaunchShowsTheIntroductionAndContinueOpensTheMainWindow) {
  start(true);
  app::Window2* intro = gui->app().window2();
  ASSERT_NE(intro, nullptr);
  EXPECT_EQ(gui->app().window1(), nullptr);
  EXPECT_TRUE(view(*intro).isVisible());
  QTest::mouseClick(view(*intro).widgetFor("PushButton2"), Qt::LeftButton);  // "Continue"
  ASSERT_NE(gui->app().window1(), nullptr);
  EXPECT_TRUE(mainView().isVisible());
  EXPECT_FALSE(view(*intro).isVisible());
  EXPECT_FALSE(gui->session().ended());
}

TEST_F(ProgramTest, TheSmallWindowShowsSelectorAndTargetAndAPressTogglesTheLargeOne) {
  start();
  EXPECT_EQ(mainView().size(), QSize(64, 96));
  EXPECT_EQ(mainView().windowTitle(), "ABACON");
  EXPECT_TRUE(mainView().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  const QRect shown(QPoint(0, 0), mainView().size());
  for (const char* name : {"BevelButton1", "ImageWell1"}) {
    QWidget* w = widget(name);
    const QRect placed(w->mapTo(&mainView(), QPoint(0, 0)), w->size());
    EXPECT_TRUE(w->isVisible() && shown.contains(placed)) << name;
  }
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(800, 600));
  EXPECT_EQ(main().wincon, 1);
  EXPECT_TRUE(widget("TabPanel2")->isVisible());
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(64, 96));
  EXPECT_EQ(main().wincon, 0);
}

TEST_F(ProgramTest, ATextDroppedOnTheWindowAnswersThroughTheClipboardAndBlinks) {
  start();
  main().Timer1->setPeriod(5);
  QGuiApplication::clipboard()->setText("before");
  const QPoint target = qttest::inWindow(widget("ImageWell1"), {31, 31});
  ASSERT_TRUE(qttest::dropText(&mainView(), target, "2+3"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "5 ");
  EXPECT_EQ(main().ImageWell1->Image(), "target2");
  const QImage lit =
      platform::qt::loadPicture(testsupport::sourceDir() + "/Resources/target2.gif").toImage();
  EXPECT_EQ(qobject_cast<QLabel*>(widget("ImageWell1"))->pixmap().toImage(), lit);
  // The blink ends when Timer1 fires.
  QElapsedTimer clock;
  clock.start();
  while (main().ImageWell1->Image() != "target" && clock.elapsed() < 5000) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
  }
  EXPECT_EQ(main().ImageWell1->Image(), "target");
}

TEST_F(ProgramTest, AChangeFromCodeShowsInItsFieldAndTypingReachesTheModel) {
  start();
  clickTarget();
  main().EditField4->setText("1+2");
  EXPECT_EQ(qobject_cast<QPlainTextEdit*>(widget("EditField4"))->toPlainText(), "1+2");
  main().TabPanel2->setValue(2);  // "Solve"
  auto* a = qobject_cast<QLineEdit*>(widget("EditA"));
  ASSERT_TRUE(a->isVisible());
  QTest::keyClicks(a, "12");
  EXPECT_EQ(main().EditA->Text(), "12");
}

TEST_F(ProgramTest, AMenuChoiceOnTheSelectorRunsBevelact) {
  start();
  QMenu* menu = qobject_cast<QToolButton*>(widget("BevelButton1"))->menu();
  ASSERT_NE(menu, nullptr);
  const QList<QAction*> actions = menu->actions();
  const auto settings = std::find_if(actions.begin(), actions.end(),
                                     [](QAction* a) { return a->text() == "Settings"; });
  ASSERT_NE(settings, actions.end());
  (*settings)->trigger();
  EXPECT_EQ(main().BevelButton1->Caption(), "Settings");
  EXPECT_EQ(mainView().size(), QSize(350, 600));
  EXPECT_TRUE(main().EditField2->Text().contains("--Settings Window Mode"));
}

TEST_F(ProgramTest, RadioButtonsOfOneGroupBoxExcludeEachOther) {
  start();
  clickTarget();
  main().TabPanel1->setValue(0);
  auto* scientific = qobject_cast<QRadioButton*>(widget("scibutton1"));
  auto* normal = qobject_cast<QRadioButton*>(widget("normbutton"));
  ASSERT_TRUE(normal->isChecked());
  QTest::mouseClick(scientific, Qt::LeftButton);
  EXPECT_TRUE(main().scibutton1->Value());
  EXPECT_FALSE(main().normbutton->Value());
  EXPECT_TRUE(scientific->isChecked());
  EXPECT_FALSE(normal->isChecked());
}

TEST_F(ProgramTest, ClosingTheMainWindowSavesTheFormulaMemoryAndEndsTheRun) {
  writeFile("Application/VXmemory.txt", "a*2\n");
  start();
  main().Listbox3->AddRow(QStringList{"b+1"});
  mainView().close();
  EXPECT_TRUE(main().isClosed());
  EXPECT_EQ(readFile("Application/VXmemory.txt").split('\n', Qt::SkipEmptyParts),
            (QStringList{"a*2", "b+1"}));
  EXPECT_TRUE(gui->session().ended());
}

TEST_F(ProgramTest, AFaultInAHandlerIsReportedAndTheProgramGoesOn) {
  start();
  clickTarget();
  main().TabPanel1->setValue(0);
  main().PushButton42->Action = [] { throw std::runtime_error("disk on fire"); };
  QTest::mouseClick(widget("PushButton42"), Qt::LeftButton);
  ASSERT_EQ(messages.size(), 1);
  EXPECT_TRUE(messages[0].contains("disk on fire"));
  EXPECT_TRUE(main().EditField2->Text().contains("disk on fire"));
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(64, 96));
}

}  // namespace
