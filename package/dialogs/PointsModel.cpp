#include "package/dialogs/PointsModel.h"

void PointsModel::Append(const QList<QPoint>& points) {
  if (points.isEmpty()) return;
  beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(points.size()) - 1);
  points_ << points;
  endInsertRows();
}
void PointsModel::Set(int row, QPoint point) {
  points_[row] = point;
  emit dataChanged(index(row, 0), index(row, 1));
}
void PointsModel::Remove(int row) {
  beginRemoveRows({}, row, row);
  points_.removeAt(row);
  endRemoveRows();
}
void PointsModel::Swap(int row, int other) {
  points_.swapItemsAt(row, other);
  for (const int changed : {row, other}) emit dataChanged(index(changed, 0), index(changed, 1));
}

QVariant PointsModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  const QPoint point = points_.at(index.row());
  return QString::number(index.column() == 0 ? point.x() : point.y());
}
QVariant PointsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return section == 0 ? QStringLiteral("X") : QStringLiteral("Y");
}
