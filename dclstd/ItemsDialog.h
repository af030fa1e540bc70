// The items of tree views and list views: a tree of them, and what the selected one shows. What the dialog
// does not show (overlays, groups, what the program hangs on an item) stays with its item.
#pragma once
#include "dclstd/RowDialog.h"
#include "dclstd/RowDrag.h"
#include "vcl/ListItems.h"
#include "vcl/TreeNodes.h"

class ItemEntry;
class QTreeWidget;
class QTreeWidgetItem;

// Write into the list only when the user changed something and confirms, and are true then.
bool EditTreeNodes(TTreeNodeList& nodes);
bool EditListItems(QList<TListViewItem>& items);

class ItemsDialog : public RowDialog {
  Q_OBJECT
 public:
  QTreeWidget* tree = nullptr;
  QLineEdit* text = nullptr;
  SpinEdit *image = nullptr, *selected = nullptr, *state = nullptr;  // a list has no `selected`
  QPushButton *newItem = nullptr, *newSubItem = nullptr, *remove = nullptr, *up = nullptr, *down = nullptr,
              *ok = nullptr, *cancel = nullptr;

 protected:
  // In a list subitems stand in items, and nothing in them; nodes of a tree stand in each other.
  enum class Kind { Tree, List };
  ItemsDialog(Kind kind, QWidget* owner);
  void LoadControls() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  // In place of all there are.
  void Show(const QList<QTreeWidgetItem*>& entries);

 private:
  ItemEntry* Current() const;
  void newItemClick();
  void newSubItemClick();
  void removeClick();
  void upClick() { MoveBy(-1); }
  void downClick() { MoveBy(1); }
  void textChange();
  void indexChange();
  void Insert(QTreeWidgetItem* parent, int index);
  void MoveBy(int by);
  void MoveOut();
  void MoveIn();
  void MoveTo(QTreeWidgetItem* parent, int index);
  void DropAt(const RowDrag::Target& target);
  bool OfTree() const { return kind_ == Kind::Tree; }
  Kind kind_;
};

class TreeItemsDialog : public ItemsDialog {
  Q_OBJECT
 public:
  explicit TreeItemsDialog(QWidget* owner) : ItemsDialog(Kind::Tree, owner) {}
  void SetNodes(const TTreeNodeList& nodes);
  TTreeNodeList Nodes() const;
};

class ListItemsDialog : public ItemsDialog {
  Q_OBJECT
 public:
  explicit ListItemsDialog(QWidget* owner) : ItemsDialog(Kind::List, owner) {}
  void SetItems(const QList<TListViewItem>& items);
  QList<TListViewItem> Items() const;
};
