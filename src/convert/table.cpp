#include "app/window1.h"
#include "platform/desktop/desktop.h"
#include "platform/files/folders.h"
#include "platform/strings/strings.h"
#include "platform/xml/xml.h"

namespace app {

using platform::NthField;
using platform::StrEq;

namespace {

// Only whether a handle comes back is asked, never Exists: a support folder without
// the file passes, and the open that follows reports for itself.
platform::FolderItem convertFile() {
  const platform::FolderItem data = platform::SpecialFolder::ApplicationData();
  const platform::FolderItem support = data.isNil() ? data : data.Child("VXKSupport");
  return support.isNil() ? support : support.Child("convert.txt");
}

}  // namespace

// The table is read once, into two arrays of flattened strings, one entry per category
// in file order: choices is "name;row;row", changeit "name;row:value;row:value". The
// lists show the categories sorted, so everything looks rows up by name, never by
// number.
void Window1::PopupMenu2_Open() {
  const platform::FolderItem file = convertFile();
  if (file.isNil()) {
    desktop().msgBox("FolderItem convert.txt does not exist! See startup log");
    return;
  }
  // Reading lies outside the XML handler: a file that cannot be opened is a fault of
  // another kind.
  platform::TextInputStream in = file.OpenAsTextFile();
  const QString text = platform::ReplaceLineEndings(in.ReadAll(), platform::EndOfLine());
  in.Close();

  try {
    const platform::XmlDocument xml(text);
    const platform::XmlNodeList categories = xml.Child(0).Xql("Category");
    PopupMenu2->DeleteAllRows();
    for (int i = 0; i <= categories.Length() - 1; ++i) {
      const platform::XmlNode category = categories.Item(i);
      const platform::XmlNodeList names = category.Xql("Name");
      const platform::XmlNodeList rows = category.Xql("List/SubList");
      // A category without a name is no XML fault: Value of the missing node raises
      // its own exception, which this handler lets pass.
      const QString name = names.Item(0).Child(0).Value();
      PopupMenu2->AddRow(name);
      Listbox1->AddRow(name);
      QString plain;
      QString valued;
      for (int j = 0; j <= rows.Length() - 1; ++j) {
        const platform::XmlNode row = rows.Item(j);
        const QString rowName = row.Child(0).Value();
        plain += ";" + rowName;
        valued += ";" + rowName + ":" + row.GetAttribute("convert");
        // Provisional: the sort below puts the rows of the first sorted category here.
        if (i == 0) {
          popconvert->AddRow(rowName);
          Listbox2->AddRow(rowName);
          if (j == rows.Length() - 1) {
            popconvert->setListIndex(0);
            Listbox2->setListIndex(0);
          }
        }
      }
      choices.append(name + plain);
      changeit.append(name + valued);
    }
    popmenu();
    PopupMenu2->setListIndex(0);
    PopupMenu2->setListIndex(0);
    iload = 1;
  } catch (const platform::XmlException&) {
    desktop().msgBox("Error in reading XML file in Application Data");
  }
}

// Sorts the two category lists only; the arrays keep the file's order. A row's text is
// read through the selection, and each selection refills the conversion lists, quietly
// while iload is 0.
void Window1::popmenu() {
  const int count = PopupMenu2->ListCount();
  QStringList names;
  for (int row = 0; row <= count - 1; ++row) {
    PopupMenu2->setListIndex(row);
    names.append(PopupMenu2->Text());
  }
  platform::Sort(names);
  PopupMenu2->DeleteAllRows();
  Listbox1->DeleteAllRows();
  for (const QString& name : names) {
    PopupMenu2->AddRow(name);
    Listbox1->AddRow(name);
  }
}

// Every category of the chosen name contributes its rows, so two categories of one
// name show as one run of rows.
void Window1::PopupMenu2_Change() {
  if (iload != 0) log(">>" + PopupMenu2->Text());
  if (PopupMenu2->ListCount() == 0) return;
  popconvert->DeleteAllRows();
  Listbox2->DeleteAllRows();
  const QString family = PopupMenu2->Text();
  for (const QString& entry : choices) {
    if (!StrEq(NthField(entry, ";", 1), family)) continue;
    // Split once: field k by NthField would rescan the entry from its start, and a
    // category of many thousand rows would take minutes to show.
    const QStringList fields = platform::Split(entry, ";");
    for (qsizetype k = 1; k < fields.size(); ++k) {
      popconvert->AddRow(fields[k]);
      Listbox2->AddRow(fields[k]);
    }
  }
  popconvert->setListIndex(0);
  Listbox2->setListIndex(0);
}

// The only writer of convertit. The first row of that name in the first category of
// that name wins, case ignored; a value is what stands between the first ":" and the
// next one.
void Window1::popconvert_Change() {
  if (popconvert->ListCount() == 0) return;
  const QString family = PopupMenu2->Text();
  const QString conversion = popconvert->Text();
  for (const QString& entry : changeit) {
    if (!StrEq(NthField(entry, ";", 1), family)) continue;
    const QStringList fields = platform::Split(entry, ";");
    for (qsizetype k = 1; k < fields.size(); ++k) {
      const QString& field = fields[k];
      if (StrEq(NthField(field, ":", 1), conversion)) {
        convertit = NthField(field, ":", 2);
        return;
      }
    }
  }
}

// The row logged is the one shown before the menu opens; the row then chosen gets no
// line of its own.
bool Window1::popconvert_MouseDown(int, int) {
  popcon = 1;
  log(">" + popconvert->Text());
  return false;
}

void Window1::popconvert_MouseExit() {
  if (wincon == 0 && StrEq(BevelButton1->Caption(), "Settings") && popcon == 1) popcon = 0;
}

// The list boxes of the Convert tab only pass a click on to the popups, by row number.
bool Window1::Listbox1_CellClick(int row, int) {
  PopupMenu2->setListIndex(row);
  return false;
}

bool Window1::Listbox2_CellClick(int row, int) {
  popconvert->setListIndex(row);
  return false;
}

}  // namespace app
