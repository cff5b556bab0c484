#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTableWidget>

#include "platform/qt/display_text.h"
#include "platform/qt/views.h"

namespace platform::qt {

// ---- PopupMenu ---------------------------------------------------------------------------

QWidget* PopupMenuView::createWidget(QWidget* parent) {
  combo_ = new QComboBox(parent);
  combo_->setMaxVisibleItems(20);
  // The model raises MouseDown, the choice and Change in the framework's order once the
  // user has picked a row; the widget then shows what the model holds.
  connect(combo_, &QComboBox::activated, this, [this](int row) {
    run([this, row] { menu().userChoose(row); });
    refresh(QStringLiteral("ListIndex"));
  });
  return combo_;
}

bool PopupMenuView::leaveCounts() const { return !(combo_ && combo_->view()->isVisible()); }

void PopupMenuView::refresh(const QString& property) {
  if (property == u"Rows") {
    showRows();
    refresh(QStringLiteral("ListIndex"));
  } else if (property == u"ListIndex") {
    Applying applying(*this);
    combo_->setCurrentIndex(menu().ListIndex());
  } else {
    ControlView::refresh(property);
  }
}

void PopupMenuView::showRows() {
  Applying applying(*this);
  const int count = menu().ListCount();
  // Rows mostly come one AddRow at a time: keep the rows that are still the same.
  int same = 0;
  while (same < count && same < combo_->count() &&
         combo_->itemText(same) == displayText(menu().List(same))) {
    ++same;
  }
  while (combo_->count() > same) combo_->removeItem(combo_->count() - 1);
  for (int row = same; row < count; ++row) combo_->addItem(displayText(menu().List(row)));
}

// ---- Listbox -----------------------------------------------------------------------------

QWidget* ListboxView::createWidget(QWidget* parent) {
  table_ = new QTableWidget(parent);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setWordWrap(false);
  table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table_->verticalHeader()->setDefaultSectionSize(18);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->viewport()->installEventFilter(this);
  table_->installEventFilter(this);
  return table_;
}

void ListboxView::refresh(const QString& property) {
  if (property == u"Rows" || property == u"ColumnCount" || property == u"ColumnType") {
    showRows();
    showSelection();
  } else if (property == u"ListIndex") {
    showSelection();
  } else if (property == u"ColumnWidths" || property == u"Width") {
    ControlView::refresh(property);
    showColumnWidths();
  } else if (property == u"GridLinesHorizontal" || property == u"GridLinesVertical") {
    table_->setShowGrid(list().GridLinesHorizontal() || list().GridLinesVertical());
  } else if (property == u"ScrollbarVertical") {
    table_->setVerticalScrollBarPolicy(list().ScrollbarVertical() ? Qt::ScrollBarAsNeeded
                                                                  : Qt::ScrollBarAlwaysOff);
  } else if (property == u"HasHeading") {
    table_->horizontalHeader()->setVisible(list().HasHeading());
  } else {
    ControlView::refresh(property);
  }
}

void ListboxView::showRows() {
  Applying applying(*this);
  const Listbox& model = list();
  const int columns = model.ColumnCount();
  const int checkColumn =
      model.columnType(model.checkColumn()) == ColumnType::CheckBox ? model.checkColumn() : -1;
  if (table_->columnCount() != columns) {
    table_->setColumnCount(columns);
    shownCells_.clear();
    shownChecks_.clear();
    table_->setRowCount(0);
    showColumnWidths();
  }
  const int count = model.ListCount();
  auto rowCells = [&](int row) {
    QStringList cells;
    for (int c = 0; c < columns; ++c) cells.append(model.Cell(row, c));
    return cells;
  };
  auto rowChecks = [&](int row) {
    QList<bool> checks;
    if (checkColumn >= 0) checks.append(model.CellCheck(row, checkColumn));
    return checks;
  };
  // Rows mostly come one AddRow at a time: keep the leading rows that are still the same.
  size_t same = 0;
  while (same < shownCells_.size() && static_cast<int>(same) < count &&
         shownCells_[same] == rowCells(static_cast<int>(same)) &&
         shownChecks_[same] == rowChecks(static_cast<int>(same))) {
    ++same;
  }
  shownCells_.resize(same);
  shownChecks_.resize(same);
  table_->setRowCount(count);
  for (int row = static_cast<int>(same); row < count; ++row) {
    shownCells_.push_back(rowCells(row));
    shownChecks_.push_back(rowChecks(row));
    for (int c = 0; c < columns; ++c) {
      auto* item = new QTableWidgetItem(displayText(shownCells_.back()[c]));
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
      if (c == checkColumn)
        item->setCheckState(shownChecks_.back().front() ? Qt::Checked : Qt::Unchecked);
      table_->setItem(row, c, item);
    }
  }
}

void ListboxView::showSelection() {
  Applying applying(*this);
  const int row = list().ListIndex();
  if (row < 0 || row >= table_->rowCount()) {
    table_->clearSelection();
    table_->setCurrentItem(nullptr);
    return;
  }
  table_->selectRow(row);
  table_->scrollToItem(table_->item(row, 0));
}

void ListboxView::showColumnWidths() {
  // "90%,10%" or pixels, as the framework reads them; the last column takes the rest.
  const QStringList parts = list().ColumnWidths().split(u',', Qt::SkipEmptyParts);
  const int total = std::max(0, list().Width() - 4);
  for (int c = 0; c + 1 < table_->columnCount(); ++c) {
    const QString part = parts.value(c).trimmed();
    int width = total / std::max(1, table_->columnCount());
    if (part.endsWith(u'%')) {
      width = total * part.chopped(1).toInt() / 100;
    } else if (!part.isEmpty() && part != u"*") {
      width = part.toInt();
    }
    table_->setColumnWidth(c, width);
  }
}

bool ListboxView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_->viewport()) {
    switch (event->type()) {
      case QEvent::MouseButtonPress: {
        auto* press = static_cast<QMouseEvent*>(event);
        if (press->button() != Qt::LeftButton) return true;
        const QModelIndex index = table_->indexAt(press->position().toPoint());
        if (index.isValid()) {
          const int row = index.row(), column = index.column();
          const bool checkCell = list().columnType(column) == ColumnType::CheckBox;
          run([&] {
            if (checkCell) {
              list().userCheck(row, !list().CellCheck(row, column));
            } else {
              list().userClickCell(row, column);
            }
          });
        }
        return true;
      }
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::MouseMove:
        return true;
      default:
        break;
    }
  }
  if (watched == table_ && event->type() == QEvent::KeyPress) {
    // The arrow keys move the selection as a choice of the user does: Change, no CellClick.
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      const int target = list().ListIndex() + (key == Qt::Key_Up ? -1 : 1);
      if (target >= 0 && target < list().ListCount()) run([&] { list().setListIndex(target); });
      return true;
    }
    if (key != Qt::Key_Tab && key != Qt::Key_Backtab) return true;
  }
  return ControlView::eventFilter(watched, event);
}

}  // namespace platform::qt
