#include "calc/rewrite.h"

#include "app/app.h"
#include "app/window1.h"
#include "platform/regex/regex.h"
#include "platform/strings/strings.h"

namespace calc {

using platform::Chr;
using platform::InStr;
using platform::ReplaceAll;

QString stripBlanksAndCommas(const QString& text) {
  return ReplaceAll(ReplaceAll(text, " ", ""), ",", "");
}

QString purgePretty(const QString& text) {
  QString t = ReplaceAll(text, Chr(8212), "-");
  t = ReplaceAll(t, Chr(197), "x");
  t = ReplaceAll(t, "~", "");
  t = ReplaceAll(t, Chr(8211), "-");
  return ReplaceAll(t, Chr(215), "x");
}

QString scientificForm(const QString& text) { return ReplaceAll(text, "x10", "e"); }

QString logBase10(const QString& text) {
  if (InStr(text, "log") == 0) return text;
  return ReplaceAll(text, "log", "0.4342945*log");
}

QString degrees(const QString& text) {
  struct Pair {
    const char* inverse;
    const char* inverseBy;
    const char* plain;
    const char* plainBy;
  };
  // The inverse is tested first: it contains the plain name, and where it stands the
  // plain function is left alone.
  static const Pair pairs[] = {
      {"Asin(", "(180/PI)*Asin(", "sin(", "sin((PI/180)*"},
      {"Acos(", "(180/PI)*Acos(", "cos(", "cos((PI/180)*"},
      {"Atan(", "(180/PI)*Atan(", "tan(", "tan((PI/180)*"},
  };
  QString t = text;
  for (const Pair& pair : pairs) {
    if (InStr(t, pair.inverse) > 0) {
      t = ReplaceAll(t, pair.inverse, pair.inverseBy);
    } else if (InStr(t, pair.plain) > 0) {
      t = ReplaceAll(t, pair.plain, pair.plainBy);
    }
  }
  return t;
}

QString factorials(const QString& text) {
  QString t = text;
  platform::RegEx re;
  re.SearchPattern = QStringLiteral("\\d+!");
  // Search() goes on in the text of the first search, not in t as it is being
  // rewritten: a later match whose text is already gone replaces nothing.
  for (std::optional<platform::RegExMatch> match = re.Search(t); match; match = re.Search()) {
    const QString found = match->SubExpressionString(0);
    t = ReplaceAll(t, found, factorial(platform::ToInt32(platform::Val(found))));
  }
  return t;
}

QString piDigits(const QString& text) {
  if (InStr(text, "PI") == 0) return text;
  return ReplaceAll(text, "PI", "3.1415926535897932384626433832795");
}

QString factorial(qint32 n) {
  if (n == 0) return QStringLiteral("1");
  if (n < 0) return QString();
  // Unsigned, so the wrap is the two's complement one and not undefined. Once the
  // product is 0 it stays 0, so the loop may stop there with the same answer.
  quint32 result = 1;
  while (n > 1 && result != 0) {
    result *= static_cast<quint32>(n);
    --n;
  }
  return platform::Str(static_cast<qint32>(result));
}

}  // namespace calc

namespace app {

std::optional<QString> Window1::cleanStages(const QString& text, PurgeOff purgeOff) {
  QString t = calc::stripBlanksAndCommas(text);
  if (CheckBox1->Value()) {
    // The copy is taken after the blanks are gone: removing them is no purge.
    const QString before = t;
    t = calc::purgePretty(t);
    if (!platform::StrEq(t, before)) log("Unprettfied: " + t);
  } else if (purgeOff == PurgeOff::Stop) {
    app().playClaves();
    return std::nullopt;
  }
  return calc::scientificForm(t);
}

QString Window1::conversionNumber(const QString& text) {
  if (platform::StrEq(BevelButton1->Caption(), "convert") &&
      !platform::StrEq(PopupMenu2->Text(), "Number")) {
    return platform::Str(platform::Val(text));
  }
  return text;
}

void Window1::calculateStages(const QString& text) {
  unt = " ";
  QString t = text;
  if (RadioButton4->Value()) t = calc::logBase10(t);
  if (RadioButton2->Value()) t = calc::degrees(t);
  t = calc::factorials(t);
  // After the degrees: their factors are written with PI.
  t = calc::piDigits(t);
  EditField1->setText(t);
  PushButton1->Push();
}

QString Window1::fact(qint32 n) { return calc::factorial(n); }

}  // namespace app
