// The desk accessory itself on the real widgets: launch, drops, the target, the
// selector, the settings, closing, and faults.

#include "platform/qt/program.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <memory>

#include "app/window1.h"
#include "guidance/window2.h"
#include "platform/files/special_folder.h"
#include "platform/qt/pictures.h"
#include "qt_environment.h"

namespace {

using platform::qt::Program;
using platform::qt::WindowView;

QString sourceDir() { return QString::fromLocal8Bit(qgetenv("ABACON_SOURCE_DIR")); }

class ProgramTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(home.isValid());
    platform::SpecialFolder::setHome(home.path());
    platform::SpecialFolder::setResources(sourceDir() + "/Resources");
    const QDir support(sourceDir() + "/support/VXKSupport");
    QDir().mkpath(home.path() + "/ApplicationData/VXKSupport");
    QDir().mkpath(home.path() + "/Preferences");
    QDir().mkpath(home.path() + "/Application");
    for (const QString& name : support.entryList(QDir::Files)) {
      QFile::copy(support.filePath(name), home.path() + "/ApplicationData/VXKSupport/" + name);
    }
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
    program.reset();
    platform::SpecialFolder::clearOverrides();
  }

  void markIntroductionSeen() {
    QFile marker(home.path() + "/Preferences/VXKInstr");
    ASSERT_TRUE(marker.open(QIODevice::WriteOnly));
    marker.write("do not show");
  }

  void launch() {
    program = std::make_unique<Program>();
    program->start();
    qttest::settle();
  }

  app::Window1& main() { return *program->app().window1(); }
  WindowView& view(platform::Window& window) { return *program->session().view(window); }
  WindowView& mainView() { return view(main()); }
  QWidget* widget(const char* name) { return mainView().widgetFor(QString::fromLatin1(name)); }

  void clickTarget() {
    QTest::mouseClick(widget("ImageWell1"), Qt::LeftButton, {}, QPoint(31, 31));
    qttest::settle();
  }

  QTemporaryDir home;
  QTimer dismisser;
  QStringList messages;
  std::unique_ptr<Program> program;
};

TEST_F(ProgramTest, AFirstLaunchShowsTheIntroductionAndContinueOpensTheMainWindow) {
  launch();
  app::Window2* intro = program->app().window2();
  ASSERT_NE(intro, nullptr);
  EXPECT_EQ(program->app().window1(), nullptr);
  EXPECT_TRUE(view(*intro).isVisible());
  EXPECT_EQ(view(*intro).windowTitle(), "Abacon Intro.");

  QTest::mouseClick(view(*intro).widgetFor("PushButton2"), Qt::LeftButton);  // "Continue"
  ASSERT_NE(program->app().window1(), nullptr);
  EXPECT_TRUE(mainView().isVisible());
  EXPECT_FALSE(view(*intro).isVisible());
  EXPECT_FALSE(program->session().ended());
}

TEST_F(ProgramTest, AMarkedLaunchOpensTheSmallWindowWithSelectorAndTargetInView) {
  markIntroductionSeen();
  launch();
  ASSERT_NE(program->app().window1(), nullptr);
  EXPECT_TRUE(mainView().isVisible());
  EXPECT_EQ(mainView().size(), QSize(64, 96));
  EXPECT_EQ(mainView().windowTitle(), "ABACON");
  EXPECT_TRUE(mainView().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  const QRect shown(QPoint(0, 0), mainView().size());
  for (const char* name : {"BevelButton1", "ImageWell1"}) {
    SCOPED_TRACE(name);
    QWidget* w = widget(name);
    EXPECT_TRUE(w->isVisible());
    EXPECT_TRUE(shown.contains(QRect(w->mapTo(&mainView(), QPoint(0, 0)), w->size())));
  }
}

TEST_F(ProgramTest, ATextDroppedOnTheWindowAnswersThroughTheClipboardAndBlinks) {
  markIntroductionSeen();
  launch();
  main().Timer1->setPeriod(5);
  QGuiApplication::clipboard()->setText("before");
  ASSERT_TRUE(
      qttest::dropText(&mainView(), qttest::inWindow(widget("ImageWell1"), {31, 31}), "2+3"));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "5 ");
  EXPECT_EQ(main().ImageWell1->Image(), "target2");
  const QImage lit = platform::qt::loadPicture(sourceDir() + "/Resources/target2.gif").toImage();
  EXPECT_EQ(qobject_cast<QLabel*>(widget("ImageWell1"))->pixmap().toImage(), lit);

  // The blink ends when Timer1 fires.
  QElapsedTimer clock;
  clock.start();
  while (main().ImageWell1->Image() != "target" && clock.elapsed() < 5000) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
  }
  EXPECT_EQ(main().ImageWell1->Image(), "target");
}

TEST_F(ProgramTest, APressOnTheTargetOpensTheLargeWindowAndASecondClosesIt) {
  markIntroductionSeen();
  launch();
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(800, 600));
  EXPECT_EQ(main().wincon, 1);
  EXPECT_TRUE(widget("TabPanel2")->isVisible());
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(64, 96));
  EXPECT_EQ(main().wincon, 0);
}

TEST_F(ProgramTest, AChangeFromCodeShowsInItsFieldAndTypingReachesTheModel) {
  markIntroductionSeen();
  launch();
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
  markIntroductionSeen();
  launch();
  QMenu* menu = qobject_cast<QToolButton*>(widget("BevelButton1"))->menu();
  ASSERT_NE(menu, nullptr);
  QAction* settings = nullptr;
  for (QAction* action : menu->actions()) {
    if (action->text() == "Settings") settings = action;
  }
  ASSERT_NE(settings, nullptr);
  settings->trigger();
  EXPECT_EQ(main().BevelButton1->Caption(), "Settings");
  EXPECT_EQ(mainView().size(), QSize(350, 600));
  EXPECT_TRUE(main().EditField2->Text().contains("--Settings Window Mode"));
}

TEST_F(ProgramTest, RadioButtonsOfOneGroupBoxExcludeEachOther) {
  markIntroductionSeen();
  launch();
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
  markIntroductionSeen();
  const QString memory = home.path() + "/Application/VXmemory.txt";
  QFile saved(memory);
  ASSERT_TRUE(saved.open(QIODevice::WriteOnly));
  saved.write("a*2\n");
  saved.close();
  launch();
  main().Listbox3->AddRow(QStringList{"b+1"});
  mainView().close();
  EXPECT_TRUE(main().isClosed());
  ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(saved.readAll()).split('\n', Qt::SkipEmptyParts),
            (QStringList{"a*2", "b+1"}));
  EXPECT_TRUE(program->session().ended());
}

TEST_F(ProgramTest, AFaultInAHandlerIsReportedAndTheProgramGoesOn) {
  markIntroductionSeen();
  launch();
  clickTarget();
  main().TabPanel1->setValue(0);
  main().PushButton42->Action = [] { throw std::runtime_error("disk on fire"); };
  QTest::mouseClick(qobject_cast<QWidget*>(widget("PushButton42")), Qt::LeftButton);
  ASSERT_EQ(messages.size(), 1);
  EXPECT_TRUE(messages[0].contains("disk on fire"));
  EXPECT_TRUE(main().EditField2->Text().contains("disk on fire"));
  clickTarget();
  EXPECT_EQ(mainView().size(), QSize(64, 96));
}

}  // namespace
