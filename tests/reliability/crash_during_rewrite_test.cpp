// A crash while the program rewrites one of its files must leave the old file or the
// new one, never a mixture or a stump. The rewrite runs in a child process (a fork of
// the launched program) that is killed with SIGKILL, either while it is seen writing
// or at random moments, and the file is then compared byte for byte.

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <random>

#include "reliability_support.h"

namespace {

using reliability::ReliabilityFixture;

struct KillOutcome {
  QByteArray content;
  bool finished = false;       // the child was done before the kill came
  bool caughtWriting = false;  // it held an unfinished new text open when killed
  QStringList strayFiles;      // anything in the folder beside the file itself
};

QByteArray readBytes(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
}

void writeBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
  ASSERT_EQ(file.write(bytes), bytes.size());
}

// Bytes of the child's open files in `folder` other than `file`: the unfinished text of
// a rewrite (unnamed until it is committed, "folder/#123 (deleted)" in /proc). -1 when
// it holds none.
qint64 unfinishedBytes(pid_t child, const QString& folder, const QString& file) {
  const QString fds = QStringLiteral("/proc/%1/fd").arg(child);
  const QByteArray folderPrefix = (folder + "/").toLocal8Bit();
  const QByteArray finalPath = file.toLocal8Bit();
  qint64 found = -1;
  for (const QString& fd : QDir(fds).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
    const QByteArray link = (fds + "/" + fd).toLocal8Bit();
    char target[4096];
    const ssize_t length = readlink(link.constData(), target, sizeof target - 1);
    if (length <= 0) continue;
    const QByteArray path(target, length);
    if (!path.startsWith(folderPrefix) || path == finalPath) continue;
    struct stat info {};
    if (stat(link.constData(), &info) == 0) found = std::max<qint64>(found, info.st_size);
  }
  return found;
}

// Runs `rewrite` in a fork of this process and kills the child with SIGKILL as soon as
// `killNow` holds; a child that finishes first is left alone.
KillOutcome rewriteAndKill(const std::function<void()>& rewrite, const QString& file,
                           const std::function<bool(pid_t)>& killNow) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) {
    try {
      rewrite();
    } catch (...) {
      _exit(3);
    }
    _exit(0);
  }
  KillOutcome outcome;
  if (child < 0) {
    ADD_FAILURE() << "fork failed";
    return outcome;
  }
  const QString folder = QFileInfo(file).path();
  int status = 0;
  for (;;) {
    if (waitpid(child, &status, WNOHANG) == child) {
      outcome.finished = true;
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the rewrite failed";
      break;
    }
    if (killNow(child)) {
      outcome.caughtWriting = unfinishedBytes(child, folder, file) >= 0;
      kill(child, SIGKILL);
      waitpid(child, &status, 0);
      break;
    }
  }
  outcome.content = readBytes(file);
  for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System)) {
    if (name != QFileInfo(file).fileName()) outcome.strayFiles << name;
  }
  return outcome;
}

// A rewrite killed after `delay`.
KillOutcome rewriteKilledAfter(const std::function<void()>& rewrite, const QString& file,
                               std::chrono::microseconds delay) {
  QElapsedTimer clock;
  clock.start();
  return rewriteAndKill(rewrite, file, [&](pid_t) { return clock.nsecsElapsed() / 1000 >= delay.count(); });
}

void removeStrays(const QString& folder, const QStringList& strays) {
  for (const QString& name : strays) QFile::remove(folder + "/" + name);
}

class CrashDuringRewrite : public ReliabilityFixture {
 protected:
  QString memoryFile() { return home.path() + "/Application/VXmemory.txt"; }
  QString preferencesFile() { return home.path() + "/Preferences/VXKPreferences"; }

  // The old memory file, and a list of formulas large enough that writing it takes a
  // while, so a kill can land inside the rewrite.
  void prepareMemory() {
    for (int i = 0; i < 2000; ++i) oldMemory += QStringLiteral("old%1*x+1\n").arg(i).toUtf8();
    writeFile("Application/VXmemory.txt", QString::fromUtf8(oldMemory));
    launch();
    ASSERT_EQ(window->Listbox3->ListCount(), 2000);
    window->Listbox3->DeleteAllRows();
    for (int i = 0; i < 60000; ++i) {
      const QString row = QStringLiteral("new formula %1*x^2+y:3;4").arg(i);
      window->Listbox3->AddRow(row);
      newMemory += row.toUtf8() + "\n";
    }
  }

  // Quitting is what rewrites the memory file from the list.
  void quitProgram() { program->quit(); }

  QByteArray oldMemory;
  QByteArray newMemory;
};

