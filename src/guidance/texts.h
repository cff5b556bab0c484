#pragma once
// The program's long user texts, each held once under its key: help answers,
// directions, the Welcome text, creation texts of controls and the introduction
// window's explanations. They are kept letter for letter as the program has always
// shown them, misspellings, double blanks and trailing blanks included; nothing here
// is to be corrected.
//
// Lines are joined by the host's line ending, except for the creation texts of
// controls (keys starting with ctl), which break their lines with a carriage return.
// A text ends in a line ending only where it always has (placeit, the help answers,
// dirCalculate, dirSolve, dirMoreNote, welcomeText, ctlStaticText7).

#include <QString>

namespace guidance {

enum class TextKey : int {
    // Shared paragraphs, the first help paragraphs (Window1's placeit and placeit2).
    placeit,
    placeit2,
    // Answers to "?" and "help", by the selector's caption.
    helpAction,
    helpCalculate,
    helpConvert,
    helpPhysical,
    helpAstro,
    helpSolve,
    helpSettings,
    helpEvaluate,
    // Directions written to EditField10 by bevelact, by caption.
    dirAction,
    dirCalculate,
    dirConvert,
    dirSolve,
    dirPhysical,
    dirAstro,
    dirEvaluate,
    dirSettings,
    dirError,
    dirMoreNote,
    // What Reset writes to the clipboard viewer.
    welcomeText,
    // Creation texts, under the name of the control that holds them.
    ctlStaticText7,
    ctlTextArea1,
    ctlTextArea2,
    ctlTextArea3,
    ctlTextArea4,
    ctlTextArea5,
    ctlTextArea6,
    ctlStaticText22,
    ctlEditField10,
    ctlStaticText25,
    ctlStaticText26,
    ctlStaticText34,
    ctlTextArea8,
    ctlStaticText27,
    // Written to StaticText1 of the introduction window.
    introStart,
    introHintA,
    introWelcome,
    introHintB,
    introHintC,
    introAction,
    introTarget,
    introTabSettings,
    introTabHelp,
    introTabLog,
    introTabDirections,
    introTabWelcome,
    introTabCalculate,
    introTabSolve,
    introTabConvert,
    introTabSearch,
    introEmail,
    introBack,
    introDirections,
    introReset,  // stays last: kTextKeyCount counts up to it
};

inline constexpr int kTextKeyCount = static_cast<int>(TextKey::introReset) + 1;

// The text under key, built on first use and kept for the life of the program.
// A value outside the enumeration gives an empty text.
const QString& text(TextKey key);

}  // namespace guidance
