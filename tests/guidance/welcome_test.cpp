#include <gtest/gtest.h>

#include "guidance/contact.h"
#include "guidance/texts.h"
#include "platform/strings/strings.h"
#include "support/app_fixture.h"

// Readable failures for Qt's strings.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& lines, std::ostream* out) {
  *out << '{';
  for (const QString& line : lines) *out << " \"" << line.toStdString() << '"';
  *out << " }";
}

namespace {

using guidance::TextKey;

const QString kMailLink =
    "url mailto:" + QString(guidance::kSupportMailAddress) +
    "?subject=AbaCon&body=Put your question here and save and attach the current log to this "
    "email if you are having a problem or reporting an error";

class WelcomeTest : public testsupport::AppFixture {
 protected:
  app::Window1& launchMain() {
    writeFile("Preferences/VXKInstr", "do not show");
    return launch();
  }
};

TEST_F(WelcomeTest, ResetPutsTheWelcomeTextWithItsFinalLineEnding) {
  launchMain();
  const QString creation = window->TextArea8->Text();
  EXPECT_EQ(creation, guidance::text(TextKey::ctlTextArea8));

  window->PushButton48->userClick();
  const QString reset = window->TextArea8->Text();
  EXPECT_EQ(reset, guidance::text(TextKey::welcomeText));
  EXPECT_TRUE(reset.endsWith(platform::EndOfLine()));
  EXPECT_EQ(reset.size(), creation.size() + platform::EndOfLine().size());

  window->TextArea8->setText("typed by the user");
  window->PushButton48->userClick();
  EXPECT_EQ(window->TextArea8->Text(), reset);
  EXPECT_EQ(newLogLines(), QStringList());
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
}

TEST_F(WelcomeTest, MailButtonLogsThenOpensTheMailLinkWithBlanksAsTheyAre) {
  launchMain();
  window->PushButton4->userClick();
  EXPECT_EQ(newLogLines(), QStringList{"--eMailed"});
  EXPECT_EQ(desktop.takeEvents(), QStringList{kMailLink});
}

// Notes what the log holds at the moment the link is opened.
class LogWatchingDesktop : public platform::RecordingDesktop {
 public:
  void showURL(const QString& url) override {
    if (program && program->window1()) logAtLink = program->window1()->EditField2->Text();
    RecordingDesktop::showURL(url);
  }
  app::App* program = nullptr;
  QString logAtLink;
};

TEST_F(WelcomeTest, TheMailLineIsLoggedBeforeTheLinkIsOpened) {
  writeFile("Preferences/VXKInstr", "do not show");
  LogWatchingDesktop watching;
  app::App own(watching);
  watching.program = &own;
  own._Startup();
  ASSERT_NE(own.window1(), nullptr);
  own.window1()->PushButton4->userClick();
  EXPECT_TRUE(watching.logAtLink.endsWith("--eMailed" + platform::EndOfLine()));
}

TEST_F(WelcomeTest, TheLinkShowsAndOpensTheWebPageAndLeavesTheLogAlone) {
  launchMain();
  EXPECT_EQ(window->StaticText24->Text(), QString(guidance::kWebPageAddress));
  window->StaticText24->userClick();
  EXPECT_EQ(desktop.takeEvents(), QStringList{"url " + QString(guidance::kWebPageAddress)});
  EXPECT_EQ(newLogLines(), QStringList());
  EXPECT_FALSE(window->StaticText24->MouseDown(1, 1));
}

}  // namespace
