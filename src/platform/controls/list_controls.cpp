#include "platform/controls/list_controls.h"

#include "platform/exceptions.h"

namespace platform {

namespace {

constexpr int kMaxColumns = 64;

QString rowText(const QStringList& cells) {
  qsizetype used = cells.size();
  while (used > 1 && cells.at(used - 1).isEmpty()) --used;
  return cells.mid(0, used).join(QLatin1Char('\t'));
}

}  // namespace

// ---- ListControl -------------------------------------------------------------------

ListControl::Row ListControl::makeRow(const QString& first) const {
  Row row;
  const int width = std::max(1, cellsPerRow());
  row.cells.resize(width);
  row.checks.resize(width);
  row.cells[0] = first;
  return row;
}

void ListControl::checkRow(int row, const char* what) const {
  if (row < 0 || row >= ListCount()) {
    throw OutOfBoundsException(Name() + QLatin1Char('.') + QLatin1String(what) + QStringLiteral(": no row ") +
                               QString::number(row) + QStringLiteral(" in ") + QString::number(ListCount()));
  }
}

void ListControl::AddRow(const QString& text) {
  rows_.push_back(makeRow(text));
  lastIndex_ = ListCount() - 1;
  changed(QStringLiteral("Rows"));
}

void ListControl::InsertRow(int row, const QString& text) {
  if (row < 0 || row > ListCount()) {
    throw OutOfBoundsException(Name() + QStringLiteral(".InsertRow: no place ") + QString::number(row));
  }
  rows_.insert(rows_.begin() + row, makeRow(text));
  lastIndex_ = row;
  changed(QStringLiteral("Rows"));
  if (listIndex_ >= row) {
    ++listIndex_;
    changed(QStringLiteral("ListIndex"));
  }
}

void ListControl::RemoveRow(int row) {
  checkRow(row, "RemoveRow");
  rows_.erase(rows_.begin() + row);
  if (lastIndex_ >= ListCount()) lastIndex_ = ListCount() - 1;
  changed(QStringLiteral("Rows"));
  if (listIndex_ == row) {
    setListIndex(-1);
  } else if (listIndex_ > row) {
    --listIndex_;
    changed(QStringLiteral("ListIndex"));
  }
}

void ListControl::DeleteAllRows() {
  if (rows_.empty() && listIndex_ == -1) return;
  rows_.clear();
  lastIndex_ = -1;
  changed(QStringLiteral("Rows"));
  setListIndex(-1);
}

QString ListControl::List(int row) const {
  checkRow(row, "List");
  return rows_[row].cells.value(0);
}

void ListControl::setListIndex(int index) {
  if (index < -1 || index >= ListCount()) {
    throw OutOfBoundsException(Name() + QStringLiteral(".ListIndex ") + QString::number(index) +
                               QStringLiteral(" is outside its ") + QString::number(ListCount()) +
                               QStringLiteral(" rows"));
  }
  if (listIndex_ == index) return;
  listIndex_ = index;
  changed(QStringLiteral("ListIndex"));
  raise(Change);
}

QString ListControl::Text() const { return listIndex_ < 0 ? QString() : rows_[listIndex_].cells.value(0); }

QString ListControl::RowsText() const {
  QStringList lines;
  lines.reserve(ListCount());
  for (const Row& row : rows_) lines.append(rowText(row.cells));
  return lines.join(QLatin1Char('\n'));
}

void ListControl::setRows(const QStringList& rows) {
  DeleteAllRows();
  for (const QString& text : rows) addRowText(text);
}

void ListControl::setInitialValue(const QString& text) {
  initialValue_ = text;
  setRows(linesFromVariant(text, QStringLiteral("InitialValue")));
  if (selectsFirstInitialRow() && ListCount() > 0) setListIndex(0);
}

void ListControl::applyCreationText(const QString& text) {
  if (!text.isEmpty()) setInitialValue(text);
}

const PropertyTable& ListControl::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = Control::propertyTable();
    PropertyRegistrar<ListControl>(t)
        .readWrite("ListIndex", &ListControl::ListIndex, &ListControl::setListIndex)
        .readOnly("ListCount", &ListControl::ListCount)
        .readOnly("LastIndex", &ListControl::LastIndex)
        .readOnly("Text", &ListControl::Text)
        .readWrite("InitialValue", &ListControl::InitialValue, &ListControl::setInitialValue)
        .indexed(
            "Rows", 0, [](const ListControl& c, const PropertyTable::Args&) { return QVariant(c.RowsText()); },
            [](ListControl& c, const PropertyTable::Args&, const QVariant& v) {
              c.setRows(linesFromVariant(v, QStringLiteral("Rows")));
            })
        .indexed("List", 1, [](const ListControl& c, const PropertyTable::Args& a) { return QVariant(c.List(a[0])); });
    return t;
  }();
  return table;
}

