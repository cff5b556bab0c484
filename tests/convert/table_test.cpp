// Loading convert.txt into the flattened arrays and the four lists, the lookups by
// name, and what each broken file leaves behind.

#include <algorithm>
#include <functional>

#include "convert/convert_fixture.h"

namespace {

using convtest::category;
using convtest::ConvertFixture;
using convtest::row;
using convtest::table;

class Table : public ConvertFixture {};

TEST_F(Table, CategoriesShowSortedWhileTheArraysKeepFileOrder) {
  start(table(category("Time", row("h-&gt;s", "*3600") + row("min-&gt;s", "*60")) +
              category("Area", row("ft^2-&gt;m^2", "*0.09290304")) +
              category("Length", row("ft-&gt;m", "*0.3048") + row("in-&gt;cm", "*2.54"))));
  EXPECT_EQ(rowsOf(*window->PopupMenu2), (QStringList{"Area", "Length", "Time"}));
  EXPECT_EQ(rowsOf(*window->Listbox1), (QStringList{"Area", "Length", "Time"}));
  EXPECT_EQ(window->choices,
            (QStringList{"Time;h->s;min->s", "Area;ft^2->m^2", "Length;ft->m;in->cm"}));
  EXPECT_EQ(window->changeit,
            (QStringList{"Time;h->s:*3600;min->s:*60", "Area;ft^2->m^2:*0.09290304",
                         "Length;ft->m:*0.3048;in->cm:*2.54"}));
  // Row 0 is Area, whatever came first in the file.
  EXPECT_EQ(window->PopupMenu2->Text(), "Area");
  EXPECT_EQ(rowsOf(*window->popconvert), QStringList{"ft^2->m^2"});
  EXPECT_EQ(rowsOf(*window->Listbox2), QStringList{"ft^2->m^2"});
  EXPECT_EQ(window->convertit, "*0.09290304");
  EXPECT_EQ(window->iload, 1);
  EXPECT_TRUE(desktop.takeEvents().isEmpty());
}

TEST_F(Table, LookupsByName) {
  struct Row {
    const char* name;
    QString file;
    QStringList rows;  // popconvert after choosing the first category
    int choose;        // then this row of popconvert
    QString convertit;
  };
  const Row rows[] = {
      {"two List elements run together",
       table("<Category><Name>Mass</Name><List>" + row("kg-&gt;g", "*1000") + "</List><List>" +
             row("lb-&gt;kg", "*0.4535924") + "</List></Category>"),
       {"kg->g", "lb->kg"},
       1,
       "*0.4535924"},
      {"a value containing : is cut",
       table(category("Odd", row("a-&gt;b", "a:b"))),
       {"a->b"},
       0,
       "a"},
      {"a row without convert gives an empty value",
       table(category("Odd", "<SubList>a-&gt;b</SubList>")),
       {"a->b"},
       0,
       ""},
      {"two rows of one name give the value of the first",
       table(category("Power", row("hp-&gt;W", "*745.7") + row("hp-&gt;W", "*746"))),
       {"hp->W", "hp->W"},
       1,
       "*745.7"},
      {"rows differing by case are one name to the lookup",
       table(category("Power", row("MW-&gt;W", "*1000000") + row("mW-&gt;W", "/1000"))),
       {"MW->W", "mW->W"},
       1,
       "*1000000"},
      {"two categories of one name show the rows of both",
       table(category("Power", row("hp-&gt;W", "*745.7")) +
             category("Power", row("kW-&gt;W", "*1000") + row("hp-&gt;W", "*746"))),
       {"hp->W", "kW->W", "hp->W"},
       2,
       "*745.7"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    start(r.file);
    EXPECT_EQ(rowsOf(*window->popconvert), r.rows);
    EXPECT_EQ(rowsOf(*window->Listbox2), r.rows);
    window->Listbox2->userChoose(r.choose);
    EXPECT_EQ(window->popconvert->ListIndex(), r.choose);
    EXPECT_EQ(window->convertit, r.convertit);
  }
}

TEST_F(Table, ChoosingACategorySelectsItsFirstConversionAtOnce) {
  start(table(category("Length", row("ft-&gt;m", "*0.3048")) +
              category("Power", row("hp-&gt;W", "*745.7") + row("kW-&gt;W", "*1000"))));
  newLogLines();
  window->PopupMenu2->setListIndex(1);
  EXPECT_EQ(window->convertit, "*745.7");
  EXPECT_EQ(window->popconvert->ListIndex(), 0);
  EXPECT_EQ(window->Listbox2->ListIndex(), 0);
  EXPECT_EQ(newLogLines(), QStringList{">>Power"});
  // The mirroring runs from list box to popup only.
  EXPECT_EQ(window->Listbox1->ListIndex(), -1);

  window->Listbox1->userChoose(0);
  EXPECT_EQ(window->PopupMenu2->Text(), "Length");
  EXPECT_EQ(window->convertit, "*0.3048");
  EXPECT_EQ(newLogLines(), QStringList{">>Length"});
}

TEST_F(Table, TheMousePressLogsTheRowShownBeforeTheMenu) {
  start(table(category("Power", row("hp-&gt;W", "*745.7") + row("kW-&gt;W", "*1000"))));
  newLogLines();
  window->popconvert->userChoose(1);
  EXPECT_EQ(newLogLines(), QStringList{">hp->W"});
  EXPECT_EQ(window->popcon, 1);
  EXPECT_EQ(window->convertit, "*1000");

  struct Row {
    const char* name;
    int wincon;
    QString caption;
    int popconAfter;
  };
  const Row rows[] = {
      {"leaving in the expanded window keeps the flag", 1, "Settings", 1},
      {"leaving under another caption keeps the flag", 0, "Convert", 1},
      {"leaving the small window under Settings clears it", 0, "Settings", 0},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    window->popcon = 1;
    window->wincon = r.wincon;
    window->BevelButton1->setCaption(r.caption);
    window->popconvert->userLeave();
    EXPECT_EQ(window->popcon, r.popconAfter);
  }
}

TEST_F(Table, BrokenFilesLeaveTheProgramRunning) {
  const QString unhandled = "msgbox An unexpected problem occurred and was stopped: ";
  struct Row {
    const char* name;
    std::function<void()> prepare;
    // The report of the load: an event that starts and ends so. The other data files
    // report for themselves.
    QString reportStart;
    QString reportEnd;
    QStringList categories;
    QString startupLine;
  };
  const Row rows[] = {
      {"no support folder",
       [] {},
       "msgbox FolderItem convert.txt does not exist! See startup log",
       "",
       {},
       "Conversion Data from XML file not loaded"},
      {"a folder without the file",
       [this] { writeFile("ApplicationData/VXKSupport/other.txt", "x"); },
       unhandled + "NilObjectException",
       "VXKSupport/convert.txt",
       {},
       "Conversion Data from XML file loaded"},
      {"malformed XML",
       [this] { writeFile("ApplicationData/VXKSupport/convert.txt", "<Conversions><Category>"); },
       "msgbox Error in reading XML file in Application Data",
       "",
       {},
       "Conversion Data from XML file loaded"},
      {"a category without a name keeps the rows made so far, unsorted",
       [this] {
         writeFile("ApplicationData/VXKSupport/convert.txt",
                   table(category("Time", row("h-&gt;s", "*3600")) +
                         category("Area", row("ft^2-&gt;m^2", "*0.0929")) + "<Category><List>" +
                         row("a-&gt;b", "*2") + "</List></Category>"));
       },
       unhandled + "NilObjectException",
       "",
       {"Time", "Area"},
       "Conversion Data from XML file loaded"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    r.prepare();
    writeFile("Preferences/VXKInstr", "do not show");
    program = std::make_unique<app::App>(desktop);
    program->_Startup();
    window = program->window1();
    ASSERT_NE(window, nullptr);
    const QStringList events = desktop.takeEvents();
    EXPECT_TRUE(std::any_of(events.begin(), events.end(), [&r](const QString& e) {
      return e.startsWith(r.reportStart) && e.endsWith(r.reportEnd);
    })) << events.join(" | ").toStdString();
    EXPECT_EQ(rowsOf(*window->PopupMenu2), r.categories);
    EXPECT_EQ(window->iload, 0);
    EXPECT_TRUE(window->convertit.isEmpty());
    EXPECT_TRUE(window->EditField2->Text().contains(r.startupLine + "\n"));
    // The program goes on: the calculator still works.
    window->BevelButton1->setCaption("Calculate");
    window->EditField4->setText("1+1");
    window->PushButton40->Push();
    EXPECT_EQ(window->EditField5->Text(), "2 ");
    program.reset();
    desktop.takeEvents();
    QDir(home.path()).removeRecursively();
  }
}

TEST_F(Table, AnEmptyFamilyListWithoutATable) {
  startWithoutTable();
  EXPECT_TRUE(window->choices.isEmpty());
  EXPECT_EQ(window->popconvert->ListCount(), 0);
  EXPECT_EQ(window->Listbox2->ListCount(), 0);
}

}  // namespace
