// The desktop program's start and its log.
//
// Cold start: each iteration starts a fresh process of this program as the child, which
// launches the desk accessory as main() does and reports as soon as its first window is
// on screen; the time is the parent's, from the start of the process to that report,
// and the child's resident memory at that moment is the counter rss_MB. The "xcb"
// variants need an X display (run under xvfb-run); without one they are skipped.
// Targets: under 300 ms, under 80 MB.
//
// Log append: one line added to a log of 1,000 or 100,000 lines, in the model alone and
// with the log's widget on screen; the widget must not make an append dearer as the log
// grows. For scale, the cost of the same widget taking a whole new text of that size.

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QWindow>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "platform/files/folders.h"
#include "platform/qt/program.h"
#include "platform/qt/window_view.h"

extern char** environ;

namespace {

std::string selfPath;

long residentKilobytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
  }
  return 0;
}

// ---- the child: one launch, as main() does it ----------------------------------------------

int runChild(int argc, char** argv, const char* home) {
  platform::SpecialFolder::setHome(QString::fromLocal8Bit(home));
  // The build keeps Resources/ beside the program, one folder up from here.
  platform::SpecialFolder::setResources(platform::SpecialFolder::executableDirectory() +
                                        "/../Resources");
  QApplication application(argc, argv);
  platform::qt::setUpApplication();
  platform::qt::Program program;
  program.start();
  for (;;) {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
      if (window->isExposed()) {
        std::printf("ready %ld\n", residentKilobytes());
        std::fflush(stdout);
        _exit(0);
      }
    }
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
  }
}

// ---- the parent ------------------------------------------------------------------------------

// A home as a user's after some use: the shipped support files, and the marker when the
// introduction has been seen.
struct Home {
  explicit Home(bool introductionSeen) {
    const QString data = dir.path() + "/ApplicationData/VXKSupport";
    QDir().mkpath(data);
    QDir().mkpath(dir.path() + "/Preferences");
    QDir().mkpath(dir.path() + "/Application");
    const QDir support(platform::SpecialFolder::executableDirectory() + "/../support/VXKSupport");
    for (const QString& name : support.entryList(QDir::Files)) {
      QFile::copy(support.filePath(name), data + "/" + name);
    }
    if (introductionSeen) {
      QFile marker(dir.path() + "/Preferences/VXKInstr");
      if (marker.open(QIODevice::WriteOnly)) marker.write("do not show");
    }
  }
  QTemporaryDir dir;
};

// Starts a child and waits for its report; the milliseconds and the resident kilobytes,
// or nothing when it failed.
bool launchOnce(const char* platform, const Home& home, double& milliseconds, long& kilobytes) {
  int out[2];
  if (pipe(out) != 0) return false;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
  posix_spawn_file_actions_addclose(&actions, out[0]);
  std::vector<std::string> env;
  for (char** e = environ; *e; ++e) {
    if (std::strncmp(*e, "QT_QPA_PLATFORM=", 16) != 0) env.emplace_back(*e);
  }
  env.push_back(std::string("QT_QPA_PLATFORM=") + platform);
  std::vector<char*> envp;
  for (std::string& e : env) envp.push_back(e.data());
  envp.push_back(nullptr);
  const std::string homePath = home.dir.path().toStdString();
  std::string child = "--child";
  std::vector<char*> argv = {selfPath.data(), child.data(), const_cast<char*>(homePath.c_str()),
                             nullptr};

  QElapsedTimer clock;
  clock.start();
  pid_t pid = 0;
  const int spawned =
      posix_spawn(&pid, selfPath.c_str(), &actions, nullptr, argv.data(), envp.data());
  posix_spawn_file_actions_destroy(&actions);
  close(out[1]);
  if (spawned != 0) {
    close(out[0]);
    return false;
  }
  char buffer[128] = {};
  const ssize_t got = read(out[0], buffer, sizeof buffer - 1);
  milliseconds = clock.nsecsElapsed() / 1e6;
  close(out[0]);
  int status = 0;
  waitpid(pid, &status, 0);
  return got > 0 && std::sscanf(buffer, "ready %ld", &kilobytes) == 1;
}