// ---- PopupMenu ---------------------------------------------------------------------

void PopupMenu::userChoose(int row) {
  if (!Enabled()) return;
  checkRow(row, "choice");
  if (MouseDown && !eventsBlocked() && MouseDown(Width() / 2, Height() / 2)) {
    if (MouseUp) MouseUp(Width() / 2, Height() / 2);
    return;
  }
  setListIndex(row);
}

const PropertyTable& PopupMenu::propertyTable() { return ListControl::propertyTable(); }

// ---- Listbox -----------------------------------------------------------------------

void Listbox::AddRow(const QStringList& cells) {
  ListControl::AddRow(cells.value(0));
  Row& row = rows().back();
  for (int c = 1; c < cells.size() && c < row.cells.size(); ++c) row.cells[c] = cells[c];
  changed(QStringLiteral("Rows"));
}

void Listbox::addRowText(const QString& text) {
  if (columnCount_ == 1) {
    AddRow(text);
  } else {
    AddRow(text.split(QLatin1Char('\t')));
  }
}

void Listbox::setColumnCount(int count) {
  if (count < 1 || count > kMaxColumns) {
    throw OutOfBoundsException(Name() + QStringLiteral(".ColumnCount ") + QString::number(count) +
                               QStringLiteral(" is not from 1 to 64"));
  }
  if (count == columnCount_) return;
  columnCount_ = count;
  for (Row& row : rows()) {
    row.cells.resize(count);
    row.checks.resize(count);
  }
  changed(QStringLiteral("ColumnCount"));
  changed(QStringLiteral("Rows"));
}

void Listbox::setColumnWidths(const QString& widths) {
  if (columnWidths_ == widths) return;
  columnWidths_ = widths;
  changed(QStringLiteral("ColumnWidths"));
}

ColumnType Listbox::columnType(int column) const { return columnTypes_.value(column, ColumnType::Normal); }

void Listbox::setColumnType(int column, ColumnType type) {
  if (column < 0 || column >= kMaxColumns) {
    throw OutOfBoundsException(Name() + QStringLiteral(": no column ") + QString::number(column));
  }
  if (columnType(column) == type) return;
  if (columnTypes_.size() <= column) columnTypes_.resize(column + 1, ColumnType::Normal);
  columnTypes_[column] = type;
  changed(QStringLiteral("ColumnType"));
}

int Listbox::checkColumn() const {
  for (int c = 0; c < columnTypes_.size(); ++c) {
    if (columnTypes_[c] == ColumnType::CheckBox) return c;
  }
  return 0;
}

void Listbox::checkCell(int row, int column) const {
  checkRow(row, "Cell");
  if (column < 0 || column >= columnCount_) {
    throw OutOfBoundsException(Name() + QStringLiteral(": no column ") + QString::number(column) +
                               QStringLiteral(" in ") + QString::number(columnCount_));
  }
}

QString Listbox::Cell(int row, int column) const {
  checkCell(row, column);
  return rows()[row].cells[column];
}

void Listbox::setCell(int row, int column, const QString& text) {
  checkCell(row, column);
  QString& cell = rows()[row].cells[column];
  if (cell == text) return;
  cell = text;
  changed(QStringLiteral("Rows"));
}

bool Listbox::CellCheck(int row, int column) const {
  checkCell(row, column);
  return rows()[row].checks[column];
}

void Listbox::setCellCheck(int row, int column, bool on) {
  checkCell(row, column);
  bool& check = rows()[row].checks[column];
  if (check == on) return;
  check = on;
  changed(QStringLiteral("Rows"));
}

bool Listbox::Selected(int row) const {
  checkRow(row, "Selected");
  return ListIndex() == row;
}

void Listbox::setSelected(int row, bool on) {
  checkRow(row, "Selected");
  if (on) {
    setListIndex(row);
  } else if (ListIndex() == row) {
    setListIndex(-1);
  }
}

