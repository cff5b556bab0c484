// The "=" key end to end: what reaches RUN in EditField1, the answer, the log lines and
// the sounds, driven through the calculator's controls.

#include <QDir>
#include <QFile>
#include <optional>

#include "platform/strings/strings.h"
#include "support/app_fixture.h"

namespace {

using testsupport::AppFixture;

const QString kPiDigits = "3.1415926535897932384626433832795";

class EqualsKey : public AppFixture {
 protected:
  // Straight to Window1: the introduction has been seen.
  app::Window1& start() {
    writeFile("Preferences/VXKInstr", "do not show");
    return launch();
  }
  // A claves sound in a resources folder of the test's own, so its playing shows.
  void useClaves() {
    writeFile("Resources/claves.wav", "RIFF");
    platform::SpecialFolder::setResources(home.path() + "/Resources");
  }
  void press(const QString& formula, const QString& caption = "calculate") {
    window->BevelButton1->setCaption(caption);
    window->EditField4->setText(formula);
    window->PushButton40->Push();
  }
};

TEST_F(EqualsKey, RewritesAndRuns) {
  struct Row {
    const char* name;
    QString formula;
    QString reachesRun;  // EditField1
    QString answer;      // EditField5
    bool base10 = false;
    bool radians = false;
  };
  const Row rows[] = {
      {"sin(30) in degrees", "sin(30)", "sin((" + kPiDigits + "/180)*30)", "0.5 "},
      {"sin(30)+Asin(0.5) leaves sin in radians", "sin(30)+Asin(0.5)",
       "sin(30)+(180/" + kPiDigits + ")*Asin(0.5)", "29.01197 "},
      {"radians leave sin alone", "sin(30)", "sin(30)", "-0.9880316 ", false, true},
      {"log base 10", "log(100)", "0.4342945*log(100)", "2 ", true},
      {"log base e", "log(100)", "log(100)", "4.60517 "},
      {"thousands separators and blanks vanish", "1,000 + 1", "1000+1", "1001 "},
      {"2x106 is 2e6", "2x106", "2e6", "2000000 "},
      {"5!+15! becomes 120+1120", "5!+15!", "120+1120", "1240 "},
      {"13! wraps", "13!", "1932053504", "1.932054e+9 "},
      {"17! wraps negative", "17!", "-288522240", "-2.885222e+8 "},
      {"34! is 0", "34!", "0", "0 "},
      {"2PI gets no multiplication sign", "2PI", "2" + kPiDigits, "23.14159 "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    if (row.base10) window->RadioButton4->setValue(true);
    if (row.radians) window->RadioButton1->setValue(true);
    press(row.formula);
    EXPECT_EQ(window->EditField1->Text(), row.reachesRun);
    EXPECT_EQ(window->EditField5->Text(), row.answer);
    EXPECT_EQ(desktop.clipboardText(), row.answer);
    // The field keeps the formula as typed; only EditField1 sees the rewriting.
    EXPECT_EQ(window->EditField4->Text(), row.formula);
  }
}

TEST_F(EqualsKey, ScientificModeShowsTheSevenDigitFactor) {
  start();
  window->RadioButton4->setValue(true);
  window->scibutton1->setValue(true);
  press("log(100)");
  EXPECT_EQ(window->EditField5->Text(), "2.00000008333861e+0 ");
}

TEST_F(EqualsKey, LogLinesOfARun) {
  struct Row {
    const char* name;
    QString caption;
    QString formula;
    QStringList lines;
  };
  const QString enDash = platform::Chr(8211);
  const Row rows[] = {
      {"a plain run", "Calculate", "1 + 1", {"Entered: 1 + 1", "Output:2 "}},
      {"removing blanks is no purge", "Calculate", "1 + 1", {"Entered: 1 + 1", "Output:2 "}},
      {"a purge that changes something is logged",
       "Calculate",
       "3" + enDash + " 1",
       {"Entered: 3" + enDash + " 1", "Unprettfied: 3-1", "Output:2 "}},
      {"2x10^6 fails to compile",
       "Calculate",
       "2x10^6",
       {"Entered: 2x10^6", "ERROR: Syntax does not make sense."}},
      {"an empty field fails to compile",
       "Calculate",
       "",
       {"Entered: ", "ERROR: Syntax does not make sense."}},
      {"the multiplication sign becomes a letter and fails",
       "Calculate",
       "3" + platform::Chr(215) + "4",
       {"Entered: 3" + platform::Chr(215) + "4", "Unprettfied: 3x4",
        "ERROR: Syntax does not make sense."}},
      {"the evaluate caption calculates", "Evaluate", "2*3", {"Entered: 2*3", "Output:6 "}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    press(row.formula, row.caption);
    EXPECT_EQ(newLogLines(), row.lines);
  }
}

TEST_F(EqualsKey, OtherCaptionsOnlyLogTheTwoErrorLines) {
  for (const char* caption : {"Action", "Physical Data", "Solve"}) {
    SCOPED_TRACE(caption);
    start();
    window->wincon = 1;
    press("1+1", caption);
    EXPECT_EQ(
        newLogLines(),
        (QStringList{"Entered: 1+1", "Error: Search Term not found",
                     "Try words in a different order or use a single word or part of a word"}));
    EXPECT_TRUE(window->PushButton40->Enabled());
    EXPECT_TRUE(window->EditField1->Text().isEmpty());
    EXPECT_TRUE(desktop.takeEvents().isEmpty());
  }
}

TEST_F(EqualsKey, PurgePrettyOffPlaysClavesAndComputesNothing) {
  struct Row {
    const char* name;
    int wincon;
    bool enabledAfter;
  };
  const Row rows[] = {
      {"in the expanded window the key stays grey", 1, false},
      {"in the small window the key stays enabled", 0, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    useClaves();
    start();
    window->CheckBox1->setValue(false);
    newLogLines();
    window->wincon = row.wincon;
    press("1, + 1");
    EXPECT_EQ(newLogLines(), QStringList{"Entered: 1, + 1"});
    EXPECT_EQ(desktop.takeEvents(), QStringList{"sound claves"});
    EXPECT_TRUE(window->EditField1->Text().isEmpty());
    EXPECT_EQ(window->PushButton40->Enabled(), row.enabledAfter);
  }
}

TEST_F(EqualsKey, TheEvaluateFormPutsTheValuesIn) {
  struct Row {
    const char* name;
    QString field;
    QString entered;
    QString fieldAfter;
    QString lastLog;
  };
  const Row rows[] = {
      {"x and y", "sqrt(x^2+y^2):3;4", "sqrt(3^2+4^2)", "sqrt(x^2+y^2):", "Output:5 "},
      {"without a colon the x is the script's own", "x*2", "x*2", "x*2", "Output:0 "},
      {"a value without ; leaves y", "x+y:2", "2+y", "x+y:", "ERROR: Undefined identifier."},
      {"an empty value deletes every x", "x*2+1:", "*2+1",
       "x*2+1:", "ERROR: Syntax does not make sense."},
      {"the x of exp( is replaced too", "exp(x):1", "e1p(1)",
       "exp(x):", "ERROR: Undefined identifier."},
      {"only the text up to a second colon counts", "x*10:2:5", "2*10", "x*10:", "Output:20 "},
      {"values go in without parentheses", "x^2:-3", "-3^2", "x^2:", "Output:-9 "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    start();
    press(row.field, "Evaluate");
    const QStringList lines = newLogLines();
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_EQ(lines.first(), "Entered: " + row.entered);
    EXPECT_EQ(lines.last(), row.lastLog);
    EXPECT_EQ(window->EditField4->Text(), row.fieldAfter);
  }
}

}  // namespace

namespace {

using testsupport::AppFixture;

class CleanStages : public AppFixture {};

// ButtonAct and the drop go on without the purge when Purge Pretty is off; only the
// "=" key stops there.
TEST_F(CleanStages, PurgeOffSkipsOrStopsByEntry) {
  writeFile("Resources/claves.wav", "RIFF");
  platform::SpecialFolder::setResources(home.path() + "/Resources");
  writeFile("Preferences/VXKInstr", "do not show");
  launch();
  const QString times = platform::Chr(215);
  struct Row {
    const char* name;
    bool purge;
    app::Window1::PurgeOff purgeOff;
    std::optional<QString> out;
    QStringList log;
    QStringList events;
  };
  const Row rows[] = {
      {"purge on", true, app::Window1::PurgeOff::Skip, "2e6", {"Unprettfied: 2x106"}, {}},
      {"purge off, skip: x10 is still read",
       false,
       app::Window1::PurgeOff::Skip,
       "2" + times + "106",
       {},
       {}},
      {"purge off, stop: claves and nothing back",
       false,
       app::Window1::PurgeOff::Stop,
       std::nullopt,
       {},
       {"sound claves"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->CheckBox1->setValue(row.purge);
    newLogLines();
    desktop.takeEvents();
    EXPECT_EQ(window->cleanStages("2 " + times + " 1,06", row.purgeOff), row.out);
    EXPECT_EQ(newLogLines(), row.log);
    EXPECT_EQ(desktop.takeEvents(), row.events);
  }
  window->CheckBox1->setValue(false);
  EXPECT_EQ(window->cleanStages("2 x 10 6", app::Window1::PurgeOff::Skip), "2e6");
}

TEST_F(CleanStages, TheConversionNumberOnlyUnderConvertOutsideNumber) {
  writeFile(
      "ApplicationData/VXKSupport/convert.txt",
      "<T><Category><Name>Number</Name><List><SubList>Hex-&gt;Decimal</SubList></List></Category>"
      "<Category><Name>Power</Name><List><SubList "
      "convert=\"*2\">a-&gt;b</SubList></List></Category></T>");
  writeFile("Preferences/VXKInstr", "do not show");
  launch();
  struct Row {
    const char* name;
    QString caption;
    int family;  // row of PopupMenu2: 0 Number, 1 Power
    QString in;
    QString out;
  };
  const Row rows[] = {
      {"cut to seven digits", "convert", 1, "1234567.89", "1234568"},
      {"units dropped", "Convert", 1, "5km", "5"},
      {"nothing numeric is 0", "convert", 1, "km", "0"},
      {"Number keeps its digits", "convert", 0, "FF", "FF"},
      {"other captions keep the text", "calculate", 1, "1234567.89", "1234567.89"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->BevelButton1->setCaption(row.caption);
    window->PopupMenu2->setListIndex(row.family);
    EXPECT_EQ(window->conversionNumber(row.in), row.out);
  }
}

}  // namespace
