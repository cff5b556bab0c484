// Folders the program cannot write to. The program does not handle failures of its
// file operations itself: they reach the handler of unhandled exceptions, which shows
// a message and logs a line, and the program goes on with its log, its list of
// formulas and its settings as they were. The tests run as root, whom permissions do
// not stop, so a folder is made unwritable in ways that stop root as well.

#include "platform/strings/strings.h"
#include "reliability_support.h"

namespace {

using reliability::kReportPrefix;
using reliability::ReliabilityFixture;

enum class Blocker {
  FolderIsAFile,       // a file stands where the folder should be
  RefusesNewFiles,     // the folder is one of sysfs, where nobody may create a file
  NameTakenByAFolder,  // a folder stands where the file should be
  DiskFull,            // the file leads to /dev/full: every write fails for want of space
};

bool sysfsRefusesNewFiles() {
  QFile probe("/sys/abacon-reliability-probe");
  if (probe.open(QIODevice::WriteOnly)) {
    probe.remove();
    return false;
  }
  return QFileInfo("/sys").isDir();
}

class UnwritableFolder : public ReliabilityFixture {
 protected:
  static void pointFolder(const QString& folder, const QString& path) {
    if (folder == "Application") {
      platform::SpecialFolder::setApplicationFolder(path);
    } else {
      platform::SpecialFolder::setPreferences(path);
    }
  }

  // Makes the home's `folder` ("Application" or "Preferences") unable to take `file`.
  void block(Blocker blocker, const QString& folder, const QString& file) {
    const QString folderPath = home.path() + "/" + folder;
    switch (blocker) {
      case Blocker::FolderIsAFile:
        ASSERT_TRUE(QDir(folderPath).removeRecursively());
        writeFile(folder, "not a folder");
        break;
      case Blocker::RefusesNewFiles:
        pointFolder(folder, "/sys");
        break;
      case Blocker::NameTakenByAFolder:
        QFile::remove(folderPath + "/" + file);
        ASSERT_TRUE(QDir().mkpath(folderPath + "/" + file));
        break;
      case Blocker::DiskFull:
        QFile::remove(folderPath + "/" + file);
        ASSERT_TRUE(QFile::link("/dev/full", folderPath + "/" + file));
        break;
    }
  }

  void unblock(Blocker blocker, const QString& folder, const QString& file) {
    const QString folderPath = home.path() + "/" + folder;
    switch (blocker) {
      case Blocker::FolderIsAFile:
        ASSERT_TRUE(QFile::remove(folderPath));
        ASSERT_TRUE(QDir().mkpath(folderPath));
        break;
      case Blocker::RefusesNewFiles:
        pointFolder(folder, folderPath);
        break;
      case Blocker::NameTakenByAFolder:
        ASSERT_TRUE(QDir(folderPath).rmdir(file));
        break;
      case Blocker::DiskFull:
        ASSERT_TRUE(QFile::remove(folderPath + "/" + file));
        break;
    }
  }

