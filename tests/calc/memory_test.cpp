// The formula memory: "m" and "mr" on VXmemory.txt, and the list of saved formulas,
// which overwrites the file only when the window closes and only when not empty.

#include <QDir>

#include "support/app_fixture.h"

namespace {

using testsupport::AppFixture;

const QString kMemory = "Application/VXmemory.txt";

class Memory : public AppFixture {
 protected:
  app::Window1& start() {
    writeFile("Preferences/VXKInstr", "do not show");
    QDir().mkpath(home.path() + "/Application");
    return launch();
  }
  QStringList rows() const {
    QStringList out;
    for (int row = 0; row < window->Listbox3->ListCount(); ++row)
      out << window->Listbox3->Cell(row, 0);
    return out;
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

TEST_F(Memory, RecallCyclesThroughTheFile) {
  struct Row {
    const char* name;
    QString file;
    int presses;
    QStringList shown;
  };
  const Row rows[] = {
      {"three lines cycle 1, 2, 3, 1", "a\nb\nc\n", 7, {"a", "b", "c", "a", "b", "c", "a"}},
      {"the last line needs no line ending", "a\nb", 3, {"a", "b", "a"}},
      {"an empty line is the end of the file", "a\n\nc\n", 3, {"a", "a", "a"}},
      {"an empty first line still shows", "\nb\n", 3, {"", "b", ""}},
      {"one line", "x^2:\n", 2, {"x^2:", "x^2:"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    writeFile(kMemory, row.file);
    start();
    EXPECT_EQ(recall(row.presses), row.shown);
  }
}

TEST_F(Memory, FormnumberCountsTheNextLine) {
  writeFile(kMemory, "a\nb\nc\n");
  start();
  EXPECT_EQ(window->formnumber, 1);
  recall(3);
  EXPECT_EQ(window->formnumber, 4);
  recall(1);
  EXPECT_EQ(window->formnumber, 2) << "the wrap shows line 1 and leaves 2";
}

TEST_F(Memory, RecallWithoutAFileSaysSo) {
  start();
  window->EditField4->setText("keep");
  window->PushButton34->Push();
  EXPECT_EQ(desktop.takeEvents(), QStringList{"msgbox Nothing In Memory"});
  EXPECT_EQ(window->EditField4->Text(), "keep");
}

TEST_F(Memory, StoreAppendsToTheFileAndTheList) {
  writeFile(kMemory, "a\n");
  start();
  window->EditField4->setText("sqrt(x^2+y^2):3;4");
  window->PushButton33->Push();
  window->EditField4->setText("");
  window->PushButton33->Push();
  EXPECT_EQ(readFile(kMemory), "a\nsqrt(x^2+y^2):3;4\n\n");
  EXPECT_EQ(rows(), (QStringList{"a", "sqrt(x^2+y^2):3;4", ""}));
}

TEST_F(Memory, StoreCreatesTheFile) {
  start();
  window->EditField4->setText("2*x:");
  window->PushButton33->Push();
  EXPECT_EQ(readFile(kMemory), "2*x:\n");
}

TEST_F(Memory, TheListOpensWithTheFile) {
  struct Row {
    const char* name;
    QString file;
    QStringList rows;
  };
  const Row rows[] = {
      {"one row a line", "a\nb\n", {"a", "b"}},
      {"an empty file gives one empty row", "", {""}},
      {"a last line without ending", "a\nb", {"a", "b"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    writeFile(kMemory, row.file);
    start();
    EXPECT_EQ(this->rows(), row.rows);
    EXPECT_EQ(window->Listbox3->columnType(1), platform::ColumnType::CheckBox);
  }
}

TEST_F(Memory, DeleteRemovesCheckedRowsAndTheFileFollowsAtQuit) {
  writeFile(kMemory, "a\nb\nc\nd\n");
  start();
  // Two checked neighbours: the index steps back after each removal.
  window->Listbox3->setCellCheck(1, 1, true);
  window->Listbox3->setCellCheck(2, 1, true);
  window->PushButton46->Push();
  EXPECT_EQ(rows(), (QStringList{"a", "d"}));
  EXPECT_EQ(readFile(kMemory), "a\nb\nc\nd\n") << "the file waits for the quit";
  // A deleted formula is still reachable by "mr" until then.
  EXPECT_EQ(recall(2), (QStringList{"a", "b"}));
  program->quit();
  EXPECT_EQ(readFile(kMemory), "a\nd\n");
}

TEST_F(Memory, DeletingEveryRowLeavesTheFileAsItWas) {
  writeFile(kMemory, "a\nb\n");
  start();
  window->Listbox3->setCellCheck(0, 1, true);
  window->Listbox3->setCellCheck(1, 1, true);
  window->PushButton46->Push();
  EXPECT_EQ(window->Listbox3->ListCount(), 0);
  window->PushButton46->Push();
  EXPECT_EQ(desktop.takeEvents(), QStringList{"msgbox There are no items to delete"});
  program->quit();
  EXPECT_EQ(readFile(kMemory), "a\nb\n");
  start();
  EXPECT_EQ(rows(), (QStringList{"a", "b"}));
}

TEST_F(Memory, QuitWithoutAFileAndAnEmptyListWritesNothing) {
  start();
  program->quit();
  EXPECT_FALSE(QFile::exists(home.path() + "/" + kMemory));
}

TEST_F(Memory, AClickOnAFormulaRecallsIt) {
  writeFile(kMemory, "a*x:\nb*x:\n");
  start();
  window->Listbox3->userClickCell(1, 0);
  EXPECT_EQ(window->EditField4->Text(), "b*x:");
  window->EditField4->setText("kept");
  window->Listbox3->userClickCell(0, 1);
  EXPECT_EQ(window->EditField4->Text(), "kept") << "the check-box column recalls nothing";
}

}  // namespace
