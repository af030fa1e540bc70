#include "dclstd/CellsModel.h"

void CellsModel::Load(const TStringGrid& grid, const QBrush& fixed) {
  constexpr int MostColumns = 1000, MostRows = 20000;
  beginResetModel();
  texts_ = grid.Texts();
  columns_ = std::min(grid.ShownCols(), MostColumns);
  rows_ = std::min(grid.ShownRows(), MostRows);
  cut_ = columns_ < grid.ShownCols() || rows_ < grid.ShownRows();
  fixedColumns_ = grid.Get(TStringGrid::FixedCols);
  fixedRows_ = grid.Get(TStringGrid::FixedRows);
  fixed_ = fixed;
  endResetModel();
}

QVariant CellsModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::BackgroundRole && (index.column() < fixedColumns_ || index.row() < fixedRows_))
    return fixed_;
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  const auto it = texts_.find({index.column(), index.row()});
  return it == texts_.end() ? QString() : it->second;
}

bool CellsModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !index.isValid()) return false;
  const std::pair<int, int> place(index.column(), index.row());
  const QString text = value.toString();
  if (data(index).toString() == text) return true;
  if (text.isEmpty())
    texts_.erase(place);
  else
    texts_[place] = text;
  emit dataChanged(index, index);
  return true;
}

int CellsModel::Put(const QModelIndex& from, const QList<QStringList>& rows) {
  int left = 0;
  for (int r = 0; r < rows.size(); ++r)
    for (int c = 0; c < rows[r].size(); ++c) {
      const QModelIndex cell = index(from.row() + r, from.column() + c);
      if (!setData(cell, rows[r][c])) left += !rows[r][c].isEmpty();
    }
  return left;
}

// As a program counts them.
QVariant CellsModel::headerData(int section, Qt::Orientation, int role) const {
  return role == Qt::DisplayRole ? QVariant(section) : QVariant();
}

Qt::ItemFlags CellsModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}