TEST_F(CrashDuringRewrite, MemoryFileKilledWhileBeingWrittenKeepsTheOldFormulas) {
  prepareMemory();
  const QString folder = home.path() + "/Application";
  int caught = 0;
  for (int trial = 0; trial < 5; ++trial) {
    SCOPED_TRACE(trial);
    writeBytes(memoryFile(), oldMemory);
    // Killed once the new text has grown past 64 KB but is not yet in place.
    const KillOutcome outcome = rewriteAndKill([this] { quitProgram(); }, memoryFile(), [&](pid_t child) {
      return unfinishedBytes(child, folder, memoryFile()) >= 64 * 1024;
    });
    removeStrays(folder, outcome.strayFiles);
    if (outcome.finished) {
      EXPECT_EQ(outcome.content, newMemory);
      continue;
    }
    EXPECT_TRUE(outcome.caughtWriting);
    if (outcome.caughtWriting) ++caught;
    EXPECT_TRUE(outcome.content == oldMemory)
        << "a rewrite killed half way left " << outcome.content.size() << " bytes";
    EXPECT_TRUE(outcome.strayFiles.isEmpty()) << outcome.strayFiles.join(' ').toStdString();
  }
  EXPECT_GT(caught, 0) << "no kill came while the new text was being written";
}

TEST_F(CrashDuringRewrite, MemoryFileKilledAtRandomMomentsIsOldOrNew) {
  prepareMemory();
  const QString folder = home.path() + "/Application";

  // One rewrite to its end sets the span in which the kills fall.
  writeBytes(memoryFile(), oldMemory);
  QElapsedTimer span;
  span.start();
  const KillOutcome whole = rewriteAndKill([this] { quitProgram(); }, memoryFile(), [](pid_t) { return false; });
  const qint64 spanMicros = std::max<qint64>(span.nsecsElapsed() / 1000, 1000);
  ASSERT_TRUE(whole.finished);
  ASSERT_EQ(whole.content, newMemory);

  std::mt19937 random(20261123);
  std::uniform_int_distribution<qint64> moment(0, spanMicros * 3 / 2);
  int olds = 0, news = 0;
  for (int trial = 0; trial < 16; ++trial) {
    writeBytes(memoryFile(), oldMemory);
    const std::chrono::microseconds delay(moment(random));
    SCOPED_TRACE(testing::Message() << "killed after " << delay.count() << " us");
    const KillOutcome outcome = rewriteKilledAfter([this] { quitProgram(); }, memoryFile(), delay);
    removeStrays(folder, outcome.strayFiles);
    if (outcome.content == oldMemory) {
      ++olds;
    } else if (outcome.content == newMemory) {
      ++news;
    } else {
      ADD_FAILURE() << "the file is neither the old nor the new one: " << outcome.content.size()
                    << " bytes";
    }
  }
  RecordProperty("killedBeforeTheNewFileWasInPlace", olds);
  RecordProperty("killedAfter", news);
}

TEST_F(CrashDuringRewrite, PreferencesKilledAmidRepeatedSavesAreOneWholeLine) {
  installSupportFiles();
  launch();
  // The two lines the saves alternate between, as the program writes them.
  window->RadioButton2->setValue(true);
  window->PushButton42->Push();
  const QByteArray degrees = readBytes(preferencesFile());
  window->RadioButton1->setValue(true);
  window->PushButton42->Push();
  const QByteArray radians = readBytes(preferencesFile());
  ASSERT_NE(degrees, radians);
  ASSERT_TRUE(degrees.startsWith("False,True;"));
  ASSERT_TRUE(radians.startsWith("True,False;"));

  // The child saves again and again, switching the angle unit each time, until killed.
  const auto saveForever = [this] {
    for (int i = 0;; ++i) {
      (i % 2 == 0 ? window->RadioButton2 : window->RadioButton1)->setValue(true);
      window->PushButton42->Push();
    }
  };
  std::mt19937 random(1123);
  std::uniform_int_distribution<int> moment(0, 20000);
  const QString folder = home.path() + "/Preferences";
  for (int trial = 0; trial < 40; ++trial) {
    const std::chrono::microseconds delay(moment(random));
    SCOPED_TRACE(testing::Message() << "killed after " << delay.count() << " us");
    const KillOutcome outcome = rewriteKilledAfter(saveForever, preferencesFile(), delay);
    // A kill between naming the new text and putting it in place may leave it under a
    // temporary name; the file itself is whole all the same.
    QStringList strays = outcome.strayFiles;
    strays.removeAll("VXKInstr");
    removeStrays(folder, strays);
    EXPECT_FALSE(outcome.finished);
    EXPECT_TRUE(outcome.content == degrees || outcome.content == radians)
        << "the preferences file holds \"" << outcome.content.toStdString() << "\"";
  }
}

}  // namespace
