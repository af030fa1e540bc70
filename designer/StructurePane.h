// The components of the form as a tree.
#pragma once
#include <QWidget>

#include "ide/FormSession.h"

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

class StructurePane : public QWidget {
  Q_OBJECT
 public:
  explicit StructurePane(QWidget* parent = nullptr);
  void SetSession(FormSession* session);
  QTreeWidget& Tree() { return *tree_; }

 private:
  void Fill();
  void Refresh();
  void AddItem(TComponent& component, QTreeWidgetItem* parent);
  void ShowSelection();
  void ApplyFilter();

  FormSession* session_ = nullptr;
  QTreeWidget* tree_;
  QLineEdit* filter_;
  QHash<const TComponent*, QTreeWidgetItem*> items_;
  bool updating_ = false;
};
