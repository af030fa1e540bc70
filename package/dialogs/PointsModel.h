// The points of the point list dialog: a row each, its coordinates side by side.
#pragma once
#include <QAbstractTableModel>
#include <QPoint>

class PointsModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  using QAbstractTableModel::QAbstractTableModel;
  const QList<QPoint>& Points() const { return points_; }
  void Append(const QList<QPoint>& points);
  void Set(int row, QPoint point);
  void Remove(int row);
  void Swap(int row, int other);

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(points_.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QList<QPoint> points_;
};
