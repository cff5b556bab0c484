// dragsource: another application to drag text from, for the check of the real window
// under Xvfb. A press in its window starts a drag of the text given on the command line;
// when the drag is over it prints how it ended and, a moment later, what the clipboard
// then holds, and quits.
//
//   dragsource TEXT

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QMimeData>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace {

class Source : public QWidget {
 public:
  explicit Source(QString text) : text_(std::move(text)) {
    setWindowTitle(QStringLiteral("dragsource"));
    setFixedSize(200, 100);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override {
    auto* drag = new QDrag(this);
    auto* data = new QMimeData;
    data->setText(text_);
    drag->setMimeData(data);
    const Qt::DropAction action = drag->exec(Qt::CopyAction);
    std::printf("drop action: %s\n", action == Qt::CopyAction ? "copy" : "none");
    std::fflush(stdout);
    // The answer reaches the clipboard from the event loop of the window that took it.
    QTimer::singleShot(1500, [] {
      std::printf("clipboard: \"%s\"\n", qPrintable(QGuiApplication::clipboard()->text()));
      std::fflush(stdout);
      QApplication::quit();
    });
  }

 private:
  QString text_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: dragsource TEXT\n");
    return 2;
  }
  Source source(QString::fromLocal8Bit(argv[1]));
  source.move(600, 100);
  source.show();
  return application.exec();
}
