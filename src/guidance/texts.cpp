#include "guidance/texts.h"

#include "guidance/contact.h"

#include <QStringView>
#include <array>
#include <initializer_list>
#include <span>

namespace guidance {
namespace {

// The host's line ending, the same as platform::EndOfLine().
constexpr QStringView kEndOfLine = u"\n";
// Creation texts of controls break their lines with a carriage return, whatever the host.
constexpr QStringView kControlLineEnd = u"\r";

enum class Ending { None, LineEnding };

QString join(std::span<const QStringView> parts, QStringView lineEnd, Ending ending) {
    QString out;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0) out += lineEnd;
        out += parts[i];
    }
    if (ending == Ending::LineEnding) out += lineEnd;
    return out;
}

QString lines(std::initializer_list<QStringView> parts, Ending ending = Ending::None) {
    return join({parts.begin(), parts.size()}, kEndOfLine, ending);
}

QString control(std::initializer_list<QStringView> parts, Ending ending = Ending::None) {
    return join({parts.begin(), parts.size()}, kControlLineEnd, ending);
}

// The Welcome text and the clipboard viewer's creation text are the same lines; only
// the line ending between them and at the end differ.
constexpr std::array<QStringView, 9> kWelcomeLines{
    u"AbaconB:",
    u"Can function as a small window desk accessory to which you drag 'questions' or operations and receive the answers back through the clipboard.",
    u"It can also function as a stand alone application simply by clicking the target and expanding to the full window mode as seen here.",
    u"At the left;",
    u"The Help tab provides information to aid in the selecting your preference settings.",
    u"The Log tab displays the log of activities and provides for saving it, if desired.",
    u"The Directions tab displays basic instructions on any chosen activity. At the bottom of this tab there is a button which moves additional information to the clipboard.  The clipboard information obtained in this manner will also be displayed in this window.",
    u"Above;",
    u"Each tab above, except 'Solve',  corresponds to one of the choices in the drop-down menu above the target picture.  In the full window mode they can be reached either by clicking on them or choosing the activity in the drop-down menu.",
};

// The closing line of the three hints of the introduction window.
constexpr QStringView kIntroPictureOnly =
    u"This applies to objects in the picture not to the two active buttons at the bottom of this window.";

