#pragma once
// Controls that hold rows: PopupMenu and Listbox. ListIndex is the selected row, -1 for
// none. Assigning it raises Change at once when it changes, as a user's choice does;
// so does any loss of the selection: removing the selected row or all rows leaves
// ListIndex -1, and Change runs after the rows are gone. Rows removed or inserted above
// the selection keep the same row selected without a Change.

#include <vector>

#include "platform/controls/control.h"

namespace platform {

class ListControl : public Control {
 public:
  using Control::Control;

  std::function<void()> Change;

  void AddRow(const QString& text);
  // `row` from 0 to ListCount; OutOfBoundsException beyond.
  void InsertRow(int row, const QString& text);
  void RemoveRow(int row);
  void DeleteAllRows();

  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The row last added or inserted; -1 before any.
  int LastIndex() const { return lastIndex_; }
  // The text of a row (its first cell); OutOfBoundsException outside the rows.
  QString List(int row) const;

  int ListIndex() const { return listIndex_; }
  // -1 to ListCount - 1; OutOfBoundsException for anything else.
  void setListIndex(int index);

  // The text of the selected row; empty when nothing is selected.
  QString Text() const;

  // All rows at once: each row's cells joined by tabs, trailing empty cells left out,
  // rows joined by "\n". Assigning replaces every row, as DeleteAllRows and AddRow do.
  QString RowsText() const;
  void setRows(const QStringList& rows);

  // The rows of the control's design, one per line (the creation text); assigning it
  // puts those rows in place and, for a popup menu, selects the first.
  QString InitialValue() const { return initialValue_; }
  void setInitialValue(const QString& text);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();
  void applyCreationText(const QString& text) override;

 protected:
  struct Row {
    QStringList cells;
    QList<bool> checks;
  };
  // At least one cell per row; Listbox widens them to its columns.
  virtual int cellsPerRow() const { return 1; }
  Row makeRow(const QString& first) const;
  void checkRow(int row, const char* what) const;
  std::vector<Row>& rows() { return rows_; }
  const std::vector<Row>& rows() const { return rows_; }
  virtual bool selectsFirstInitialRow() const { return false; }
  // One row of the Rows text; Listbox splits it into cells at tabs.
  virtual void addRowText(const QString& text) { AddRow(text); }

 private:
  std::vector<Row> rows_;
  int listIndex_ = -1;
  int lastIndex_ = -1;
  QString initialValue_;
};

class PopupMenu : public ListControl {
 public:
  static constexpr ControlKind Kind = ControlKind::PopupMenu;
  explicit PopupMenu(const QString& name) : ListControl(name, Kind) {}

  // A user's choice of a row: MouseDown first, in the middle of the control; unless it
  // claims the press, the menu opens and the row becomes ListIndex (Change when it
  // differs from the row shown).
  void userChoose(int row) override;

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 protected:
  bool selectsFirstInitialRow() const override { return true; }
};

enum class ColumnType { Normal, CheckBox };

class Listbox : public ListControl {
 public:
  static constexpr ControlKind Kind = ControlKind::Listbox;
  explicit Listbox(const QString& name) : ListControl(name, Kind) {}

  // A click in a cell; true means the click is dealt with.
  std::function<bool(int row, int column)> CellClick;

  void AddRow(const QStringList& cells);
  using ListControl::AddRow;

  // From 1 to 64; rows keep their cells of the columns that remain.
  int ColumnCount() const { return columnCount_; }
  void setColumnCount(int count);
  // As the toolkit reads them, e.g. "90%,10%".
  QString ColumnWidths() const { return columnWidths_; }
  void setColumnWidths(const QString& widths);
  ColumnType columnType(int column) const;
  void setColumnType(int column, ColumnType type);
  // The first check-box column; 0 when no column is one.
  int checkColumn() const;

  // Cells and check boxes; a row or column outside the list is an OutOfBoundsException.
  QString Cell(int row, int column) const;
  void setCell(int row, int column, const QString& text);
  bool CellCheck(int row, int column) const;
  void setCellCheck(int row, int column, bool on);
  // In the check-box column.
  bool CellCheck(int row) const { return CellCheck(row, checkColumn()); }
  void setCellCheck(int row, bool on) { setCellCheck(row, checkColumn(), on); }

  bool Selected(int row) const;
  void setSelected(int row, bool on);

  bool GridLinesHorizontal() const { return gridLinesHorizontal_; }
  void setGridLinesHorizontal(bool on);
  bool GridLinesVertical() const { return gridLinesVertical_; }
  void setGridLinesVertical(bool on);
  bool ScrollbarVertical() const { return scrollbarVertical_; }
  void setScrollbarVertical(bool on);
  bool HasHeading() const { return hasHeading_; }
  void setHasHeading(bool on);

  // A user's click on a row: the row becomes selected (Change if it was not), then
  // CellClick runs for that cell.
  void userChoose(int row) override { userClickCell(row, 0); }
  void userClickCell(int row, int column);
  // A user's click on the check box of a row: CellClick for that cell first, and unless
  // it claims the click, the box takes the state.
  void userCheck(int row, bool on);

  const PropertyTable& properties() const override { return propertyTable(); }
  static const PropertyTable& propertyTable();

 protected:
  int cellsPerRow() const override { return columnCount_; }
  void addRowText(const QString& text) override;

 private:
  void checkCell(int row, int column) const;

  int columnCount_ = 1;
  QString columnWidths_;
  QList<ColumnType> columnTypes_;
  bool gridLinesHorizontal_ = false;
  bool gridLinesVertical_ = false;
  bool scrollbarVertical_ = false;
  bool hasHeading_ = false;
};

}  // namespace platform
