#include <algorithm>

#include "app/window1.h"
#include "platform/files/folders.h"
#include "platform/strings/strings.h"

// The settings live in their controls; nothing here keeps a copy. Saving writes the
// controls out as one line, restoring sets them back through their values, so every
// control that changes logs its line as a click would.

namespace app {

namespace {

const QString kPreferencesName = QStringLiteral("VXKPreferences");

// The fields of the line, in their order.
enum Field { Trig, LogBase, Search, MathMode, PurgePretty, UseClipboard, Family, Conversion };
constexpr int kFieldCount = Conversion + 1;

QString pairField(bool firstOn) {
  return firstOn ? QStringLiteral("True,False") : QStringLiteral("False,True");
}

QString flagField(bool on) { return on ? QStringLiteral("True") : QStringLiteral("False"); }

// The partner is turned off explicitly as well, so the pair never ends with both on,
// whatever the group does on its own.
void choose(platform::RadioButton& on, platform::RadioButton& off) {
  on.setValue(true);
  off.setValue(false);
}

// The file is only written by us with rows that existed then; a row that is gone now
// (a shorter conversion table) leaves the list as it is rather than failing the start.
void selectRow(platform::ListControl& list, int row) {
  if (row >= -1 && row < list.ListCount()) list.setListIndex(row);
}

platform::FolderItem preferencesItem() {
  const platform::FolderItem folder = platform::SpecialFolder::Preferences();
  return folder.isNil() ? platform::FolderItem() : folder.Child(kPreferencesName);
}

}  // namespace

void Window1::PushButton42_Action() {
  const QStringList fields = {
      pairField(RadioButton1->Value()),
      pairField(RadioButton3->Value()),
      pairField(RadioButton5->Value()),
      pairField(normbutton->Value()),
      flagField(CheckBox1->Value()),
      flagField(CheckBox2->Value()),
      platform::Str(PopupMenu2->ListIndex()),
      platform::Str(popconvert->ListIndex()),
  };
  // A missing preferences folder is not ours to handle: Child of it is Nil and the
  // write fails as the platform's fault.
  const platform::FolderItem item =
      platform::SpecialFolder::Preferences().Child(kPreferencesName);
  // CreateTextFile replaces the old file only at Close, so a failed save leaves the
  // previous settings whole.
  platform::TextOutputStream out = item.CreateTextFile();
  out.Write(fields.join(QLatin1Char(';')));
  out.Close();
  log("--Preferences Saved");
}

void Window1::restorePreferences() {
  const platform::FolderItem item = preferencesItem();
  if (item.isNil() || !item.Exists() || item.Directory()) return;
  platform::TextInputStream in = item.OpenAsTextFile();
  const QString line = in.ReadLine();
  in.Close();

  // Fewer fields leave the rest at their defaults; more are ignored. Only the first
  // piece of a pair counts, compared as the language compares ("true" is "True").
  const QStringList fields = platform::Split(line, ";");
  const int count = std::min<int>(fields.size(), kFieldCount);
  for (int index = 0; index < count; ++index) {
    const QString& field = fields[index];
    const bool firstOn = platform::StrEq(platform::Split(field, ",").value(0), "True");
    switch (index) {
      case Trig:
        firstOn ? choose(*RadioButton1, *RadioButton2) : choose(*RadioButton2, *RadioButton1);
        break;
      case LogBase:
        firstOn ? choose(*RadioButton3, *RadioButton4) : choose(*RadioButton4, *RadioButton3);
        break;
      case Search:
        firstOn ? choose(*RadioButton5, *RadioButton6) : choose(*RadioButton6, *RadioButton5);
        break;
      case MathMode:
        firstOn ? choose(*normbutton, *scibutton1) : choose(*scibutton1, *normbutton);
        break;
      case PurgePretty:
        CheckBox1->setValue(platform::StrEq(field, "True"));
        break;
      case UseClipboard:
        CheckBox2->setValue(platform::StrEq(field, "True"));
        break;
      // The family comes first because choosing it refills popconvert, which would
      // undo a conversion restored before it.
      case Family: {
        const int row = platform::ToInt32(platform::Val(field));
        selectRow(*PopupMenu2, row);
        selectRow(*Listbox1, row);
        break;
      }
      case Conversion: {
        const int row = platform::ToInt32(platform::Val(field));
        selectRow(*popconvert, row);
        selectRow(*Listbox2, row);
        break;
      }
    }
  }
}

// The settings' own handlers only log: the value takes effect because the code that
// needs it reads the control.
void Window1::normbutton_Action() { log("Chose Normal Math Mode"); }
void Window1::scibutton1_Action() { log("Chose Scientific  Math Mode"); }
void Window1::RadioButton3_Action() { log("Chose Base e log"); }
void Window1::RadioButton4_Action() { log("Chose Base 10 log"); }
void Window1::RadioButton1_Action() { log("Chose radians"); }
void Window1::RadioButton2_Action() { log("Chose degrees"); }
void Window1::RadioButton5_Action() { log("Chose Smart Search"); }
void Window1::RadioButton6_Action() { log("Chose literal search"); }

void Window1::CheckBox1_Action() {
  log(CheckBox1->Value() ? "PurgePretty Activated" : "Purge Pretty Dectivated");
}

void Window1::CheckBox2_Action() {
  log(CheckBox2->Value() ? "Chose use clipboard for conversions."
                         : "Chose do not use clipboard for conversions.");
}

}  // namespace app
