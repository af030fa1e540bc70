// The cells of a string grid as a table. Cells outside of it are kept and not shown.
#pragma once
#include <QAbstractTableModel>
#include <QBrush>

#include "vcl/Grid.h"

class CellsModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  using QAbstractTableModel::QAbstractTableModel;
  // As many columns and rows as the grid has, up to what a person can look through. The fixed ones have that
  // ground.
  void Load(const TStringGrid& grid, const QBrush& fixed);
  const TStringGrid::TTexts& Texts() const { return texts_; }
  // Whether the grid is larger than the table.
  bool IsCut() const { return cut_; }
  // From a cell on to the right and down. How many texts found no cell.
  int Put(const QModelIndex& from, const QList<QStringList>& rows);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  TStringGrid::TTexts texts_;
  QBrush fixed_;
  int columns_ = 0, rows_ = 0, fixedColumns_ = 0, fixedRows_ = 0;
  bool cut_ = false;
};
