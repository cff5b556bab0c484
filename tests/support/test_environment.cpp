// Linked into every test program: the environment each test expects, set before main
// runs, so a test program behaves the same under CTest and when started by hand.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QtGlobal>

namespace {

const bool kEnvironmentReady = [] {
  if (qEnvironmentVariableIsEmpty("ABACON_SOURCE_DIR")) {
    qputenv("ABACON_SOURCE_DIR", QByteArray(ABACON_TEST_SOURCE_DIR));
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
    const QString dir = QDir::tempPath() + "/abacon-test-runtime";
    QDir().mkpath(dir);
    QFile::setPermissions(dir, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", dir.toLocal8Bit());
  }
  return true;
}();

}  // namespace