void coldStart(benchmark::State& state, const char* platform, bool introductionSeen) {
  if (std::strcmp(platform, "xcb") == 0 && qEnvironmentVariableIsEmpty("DISPLAY")) {
    state.SkipWithError("no X display: run under xvfb-run for this one");
    return;
  }
  const Home home(introductionSeen);
  double memory = 0;
  for (auto _ : state) {
    double milliseconds = 0;
    long kilobytes = 0;
    if (!launchOnce(platform, home, milliseconds, kilobytes)) {
      state.SkipWithError("the program did not start");
      return;
    }
    state.SetIterationTime(milliseconds / 1000.0);
    memory = kilobytes / 1024.0;
  }
  state.counters["rss_MB"] = memory;
}

void BM_ColdStart_Offscreen_MainWindow(benchmark::State& state) {
  coldStart(state, "offscreen", true);
}
void BM_ColdStart_Offscreen_Introduction(benchmark::State& state) {
  coldStart(state, "offscreen", false);
}
void BM_ColdStart_Xcb_MainWindow(benchmark::State& state) { coldStart(state, "xcb", true); }
void BM_ColdStart_Xcb_Introduction(benchmark::State& state) { coldStart(state, "xcb", false); }
BENCHMARK(BM_ColdStart_Offscreen_MainWindow)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(BM_ColdStart_Offscreen_Introduction)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(BM_ColdStart_Xcb_MainWindow)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);
BENCHMARK(BM_ColdStart_Xcb_Introduction)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(10);

// ---- the log ---------------------------------------------------------------------------------

class LogWindow : public platform::Window {
 public:
  explicit LogWindow(platform::Desktop& desktop) : platform::Window(desktop) {
    log = &add<platform::TextArea>({"EditField2",
                                    platform::ControlKind::TextArea,
                                    "",
                                    0,
                                    0,
                                    207,
                                    357,
                                    {},
                                    0,
                                    {},
                                    true,
                                    true,
                                    {{"ReadOnly", true}, {"ScrollbarVertical", true}}});
    setWidth(220);
    setHeight(370);
  }
  platform::TextArea* log = nullptr;
};

QString logOf(int lines) {
  QString text;
  for (int line = 0; line < lines; ++line) text += "Entered: " + QString::number(line) + "*2\n";
  return text;
}

void BM_LogAppend_Model(benchmark::State& state) {
  platform::RecordingDesktop desktop;
  LogWindow window(desktop);
  window.log->setText(logOf(static_cast<int>(state.range(0))));
  // As the program logs: an append in place.
  for (auto _ : state) window.log->AppendText("Output:42 \n");
}

void BM_LogAppend_Rendered(benchmark::State& state) {
  platform::RecordingDesktop desktop;
  LogWindow window(desktop);
  window.log->setText(logOf(static_cast<int>(state.range(0))));
  platform::qt::WindowView view(window, platform::qt::reportingGuard());
  QCoreApplication::processEvents();
  for (auto _ : state) window.log->AppendText("Output:42 \n");
}

// What an append would cost if the widget took the whole text anew each time.
void BM_LogReplaced_Rendered(benchmark::State& state) {
  platform::RecordingDesktop desktop;
  LogWindow window(desktop);
  const QString texts[2] = {logOf(static_cast<int>(state.range(0))),
                            "-" + logOf(static_cast<int>(state.range(0)))};
  window.log->setText(texts[0]);
  platform::qt::WindowView view(window, platform::qt::reportingGuard());
  QCoreApplication::processEvents();
  int next = 1;
  for (auto _ : state) {
    window.log->setText(texts[next]);
    next = 1 - next;
  }
}

BENCHMARK(BM_LogAppend_Model)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LogAppend_Rendered)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_LogReplaced_Rendered)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  if (argc >= 3 && std::strcmp(argv[1], "--child") == 0) return runChild(1, argv, argv[2]);
  selfPath = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget().toStdString();
  // The log benchmarks render in this process, offscreen; the launches choose for themselves.
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int qtArgc = 1;
  QApplication application(qtArgc, argv);
  if (platform.isEmpty()) {
    qunsetenv("QT_QPA_PLATFORM");
  } else {
    qputenv("QT_QPA_PLATFORM", platform);
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
