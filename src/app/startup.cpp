#include "app/app.h"
#include "app/window1.h"
#include "guidance/texts.h"
#include "platform/files/folders.h"
#include "platform/strings/strings.h"

namespace app {

namespace {

struct SupportFile {
  const char* file;
  const char* present;
  const char* absent;
};

// The three support files, in the order they are reported.
const SupportFile kSupportFiles[] = {
    {"convert.txt", "Conversion Data from XML file loaded",
     "Conversion Data from XML file not loaded"},
    {"physicaldata.txt", "Physical Data is ready to be loaded from XML file when needed",
     "Physical Data fromXML file not loaded"},
    {"AstrDataXML.txt", "Astro Data is ready to be loaded from XML file when needed",
     "Astro Data from XML file not loaded"},
};

}  // namespace

void Window1::Event_Open() {
  platform::Desktop& desk = desktop();
  log("Startup: Date " + desk.shortDate(desk.now()) + " Time " + desk.shortTime(desk.now()));
  log("Application Version:" + platform::Str(App::MajorVersion) + "." +
      platform::Str(App::MinorVersion) + "." + platform::Str(App::BugVersion));
  // The system-version line needs a system that answers for "sysv"; this one does not,
  // so the line is left out, as it is when the question fails.
  log("Initial State:");

  // The preferences, when saved, are restored here, after "Initial State:", so that
  // each control they change logs its line beneath it.
  restorePreferences();

  // Only the lookup is tested, never Exists: a file absent from a folder that is there
  // passes as present, and the load itself reports for itself.
  const platform::FolderItem appData = platform::SpecialFolder::ApplicationData();
  for (const SupportFile& support : kSupportFiles) {
    const platform::FolderItem item =
        appData.isNil() ? platform::FolderItem() : appData.Child("VXKSupport");
    const platform::FolderItem file =
        item.isNil() ? platform::FolderItem() : item.Child(QString::fromLatin1(support.file));
    if (!file.isNil()) {
      log(QString::fromLatin1(support.present));
    } else {
      log(QString::fromLatin1(support.absent));
      log(QStringLiteral("A file called '") + QString::fromLatin1(support.file) +
          "' is missing from the folder 'VXKSupport' in your application Support/Data folder");
    }
  }
  log("----begin---");

  wincon = 0;
  for (int n = 5; n <= 40; ++n) {
    control<platform::PushButton>("PushButton" + platform::Str(n)).setEnabled(true);
  }
  placeit = guidance::text(guidance::TextKey::placeit);
  placeit2 = guidance::text(guidance::TextKey::placeit2);
  AcceptTextDrop();
  setWidth(64);
  setHeight(96);
  unt = " ";
}

void Window1::Event_EnableMenuItems() { app_.Event_EnableMenuItems(); }

}  // namespace app
