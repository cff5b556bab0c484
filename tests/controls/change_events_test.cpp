// Assignments from code raise the change handler as a user's choice does: at once,
// once, and only when the value changes. Lists keep their selection sensible as rows
// come and go.

#include <gtest/gtest.h>

#include <functional>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"

namespace platform {
namespace {

// One control of each class with a change handler; every handler records the control's
// name and the value it saw.
struct Board {
  Board() {
    auto& popup = window.add<PopupMenu>({"PopupMenu2", ControlKind::PopupMenu, "Area\nLength\nTime"});
    popup.Change = [this, &popup] { seen.append("PopupMenu2=" + QString::number(popup.ListIndex())); };
    auto& list = window.add<Listbox>({"Listbox1", ControlKind::Listbox});
    for (const char* row : {"Area", "Length", "Time"}) list.AddRow(row);
    list.Change = [this, &list] { seen.append("Listbox1=" + QString::number(list.ListIndex())); };
    auto& tabs = window.add<TabPanel>({"TabPanel2", ControlKind::TabPanel, "Welcome\nCalculate\nSolve"});
    tabs.Change = [this, &tabs] { seen.append("TabPanel2=" + QString::number(tabs.Value())); };
    auto& pages = window.add<PagePanel>(
        {.name = "PagePanel1", .kind = ControlKind::PagePanel, .attributes = {{"PanelCount", 5}}});
    pages.Change = [this, &pages] { seen.append("PagePanel1=" + QString::number(pages.Value())); };
    auto& box = window.add<CheckBox>({"CheckBox1", ControlKind::CheckBox, "Purge Pretty"});
    box.Action = [this, &box] { seen.append(QStringLiteral("CheckBox1=") + (box.Value() ? "on" : "off")); };
    auto& radio = window.add<RadioButton>({"RadioButton4", ControlKind::RadioButton, "base 10"});
    radio.Action = [this, &radio] { seen.append(QStringLiteral("RadioButton4=") + (radio.Value() ? "on" : "off")); };
  }
  RecordingDesktop desktop;
  Window window{desktop};
  QStringList seen;
};

TEST(ChangeEvents, AssignmentRaisesTheHandlerOnceAndOnlyOnChange) {
  struct Row {
    const char* name;
    std::function<void(Window&)> assign;
    QStringList seen;
  };
  const Row rows[] = {
      {"popup ListIndex to another row", [](Window& w) { w.control<PopupMenu>("PopupMenu2").setListIndex(2); },
       {"PopupMenu2=2"}},
      {"popup ListIndex to the row shown", [](Window& w) { w.control<PopupMenu>("PopupMenu2").setListIndex(0); }, {}},
      {"popup ListIndex to none", [](Window& w) { w.control<PopupMenu>("PopupMenu2").setListIndex(-1); },
       {"PopupMenu2=-1"}},
      {"list box ListIndex from none to a row", [](Window& w) { w.control<Listbox>("Listbox1").setListIndex(1); },
       {"Listbox1=1"}},
      {"list box ListIndex -1 when none is selected", [](Window& w) { w.control<Listbox>("Listbox1").setListIndex(-1); },
       {}},
      {"list box Selected", [](Window& w) { w.control<Listbox>("Listbox1").setSelected(2, true); }, {"Listbox1=2"}},
      {"tab panel Value", [](Window& w) { w.control<TabPanel>("TabPanel2").setValue(2); }, {"TabPanel2=2"}},
      {"tab panel Value already shown", [](Window& w) { w.control<TabPanel>("TabPanel2").setValue(0); }, {}},
      {"page panel Value", [](Window& w) { w.control<PagePanel>("PagePanel1").setValue(4); }, {"PagePanel1=4"}},
      {"check box Value on", [](Window& w) { w.control<CheckBox>("CheckBox1").setValue(true); }, {"CheckBox1=on"}},
      {"check box Value off while off", [](Window& w) { w.control<CheckBox>("CheckBox1").setValue(false); }, {}},
      {"radio Value on", [](Window& w) { w.control<RadioButton>("RadioButton4").setValue(true); },
       {"RadioButton4=on"}},
      {"the same assignment twice raises once",
       [](Window& w) {
         w.control<TabPanel>("TabPanel2").setValue(1);
         w.control<TabPanel>("TabPanel2").setValue(1);
       },
       {"TabPanel2=1"}},
      {"assignment by name has the same effect",
       [](Window& w) { w.control("PopupMenu2").setProperty("ListIndex", "1"); }, {"PopupMenu2=1"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Board board;
    row.assign(board.window);
    EXPECT_EQ(board.seen, row.seen);
  }
}

TEST(ChangeEvents, HandlersNestBeforeTheFirstAssignmentReturns) {
  // Choosing a family refills the conversions and selects the first, whose own Change
  // must have run by the time the outer assignment returns.
  Board board;
  auto& family = board.window.control<PopupMenu>("PopupMenu2");
  auto& conversions = board.window.control<Listbox>("Listbox1");
  family.Change = [&] {
    conversions.DeleteAllRows();
    conversions.AddRow(family.Text() + " row");
    conversions.setListIndex(0);
  };
  family.setListIndex(1);
  EXPECT_EQ(board.seen, QStringList({"Listbox1=0"}));
  EXPECT_EQ(conversions.Text(), "Length row");
}

TEST(ChangeEvents, OutOfRangeValuesThrowAndChangeNothing) {
  Board board;
  EXPECT_THROW(board.window.control<PopupMenu>("PopupMenu2").setListIndex(3), OutOfBoundsException);
  EXPECT_THROW(board.window.control<Listbox>("Listbox1").setListIndex(-2), OutOfBoundsException);
  EXPECT_THROW(board.window.control<TabPanel>("TabPanel2").setValue(3), OutOfBoundsException);
  EXPECT_THROW(board.window.control<PagePanel>("PagePanel1").setValue(5), OutOfBoundsException);
  EXPECT_TRUE(board.seen.isEmpty());
  EXPECT_EQ(board.window.control<PopupMenu>("PopupMenu2").ListIndex(), 0);
}

TEST(PopupMenu, DeleteAllRowsWithASelectionIsAChange) {
  PopupMenu popup("popconvert");
  popup.setRows({"m->ft", "ft->m"});
  popup.setListIndex(1);
  QList<std::pair<int, int>> seen;  // ListIndex and ListCount inside Change
  popup.Change = [&] { seen.append({popup.ListIndex(), popup.ListCount()}); };
  popup.DeleteAllRows();
  EXPECT_EQ(seen, (QList<std::pair<int, int>>{{-1, 0}}));
  EXPECT_EQ(popup.Text(), "");
  popup.DeleteAllRows();
  EXPECT_EQ(seen.size(), 1) << "nothing was selected the second time";
}

TEST(PopupMenu, TextIsTheSelectedRow) {
  PopupMenu popup("PopupMenu2");
  EXPECT_EQ(popup.Text(), "");
  popup.AddRow("Number");
  popup.AddRow("Temperature");
  EXPECT_EQ(popup.Text(), "") << "adding rows selects nothing";
  popup.setListIndex(1);
  EXPECT_EQ(popup.Text(), "Temperature");
}

TEST(PopupMenu, CreationTextGivesTheDesignedRowsWithTheFirstShown) {
  RecordingDesktop desktop;
  Window window(desktop);
  auto& popup = window.add<PopupMenu>(
      {.name = "PopupMenu1", .kind = ControlKind::PopupMenu, .attributes = {{"InitialValue", "Optional Adds"}}});
  EXPECT_EQ(popup.ListCount(), 1);
  EXPECT_EQ(popup.Text(), "Optional Adds");
  EXPECT_EQ(popup.InitialValue(), "Optional Adds");
}

TEST(Lists, RemovingAndInsertingRowsMovesTheSelectionSensibly) {
  struct Row {
    const char* name;
    int selected;
    std::function<void(ListControl&)> edit;
    int listIndex;
    int changes;
  };
  const Row rows[] = {
      {"removing the selected row leaves none selected", 1, [](ListControl& l) { l.RemoveRow(1); }, -1, 1},
      {"removing a row above keeps the same row selected", 2, [](ListControl& l) { l.RemoveRow(0); }, 1, 0},
      {"removing a row below changes nothing", 0, [](ListControl& l) { l.RemoveRow(2); }, 0, 0},
      {"inserting above keeps the same row selected", 1, [](ListControl& l) { l.InsertRow(0, "new"); }, 2, 0},
      {"inserting below changes nothing", 1, [](ListControl& l) { l.InsertRow(3, "new"); }, 1, 0},
      {"deleting all rows leaves none selected", 0, [](ListControl& l) { l.DeleteAllRows(); }, -1, 1},
      {"replacing the rows by name leaves none selected", 2,
       [](ListControl& l) { l.setProperty("Rows", "x\ny"); }, -1, 1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Listbox list("Listbox3");
    list.setRows({"a", "b", "c"});
    list.setListIndex(row.selected);
    const QString selectedText = list.Text();
    int changes = 0;
    list.Change = [&] { ++changes; };
    row.edit(list);
    EXPECT_EQ(list.ListIndex(), row.listIndex);
    EXPECT_EQ(changes, row.changes);
    if (row.listIndex >= 0) {
      EXPECT_EQ(list.Text(), selectedText);
    }
  }
}

TEST(Lists, RowsOutsideTheListAreOutOfBounds) {
  struct Row {
    const char* name;
    std::function<void(Listbox&)> call;
  };
  const Row rows[] = {
      {"CellCheck of a missing row", [](Listbox& l) { (void)l.CellCheck(3, 1); }},
      {"CellCheck in the check column of a missing row", [](Listbox& l) { (void)l.CellCheck(-1); }},
      {"setting CellCheck of a missing row", [](Listbox& l) { l.setCellCheck(3, true); }},
      {"Cell of a missing row", [](Listbox& l) { (void)l.Cell(3, 0); }},
      {"Cell of a missing column", [](Listbox& l) { (void)l.Cell(0, 2); }},
      {"RemoveRow of a missing row", [](Listbox& l) { l.RemoveRow(3); }},
      {"InsertRow past the end", [](Listbox& l) { l.InsertRow(4, "x"); }},
      {"List of a missing row", [](Listbox& l) { (void)l.List(-1); }},
      {"a user's click on a missing row", [](Listbox& l) { l.userChoose(7); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Listbox list("Listbox3");
    list.setColumnCount(2);
    list.setRows({"a", "b", "c"});
    EXPECT_THROW(row.call(list), OutOfBoundsException);
    EXPECT_EQ(list.ListCount(), 3);
  }
}

TEST(Listbox, CellsAndChecksBelongToTheirRows) {
  Listbox list("Listbox3");
  list.setColumnCount(2);
  list.setColumnType(1, ColumnType::CheckBox);
  list.AddRow("sqrt(x^2+y^2):");
  list.AddRow(QStringList{"x*2:", "note"});
  EXPECT_EQ(list.LastIndex(), 1);
  list.setCellCheck(0, true);
  EXPECT_TRUE(list.CellCheck(0, 1));
  list.RemoveRow(0);
  EXPECT_EQ(list.Cell(0, 0), "x*2:");
  EXPECT_EQ(list.Cell(0, 1), "note");
  EXPECT_FALSE(list.CellCheck(0)) << "the check went with its row";
}

TEST(Listbox, AUsersClickSelectsTheRowThenRaisesCellClick) {
  Listbox list("Listbox4");
  list.setRows({"mass", "speed"});
  QStringList order;
  list.Change = [&] { order.append("Change"); };
  list.CellClick = [&](int row, int column) {
    order.append(QString("CellClick %1,%2 with ListIndex %3").arg(row).arg(column).arg(list.ListIndex()));
    return false;
  };
  list.userChoose(1);
  list.userChoose(1);
  EXPECT_EQ(order, QStringList({"Change", "CellClick 1,0 with ListIndex 1", "CellClick 1,0 with ListIndex 1"}));
  list.setEnabled(false);
  list.userChoose(0);
  EXPECT_EQ(list.ListIndex(), 1);
}

TEST(Listbox, AUsersCheckSetsTheCheckColumnUnlessCellClickClaimsIt) {
  Listbox list("Listbox3");
  list.setColumnCount(2);
  list.setColumnType(1, ColumnType::CheckBox);
  list.setRows({"a", "b"});
  bool claim = false;
  QList<int> columns;
  list.CellClick = [&](int, int column) {
    columns.append(column);
    return claim;
  };
  list.userCheck(1, true);
  EXPECT_TRUE(list.CellCheck(1, 1));
  claim = true;
  list.userCheck(0, true);
  EXPECT_FALSE(list.CellCheck(0, 1));
  EXPECT_EQ(columns, (QList<int>{1, 1}));
}

TEST(UserChoices, MouseDownComesFirstAndCanKeepTheMenuShut) {
  PopupMenu popup("popconvert");
  popup.setRows({"m->ft", "ft->m"});
  popup.setListIndex(0);
  QStringList order;
  bool claim = false;
  popup.MouseDown = [&](int, int) {
    order.append("MouseDown " + popup.Text());
    return claim;
  };
  popup.Change = [&] { order.append("Change " + popup.Text()); };
  popup.userChoose(1);
  claim = true;
  popup.userChoose(0);
  EXPECT_EQ(order, QStringList({"MouseDown m->ft", "Change ft->m", "MouseDown ft->m"}));
  EXPECT_EQ(popup.ListIndex(), 1);
}

TEST(UserChoices, ATabClickPressesAwayFromTheLeftEdge) {
  TabPanel tabs("TabPanel2");
  tabs.setTabDefinition("Welcome\nCalculate\nSolve\nConvert\nSearch");
  QStringList order;
  tabs.MouseDown = [&](int x, int) {
    order.append(x > 0 ? "MouseDown" : "MouseDown at 0");
    return false;
  };
  tabs.Change = [&] { order.append("Change " + QString::number(tabs.Value())); };
  tabs.userChoose(4);
  EXPECT_EQ(order, QStringList({"MouseDown", "Change 4"}));
  EXPECT_LT(tabs.tabPosition(0), tabs.tabPosition(1));
}

TEST(UserChoices, ADisabledControlIgnoresTheUser) {
  PopupMenu popup("PopupMenu1");
  popup.setRows({"Optional Adds", "light"});
  popup.setEnabled(false);
  int calls = 0;
  popup.MouseDown = [&](int, int) { return ++calls, false; };
  popup.Change = [&] { ++calls; };
  popup.userChoose(1);
  popup.userClick();
  popup.userLeave();
  EXPECT_EQ(calls, 0);
  EXPECT_EQ(popup.ListIndex(), -1);
}

}  // namespace
}  // namespace platform
