// The catalogue's shape, text by text, and the odd spots most likely to be "fixed" by
// accident. A wrong join, a lost or added blank or a missing final line ending changes
// a count or the length.

#include <gtest/gtest.h>

#include "guidance/texts.h"
#include "support/printers.h"

namespace guidance {
namespace {

struct ShapeRow {
  const char* name;  // the key's; creation texts of controls start with "ctl"
  TextKey key;
  int lines;  // counted without the final line ending
  bool endsWithLineEnd;
  int length;
};

const ShapeRow kShapes[] = {
    {"placeit", TextKey::placeit, 2, true, 131},
    {"placeit2", TextKey::placeit2, 1, false, 178},
    {"helpAction", TextKey::helpAction, 14, true, 1041},
    {"helpCalculate", TextKey::helpCalculate, 19, true, 2731},
    {"helpConvert", TextKey::helpConvert, 8, true, 1052},
    {"helpPhysical", TextKey::helpPhysical, 10, true, 1181},
    {"helpAstro", TextKey::helpAstro, 14, true, 1455},
    {"helpSolve", TextKey::helpSolve, 14, true, 1802},
    {"helpSettings", TextKey::helpSettings, 13, true, 1486},
    {"helpEvaluate", TextKey::helpEvaluate, 3, true, 901},
    {"dirAction", TextKey::dirAction, 5, false, 661},
    {"dirCalculate", TextKey::dirCalculate, 12, true, 1602},
    {"dirConvert", TextKey::dirConvert, 6, false, 993},
    {"dirSolve", TextKey::dirSolve, 6, true, 649},
    {"dirPhysical", TextKey::dirPhysical, 4, false, 920},
    {"dirAstro", TextKey::dirAstro, 4, false, 840},
    {"dirEvaluate", TextKey::dirEvaluate, 5, false, 1113},
    {"dirSettings", TextKey::dirSettings, 2, false, 216},
    {"dirError", TextKey::dirError, 1, false, 105},
    {"dirMoreNote", TextKey::dirMoreNote, 1, true, 256},
    {"welcomeText", TextKey::welcomeText, 9, true, 963},
    {"ctlStaticText7", TextKey::ctlStaticText7, 1, true, 40},
    {"ctlTextArea1", TextKey::ctlTextArea1, 1, false, 291},
    {"ctlTextArea2", TextKey::ctlTextArea2, 1, false, 232},
    {"ctlTextArea3", TextKey::ctlTextArea3, 1, false, 169},
    {"ctlTextArea4", TextKey::ctlTextArea4, 2, false, 293},
    {"ctlTextArea5", TextKey::ctlTextArea5, 2, false, 242},
    {"ctlTextArea6", TextKey::ctlTextArea6, 3, false, 466},
    {"ctlStaticText22", TextKey::ctlStaticText22, 1, false, 300},
    {"ctlEditField10", TextKey::ctlEditField10, 6, false, 663},
    {"ctlStaticText25", TextKey::ctlStaticText25, 1, false, 116},
    {"ctlStaticText26", TextKey::ctlStaticText26, 3, false, 153},
    {"ctlStaticText34", TextKey::ctlStaticText34, 2, false, 35},
    {"ctlTextArea8", TextKey::ctlTextArea8, 9, false, 962},
    {"ctlStaticText27", TextKey::ctlStaticText27, 1, false, 47},
    {"introStart", TextKey::introStart, 3, false, 255},
    {"introHintA", TextKey::introHintA, 2, false, 190},
    {"introWelcome", TextKey::introWelcome, 2, false, 255},
    {"introHintB", TextKey::introHintB, 2, false, 187},
    {"introHintC", TextKey::introHintC, 2, false, 192},
    {"introAction", TextKey::introAction, 11, false, 469},
    {"introTarget", TextKey::introTarget, 3, false, 386},
    {"introTabSettings", TextKey::introTabSettings, 1, false, 93},
    {"introTabHelp", TextKey::introTabHelp, 1, false, 68},
    {"introTabLog", TextKey::introTabLog, 1, false, 174},
    {"introTabDirections", TextKey::introTabDirections, 1, false, 382},
    {"introTabWelcome", TextKey::introTabWelcome, 1, false, 117},
    {"introTabCalculate", TextKey::introTabCalculate, 3, false, 717},
    {"introTabSolve", TextKey::introTabSolve, 1, false, 135},
    {"introTabConvert", TextKey::introTabConvert, 1, false, 502},
    {"introTabSearch", TextKey::introTabSearch, 1, false, 648},
    {"introEmail", TextKey::introEmail, 1, false, 283},
    {"introBack", TextKey::introBack, 1, false, 173},
    {"introDirections", TextKey::introDirections, 1, false, 337},
    {"introReset", TextKey::introReset, 1, false, 152},
};

TEST(Texts, EveryTextHasItsShape) {
  static_assert(std::size(kShapes) == kTextKeyCount, "one row per key");
  for (const ShapeRow& row : kShapes) {
    SCOPED_TRACE(row.name);
    const QString& t = text(row.key);
    const bool carriage = QString(row.name).startsWith("ctl");
    const QString sep = carriage ? "\r" : "\n";
    EXPECT_FALSE(t.contains(carriage ? "\n" : "\r")) << "joined by the other line ending";
    EXPECT_EQ(t.endsWith(sep), row.endsWithLineEnd);
    EXPECT_EQ(t.chopped(row.endsWithLineEnd ? 1 : 0).count(sep) + 1, row.lines);
    EXPECT_EQ(t.size(), row.length);
  }
  EXPECT_TRUE(text(static_cast<TextKey>(kTextKeyCount)).isEmpty()) << "a key beyond the last";
  EXPECT_TRUE(text(static_cast<TextKey>(-1)).isEmpty());
}

// Misspellings, double blanks and trailing blanks stay, each with the joins around it;
// the help answers, directions and texts of the introduction that the transcripts show
// are pinned there letter for letter.
TEST(Texts, OdditiesSurviveAtTheirJoins) {
  const struct {
    const char* name;
    TextKey key;
    const char* fragment;
  } rows[] = {
      {"helpSettings keeps 'menuu'", TextKey::helpSettings, "drop down menuu or"},
      {"trailing blank before NEPTUNE's next row", TextKey::helpAstro, "NEPTUNE MOON \nTo find data"},
      {"dirConvert keeps the stray quote", TextKey::dirConvert, "choose 'P'ower' on the left"},
      {"dirAstro keeps 'availale'", TextKey::dirAstro, "the  'Sirius', if more is availale"},
      {"dirError keeps 'iattach'", TextKey::dirError, ". Please iattach the Log File."},
      {"EditField10 blanks around its third row", TextKey::ctlEditField10,
       "of your choice.\r B) In the large"},
      {"ctlStaticText34 breaks with a carriage return", TextKey::ctlStaticText34,
       "Primary Search Term\rClick to Select"},
      {"introEmail keeps 'woll'", TextKey::introEmail, "this button woll open"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_TRUE(text(row.key).contains(QString::fromUtf8(row.fragment)));
  }
}

}  // namespace
}  // namespace guidance
