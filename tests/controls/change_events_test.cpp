// Assignments from code raise the change handler as a user's choice does: at once,
// once, and only when the value changes. Lists keep their selection sensible as rows
// come and go.

#include <gtest/gtest.h>

#include <functional>

#include "platform/controls/controls.h"
#include "platform/desktop/recording_desktop.h"
#include "support/printers.h"

namespace platform {
namespace {

// One control of each class with a change handler; every handler records the control's
// name and the value it saw.
struct Board {
  Board() {
    auto& popup = window.add<PopupMenu>({"PopupMenu2", ControlKind::PopupMenu, "Area\nLength\nTime"});
    popup.Change = [this, &popup] { seen.append("PopupMenu2=" + QString::number(popup.ListIndex())); };
    auto& list = window.add<Listbox>({"Listbox1", ControlKind::Listbox});
    list.setRows({"Area", "Length", "Time"});
    list.Change = [this, &list] { seen.append("Listbox1=" + QString::number(list.ListIndex())); };
    auto& tabs = window.add<TabPanel>({"TabPanel2", ControlKind::TabPanel, "Welcome\nCalculate\nSolve"});
    tabs.Change = [this, &tabs] { seen.append("TabPanel2=" + QString::number(tabs.Value())); };
    auto& pages = window.add<PagePanel>(
        {.name = "PagePanel1", .kind = ControlKind::PagePanel, .attributes = {{"PanelCount", 5}}});
    pages.Change = [this, &pages] { seen.append("PagePanel1=" + QString::number(pages.Value())); };
    auto& box = window.add<CheckBox>({"CheckBox1", ControlKind::CheckBox, "Purge Pretty"});
    box.Action = [this, &box] { seen.append(QString("CheckBox1=") + (box.Value() ? "on" : "off")); };
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
      {"popup ListIndex to none", [](Window& w) { w.control<PopupMenu>("PopupMenu2").setListIndex(-1); },
       {"PopupMenu2=-1"}},
      {"list box ListIndex -1 when none is selected", [](Window& w) { w.control<Listbox>("Listbox1").setListIndex(-1); },
       {}},
      {"list box Selected", [](Window& w) { w.control<Listbox>("Listbox1").setSelected(2, true); }, {"Listbox1=2"}},
      {"tab panel Value", [](Window& w) { w.control<TabPanel>("TabPanel2").setValue(2); }, {"TabPanel2=2"}},
      {"check box Value on", [](Window& w) { w.control<CheckBox>("CheckBox1").setValue(true); }, {"CheckBox1=on"}},
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
  Board board;
  EXPECT_THROW(board.window.control<PopupMenu>("PopupMenu2").setListIndex(3), OutOfBoundsException);
  EXPECT_THROW(board.window.control<Listbox>("Listbox1").setListIndex(-2), OutOfBoundsException);
  EXPECT_THROW(board.window.control<TabPanel>("TabPanel2").setValue(3), OutOfBoundsException);
  EXPECT_THROW(board.window.control<PagePanel>("PagePanel1").setValue(5), OutOfBoundsException);
  EXPECT_TRUE(board.seen.isEmpty()) << "an out-of-range value changes nothing";
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
      {"inserting above keeps the same row selected", 1, [](ListControl& l) { l.InsertRow(0, "new"); }, 2, 0},
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
    EXPECT_TRUE(row.listIndex < 0 || list.Text() == selectedText) << "the same row stays selected";
  }
}

TEST(Listbox, CellsAndChecksBelongToTheirRowsAndOnlyRowsThatExist) {
  Listbox list("Listbox3");
  list.setColumnCount(2);
  list.setColumnType(1, ColumnType::CheckBox);
  list.AddRow("sqrt(x^2+y^2):");
  list.AddRow(QStringList{"x*2:", "note"});
  list.setCellCheck(0, true);
  list.RemoveRow(0);
  EXPECT_EQ(list.Cell(0, 1), "note");
  EXPECT_FALSE(list.CellCheck(0)) << "the check went with its row";
  const std::function<void()> outside[] = {
      [&] { (void)list.CellCheck(1, 1); }, [&] { list.setCellCheck(-1, true); },
      [&] { (void)list.Cell(0, 2); },      [&] { list.RemoveRow(1); },
      [&] { list.InsertRow(2, "x"); },     [&] { list.userChoose(7); },
  };
  for (const auto& call : outside) EXPECT_THROW(call(), OutOfBoundsException);
  EXPECT_EQ(list.ListCount(), 1);
}

}  // namespace
}  // namespace platform
