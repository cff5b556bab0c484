#include "qt_environment.h"

#include <gtest/gtest.h>

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWindow>
#include <memory>

#include "platform/qt/program.h"

namespace qttest {

namespace {

class QtEnvironment : public ::testing::Environment {
 public:
  // The platform (offscreen) and the runtime folder come from the environment every
  // test program shares.
  void SetUp() override {
    application_ = std::make_unique<QApplication>(argc_, argv_);
    platform::qt::setUpApplication();
  }
  void TearDown() override { application_.reset(); }

 private:
  int argc_ = 1;
  char name_[8] = "test_qt";
  char* argv_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] ::testing::Environment* const environment =
    ::testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace

bool dropText(QWidget* window, QPoint at, const QString& text) {
  QWindow* handle = window->windowHandle();
  if (!handle) return false;
  QMimeData data;
  data.setText(text);
  const QPointF point(at);
  QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(handle, &enter);
  if (!enter.isAccepted()) return false;
  QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(handle, &move);
  if (!move.isAccepted()) return false;
  QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(handle, &drop);
  settle();
  return drop.isAccepted();
}

}  // namespace qttest
