// The actions of a list by category; what is selected in it is what the inspector shows.
#pragma once
#include "dclstd/ComponentWindow.h"
#include "vcl/Action.h"

class QListWidget;
class QMenu;

class ActionListWindow : public ComponentWindow {
  Q_OBJECT
 public:
  ActionListWindow(IDesigner& designer, TActionList& list);

  TActionList& List() const;
  // Behind the others, in the category that is shown.
  // In the category that is shown, else in its usual one.
  void AddAction(const TClass& cls, const QString& usual = {});
  void DeleteActions();
  void MoveActions(int by);
  void SelectionChanged(IDesigner* designer, const TDesignerSelections& list) override;
  void ItemDeleted(IDesigner* designer, TPersistent* item) override;

  QListWidget *categories = nullptr, *actions = nullptr;
  QToolButton *add = nullptr, *remove = nullptr, *up = nullptr, *down = nullptr;

 protected:
  void Load() override;
  bool Rebound() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Rows above those of the categories.
  enum { AllActions, NoCategory, FirstCategory };
  std::vector<TContainedAction*> All() const;
  bool IsShown(const TContainedAction& action) const;
  std::vector<TContainedAction*> Selected() const;
  void Select(const std::vector<TContainedAction*>& selected);
  void TellSelection();
  void EnableButtons();
  void FillNewMenu();

  std::vector<TContainedAction*> shown_;  // the rows
  bool loading_ = false;
};
