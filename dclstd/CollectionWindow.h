// The items of a collection as a list: added, deleted, moved; what is selected in it is what the inspector
// shows.
#pragma once
#include "dclstd/ComponentWindow.h"
#include "dclstd/RowDrag.h"
#include "designintf/PartPath.h"

class QListWidget;
class TCollection;

class CollectionWindow : public ComponentWindow {
  Q_OBJECT
 public:
  CollectionWindow(IDesigner& designer, TComponent& component, const PartPath& place);
  bool IsAbout(const IDesigner& designer, const TComponent& component, const PartPath& place) const {
    return ComponentWindow::IsAbout(designer, component) && place_ == place;
  }

  // Null when it is no longer there.
  TCollection* Collection() const;
  void AddItem();
  void DeleteItems();
  void MoveItems(int by);
  // In front of the row that stands there.
  void MoveItemsTo(int row);
  void SelectionChanged(IDesigner* designer, const TDesignerSelections& list) override;
  TEditStates GetEditState() const override;
  void EditAction(TEditAction action) override;

  QListWidget* items = nullptr;
  QToolButton *add = nullptr, *remove = nullptr, *up = nullptr, *down = nullptr;

 protected:
  // A new one at the end.
  virtual void MakeItem(TCollection& collection);
  void Load() override;
  bool Rebound() override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  std::vector<int> Selected() const;
  void Select(const std::vector<int>& rows);
  void TellSelection();
  void EnableButtons();
  void Move(const RowMoves& moves);
  PartPath place_;
  bool loading_ = false;
};

// The window of the collection; nothing for one that no property of a component leads to.
void EditCollection(IDesigner& designer, TCollection& collection);