void Listbox::setGridLinesHorizontal(bool on) {
  if (gridLinesHorizontal_ == on) return;
  gridLinesHorizontal_ = on;
  changed(QStringLiteral("GridLinesHorizontal"));
}

void Listbox::setGridLinesVertical(bool on) {
  if (gridLinesVertical_ == on) return;
  gridLinesVertical_ = on;
  changed(QStringLiteral("GridLinesVertical"));
}

void Listbox::setScrollbarVertical(bool on) {
  if (scrollbarVertical_ == on) return;
  scrollbarVertical_ = on;
  changed(QStringLiteral("ScrollbarVertical"));
}

void Listbox::setHasHeading(bool on) {
  if (hasHeading_ == on) return;
  hasHeading_ = on;
  changed(QStringLiteral("HasHeading"));
}

void Listbox::userClickCell(int row, int column) {
  if (!Enabled()) return;
  checkCell(row, column);
  setListIndex(row);
  if (CellClick && !eventsBlocked()) CellClick(row, column);
}

void Listbox::userCheck(int row, bool on) {
  if (!Enabled()) return;
  const int column = checkColumn();
  checkCell(row, column);
  if (CellClick && !eventsBlocked() && CellClick(row, column)) return;
  setCellCheck(row, column, on);
}

namespace {

QString columnTypeName(ColumnType type) {
  return type == ColumnType::CheckBox ? QStringLiteral("checkbox") : QStringLiteral("normal");
}

ColumnType columnTypeFromVariant(const QVariant& v) {
  const QString word = v.toString().trimmed().toLower();
  if (word == u"checkbox" || word == u"2") return ColumnType::CheckBox;
  if (word == u"normal" || word == u"default" || word == u"0" || word == u"1") return ColumnType::Normal;
  throw PropertyValueException(QStringLiteral("ColumnType takes normal or checkbox, not ") + v.toString());
}

}  // namespace

const PropertyTable& Listbox::propertyTable() {
  static const PropertyTable table = [] {
    PropertyTable t = ListControl::propertyTable();
    using Args = PropertyTable::Args;
    PropertyRegistrar<Listbox>(t)
        .readWrite("ColumnCount", &Listbox::ColumnCount, &Listbox::setColumnCount)
        .readWrite("ColumnWidths", &Listbox::ColumnWidths, &Listbox::setColumnWidths)
        .readWrite("GridLinesHorizontal", &Listbox::GridLinesHorizontal, &Listbox::setGridLinesHorizontal)
        .readWrite("GridLinesVertical", &Listbox::GridLinesVertical, &Listbox::setGridLinesVertical)
        .readWrite("ScrollbarVertical", &Listbox::ScrollbarVertical, &Listbox::setScrollbarVertical)
        .readWrite("HasHeading", &Listbox::HasHeading, &Listbox::setHasHeading)
        .indexed(
            "Cell", 2, [](const Listbox& l, const Args& a) { return QVariant(l.Cell(a[0], a[1])); },
            [](Listbox& l, const Args& a, const QVariant& v) {
              l.setCell(a[0], a[1], stringFromVariant(v, QStringLiteral("Cell")));
            })
        .indexed(
            "CellCheck", 1, [](const Listbox& l, const Args& a) { return QVariant(l.CellCheck(a[0])); },
            [](Listbox& l, const Args& a, const QVariant& v) {
              l.setCellCheck(a[0], boolFromVariant(v, QStringLiteral("CellCheck")));
            })
        .indexed(
            "CellCheck", 2, [](const Listbox& l, const Args& a) { return QVariant(l.CellCheck(a[0], a[1])); },
            [](Listbox& l, const Args& a, const QVariant& v) {
              l.setCellCheck(a[0], a[1], boolFromVariant(v, QStringLiteral("CellCheck")));
            })
        .indexed(
            "Selected", 1, [](const Listbox& l, const Args& a) { return QVariant(l.Selected(a[0])); },
            [](Listbox& l, const Args& a, const QVariant& v) {
              l.setSelected(a[0], boolFromVariant(v, QStringLiteral("Selected")));
            })
        .indexed(
            "ColumnType", 1,
            [](const Listbox& l, const Args& a) { return QVariant(columnTypeName(l.columnType(a[0]))); },
            [](Listbox& l, const Args& a, const QVariant& v) { l.setColumnType(a[0], columnTypeFromVariant(v)); });
    return t;
  }();
  return table;
}

}  // namespace platform
