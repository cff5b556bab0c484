// The "=" key end to end, where the transcripts do not reach: radians, natural logs,
// 2PI, the Evaluate form's blind replacement of x, and the cleaning stages by entry.

#include <optional>

#include "platform/strings/strings.h"
#include "support/app_fixture.h"
#include "support/printers.h"

namespace {

const QString kPiDigits = "3.1415926535897932384626433832795";

class EqualsKey : public testsupport::AppFixture {
 protected:
  void SetUp() override {
    AppFixture::SetUp();
    launch();
  }
  // The formula pressed through "=" under the caption; the lines it logged.
  QStringList press(const QString& formula, const QString& caption = "calculate") {
    window->BevelButton1->setCaption(caption);
    window->EditField4->setText(formula);
    newLogLines();
    window->PushButton40->Push();
    return newLogLines();
  }
};

TEST_F(EqualsKey, RewritesBeforeTheRun) {
  struct Row {
    const char* name;
    QString formula;
    QString reachesRun;  // EditField1
    QString answer;      // EditField5
    bool radians = false;
  };
  const Row rows[] = {
      {"radians leave sin alone", "sin(30)", "sin(30)", "-0.9880316 ", true},
      {"log without base 10 is natural", "log(100)", "log(100)", "4.60517 "},
      {"2PI gets no multiplication sign", "2PI", "2" + kPiDigits, "23.14159 "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    window->RadioButton1->setValue(row.radians);
    window->RadioButton2->setValue(!row.radians);
    press(row.formula);
    EXPECT_EQ(window->EditField1->Text(), row.reachesRun);
    EXPECT_EQ(window->EditField5->Text(), row.answer);
    EXPECT_EQ(window->EditField4->Text(), row.formula) << "the field keeps the formula as typed";
  }
}

TEST_F(EqualsKey, CompileFaultsOfTheCleanedFormula) {
  const QString times = platform::Chr(215);
  EXPECT_EQ(press(""), (QStringList{"Entered: ", "ERROR: Syntax does not make sense."}));
  // The multiplication sign becomes the letter x, which only "x10" turns into e.
  EXPECT_EQ(press("3" + times + "4"), (QStringList{"Entered: 3" + times + "4", "Unprettfied: 3x4",
                                                   "ERROR: Syntax does not make sense."}));
}

// x is replaced wherever it stands, also inside a function's name, and values go in
// without parentheses.
TEST_F(EqualsKey, TheEvaluateFormPutsTheValuesInBlindly) {
  struct Row {
    const char* name;
    QString field;
    QString entered;
    QString fieldAfter;
    QString lastLog;
  };
  const Row rows[] = {
      {"without a colon the x is the script's own", "x*2", "x*2", "x*2", "Output:0 "},
      {"an empty value deletes every x", "x*2+1:", "*2+1", "x*2+1:",
       "ERROR: Syntax does not make sense."},
      {"the x of exp( is replaced too", "exp(x):1", "e1p(1)", "exp(x):", "ERROR: Undefined identifier."},
      {"only the text up to a second colon counts", "x*10:2:5", "2*10", "x*10:", "Output:20 "},
      {"values go in without parentheses", "x^2:-3", "-3^2", "x^2:", "Output:-9 "},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const QStringList lines = press(row.field, "Evaluate");
    EXPECT_EQ(lines.value(0), "Entered: " + row.entered);
    EXPECT_EQ(lines.value(lines.size() - 1), row.lastLog);
    EXPECT_EQ(window->EditField4->Text(), row.fieldAfter);
  }
}

// ButtonAct and the drop go on without the purge when Purge Pretty is off; only the
// "=" key stops there.
TEST_F(EqualsKey, CleaningWithPurgePrettyOffSkipsOrStopsByEntry) {
  using PurgeOff = app::Window1::PurgeOff;
  const QString times = platform::Chr(215);
  struct Row {
    const char* name;
    bool purge;
    PurgeOff purgeOff;
    std::optional<QString> out;
    QStringList log;
    QStringList events;
  };
  const Row rows[] = {
      {"purge on", true, PurgeOff::Skip, "2e6", {"Unprettfied: 2x106"}, {}},
      {"purge off, skip: the sign stays", false, PurgeOff::Skip, "2" + times + "106", {}, {}},
      {"purge off, stop: claves and nothing back", false, PurgeOff::Stop, std::nullopt, {},
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
  EXPECT_EQ(window->cleanStages("2 x 10 6", PurgeOff::Skip), "2e6") << "x10 is still read";
}

TEST_F(EqualsKey, TheConversionNumberOnlyUnderConvertOutsideNumber) {
  writeFile("ApplicationData/VXKSupport/convert.txt",
            "<T><Category><Name>Number</Name><List><SubList>Hex-&gt;Decimal</SubList></List>"
            "</Category><Category><Name>Power</Name><List><SubList convert=\"*2\">a-&gt;b</SubList>"
            "</List></Category></T>");
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
