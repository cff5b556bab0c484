#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/exceptions.h"
#include "platform/strings/strings.h"

namespace app {

using platform::StrEq;

namespace {

// The text after the first "->" of a row's name, up to any second one. A name
// without "->" (or no row at all) has no element 1, and the access fails as the
// framework's array access does.
QString targetUnit(const QString& rowName) {
  const QStringList parts = platform::Split(rowName, "->");
  if (parts.size() < 2) {
    throw platform::OutOfBoundsException("no unit after \"->\" in the conversion \"" + rowName +
                                         "\"");
  }
  return parts.at(1);
}

// The temperature rows are known by their text; the file only has to hold them. Their
// attribute convert is never read.
struct TemperatureRule {
  const char* row;
  const char* before;  // text in front of the number
  const char* after;   // text behind it
};
const TemperatureRule kTemperatureRules[] = {
    {"Fahrenheit(F)->C", "(", "-32)/1.8"},
    {"Celsius/Centigrade(C)->F", "", "*1.8+32"},
    {"Kelvin(K)->C", "", "-273.15"},
    {"C->K", "", "+273.15"},
    {"Rankine(R)->F", "", "-459.67"},
    {"F->R", "", "+459.67"},
    {"R->K", "", "/1.8"},
    {"K->R", "", "*1.8"},
    {"F->K", "((", "-32)/1.8)+273.15"},
    {"K->F", "(", "-273.15)*1.8+32"},
};

}  // namespace

void Window1::convertPath(const QString& number, RunBlink runBlink) {
  const QString family = PopupMenu2->Text();
  if (StrEq(family, "Number")) {
    evconvert2(number);
    return;
  }
  const QString formula = StrEq(family, "Temperature")
                              ? evconvert3(number)
                              : number + evconvert(PopupMenu2->ListIndex());
  EditField1->setText(formula);
  if (runBlink == RunBlink::BeforeRun) blink();
  PushButton1->Push();
}

// The caller appends the value to the number; nothing here sees the number.
QString Window1::evconvert(int) {
  unt = " " + targetUnit(popconvert->Text());
  return convertit;
}

// There is no Val here: the formula is put together as text and the script does the
// arithmetic. Between Celsius and Rankine there is no rule: the empty formula then
// fails to compile, and says so in the log.
QString Window1::evconvert3(const QString& n) {
  unt = " " + targetUnit(popconvert->Text());
  const QString row = popconvert->Text();
  for (const TemperatureRule& rule : kTemperatureRules) {
    if (StrEq(row, QString::fromLatin1(rule.row))) {
      return QString::fromLatin1(rule.before) + n + QString::fromLatin1(rule.after);
    }
  }
  return QString();
}

// Number bases are done here at once, without the script, so Normal and Scientific
// give the same text, and no unit goes behind it. Towards decimal the answer is Str of
// a double: seven significant digits, so FFFFFF comes back as 1.677722e+7.
void Window1::evconvert2(const QString& s) {
  platform::Clipboard clipboard(desktop());
  // Rounded half away from zero, so 2.5 is 3, then cut to 32 bits.
  const qint32 n = platform::ToInt32(platform::Round(platform::Val(s)));
  const QString row = popconvert->Text();
  std::optional<QString> r;
  if (StrEq(row, "Decimal(Integer)->Hex")) {
    r = platform::Hex(n);
  } else if (StrEq(row, "Hex->Decimal")) {
    r = platform::Str(platform::Val("&h" + s));
  } else if (StrEq(row, "Decimal->Oct")) {
    r = platform::Oct(n);
  } else if (StrEq(row, "Oct->Decimal")) {
    r = platform::Str(platform::Val("&o" + s));
  } else if (StrEq(row, "Decimal->Binary")) {
    r = platform::Bin(n);
  } else if (StrEq(row, "Binary->Decimal")) {
    r = platform::Str(platform::Val("&b" + s));
  }
  if (r) {
    clipboard.setText(*r);
    EditField5->setText(*r);
    log("Output:" + *r);
  }
  // An unknown row still blinks and beeps.
  if (CheckBox2->Value()) blink();
  clipboard.Close();
  desktop().beep();
}

// CheckBox2_Action only logs; it is with the other settings in preferences.cpp.

}  // namespace app
