// The formula memory beyond the transcript: how "mr" reads odd files, "m" without a
// file, and the list, which overwrites the file only at quit and only when not empty.

#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

const QString kMemory = "Application/VXmemory.txt";

class Memory : public testsupport::AppFixture {
 protected:
  app::Window1& start(const QString& file) {
    writeFile(kMemory, file);
    return launch();
  }
  QStringList recall(int times) {
    QStringList shown;
    for (int i = 0; i < times; ++i) {
      window->PushButton34->Push();
      shown << window->EditField4->Text();
    }
    return shown;
  }
};

TEST_F(Memory, RecallReadsUpToTheFirstEmptyLineAndStartsAgain) {
  struct Row {
    const char* name;
    QString file;
    QStringList shown;  // three presses
    QString rows;       // the list as it opened
  };
  const Row rows[] = {
      {"the last line needs no line ending", "a\nb", {"a", "b", "a"}, "a\nb"},
      {"an empty line is the end of the file", "a\n\nc\n", {"a", "a", "a"}, "a\n\nc"},
      {"an empty first line still shows", "\nb\n", {"", "b", ""}, "\nb"},
      {"an empty file gives one empty row", "", {"", "", ""}, ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start(row.file);
    EXPECT_EQ(window->Listbox3->RowsText(), row.rows);
    EXPECT_EQ(window->Listbox3->ListCount(), row.rows.count('\n') + 1);
    EXPECT_EQ(recall(3), row.shown);
  }
}

TEST_F(Memory, WithoutAFileRecallSaysSoAndStoreCreatesIt) {
  QDir().mkpath(home.path() + "/Application");
  launch();
  window->EditField4->setText("keep");
  window->PushButton34->Push();
  EXPECT_EQ(desktop.takeEvents(), QStringList{"msgbox Nothing In Memory"});
  EXPECT_EQ(window->EditField4->Text(), "keep");
  program->quit();
  EXPECT_FALSE(QFile::exists(home.path() + "/" + kMemory)) << "an empty list writes nothing";

  launch();
  window->EditField4->setText("2*x:");
  window->PushButton33->Push();
  window->EditField4->setText("");
  window->PushButton33->Push();
  EXPECT_EQ(readFile(kMemory), "2*x:\n\n");
}

TEST_F(Memory, ADeletedFormulaIsRecalledUntilTheQuit) {
  start("a\nb\nc\nd\n");
  // Two checked neighbours: the index steps back after each removal.
  window->Listbox3->setCellCheck(1, 1, true);
  window->Listbox3->setCellCheck(2, 1, true);
  window->PushButton46->Push();
  EXPECT_EQ(window->Listbox3->RowsText(), "a\nd");
  EXPECT_EQ(recall(2), (QStringList{"a", "b"}));
  program->quit();
  EXPECT_EQ(readFile(kMemory), "a\nd\n");
}

TEST_F(Memory, AClickInTheCheckColumnRecallsNothing) {
  start("a*x:\nb*x:\n");
  window->EditField4->setText("kept");
  window->Listbox3->userClickCell(0, 1);
  EXPECT_EQ(window->EditField4->Text(), "kept");
}

}  // namespace