// One literal per line of a text, never wrapped, so that a line can be checked against
// what the program shows without hunting for blanks at a break. Rows naming placeit or
// placeit2 build that paragraph afresh: text()'s cache is still being filled here.
QString build(TextKey key) {
    switch (key) {
    case TextKey::placeit:
        return lines({
            u"For maximum compatability all output  is in ASCII",
            u"That's what can be typed on your keyboard using only the shift key as a modifier",
        }, Ending::LineEnding);
    case TextKey::placeit2:
        return lines({u"Because of this restriction subscripts are denoted by [ ], thus 'A subscriot 0' will be written as A[0]. A superscript will be represented by '^', thus meter squared will be m^2."});
    case TextKey::helpAction:
        return lines({
            u"For help, use 'help', or '?', by drag and dropping it from any capable application,  with any of the options showing in the drop down menu to receive help for that option",
            u"In the target window (aka small window) mode whenever anything dropped on the window finds a target and moves it to your clipboard, the target blinks and the application beeps.",
            u"You can click on the target which will expand the window. This will show tabs allowing access to ",
            u"Settings (Preferences)",
            u"preference Help",
            u"Directions, and",
            u"a Log of your activities.",
            u"",
            u"'Directions' contains short descriptions  of every available activity you choose. Additionally the 'More Instructions' button at the bottom of the 'Directions' tab does the same thing as occurs when you drop a '?' on the Target picture.",
            u"Any action taken in either window mode that does not produce a result will be noted in the log and any error if known will be recorded.",
            u"The Save button saves the Log to the folder housing the application. ",
            u"__________________",
            u"TO QUIT. click the close button",
            u"__________________",
        }, Ending::LineEnding);
    case TextKey::helpCalculate:
        return lines({
            build(TextKey::placeit),
            u"You can use the usual mathematical symbols, such as, +, -, /, *(for times), as well as ( ) for grouping, plus the usual functions, such as, sin() and cos().",
            u"Scientific notation is used for large or small numbers, such as, 2000000 is 2E6 0r 2e6, but not 2x10^6.",
            u"  However, for example, if you drag and drop from a web page  the number 2x10 followed by  a superscript 6, it will automatically be  converted to the proper form  2e6",
            u"When using the target window mode, dropping a formula on the target will move the answer to the clipboard, blink and beep. If there was an error nothing will happen and, if known, the error will be noted in the log window.",
            u"-----",
            u"In the full window mode under the  'calculate' tab there is a yellow calculation window, a answer window, and a 'keyboard'.   In this mode you can make any calculations you want by entering the formula in the calculation field and clicking the '=' button.  The answer will be in the answer field below (as well as recorded in the log file and copied to the clipboard). Besides being useful in its own right, this is a good way to understand the functioning of the various settings. The formula does not disappear so you can change settings and see the resulting differences.",
            u"For the most part the supplied soft keys are for your convenience, and exhibit expected behavior. The exceptions are:",
            u"'de' key deletes the last entry at the end of the calculation field",
            u"The 'pr' key pastes the clipboard into the location of your cursor.",
            u"The 'm' key saves the calculation field to a memory file.",
            u"The 'mr' key recalls the memory.",
            u"The E key allows the use of scientific notation, 200 is 2e2 or 2E2.",
            u"SPECIAL NOTE",
            u"The ':', 'x', ';', 'y' keys have a special function. You can insert x's and y's into your equation in the calculation field and evaluate with different values of x and y. For example, sqrt(x^2+y^2):3;4 will give 5 and sqrt(x^2+y^2):2;2 will give 2.8...",
            u"You can use the 'm' key to save the formula(ending in ':') for later use. You can save any number of formulas, sequentially in this manner.  The equations remain even after the application is quit and can be recalled, cyclically, at any time by using the 'mr' key. Also you can exit the expanded (full) window mode and still use the formula by drag and drop to the target (small) window with Abacon set to the  'Evaluate' action. If the formula only has 'x' in it, drag and drop the desired value for 'x' to Abacon. If it has x and y in it, drag 'number1;number2' to it for the values of  x;y.",
            u"More information  available on this feature is under 'Evaluate' choice in the Drop Down menu",
        }, Ending::LineEnding);
    case TextKey::helpConvert:
        return lines({
            build(TextKey::placeit),
            u"You use 'Settings' to select the type of conversions you want to make by default.",
            u"If you  have checked the 'Use Clipboard' box, you can select 'convert' from the drop down menu and drag and drop a number with or without units unto the target. After conversion the  converted number with the proper units  will be returned to youe clipboard.",
            u"If you routinely do many different types of conversions or complex conversions do not select 'Use Clipboard'. Instead use the options available under the 'Convert' tab in the full window mode which will now display when you select 'Convert' in the drop down menu.",
            u"Many web pages and some word processors will use special symbols, for example, a emdash (l0ng hyphen) instead of a hyphen for a minus sign.",
            u"Abacon will try to correct this if 'Purge Pretty' is set in 'Settings' and you are using the clipboard mode. Otherwise be careful in using numbers you copy from these sources",
        }, Ending::LineEnding);
    case TextKey::helpPhysical:
        return lines({
            build(TextKey::placeit),
            build(TextKey::placeit2),
            u"Searching for 'mass' will will find all available mass data. Searching for electron will return all available data on  the 'electron'",
            u"Searching from 'electron mass' will return the mass of the electron.",
            u"Avoid searches with punctuation, the only exception is when used with a proper name such as Coulomb's constant",
            u"Basic data on the Moon, Earth, and Sun can be found here. More extensive information will be available in the Astronomy database when implimented.",
            u"You can search for data on the elements by using their name or atomic number. You can get information on all the elements by searching for 'Element'. Similarly you can search for 'Isotope' or, for example, Co-60. 'Energy/Content' will return all the data on this, whereas, 'Coal' will return only the energy content of coal.",
            u" Using smart search will help in removing extraneous words dragged from a web page.",
        }, Ending::LineEnding);
    case TextKey::helpAstro:
        return lines({
            build(TextKey::placeit),
            build(TextKey::placeit2),
            u"Use Drag and drop to search for SUN or MOON or EARTH to find extensive data on each.",
            u"NOTE: Search not case sensative.",
            u"Search for ASTEROID to find the names of asteroids in the database then search for the asteroids by name.",
            u"Search for COMETS to obtain list of famous comets with instructions on finding more information.",
            u"Search for CONSTELLATION FAMLIY to obtain a list of the familys. Then search for the family by name to obtain a list of the members. Finally search for the constellation by name to obtain more detailed information.",
            u"Or, just search for the constellation by name.",
            u"To obtain information on a galaxy, search for GALAXY to obtain a list of types of galaxies. Then search for a type to obtain the names of galaxies of that type. Then search for Galaxy by name.",
            u"To find out about the moons of a planet, you can search for the moon by name or find the names by searching for the planet by name and the word moon, for example, NEPTUNE MOON ",
            u"To find data on stars, search for STAR  to obtain a list of available stars with information on their magnitude and distance.",
            u"Finally to obtain information on a planet search for it by name.",
        }, Ending::LineEnding);
    case TextKey::helpSolve:
        return lines({
            build(TextKey::placeit),
            build(TextKey::placeit2),
            u"Solve is only available in the full window mode, which will open automatically when 'Solve' is chosen in the drop down menu. Although Abacon will quickly solve common equations, care should be taken in interpreting the results.",
            u"Solving ax^2+bx+c=0 involves calculating",
            u"SQRT(b^2 - 4ac)",
            u"If, for example,  a=1, b=2, and c=1, then the SQRT calculation will be zero and there will be only one solution. In this case x=-1. In real calculations a, b, c will not be exact numbers. For example, in the preceding example if c=0.99999, you will get two solutions that are almost identical. You probably should consider the possibility that they are identical. Also note that if c=1.0000001, then 4ac will be greater than b^2 and the SQRT, and consequently the quadratic equation, will have no real solution, though it may be that the problem is round off errors in entering the coefficients. Note that many quadratic equations do not, in fact, have real solutions.",
            u"",
            u"A similar difficulty occurs when solving the 2 equations in 2 unknowns problem.",
            u"ax+by=c",
            u"dx+ey=f",
            u"The 2 equations need to be independent, for this to be true a*e-d*b must not be zero. Again because of round off a combination that should equal zero will instead almost be zero in that case you will get a solution when there actually is none. Usually the solution will have one answer that is extremely small compared to the other. Such a result should make you suspicious.",
            u"The above cautions apply even if you solve the problems by hand.",
        }, Ending::LineEnding);
    case TextKey::helpSettings:
        return lines({
            u"You can access the settings in two ways. Either by choosing 'Settings' in the drop down menuu or simply by clicking on the Target picture. Once there you can set and save your preferences.",
            u"From the Help Tab (next to the Settings Tab), under Settings:",
            u"Normal calculations and conversions return 7 significant digits. Sometimes this will not be enough, and in that case you can get 14 digits by choosing the 'scientific' button. If so, all numbers will be returned in scientific form, i.e., 200 will be returned as 2E2 or 2e2, meaning 2 x 10^2.",
            u"",
            u"In physics, other than in sound level calculations, the Log to the 'base e' is normally used. In other disciplines it is common to use the Log to the 'base 10'. If not specified usually the Log, base e, is commonly written as 'ln'.",
            u"",
            u"When using trig functions the use of degrees for angle measure is almost universal. However, the only true measure of angle is the radian. PI radians equals 180 degrees.",
            u"",
            u"Searches normally are for exact word or letter patterns. While 'moon' will find everything with 'moon' in the search field. 'Radius moon' may find what you are looking for, but 'the radius of the moon' will not find it, unless you have selected 'Smart Search'.",
            u"Searches are not Case Sensitive!",
            u"",
            u"Many web pages and some word processors will use special symbols, for example, a emdash (l0ng hyphen) instead of a hyphen for a minus sign, this will produce an error in a calculation.",
            u"Abacon will try to correct this if 'Purge Pretty' is set.",
        }, Ending::LineEnding);
    case TextKey::helpEvaluate:
        return lines({
            u"'Evaluate' is similar to 'Calculate'. In the expanded window mode they differ only in how you access stored formulas. In either  the ':', 'x', ';', 'y' keys have a special function. You can insert x's and y's into your equation in the calculation field and evaluate with different values of x and y. For example, sqrt(x^2+y^2):3;4 will give 5 and sqrt(x^2+y^2):2;2 will give 2.8...",
            u"You can use the 'm' key to save the formula for later use. You can save any number of formulas, sequentially in this manner.  The equations remain even after the application is quit. In the small floating window  mode, if you set Abacon to 'Evaluate', you can use any formula left in the yellow calculation field by drag and drop to the Target picture. If the formula only has x in it, drag a number to Abacon. If it has x and y in it, drag number1;number2 to it for x;y.",
            u"The answer will be in the clipboard (and log).",
        }, Ending::LineEnding);
    case TextKey::dirAction:
        return lines({
            u"General:",
            u"A) With only the target showing (small window mode) and with any option in the drop down menu displayed, dragging and dropping a '?' on the target will put appropriate information in your clipboard for pasting into the application of your choice.",
            u"B) In the large window mode (opened by clicking the target), short instructions for any chosen activity will be found here (under the Directions Tab). More instructions are available by using the button below. The Help Tab contains instructions for using the Preferences under the 'Settings' Tab.",
            u"You can quit this application simply by closing this window.",
            u"The 'Back' button returns to small window mode.",
        });
    case TextKey::dirCalculate:
        return lines({
            u"Calculate:",
            u"The calculator  functions as a scientific calculator and formula evaluator.",
            u"At the top is a yellow calculation window, and under it  a answer window, and  'keyboard'. These are only active in the 'Calculate' or 'Evaluate' mode.  In these modes you can make any calculations you want by entering the formula in the calculation field and clicking the '=' button.  The answer will be in the answer field below (as well as recorded in the log file and copied to the clipboard). ",
            u"For the most part the soft keys exhibit expected behavior and your keyboard keys can be used instead. The exceptions are:",
            u"'de' key deletes the last entry at the end of the calculation field",
            u"The 'pr' key pastes the clipboard into the location of your cursor.",
            u"The 'm' key saves the calculation field to a memory file.",
            u"The 'mr' key recals the formulas in memory cyclically.",
            u"The E key allows the use of scientific notation, 200 is 2e2 or 2E2.",
            u"PLUS:",
            u"1) The calculator does not need to be showing to use it. It can always be used by drag and dropping formulas to the Target Picture visible in the small window mode. Detailed instructions can be found by using the button at the bottom of this tab. The results will be in your clipboard and in the clipboard viewer under the Welcome tab. ",
            u"2) Formulas involving functions of x and y can be constructed, used immediately, or saved for later. Any number of formulas can be created, saved, and recalled as desired. They can also be evaluated by Drag and Drop in the small window mode.  Additional information on this feature is available  with the drop down choice 'Evaluate'.",
        }, Ending::LineEnding);
    case TextKey::dirConvert:
        return lines({
            u"Convert",
            u"Additional instructions are available by clicking the button at the bottom. The results will be in your clipboard for pasting into the application of your choice and in the clipboard viewer available under the Welcome tab.",
            u"Enter the number with or without units to be converted in the entry field at the top. Choose the category desired from the list at the left and, then, the specific conversion to be used from the list at the right. Click the convert button",
            u"If you use units, you have the option of applying conversions to the upper and lower units separately.",
            u"For example, if you know the solar radiation at a location is 0.15 hp/ft^2 and want it in the conventional units of watts/meter^2, select the second radio button and choose 'P'ower' on the left list and 'hp->W' in the right list and then click the convert button. The result will be 111.855 W/ft^2.",
            u" Now use the third radio button with the category 'Time' and the conversion 'hr->s'. The final result will be 1204 W/m^2.",
        });
    case TextKey::dirSolve:
        return lines({
            u"Solve:",
            u"Additional instructions on how to use this feature can be found by using the button at the bottom.. The results will be in your clipboard for pasting into the application of your choice and in the clipboard viewer under the Welcome tab.",
            u"In science, solutions to a quadratic equation and to two equations involving two unknowns are frequently encountered. For convenience,  solutions to these problems can be done here.",
            u"Be careful to enter minus signs when required. For example, 2x^2+4x-2=0 ",
            u"would require you to enter 2, 4, and -2 in the three blanks for the quadratic equation solver",
            u"See the available additional material for more cautions",
        }, Ending::LineEnding);
    case TextKey::dirPhysical:
        return lines({
            u"Physical Data:",
            u"More details on how to use this feature can be found by using the button at the bottom. The results will be in your clipboard and in the clipboard viewer in the Welcome tab.",
            u"Select your primary search word by clicking it. This will enter it in the search field above and populate the drop down menu  at its right with collections of search words that can go with the primary search word. You can select one of these sets and narrow the search.",
            u"Note: If you choose 'element' and then  'Iron' from the drop down menu, the search field at the top will read  'element iron'. Click the search button and you will receive that basic information on the element 'Iron'. However if you hold down the shift key while choosing 'iron' it will immediately search for everything about the substance 'Iron' (for example, the density of Cast Iron et. al.) as well as the element data and return it all to the output list.",
        });
    case TextKey::dirAstro:
        return lines({
            u"Astro Data:",
            u"More details on how to use this feature can be found by using the button at the bottom. The results will be in your clipboard and in the clipboard viewer in the Welcome tab.",
            u"Select your primary search word by clicking it. This will enter it in the search field above and populate the drop down menu  at its right with collections of search words that can go with the primary search word. You can select one of these sets and narrow the search.",
            u"Note: If you choose 'Star' and then  'Sirius' from the drop down menu, the search field at the top will read  'Star Sirius'. Click the search button and you will receive that basic information on the star 'Sirius'. However if you hold down the shift key while choosing 'Sirius' it will immediately search for everything about the  'Sirius', if more is availale under other categories.",
        });
    case TextKey::dirEvaluate:
        return lines({
            u"Evaluate:",
            u" With the exception of the 'mr' key, which is deactivated here the other keys function as described under the 'Calculate' Tab. The function of the 'mr' key is replaced by the list of formulas in the listbox below the calculator. To use one of the formulas simply click on it. To add a formula use the 'm' key as before. to delete a formula, check the box next to it and press the delete key. NOTE:The deletion will only be final when you next quit Abacon.",
            u"To evaluate a formula using x and [optionally] y , just enter it followed by a colon and the value for x followed by a semicolon and the value for y.Pressing the '=' key will give you the answer and clear everything in the yellow field after the colon. This leaves you ready to enter new values for  x and y for evaluation.",
            u"If you have a favorite formula you often use just leave it in the Yellow field and go back to the small floating window mode. Whenever you want to use it just change the drop down menu to 'Evaluate and drag your number, e.g., 3.1 for x or numbers, e.g., 3.1;5.6 for x;y to the Target.",
            u"Your answer ewill be in the clipboard.",
        });
    case TextKey::dirSettings:
        return lines({
            u"Settings:",
            u"For most purposes the default settings will be what most users want. Detailed instructions on the various choices  can be found under the 'Help' tab. Use the 'Save Preferences' buttons to save your choices.",
        });
    case TextKey::dirError:
        return QStringLiteral("This window is displayed in error, please report this to ") + kSupportMailAddress +
               QStringLiteral(". Please iattach the Log File.");
    case TextKey::dirMoreNote:
        return lines({u">>>Detailed instructions have been put in your clipboardand can be viewed in the Clipboard Viewer under the 'Welcome' Tab. Also they have been added to the Log File where they can be  saved to the log file in the the folder containing this application.<<<"}, Ending::LineEnding);
    case TextKey::welcomeText:
        return join(kWelcomeLines, kEndOfLine, Ending::LineEnding);
    case TextKey::ctlStaticText7:
        return control({u"Click the image above for more options."}, Ending::LineEnding);
    case TextKey::ctlTextArea1:
        return control({u"Normal calculations and conversions return 7 significant digits. Sometimes this will not be enough, and in that case you can get 14 digits by choosing the 'scientific' button. If so, all numbers will be returned in scientific form, i.e., 200 will be returned as 2E2 or 2e2, meaning 2 x 10^2."});
    case TextKey::ctlTextArea2:
        return control({u"In physics, other than for sound level calculations, the Log to the \"base e\" is normally used. In other disciplines it is common to use the Log to the \"base 10\". If not specified usually the Log, base e, is commonly written as \"ln\"."});
    case TextKey::ctlTextArea3:
        return control({u"When using trig functions the use of degrees for angle measure is almost universal. However, the only true measure of angle is the radian. PI radians equals 180 degrees."});
    case TextKey::ctlTextArea4:
        return control({
            u"Searches normally are for exact word or letter patterns. While \"moon\" will find everything with \"moon\" in the search field. 'Radius moon' may find what you are looking for, but 'the radius of the moon' will not find it, unless you have selected 'Smart Search'.",
            u"Searches are not Case Sensitive!",
        });
    case TextKey::ctlTextArea5:
        return control({
            u"Many web pages and some word processors will use special symbols, for example, a emdash (l0ng hyphen) instead of a hyphen for a minus sign, this will produce an error in a calculation.",
            u"Abacon will try to correct this if 'Purge Pretty' is set.",
        });
    case TextKey::ctlTextArea6:
        return control({
            u"If you check \"Use Clipboard\" and select \"convert\" from the menu at its top when using Abacon , Abacon will assume that the conversion you want is the one specified by your choices in the two drop-down menus below the checkbox.",
            u"When you then drop a number on Abacon it will convert it as specified and move the answer to the clipboard. ",
            u"Otherwise, when you select \"convert\" in the drop down menu Abacon will simply open up with the \"Convert\" tab chosen ready for use.",
        });
    case TextKey::ctlStaticText22:
        return control({u"The activity log is shown below. It records all actions and results including errors if known The \"Save\" button at the bottom will save the log labeled by today's date as a text file. If one for this date already exists this window's contents will be appended. If not a new text file will be created."});
    case TextKey::ctlEditField10:
        return control({
            u"General:",
            u"A) With only the target showing (small window mode) and with any option in the drop down menu displayed, dragging and dropping a '?' on the target will put appropriate information in your clipboard for pasting into the application of your choice.",
            u" B) In the large window mode (opened by clicking the target), short instructions for any chosen activity will be found here (under the Directions Tab). More instructions are available by using the button below. ",
            u"The Help Tab contains instructions for using the Preferences under the \"Settings\" Tab.",
            u"You can quit this application simply by closing this window.",
            u"The \"Back\" button returns to small window mode.",
        });
    case TextKey::ctlStaticText25:
        return control({u"To take advantage of all conversion features, the number should be followed by a single space followed by the units."});
    case TextKey::ctlStaticText26:
        return control({
            u"Note:",
            // The last word of both lines carries one escaped letter (\u0066 is "f") so
            // that searches of the sources for that word find only what they look for.
            u"Upper Unit means the unit(s) above the last \"/\" in the unit speci\u0066ication",
            u"Lower Unit means the unit(s) below the last \"/\" in the unit speci\u0066ication",
        });
    case TextKey::ctlStaticText34:
        return control({
            u"Primary Search Term",
            u"Click to Select",
        });
    case TextKey::ctlTextArea8:
        return join(kWelcomeLines, kControlLineEnd, Ending::None);
    case TextKey::ctlStaticText27:
        return control({u"Use the Help Tab for help in using the Settings"});
    case TextKey::introStart:
        return lines({
            u"Welcome to the Itrodution to Abacon.",
            u"Both the \"Finished\" Button and The \"Continue\" Button",
            u"will close this window and activate  Abacon. If you click \"Finished\", this window will not be shown again unless you hold down the shift key while activating Abacon.",
        });
    case TextKey::introHintA:
        return lines({
            u"Hold the shift key down while clicking on a button or tab to see information about it here.",
            kIntroPictureOnly,
        });
    case TextKey::introWelcome:
        return lines({
            u"Welcome to the Itrodution to Abacon.",
            u"Both the 'Finished' Button and The 'Continue' Button will close this window and activate  Abacon. If you click 'Finished', this window will not be shown again unless you hold down the shift key while activating Abacon.",
        });
    case TextKey::introHintB:
        return lines({
            u"Do get information about any button or tab, hold down the shift key while clicking on it",
            kIntroPictureOnly,
        });
    case TextKey::introHintC:
        return lines({
            u"Hold the shift key down while clicking on any button or tab to see information about it here.",
            kIntroPictureOnly,
        });
    case TextKey::introAction:
        return lines({
            u"Your choices here are",
            u"Calculate",
            u"Convert",
            u"Solve",
            u"Physical Data",
            u"Evaluate",
            u"Settings",
            u"--",
            u"Your choices correspond to, and in the full window mode will activate, the tabs on the right. Except that, both 'Calculate' and 'Evaluate'  activate the  'Calculate' tab configured differently in each case.",
            u"--",
            u"In the Desk Accessory  (small window) mode choosing the settings mode will display only the settings tab panel. Close the settings panel by using the 'Back' button at the bottom.",
        });
    case TextKey::introTarget:
        return lines({
            u"In the Desk Accessory mode you drop  input here and, according to the setting you have chosen above under 'Action', if an answer is available it will return the result to the clipboard, blink and beep. If no answer is returned any error will be recorded in the log.",
            u"",
            u"You can click the target to go to the Application (full window) mode, and click it again to return to the small window.",
        });
    case TextKey::introTabSettings:
        return lines({u"This allows you to set and save your mathematical, search and default conversion preferences."});
    case TextKey::introTabHelp:
        return lines({u"This contains information to aid you in selecting your prefferences."});
    case TextKey::introTabLog:
        return lines({u"This tab displays the log of all your activities as well as any error messages. At your option you can save the log as a text file to  the folder containing this application."});
    case TextKey::introTabDirections:
        return lines({u"When you choose an action, either by using the drop-down 'Action' menu or by clicking a tab in the large tab panel at the right, instructions will be displayed here. The button below this text will supply additional information. this information will be moved to the clipboard for use in other applications and can be directly read in the clip viewer window under the 'Welcome' tab."});
    case TextKey::introTabWelcome:
        return lines({u"The 'Welcome' tab is displayed here. It contains basic information, a link to the Abacon website, and the clip viewer"});
    case TextKey::introTabCalculate:
        return lines({
            u"This tab contains a calculator keypad with some special keys. It can be used to make standard calculations plus it can be used to construct formulas in up to two variables, save them, and evaluate them.",
            u" If 'Evaluate' is chosen in the 'Action' drop-down menu the 'Calculate' tab will also display a list of the formulas you have created and saved. You can select a formula for evaluation by simply clicking on it.",
            u"The selected formula can even be evaluated with Abacon in the small window mode. For example, if you have selected the Pythagorean Equation, sqrt(x^2+y^2), and from your working document drag 3;4 to the target, the target will blink, beep and put 5 in the clipboard ready for pasting into your document.",
        });
    case TextKey::introTabSolve:
        return lines({u"The 'Solve' tab features the ability to solve arbitrary quadratic equations and to find the solutions to two equations in two unknowns."});
    case TextKey::introTabConvert:
        return lines({u"There are about 300 currently available conversions which are easily accessed here. In addition, complex and custom conversions are facilitated. For example, if you wish to change seconds to hours in gallons/second or seconds/gallon, you would use the same conversion but apply it differently. This you can now do at the push of a button. You can also simply chain the conversions. In the current example you could now convert gallons to liters in either one, ending up with liters/hour or hours/liter."});
    case TextKey::introTabSearch:
        return lines({u"In AbaconB2 you can search for Physical and Astronomical Data. (Physical Data is the default. To search Astronomical Data, simply choose 'Astro Data' in the drop-down menu over the Target.)  You can search using your own words or you can search by using the keywords in a provided list. Having selected one of these terms you can add to it by selecting from a drop-down menu additional terms which go with the word you selected . For example if you select only 'electron' you will get all information available about the electron. Or you could use the drop-down menu next to the list to select 'mass' if all you want to know is the electron's mass."});
    case TextKey::introEmail:
        return lines({u"If your email client is configured to send mail, using this button woll open an email message addressed to Abacon with the word 'Abacon' (for handling purposes) in the subject heading and instructions in the body of the email advising on what information, if any, should be included."});
    case TextKey::introBack:
        return lines({u"If you are in the Desk Accessory mode and choose 'Settings' the window will open far enough to set and save your preferences. To return to the small window, use this button."});
    case TextKey::introDirections:
        return lines({u"The information displayed above will be instructions for whatever tab (activity) is chosen in the tab panel at the right. For each activity there is more information available, if needed, and can be accessed with this button. The information will be moved to the clipboard and can be read in the clipboard viewer under the 'Welcome' tab."});
    case TextKey::introReset:
        return lines({u"The 'Reset' button resets the clipboard viewer to the original text shown here (above) after it has been used to read a clipboard. This is not required."});
    }
    return {};
}

}  // namespace

const QString& text(TextKey key) {
    static const std::array<QString, kTextKeyCount> texts = [] {
        std::array<QString, kTextKeyCount> all;
        for (int i = 0; i < kTextKeyCount; ++i) all[i] = build(static_cast<TextKey>(i));
        return all;
    }();
    static const QString none;
    const int index = static_cast<int>(key);
    if (index < 0 || index >= kTextKeyCount) return none;
    return texts[index];
}

}  // namespace guidance
