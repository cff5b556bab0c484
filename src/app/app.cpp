#include "app/app.h"

#include "app/window1.h"
#include "guidance/window2.h"
#include "platform/exceptions.h"
#include "platform/files/folders.h"
#include "platform/strings/strings.h"

namespace app {

App::App(platform::Desktop& desktop) : desktop_(desktop) {}

App::~App() = default;

void App::_Startup() {
  _InitFileTypes();
  _NewAppInstance();
  // No menu handlers of our own: the items do what text fields and quitting do.
  _MakeDefaultView();
}

// Window2 is made first; its Event_Open either stays or goes straight on to Window1.
void App::_MakeDefaultView() {
  window2_ = std::make_unique<Window2>(*this);
  window2_->open();
}

void App::_InitFileTypes() { pText_ = {"text", "", "TEXT", "????"}; }

void App::_NewAppInstance() {
  menuBar_ = {
      {"FileMenu", "MenuItem", "&File", "", ""},
      {"FileQuit", "QuitMenuItem", "&Quit", "Cmd+Q", "FileMenu"},
      {"EditMenu", "MenuItem", "&Edit", "", ""},
      {"EditUndo", "MenuItem", "&Undo", "Cmd+Z", "EditMenu"},
      {"UntitledMenu1", "MenuItem", "-", "", "EditMenu"},
      {"EditCut", "MenuItem", "Cu&t", "Cmd+X", "EditMenu"},
      {"EditCopy", "MenuItem", "&Copy", "Cmd+C", "EditMenu"},
      {"EditPaste", "MenuItem", "&Paste", "Cmd+V", "EditMenu"},
      {"EditClear", "MenuItem", "&Delete", "", "EditMenu"},
      {"UntitledMenu0", "MenuItem", "-", "", "EditMenu"},
      {"EditSelectAll", "MenuItem", "Select &All", "Cmd+A", "EditMenu"},
  };
}

void App::quit() {
  if (window2_) guard([this] { window2_->Close(); });
  if (window1_) guard([this] { window1_->Close(); });
}

void App::Event_Activate() { AutoQuit = true; }

// Copy and paste stay offered whatever has the focus.
void App::Event_EnableMenuItems() {
  for (const char* name : {"EditCopy", "EditPaste"}) {
    if (MenuItem* item = menuItem(QString::fromLatin1(name))) item->enabled = true;
  }
}

MenuItem* App::menuItem(const QString& name) {
  for (MenuItem& item : menuBar_) {
    if (platform::StrEq(item.name, name)) return &item;
  }
  return nullptr;
}

Window1& App::showWindow1() {
  if (!window1_) {
    window1_ = std::make_unique<Window1>(*this);
    window1_->open();
  }
  window1_->Show();
  return *window1_;
}

std::optional<platform::Picture> App::picture(std::optional<platform::Picture>& cache,
                                              const QString& file) {
  if (!cache) {
    // A Resources folder that is named but not there gives Nil children: no picture.
    const platform::FolderItem resources = platform::SpecialFolder::Resources();
    const platform::FolderItem item = resources ? resources.Child(file) : platform::FolderItem();
    if (item) cache = item.OpenAsPicture();
  }
  return cache;
}

std::optional<platform::Picture> App::target() { return picture(target_, "target.gif"); }
std::optional<platform::Picture> App::target2() { return picture(target2_, "target2.gif"); }
std::optional<platform::Picture> App::fullwindow1() {
  return picture(fullwindow1_, "fullwindow1.jpg");
}
std::optional<platform::Picture> App::fullwindow2() {
  return picture(fullwindow2_, "fullwindow2.jpg");
}

std::optional<platform::Sound> App::claves() {
  if (!clavesTried_) {
    clavesTried_ = true;
    const platform::FolderItem resources = platform::SpecialFolder::Resources();
    const platform::FolderItem item =
        resources ? resources.Child("claves.wav") : platform::FolderItem();
    if (item) claves_ = item.OpenAsSound();
  }
  return claves_;
}

void App::playClaves() {
  if (const std::optional<platform::Sound> sound = claves()) desktop_.playSound(*sound);
}

void App::guard(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const std::exception& error) {
    UnhandledException(error);
  }
}

void App::UnhandledException(const std::exception& error) {
  QString what;
  if (const auto* framework = dynamic_cast<const platform::FrameworkException*>(&error)) {
    what = framework->kind() + ": " + framework->message();
  } else {
    what = QString::fromLocal8Bit(error.what());
  }
  const QString report = "An unexpected problem occurred and was stopped: " + what;
  if (window1_) window1_->log(report);
  desktop_.msgBox(report);
}

}  // namespace app
