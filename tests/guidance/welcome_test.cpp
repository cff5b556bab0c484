// The Welcome tab's mail button: the log line is written before the link opens, so a
// log saved from the mail client already holds it.

#include "support/app_fixture.h"

namespace {

class LogWatchingDesktop : public platform::RecordingDesktop {
 public:
  void showURL(const QString& url) override {
    logAtLink = program->window1()->EditField2->Text();
    RecordingDesktop::showURL(url);
  }
  app::App* program = nullptr;
  QString logAtLink;
};

using WelcomeTab = testsupport::AppFixture;

TEST_F(WelcomeTab, TheMailLineIsLoggedBeforeTheLinkIsOpened) {
  writeFile("Preferences/VXKInstr", "do not show");
  LogWatchingDesktop watching;
  app::App own(watching);
  watching.program = &own;
  own._Startup();
  own.window1()->PushButton4->userClick();
  EXPECT_TRUE(watching.logAtLink.endsWith("--eMailed\n"));
}

}  // namespace
