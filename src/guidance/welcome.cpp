#include "app/window1.h"
#include "guidance/contact.h"
#include "guidance/texts.h"
#include "platform/desktop/desktop.h"

namespace app {

namespace {

// The body's blanks stay unescaped in the link; the desktop's opener of links copes
// with them.
const QString kMailSubjectAndBody = QStringLiteral(
    "?subject=AbaCon&body=Put your question here and save and attach the current log to "
    "this email if you are having a problem or reporting an error");

}  // namespace

// "Reset": welcomeText ends in a line ending that the creation text lacks, so the
// viewer grows by one line ending at the first reset and stays so after.
void Window1::PushButton48_Action() {
  TextArea8->setText(guidance::text(guidance::TextKey::welcomeText));
}

// The log line comes first, so it stands even when no mail client answers the link.
void Window1::PushButton4_Action() {
  log("--eMailed");
  desktop().showURL(QStringLiteral("mailto:") + guidance::kSupportMailAddress + kMailSubjectAndBody);
}

bool Window1::StaticText24_MouseDown(int, int) {
  desktop().showURL(QString(guidance::kWebPageAddress));
  return false;
}

}  // namespace app
