#include "package/dialogs/PairsGrid.h"

#include <QHeaderView>
#include <QKeyEvent>

void PairsModel::SetRows(const QList<TTextPair>& rows) {
  beginResetModel();
  rows_ = rows;
  endResetModel();
}
void PairsModel::SetTitles(const QString& first, const QString& second) {
  titles_[0] = first;
  titles_[1] = second;
  emit headerDataChanged(Qt::Horizontal, 0, 1);
}
void PairsModel::SetRow(int row, const TTextPair& pair) {
  if (rows_.at(row) == pair) return;
  rows_[row] = pair;
  emit dataChanged(index(row, 0), index(row, 1));
}
void PairsModel::InsertRow(int row, const TTextPair& pair) {
  beginInsertRows({}, row, row);
  rows_.insert(row, pair);
  endInsertRows();
}
void PairsModel::RemoveRow(int row) {
  beginRemoveRows({}, row, row);
  rows_.removeAt(row);
  endRemoveRows();
}
void PairsModel::Swap(int row, int other) {
  rows_.swapItemsAt(row, other);
  for (const int changed : {row, other}) emit dataChanged(index(changed, 0), index(changed, 1));
}

QVariant PairsModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  const TTextPair& pair = rows_.at(index.row());
  return index.column() == 0 ? pair.First : pair.Second;
}
bool PairsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  TTextPair pair = rows_.at(index.row());
  (index.column() == 0 ? pair.First : pair.Second) = value.toString();
  SetRow(index.row(), pair);
  return true;
}
QVariant PairsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return role == Qt::DisplayRole && orientation == Qt::Horizontal ? titles_[section] : QVariant();
}
Qt::ItemFlags PairsModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags plain = QAbstractTableModel::flags(index);
  return editable_ ? plain | Qt::ItemIsEditable : plain;
}

PairsGrid::PairsGrid(Use use, const char* name, QWidget* parent)
    : QTableView(parent), pairs_(new PairsModel(use == Use::Edit, this)), use_(use) {
  setObjectName(QString::fromLatin1(name));
  setModel(pairs_);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(use == Use::Edit ? SelectItems : SelectRows);
  setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setStretchLastSection(true);
  setColumnWidth(0, 180);
}

void PairsGrid::SetRowCount(int count) {
  while (RowCount() < count) pairs_->InsertRow(pairs_->rowCount());
  while (RowCount() > std::max(count, 1)) pairs_->RemoveRow(pairs_->rowCount() - 1);
}

int PairsGrid::CurrentRow() const { return currentIndex().isValid() ? currentIndex().row() : -1; }

int PairsGrid::SelectedRow() const {
  const QModelIndexList selected = selectionModel()->selectedIndexes();
  return selected.isEmpty() ? -1 : selected.first().row();
}

void PairsGrid::Select(int row) {
  if (row < 0) {
    selectionModel()->clear();
    return;
  }
  setCurrentIndex(pairs_->index(row, std::max(currentIndex().column(), 0)));
}

void PairsGrid::AddRow() {
  const int row = CurrentRow() + 1;
  pairs_->InsertRow(row);
  setCurrentIndex(pairs_->index(row, 0));
  edit(currentIndex());
}

void PairsGrid::RemoveRow() {
  const int row = CurrentRow();
  if (row < 0) return;
  pairs_->RemoveRow(row);
  Select(std::min(row, pairs_->rowCount() - 1));
}

void PairsGrid::MoveRow(int by) {
  const int from = CurrentRow(), to = from + by;
  if (from < 0 || to < 0 || to >= pairs_->rowCount()) return;
  pairs_->Swap(from, to);
  Select(to);
}

void PairsGrid::keyPressEvent(QKeyEvent* event) {
  const bool control = event->modifiers() == Qt::ControlModifier;
  if (use_ == Use::Choose || state() == EditingState) return QTableView::keyPressEvent(event);
  if (event->key() == Qt::Key_Insert) return AddRow();
  if (control && event->key() == Qt::Key_Delete) return RemoveRow();
  if (control && event->key() == Qt::Key_Up) return MoveRow(-1);
  if (control && event->key() == Qt::Key_Down) return MoveRow(1);
  if (event->key() == Qt::Key_Delete && currentIndex().isValid()) {
    pairs_->setData(currentIndex(), QString());
    return;
  }
  QTableView::keyPressEvent(event);
}
