#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/files/folder_item.h"
#include "platform/strings/strings.h"

namespace app {

namespace {
// A bare name: the file lives in the folder that holds the application.
const QString kMemoryFile = QStringLiteral("VXmemory.txt");
}  // namespace

// "m" writes the field as it stands, colon and values included, and an empty field as
// an empty line, which "mr" then takes for the end of the file.
void Window1::PushButton33_Action() {
  const platform::FolderItem file = platform::GetFolderItem(kMemoryFile);
  platform::TextOutputStream out = file.Exists() ? file.AppendToTextFile() : file.CreateTextFile();
  out.Write(EditField4->Text() + platform::EndOfLine());
  out.Close();
  Listbox3->AddRow(EditField4->Text());
}

// "mr" shows line formnumber of the file and moves on. Past the last line, or at an
// empty one, it starts again at line 1 by pushing itself; the first line is shown
// without a test, and that ends the recursion.
void Window1::PushButton34_Action() {
  const platform::FolderItem file = platform::GetFolderItem(kMemoryFile);
  if (file.isNil() || !file.Exists()) {
    desktop().msgBox("Nothing In Memory");
    return;
  }
  platform::TextInputStream in = file.OpenAsTextFile();
  bool wrap = false;
  if (formnumber == 1) {
    EditField4->setText(in.ReadLine());
  } else {
    for (int skipped = 1; skipped < formnumber; ++skipped) in.ReadLine();
    const QString line = in.ReadLine();
    if (!line.isEmpty()) {
      EditField4->setText(line);
    } else {
      wrap = true;
    }
  }
  ++formnumber;
  in.Close();
  if (wrap) {
    formnumber = 1;
    PushButton34->Push();
  }
}

// Deleting marks nothing in the file: the list overwrites it when the window closes.
void Window1::PushButton46_Action() {
  if (Listbox3->ListCount() == 0) {
    desktop().msgBox("There are no items to delete");
    return;
  }
  // ListCount is read anew on each pass, since rows go as they are found.
  for (int row = 0; row <= Listbox3->ListCount() - 1; ++row) {
    if (Listbox3->CellCheck(row, 1)) {
      Listbox3->RemoveRow(row);
      --row;
    }
  }
}

void Window1::Listbox3_Open() {
  Listbox3->setColumnType(0, platform::ColumnType::Normal);
  Listbox3->setColumnType(1, platform::ColumnType::CheckBox);
  const platform::FolderItem file = platform::GetFolderItem(kMemoryFile);
  if (file.isNil() || !file.Exists()) return;
  platform::TextInputStream in = file.OpenAsTextFile();
  // EOF is asked only after the first read, so an empty file gives one empty row.
  do {
    Listbox3->AddRow(in.ReadLine());
  } while (!in.Eof());
  in.Close();
}

// An empty list leaves the file alone, so deleting every row does not lose the
// formulas: they are back at the next launch.
void Window1::Listbox3_Close() {
  if (Listbox3->ListCount() <= 0) return;
  platform::TextOutputStream out =
      platform::TextOutputStream::Create(platform::GetFolderItem(kMemoryFile));
  for (int row = 0; row <= Listbox3->ListCount() - 1; ++row) out.WriteLine(Listbox3->Cell(row, 0));
  out.Close();
}

bool Window1::Listbox3_CellClick(int row, int column) {
  if (column == 0) EditField4->setText(Listbox3->Cell(row, 0));
  return false;
}

}  // namespace app
