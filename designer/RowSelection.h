// The current row of the inspector. A row whose typed value is refused is not left, whatever asks for another
// row: mouse, keyboard or program.
#pragma once
#include <QItemSelectionModel>

class RowSelection : public QItemSelectionModel {
  Q_OBJECT
 public:
  // `mayLeave` applies what was typed, and tells whether that went well.
  RowSelection(QAbstractItemModel* model, std::function<bool()> mayLeave, QObject* parent);
  void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override;
  void select(const QModelIndex& index, SelectionFlags command) override;
  void select(const QItemSelection& selection, SelectionFlags command) override;

 private:
  bool IsCurrent(const QModelIndex& index) const;
  std::function<bool()> mayLeave_;
  bool moving_ = false;
};
