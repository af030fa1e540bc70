// The components of the form as a tree.
#pragma once
#include <QSet>
#include <QWidget>

#include "ide/ComponentModel.h"

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTreeView;

class StructurePane : public QWidget {
  Q_OBJECT
 public:
  explicit StructurePane(QWidget* parent = nullptr);
  void SetSession(FormSession* session);
  QWidget& Tree() const;
  QTreeView& Tree() { return *tree_; }

 private:
  FormSession* Session() const { return model_.Session(); }
  TComponent* ComponentAt(const QModelIndex& row) const;
  void OpenRows();
  void ShowSelection();
  void ApplyFilter();
  void TakeSelection();

  ComponentModel model_{ComponentModel::Shape::Tree};
  QSortFilterProxyModel* filtered_;
  QTreeView* tree_;
  QLineEdit* filter_;
  QLabel* hidden_;        // says that the selection is not in sight
  QSet<QString> closed_;  // titles
  int scroll_ = 0;
  bool updating_ = false;
};
