// abacon-snapshots: pictures of the real windows, rendered offscreen.
//
//   abacon-snapshots --docs DIR          every mode of both windows as DIR/*.png
//   abacon-snapshots --resources DIR     DIR/fullwindow1.jpg and DIR/fullwindow2.jpg
//
// The introduction window explores a picture of the full main window by regions of its
// own; --resources lays the real main window into the picture so that those regions
// fall on the selector, the target, the tabs and the buttons they explain. It finds the
// scale and offset by asking the introduction's own click handler, and prints how each
// thing fits. The pictures read Resources/target.gif and target2.gif from DIR, so make
// those first (tools/resources/generate does it all in order).

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTabBar>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <optional>

#include "app/app.h"
#include "app/window1.h"
#include "guidance/texts.h"
#include "guidance/window2.h"
#include "platform/desktop/recording_desktop.h"
#include "platform/files/folders.h"
#include "platform/qt/program.h"

namespace {

using guidance::TextKey;
using platform::qt::Program;
using platform::qt::WindowView;

// The size of the introduction's picture well.
constexpr int kPictureWidth = 600;
constexpr int kPictureHeight = 493;

void settle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

bool save(const QImage& image, const QString& file) {
  if (!image.save(file)) {
    std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    return false;
  }
  std::printf("wrote %s (%dx%d)\n", qPrintable(file), image.width(), image.height());
  return true;
}

// A fresh home with the shipped support files, so the windows show real lists.
void prepareHome(const QTemporaryDir& home) {
  platform::SpecialFolder::setHome(home.path());
  const QDir support(platform::SpecialFolder::executableDirectory() + "/support/VXKSupport");
  const QString target = home.path() + "/ApplicationData/VXKSupport";
  QDir().mkpath(target);
  for (const QString& name : support.entryList(QDir::Files)) {
    QFile::copy(support.filePath(name), target + "/" + name);
  }
  QDir().mkpath(home.path() + "/Preferences");
  QDir().mkpath(home.path() + "/Application");
}

WindowView& viewOf(Program& program, platform::Window& window) {
  program.session().follow();
  return *program.session().view(window);
}

QImage shot(Program& program, platform::Window& window) {
  settle();
  return viewOf(program, window).grab().toImage();
}

int menuRow(const platform::BevelButton& selector, const QString& entry) {
  for (int row = 0; row < selector.ListCount(); ++row) {
    if (selector.List(row) == entry) return row;
  }
  return -1;
}

// ---- the modes, for the README -----------------------------------------------------------

bool renderModes(const QString& dir) {
  QTemporaryDir home;
  prepareHome(home);
  Program program;
  program.start();
  app::App& app = program.app();
  bool ok = true;

  app::Window2* intro = app.window2();
  if (!intro) {
    std::fprintf(stderr, "the introduction window did not open\n");
    return false;
  }
  ok &= save(shot(program, *intro), dir + "/introduction.png");
  intro->PushButton2->userClick();  // "Continue"

  app::Window1* main = app.window1();
  if (!main) {
    std::fprintf(stderr, "the main window did not open\n");
    return false;
  }
  ok &= save(shot(program, *main), dir + "/small.png");

  const int settings = menuRow(*main->BevelButton1, "Settings");
  if (settings >= 0) {
    main->BevelButton1->userChoose(settings);
    ok &= save(shot(program, *main), dir + "/settings.png");
    main->PushButton2->userClick();  // "Back"
  }

  main->ImageWell1->userClick();  // the target opens the large window
  const QStringList tabs = main->TabPanel2->Tabs();
  for (int tab = 0; tab < tabs.size(); ++tab) {
    main->TabPanel2->userChoose(tab);
    ok &= save(shot(program, *main), dir + "/large-" + tabs[tab].toLower() + ".png");
  }
  app.quit();
  return ok;
}

// ---- the pictures of the introduction --------------------------------------------------------

// A thing the picture must show where the introduction's regions expect it, and what a
// shift-click on it must tell.
struct Thing {
  QString what;
  QRect rect;  // in window coordinates
  TextKey text;
};

struct Fit {
  double scale = 0;
  int dx = 0, dy = 0;
  int hits = 0;
  int margin = 0;  // how far each hit may move and still hit, summed
};

class RegionProbe {
 public:
  RegionProbe() : app_(desktop_), intro_(app_) {}