  // The one report of the last action: its message box, and the same text as a line
  // among the log lines the action added.
  void expectOneReport(const QStringList& events, const QStringList& addedLogLines) {
    const QStringList shown = reports(events);
    ASSERT_EQ(shown.size(), 1) << events.join(" | ").toStdString();
    EXPECT_TRUE(addedLogLines.contains(shown.first())) << addedLogLines.join(" | ").toStdString();
  }
};

// ---- the folder that holds the application --------------------------------------

enum class AppAction { SaveLog, MemoryKey, Quit };

struct AppFolderCase {
  const char* name;
  AppAction action;
  Blocker blocker;
};

const QString kLogFile = QStringLiteral("VXLog11-23-26.txt");
const QString kMemoryFile = QStringLiteral("VXmemory.txt");
const QString kFormula = QStringLiteral("sqrt(x^2+y^2):3;4");

TEST_F(UnwritableFolder, ApplicationFolderFailuresAreReportedAndLoseNothing) {
  const AppFolderCase cases[] = {
      {"log save into a folder that is a file", AppAction::SaveLog, Blocker::FolderIsAFile},
      {"log save into a folder that refuses new files", AppAction::SaveLog, Blocker::RefusesNewFiles},
      {"log save onto a folder of the log's name", AppAction::SaveLog, Blocker::NameTakenByAFolder},
      {"log save onto a full disk", AppAction::SaveLog, Blocker::DiskFull},
      {"m into a folder that is a file", AppAction::MemoryKey, Blocker::FolderIsAFile},
      {"m into a folder that refuses new files", AppAction::MemoryKey, Blocker::RefusesNewFiles},
      {"m onto a folder of the memory file's name", AppAction::MemoryKey, Blocker::NameTakenByAFolder},
      {"m onto a full disk", AppAction::MemoryKey, Blocker::DiskFull},
      {"quit into a folder that is a file", AppAction::Quit, Blocker::FolderIsAFile},
      {"quit into a folder that refuses new files", AppAction::Quit, Blocker::RefusesNewFiles},
      {"quit onto a folder of the memory file's name", AppAction::Quit, Blocker::NameTakenByAFolder},
  };
  const bool sysfs = sysfsRefusesNewFiles();
  for (const AppFolderCase& row : cases) {
    SCOPED_TRACE(row.name);
    if (row.blocker == Blocker::RefusesNewFiles && !sysfs) {
      std::printf("skipped \"%s\": /sys takes new files here\n", row.name);
      continue;
    }
    // A fresh home for each row.
    ASSERT_TRUE(QDir(home.path()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(home.path()));
    platform::SpecialFolder::setHome(home.path());
    writeFile("Application/VXmemory.txt", "a*x+b:1;2\nx^2-y\n");
    launch();
    asUser([&] { window->EditField4->setText(kFormula); });
    const QStringList rowsBefore = rowTexts(*window->Listbox3);
    ASSERT_EQ(rowsBefore, QStringList({"a*x+b:1;2", "x^2-y"}));
    const QString logBefore = window->EditField2->Text();
    newLogLines();
    desktop.takeEvents();

    const QString file = row.action == AppAction::SaveLog ? kLogFile : kMemoryFile;
    block(row.blocker, "Application", file);
    switch (row.action) {
      case AppAction::SaveLog:
        asUser([&] { window->PushButton3->userClick(); });
        break;
      case AppAction::MemoryKey:
        asUser([&] { window->PushButton33->userClick(); });
        break;
      case AppAction::Quit:
        program->quit();
        break;
    }

    expectOneReport(desktop.takeEvents(), newLogLines());
    EXPECT_TRUE(window->EditField2->Text().startsWith(logBefore)) << "the log lost lines";
    EXPECT_EQ(rowTexts(*window->Listbox3), rowsBefore);
    EXPECT_EQ(window->EditField4->Text(), kFormula);

    // Once the folder takes files again, what the failure did not write is still there
    // to be written.
    unblock(row.blocker, "Application", file);
    const QString folder = home.path() + "/Application/";
    switch (row.action) {
      case AppAction::SaveLog: {
        expectStillCalculates();
        asUser([&] { window->PushButton3->userClick(); });
        const QString saved = readFile("Application/" + kLogFile);
        EXPECT_EQ(saved, window->EditField2->Text());
        EXPECT_TRUE(saved.contains("\n" + kReportPrefix)) << "the saved log lacks the report";
        break;
      }
      case AppAction::MemoryKey: {
        expectStillCalculates();
        asUser([&] { window->PushButton33->userClick(); });
        EXPECT_TRUE(readFile("Application/" + kMemoryFile).endsWith(kFormula + "\n"));
        EXPECT_EQ(rowTexts(*window->Listbox3), rowsBefore + QStringList{kFormula});
        break;
      }
      case AppAction::Quit:
        asUser([&] { window->Listbox3_Close(); });
        EXPECT_EQ(readFile("Application/" + kMemoryFile), "a*x+b:1;2\nx^2-y\n");
        break;
    }
    EXPECT_TRUE(reports(desktop.takeEvents()).isEmpty());
    program->quit();
  }
}

// ---- the preferences folder -----------------------------------------------------

struct SaveCase {
  const char* name;
  Blocker blocker;
};

TEST_F(UnwritableFolder, SavePreferencesFailureIsReportedAndKeepsTheSettings) {
  const SaveCase cases[] = {
      {"folder that is a file", Blocker::FolderIsAFile},
      {"folder that refuses new files", Blocker::RefusesNewFiles},
      {"a folder of the preferences file's name", Blocker::NameTakenByAFolder},
  };
  const bool sysfs = sysfsRefusesNewFiles();
  for (const SaveCase& row : cases) {
    SCOPED_TRACE(row.name);
    if (row.blocker == Blocker::RefusesNewFiles && !sysfs) continue;
    ASSERT_TRUE(QDir(home.path()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(home.path()));
    platform::SpecialFolder::setHome(home.path());
    installSupportFiles();
    launch();
    asUser([&] { window->RadioButton1->userClick(); });
    const QString logBefore = window->EditField2->Text();
    newLogLines();
    desktop.takeEvents();

    block(row.blocker, "Preferences", "VXKPreferences");
    asUser([&] { window->PushButton42->userClick(); });

    const QStringList added = newLogLines();
    expectOneReport(desktop.takeEvents(), added);
    EXPECT_FALSE(added.contains("--Preferences Saved"));
    EXPECT_TRUE(window->EditField2->Text().startsWith(logBefore));
    EXPECT_TRUE(window->RadioButton1->Value()) << "the setting itself was lost";
    expectStillCalculates();

    unblock(row.blocker, "Preferences", "VXKPreferences");
    asUser([&] { window->PushButton42->userClick(); });
    EXPECT_TRUE(readFile("Preferences/VXKPreferences").startsWith("True,False;"));
    EXPECT_TRUE(reports(desktop.takeEvents()).isEmpty());
    program->quit();
  }
}

// "Finished" looks the marker up first: a preferences folder that is not a folder gives
// no item, and the button stops there without a word; a folder that is there but takes
// no file fails in the writing, and that is reported. Either way the introduction
// stays, no marker is written, and "Continue" still leads on.
struct FinishedCase {
  const char* name;
  Blocker blocker;
  bool reported;
};

TEST_F(UnwritableFolder, FinishedWithoutAWritablePreferencesFolderKeepsTheIntroduction) {
  const FinishedCase cases[] = {
      {"folder that is a file", Blocker::FolderIsAFile, false},
      {"folder that refuses new files", Blocker::RefusesNewFiles, true},
  };
  const bool sysfs = sysfsRefusesNewFiles();
  for (const FinishedCase& row : cases) {
    SCOPED_TRACE(row.name);
    if (row.blocker == Blocker::RefusesNewFiles && !sysfs) continue;
    ASSERT_TRUE(QDir(home.path()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(home.path() + "/Preferences"));
    platform::SpecialFolder::setHome(home.path());
    startAtIntroduction();
    app::Window2* intro = program->window2();
    ASSERT_NE(intro, nullptr);
    ASSERT_EQ(program->window1(), nullptr);

    block(row.blocker, "Preferences", "VXKInstr");
    asUser([&] { intro->PushButton1->userClick(); });

    const QStringList events = desktop.takeEvents();
    ASSERT_FALSE(events.isEmpty());
    EXPECT_EQ(events.first(),
              "msgbox To recall this window hold down the SHIFT key while launching Abacon");
    EXPECT_EQ(reports(events).size(), row.reported ? 1 : 0) << events.join(" | ").toStdString();
    EXPECT_FALSE(intro->isClosed());
    EXPECT_EQ(program->window1(), nullptr);
    EXPECT_FALSE(QFileInfo::exists(home.path() + "/Preferences/VXKInstr"));

    asUser([&] { intro->PushButton2->userClick(); });
    window = program->window1();
    ASSERT_NE(window, nullptr) << "Continue did not lead on";
    EXPECT_TRUE(intro->isClosed());
    expectStillCalculates();
    unblock(row.blocker, "Preferences", "VXKInstr");
    program->quit();
  }
}

}  // namespace
