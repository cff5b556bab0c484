#include "guidance/contact.h"
#include "guidance/texts.h"

#include <gtest/gtest.h>

#include <QString>
#include <QStringView>

namespace guidance {
namespace {

QString show(const QString& s) {
    QString out = s;
    out.replace(u'\n', QStringLiteral("\\n")).replace(u'\r', QStringLiteral("\\r"));
    return out;
}

enum class Join { Host, Carriage };

// The shape of every text: a wrong join, a lost or added character (trailing blank,
// double blank) or a missing final line ending changes at least one column.
struct ShapeRow {
    const char* name;
    TextKey key;
    Join join;
    int lines;           // counted without the final line ending
    bool endsWithLineEnd;
    int length;
    QStringView head;    // first 16 characters
    QStringView tail;    // last 16 characters
};

const ShapeRow kShapes[] = {
        {"placeit", TextKey::placeit, Join::Host, 2, true, 131, u"For maximum comp", u"y as a modifier\n"},
        {"placeit2", TextKey::placeit2, Join::Host, 1, false, 178, u"Because of this ", u"red will be m^2."},
        {"helpAction", TextKey::helpAction, Join::Host, 14, true, 1041, u"For help, use 'h", u"_______________\n"},
        {"helpCalculate", TextKey::helpCalculate, Join::Host, 19, true, 2731, u"For maximum comp", u" Drop Down menu\n"},
        {"helpConvert", TextKey::helpConvert, Join::Host, 8, true, 1052, u"For maximum comp", u"m these sources\n"},
        {"helpPhysical", TextKey::helpPhysical, Join::Host, 10, true, 1181, u"For maximum comp", u"rom a web page.\n"},
        {"helpAstro", TextKey::helpAstro, Join::Host, 14, true, 1455, u"For maximum comp", u"for it by name.\n"},
        {"helpSolve", TextKey::helpSolve, Join::Host, 14, true, 1802, u"For maximum comp", u"oblems by hand.\n"},
        {"helpSettings", TextKey::helpSettings, Join::Host, 13, true, 1486, u"You can access t", u"Pretty' is set.\n"},
        {"helpEvaluate", TextKey::helpEvaluate, Join::Host, 3, true, 901, u"'Evaluate' is si", u"oard (and log).\n"},
        {"dirAction", TextKey::dirAction, Join::Host, 5, false, 661, u"General:\nA) With", u"all window mode."},
        {"dirCalculate", TextKey::dirCalculate, Join::Host, 12, true, 1602, u"Calculate:\nThe c", u"ice 'Evaluate'.\n"},
        {"dirConvert", TextKey::dirConvert, Join::Host, 6, false, 993, u"Convert\nAddition", u"l be 1204 W/m^2."},
        {"dirSolve", TextKey::dirSolve, Join::Host, 6, true, 649, u"Solve:\nAdditiona", u"r more cautions\n"},
        {"dirPhysical", TextKey::dirPhysical, Join::Host, 4, false, 920, u"Physical Data:\nM", u"the output list."},
        {"dirAstro", TextKey::dirAstro, Join::Host, 4, false, 840, u"Astro Data:\nMore", u"ther categories."},
        {"dirEvaluate", TextKey::dirEvaluate, Join::Host, 5, false, 1113, u"Evaluate:\n With ", u"n the clipboard."},
        {"dirSettings", TextKey::dirSettings, Join::Host, 2, false, 216, u"Settings:\nFor mo", u"ve your choices."},
        {"dirError", TextKey::dirError, Join::Host, 1, false, 105, u"This window is d", u"ch the Log File."},
        {"dirMoreNote", TextKey::dirMoreNote, Join::Host, 1, true, 256, u">>>Detailed inst", u"application.<<<\n"},
        {"welcomeText", TextKey::welcomeText, Join::Host, 9, true, 963, u"AbaconB:\nCan fun", u"drop-down menu.\n"},
        {"ctlStaticText7", TextKey::ctlStaticText7, Join::Carriage, 1, true, 40, u"Click the image ", u"r more options.\r"},
        {"ctlTextArea1", TextKey::ctlTextArea1, Join::Carriage, 1, false, 291, u"Normal calculati", u"eaning 2 x 10^2."},
        {"ctlTextArea2", TextKey::ctlTextArea2, Join::Carriage, 1, false, 232, u"In physics, othe", u"written as \"ln\"."},
        {"ctlTextArea3", TextKey::ctlTextArea3, Join::Carriage, 1, false, 169, u"When using trig ", u"als 180 degrees."},
        {"ctlTextArea4", TextKey::ctlTextArea4, Join::Carriage, 2, false, 293, u"Searches normall", u" Case Sensitive!"},
        {"ctlTextArea5", TextKey::ctlTextArea5, Join::Carriage, 2, false, 242, u"Many web pages a", u" Pretty' is set."},
        {"ctlTextArea6", TextKey::ctlTextArea6, Join::Carriage, 3, false, 466, u"If you check \"Us", u"n ready for use."},
        {"ctlStaticText22", TextKey::ctlStaticText22, Join::Carriage, 1, false, 300, u"The activity log", u"will be created."},
        {"ctlEditField10", TextKey::ctlEditField10, Join::Carriage, 6, false, 663, u"General:\rA) With", u"all window mode."},
        {"ctlStaticText25", TextKey::ctlStaticText25, Join::Carriage, 1, false, 116, u"To take advantag", u"ed by the units."},
        {"ctlStaticText26", TextKey::ctlStaticText26, Join::Carriage, 3, false, 153, u"Note:\rUpper Unit", u"it specification"},
        {"ctlStaticText34", TextKey::ctlStaticText34, Join::Carriage, 2, false, 35, u"Primary Search T", u"\rClick to Select"},
        {"ctlTextArea8", TextKey::ctlTextArea8, Join::Carriage, 9, false, 962, u"AbaconB:\rCan fun", u" drop-down menu."},
        {"ctlStaticText27", TextKey::ctlStaticText27, Join::Carriage, 1, false, 47, u"Use the Help Tab", u"ing the Settings"},
        {"introStart", TextKey::introStart, Join::Host, 3, false, 255, u"Welcome to the I", u"tivating Abacon."},
        {"introHintA", TextKey::introHintA, Join::Host, 2, false, 190, u"Hold the shift k", u" of this window."},
        {"introWelcome", TextKey::introWelcome, Join::Host, 2, false, 255, u"Welcome to the I", u"tivating Abacon."},
        {"introHintB", TextKey::introHintB, Join::Host, 2, false, 187, u"Do get informati", u" of this window."},
        {"introHintC", TextKey::introHintC, Join::Host, 2, false, 192, u"Hold the shift k", u" of this window."},
        {"introAction", TextKey::introAction, Join::Host, 11, false, 469, u"Your choices her", u"n at the bottom."},
        {"introTarget", TextKey::introTarget, Join::Host, 3, false, 386, u"In the Desk Acce", u"he small window."},
        {"introTabSettings", TextKey::introTabSettings, Join::Host, 1, false, 93, u"This allows you ", u"ion preferences."},
        {"introTabHelp", TextKey::introTabHelp, Join::Host, 1, false, 68, u"This contains in", u"ur prefferences."},
        {"introTabLog", TextKey::introTabLog, Join::Host, 1, false, 174, u"This tab display", u"his application."},
        {"introTabDirections", TextKey::introTabDirections, Join::Host, 1, false, 382, u"When you choose ", u"e 'Welcome' tab."},
        {"introTabWelcome", TextKey::introTabWelcome, Join::Host, 1, false, 117, u"The 'Welcome' ta", u" the clip viewer"},
        {"introTabCalculate", TextKey::introTabCalculate, Join::Host, 3, false, 717, u"This tab contain", u"o your document."},
        {"introTabSolve", TextKey::introTabSolve, Join::Host, 1, false, 135, u"The 'Solve' tab ", u"in two unknowns."},
        {"introTabConvert", TextKey::introTabConvert, Join::Host, 1, false, 502, u"There are about ", u" or hours/liter."},
        {"introTabSearch", TextKey::introTabSearch, Join::Host, 1, false, 648, u"In AbaconB2 you ", u"electron's mass."},
        {"introEmail", TextKey::introEmail, Join::Host, 1, false, 283, u"If your email cl", u"uld be included."},
        {"introBack", TextKey::introBack, Join::Host, 1, false, 173, u"If you are in th", u"use this button."},
        {"introDirections", TextKey::introDirections, Join::Host, 1, false, 337, u"The information ", u"e 'Welcome' tab."},
        {"introReset", TextKey::introReset, Join::Host, 1, false, 152, u"The 'Reset' butt", u"is not required."},
};

TEST(TextsTest, EveryTextHasItsShape) {
    static_assert(std::size(kShapes) == kTextKeyCount, "one row per key");
    for (const ShapeRow& row : kShapes) {
        SCOPED_TRACE(row.name);
        const QString& t = text(row.key);
        const QString sep = row.join == Join::Host ? QStringLiteral("\n") : QStringLiteral("\r");
        const QString other = row.join == Join::Host ? QStringLiteral("\r") : QStringLiteral("\n");
        EXPECT_FALSE(t.contains(other)) << show(t).toStdString();
        EXPECT_EQ(t.endsWith(sep), row.endsWithLineEnd);
        QString body = t;
        if (row.endsWithLineEnd) body.chop(sep.size());
        EXPECT_EQ(body.count(sep) + 1, row.lines);
        EXPECT_EQ(t.size(), row.length);
        EXPECT_EQ(show(t.left(16)).toStdString(), show(row.head.toString()).toStdString());
        EXPECT_EQ(show(t.right(16)).toStdString(), show(row.tail.toString()).toStdString());
    }
}

TEST(TextsTest, EveryKeyHasItsOwnNonEmptyText) {
    for (int i = 0; i < kTextKeyCount; ++i) {
        SCOPED_TRACE(kShapes[i].name);
        ASSERT_EQ(static_cast<int>(kShapes[i].key), i) << "rows follow the order of the keys";
        EXPECT_FALSE(text(static_cast<TextKey>(i)).isEmpty());
        for (int j = 0; j < i; ++j) EXPECT_NE(text(static_cast<TextKey>(j)), text(static_cast<TextKey>(i)));
    }
}

TEST(TextsTest, TextIsBuiltOnceAndKept) {
    const QString* first = &text(TextKey::helpSolve);
    EXPECT_EQ(first, &text(TextKey::helpSolve));
}

TEST(TextsTest, KeyOutsideTheEnumerationGivesEmptyText) {
    EXPECT_TRUE(text(static_cast<TextKey>(-1)).isEmpty());
    EXPECT_TRUE(text(static_cast<TextKey>(kTextKeyCount)).isEmpty());
    EXPECT_TRUE(text(static_cast<TextKey>(100000)).isEmpty());
}

struct ExactRow {
    const char* name;
    TextKey key;
    QStringView expected;
};

TEST(TextsTest, ShortTextsLetterForLetter) {
    const ExactRow rows[] = {
        {"placeit keeps its double blank and ends in a line ending", TextKey::placeit,
         u"For maximum compatability all output  is in ASCII\n"
         u"That's what can be typed on your keyboard using only the shift key as a modifier\n"},
        {"dirSettings has no final line ending and keeps 'choices  can'", TextKey::dirSettings,
         u"Settings:\nFor most purposes the default settings will be what most users want. Detailed "
         u"instructions on the various choices  can be found under the 'Help' tab. Use the 'Save "
         u"Preferences' buttons to save your choices."},
        {"introTabHelp keeps its misspelling", TextKey::introTabHelp,
         u"This contains information to aid you in selecting your prefferences."},
        {"ctlStaticText27 is one line without ending", TextKey::ctlStaticText27,
         u"Use the Help Tab for help in using the Settings"},
        {"ctlStaticText7 ends in a carriage return", TextKey::ctlStaticText7,
         u"Click the image above for more options.\r"},
        {"ctlStaticText34 breaks its two lines with a carriage return", TextKey::ctlStaticText34,
         u"Primary Search Term\rClick to Select"},
        {"dirMoreNote keeps its typos and ends in a line ending", TextKey::dirMoreNote,
         u">>>Detailed instructions have been put in your clipboardand can be viewed in the Clipboard "
         u"Viewer under the 'Welcome' Tab. Also they have been added to the Log File where they can be  "
         u"saved to the log file in the the folder containing this application.<<<\n"},
        {"introHintB keeps 'Do get' and has no comma-free fix", TextKey::introHintB,
         u"Do get information about any button or tab, hold down the shift key while clicking on it\n"
         u"This applies to objects in the picture not to the two active buttons at the bottom of this window."},
    };
    for (const ExactRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(show(text(row.key)).toStdString(), show(row.expected.toString()).toStdString());
    }
}

struct FragmentRow {
    const char* name;
    TextKey key;
    QStringView fragment;
};

// The odd spots most likely to be "fixed" by accident, each with the joins around it.
TEST(TextsTest, OdditiesSurviveAtTheirJoins) {
    const FragmentRow rows[] = {
        {"placeit is followed by an empty line inside a help body", TextKey::helpCalculate,
         u"only the shift key as a modifier\n\nYou can use the usual"},
        {"placeit2 runs straight into the next row", TextKey::helpPhysical,
         u"meter squared will be m^2.\nSearching for 'mass' will will find"},
        {"trailing blank before the list of tabs", TextKey::helpAction,
         u"allowing access to \nSettings (Preferences)\npreference Help\nDirections, and\n"
         u"a Log of your activities.\n\n'Directions' contains short descriptions  of"},
        {"trailing blank on the Save line", TextKey::helpAction,
         u"housing the application. \n__________________\nTO QUIT. click the close button\n"},
        {"leading double blank in helpCalculate", TextKey::helpCalculate, u"not 2x10^6.\n  However,"},
        {"empty lines between the settings paragraphs", TextKey::helpSettings,
         u"meaning 2 x 10^2.\n\nIn physics, other than in sound"},
        {"helpSettings keeps 'menuu'", TextKey::helpSettings, u"drop down menuu or"},
        {"trailing blank before NEPTUNE's next row", TextKey::helpAstro, u"NEPTUNE MOON \nTo find data"},
        {"empty line in helpSolve", TextKey::helpSolve, u"real solutions.\n\nA similar difficulty"},
        {"dirCalculate trailing blank inside", TextKey::dirCalculate,
         u"copied to the clipboard). \nFor the most part"},
        {"dirConvert keeps the stray quote", TextKey::dirConvert, u"choose 'P'ower' on the left"},
        {"dirConvert last row starts with a blank", TextKey::dirConvert, u"W/ft^2.\n Now use the third"},
        {"dirSolve keeps the double dot and the trailing blank", TextKey::dirSolve,
         u"at the bottom.. The results"},
        {"dirSolve trailing blank before its next row", TextKey::dirSolve, u"2x^2+4x-2=0 \nwould require"},
        {"dirEvaluate second row starts with a blank", TextKey::dirEvaluate, u"Evaluate:\n With the exception"},
        {"dirAstro keeps 'the  'Sirius''", TextKey::dirAstro, u"everything about the  'Sirius', if more is availale"},
        {"EditField10 blanks around its third row", TextKey::ctlEditField10,
         u"of your choice.\r B) In the large"},
        {"EditField10 trailing blank before the Help Tab row", TextKey::ctlEditField10,
         u"using the button below. \rThe Help Tab contains"},
        {"TextArea2 keeps straight double quotes", TextKey::ctlTextArea2, u"the Log to the \"base e\" is normally used"},
        {"TextArea6 trailing blank", TextKey::ctlTextArea6, u"to the clipboard. \rOtherwise"},
        {"introStart breaks after the word Button", TextKey::introStart,
         u"The \"Continue\" Button\nwill close this window and activate  Abacon."},
        {"introAction keeps its dashes and double blanks", TextKey::introAction,
         u"Settings\n--\nYour choices correspond"},
        {"introTarget empty line", TextKey::introTarget, u"recorded in the log.\n\nYou can click the target"},
        {"introTabCalculate second row starts with a blank", TextKey::introTabCalculate,
         u"evaluate them.\n If 'Evaluate' is chosen"},
        {"introTabSearch double blank after the parenthesis", TextKey::introTabSearch, u"Target.)  You can search"},
        {"introEmail keeps 'woll'", TextKey::introEmail, u"this button woll open"},
    };
    for (const FragmentRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(text(row.key).contains(row.fragment)) << show(text(row.key)).toStdString();
    }
}

TEST(TextsTest, HelpBodiesOpenWithTheSharedParagraphs) {
    const QString placeit = text(TextKey::placeit);
    const QString both = placeit + u'\n' + text(TextKey::placeit2) + u'\n';
    struct Row {
        const char* name;
        TextKey key;
        bool placeitFirst;
        bool placeit2Second;
    };
    const Row rows[] = {
        {"Action help has neither paragraph", TextKey::helpAction, false, false},
        {"Calculate help opens with placeit", TextKey::helpCalculate, true, false},
        {"Convert help opens with placeit", TextKey::helpConvert, true, false},
        {"Physical help opens with both", TextKey::helpPhysical, true, true},
        {"Astro help opens with both", TextKey::helpAstro, true, true},
        {"Solve help opens with both", TextKey::helpSolve, true, true},
        {"Settings help has neither", TextKey::helpSettings, false, false},
        {"Evaluate help has neither", TextKey::helpEvaluate, false, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QString& t = text(row.key);
        EXPECT_EQ(t.startsWith(placeit + u'\n'), row.placeitFirst);
        EXPECT_EQ(t.startsWith(both), row.placeit2Second);
        EXPECT_EQ(t.indexOf(placeit, 1), -1) << "placeit appears at most once, at the start";
    }
}

TEST(TextsTest, ViewerCreationTextIsWelcomeTextWithCarriageReturnsAndNoEnding) {
    QString viewer = text(TextKey::ctlTextArea8);
    viewer.replace(u'\r', u'\n');
    EXPECT_EQ(viewer + u'\n', text(TextKey::welcomeText));
}

TEST(TextsTest, DirErrorAsksUsersToWriteToTheSupportAddress) {
    const QString address = QString(kSupportMailAddress);
    EXPECT_EQ(text(TextKey::dirError),
              QStringLiteral("This window is displayed in error, please report this to ") + address +
                  QStringLiteral(". Please iattach the Log File."));
}

TEST(ContactTest, AddressesAreUsable) {
    const QString mail = QString(kSupportMailAddress);
    EXPECT_EQ(mail.count(u'@'), 1);
    EXPECT_FALSE(mail.startsWith(u'@'));
    EXPECT_FALSE(mail.endsWith(u'@'));
    EXPECT_FALSE(mail.contains(u' '));
    const QString web = QString(kWebPageAddress);
    EXPECT_TRUE(web.startsWith(u"https://"));
    EXPECT_FALSE(web.contains(u' '));
    EXPECT_TRUE(web.endsWith(mail.mid(mail.indexOf(u'@') + 1))) << "mail goes to the project's own domain";
}

}  // namespace
}  // namespace guidance