  // The text a click at (x, y) of the picture shows, with or without shift.
  QString textAt(int x, int y, bool shift) {
    desktop_.setShiftKey(shift);
    intro_.StaticText1->setText(QString());
    intro_.ImageWell1->userPress(x, y);
    return intro_.StaticText1->Text();
  }

 private:
  platform::RecordingDesktop desktop_;
  app::App app_;
  app::Window2 intro_;
};

QPoint mapped(const Fit& fit, QPoint at) {
  return QPoint(qRound(at.x() * fit.scale) + fit.dx, qRound(at.y() * fit.scale) + fit.dy);
}

bool hits(RegionProbe& probe, const Fit& fit, const Thing& thing, QPoint at) {
  const QPoint p = mapped(fit, at);
  return probe.textAt(p.x(), p.y(), true) == guidance::text(thing.text);
}

// How many pixels the centre of a thing that hits may move each way and still hit.
int marginOf(RegionProbe& probe, const Fit& fit, const Thing& thing) {
  const QPoint c = thing.rect.center();
  int margin = 0;
  while (margin < 8 && hits(probe, fit, thing, c + QPoint(margin + 1, 0)) &&
         hits(probe, fit, thing, c - QPoint(margin + 1, 0)) &&
         hits(probe, fit, thing, c + QPoint(0, margin + 1)) &&
         hits(probe, fit, thing, c - QPoint(0, margin + 1))) {
    ++margin;
  }
  return margin;
}

Fit bestFit(RegionProbe& probe, const std::vector<Thing>& things) {
  Fit best;
  // The window's left and top edges stay in the picture; its right and bottom give way.
  for (int s = 700; s <= 860; s += 4) {
    for (int dx = 0; dx <= 24; dx += 1) {
      for (int dy = 0; dy <= 30; dy += 1) {
        Fit fit{s / 1000.0, dx, dy, 0, 0};
        for (const Thing& thing : things) {
          if (!hits(probe, fit, thing, thing.rect.center())) continue;
          ++fit.hits;
          fit.margin += marginOf(probe, fit, thing);
        }
        if (fit.hits > best.hits || (fit.hits == best.hits && fit.margin > best.margin)) best = fit;
      }
    }
  }
  return best;
}

QRect windowRect(const WindowView& view, const QWidget* widget, QRect local) {
  return QRect(widget->mapTo(&view, local.topLeft()), local.size());
}

std::vector<Thing> thingsOf(const WindowView& view) {
  std::vector<Thing> things;
  auto control = [&](const char* name, const char* what, TextKey text) {
    if (QWidget* widget = view.widgetFor(QString::fromLatin1(name))) {
      things.push_back({QString::fromLatin1(what), windowRect(view, widget, widget->rect()), text});
    }
  };
  control("BevelButton1", "selector", TextKey::introAction);
  control("ImageWell1", "target", TextKey::introTarget);
  control("PushButton4", "mail button", TextKey::introEmail);
  control("PushButton2", "Back", TextKey::introBack);
  control("PushButton43", "More Instructions", TextKey::introDirections);
  control("PushButton48", "Reset", TextKey::introReset);
  const TextKey tabTexts[] = {
      TextKey::introTabSettings,   TextKey::introTabHelp,    TextKey::introTabLog,
      TextKey::introTabDirections, TextKey::introTabWelcome, TextKey::introTabCalculate,
      TextKey::introTabSolve,      TextKey::introTabConvert, TextKey::introTabSearch};
  int next = 0;
  for (const char* panel : {"TabPanel1", "TabPanel2"}) {
    QWidget* widget = view.widgetFor(QString::fromLatin1(panel));
    const QTabBar* bar = widget ? widget->findChild<QTabBar*>() : nullptr;
    for (int tab = 0; bar && tab < bar->count() && next < 9; ++tab, ++next) {
      things.push_back(
          {"tab " + bar->tabText(tab), windowRect(view, bar, bar->tabRect(tab)), tabTexts[next]});
    }
  }
  return things;
}

QImage compose(const QImage& window, const Fit& fit) {
  QImage picture(kPictureWidth, kPictureHeight, QImage::Format_RGB32);
  picture.fill(QColor(0xd8, 0xd8, 0xd8));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QRect placed(fit.dx, fit.dy, qRound(window.width() * fit.scale),
                     qRound(window.height() * fit.scale));
  // Above the window, where the picture has room, a title bar like the desktop's.
  if (fit.dy > 0) {
    const QRect title(placed.left(), 0, placed.width(), fit.dy);
    painter.fillRect(title, QColor(0x9a, 0xa4, 0xb0));
    QFont font = painter.font();
    font.setPixelSize(std::max(6, fit.dy - 3));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(title, Qt::AlignCenter, QStringLiteral("ABACON"));
  }
  painter.drawImage(placed, window);
  return picture;
}

bool renderPictures(const QString& dir) {
  platform::SpecialFolder::setResources(dir);
  QTemporaryDir home;
  prepareHome(home);
  // The introduction is passed by: the pictures are of the main window.
  QFile marker(home.path() + "/Preferences/VXKInstr");
  if (marker.open(QIODevice::WriteOnly)) marker.write("do not show");
  marker.close();

  Program program;
  program.start();
  app::Window1* main = program.app().window1();
  if (!main) {
    std::fprintf(stderr, "the main window did not open\n");
    return false;
  }
  // The full window as the introduction explains it: Directions on the left, Welcome on
  // the right, the buttons of both in view.
  main->ImageWell1->userClick();
  main->TabPanel1->userChoose(3);
  main->TabPanel2->userChoose(0);
  if (main->Width() != 800 || main->Height() != 600) {
    main->setWidth(800);
    main->setHeight(600);
  }
  WindowView& view = viewOf(program, *main);
  settle();

  RegionProbe probe;
  const std::vector<Thing> things = thingsOf(view);
  const Fit fit = bestFit(probe, things);
  std::printf("scale %.3f, offset (%d, %d): %d of %zu things fall in their regions\n", fit.scale,
              fit.dx, fit.dy, fit.hits, things.size());
  for (const Thing& thing : things) {
    const QPoint c = mapped(fit, thing.rect.center());
    if (hits(probe, fit, thing, thing.rect.center())) {
      std::printf("  %-22s centre at (%3d, %3d) in the picture: fits, %d px to spare%s\n",
                  qPrintable(thing.what), c.x(), c.y(), marginOf(probe, fit, thing),
                  marginOf(probe, fit, thing) == 8 ? " or more" : "");
    } else {
      std::printf("  %-22s centre at (%3d, %3d) in the picture: MISSES its region\n",
                  qPrintable(thing.what), c.x(), c.y());
    }
  }
  const QPoint target = mapped(fit, things.size() > 1 ? things[1].rect.center() : QPoint());
  const QString toggled = probe.textAt(target.x(), target.y(), false);
  std::printf("  a plain click on the target %s the pictures\n",
              toggled == guidance::text(TextKey::introHintA) ? "toggles" : "does NOT toggle");

  bool ok = save(compose(shot(program, *main), fit), dir + "/fullwindow2.jpg");
  // The second picture is the same window with its target lit, as after an answer.
  main->ImageWell1->setImage(QStringLiteral("target2"));
  ok &= save(compose(shot(program, *main), fit), dir + "/fullwindow1.jpg");
  program.app().quit();
  return ok && fit.hits == static_cast<int>(things.size());
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  platform::qt::setUpApplication();
  const QStringList args = QApplication::arguments();
  if (args.size() != 3 || (args[1] != "--docs" && args[1] != "--resources")) {
    std::fprintf(stderr, "usage: abacon-snapshots --docs DIR | --resources DIR\n");
    return 2;
  }
  const QString dir = QDir(args[2]).absolutePath();
  QDir().mkpath(dir);
  const bool ok = args[1] == "--docs" ? renderModes(dir) : renderPictures(dir);
  return ok ? 0 : 1;
}
