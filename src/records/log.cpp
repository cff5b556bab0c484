#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/files/folder_item.h"
#include "platform/strings/strings.h"

namespace app {

// An append in place: the log grows for as long as the program runs, and each line
// must cost the same however long it has grown.
void Window1::log(const QString& line) { EditField2->AppendText(line + platform::EndOfLine()); }

// "Save": the whole log is appended to the file of the day, so a second save on one
// day repeats the earlier lines; that is how the file is meant to grow.
void Window1::PushButton3_Action() {
  platform::Desktop& desk = desktop();
  const QDateTime now = desk.now();
  log("--Log Saved at " + desk.shortTime(now));
  const QString text = platform::ReplaceLineEndings(EditField2->Text(), platform::EndOfLine());
  const QString name =
      "VXLog" + platform::ReplaceAll(desk.shortDate(now), "/", "-") + ".txt";
  platform::TextOutputStream out = platform::GetFolderItem(name).AppendToTextFile();
  out.Write(text);
  out.Close();
}

}  // namespace app
