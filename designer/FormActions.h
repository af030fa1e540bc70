// The action table as the window shows it: one QAction for each row, for menus, tool bar and keyboard.
#pragma once
#include <QObject>

#include "designer/CommandPalette.h"
#include "ide/operations/Actions.h"

class QAction;
class QMenu;
class QToolBar;

class FormActions : public QObject {
  Q_OBJECT
 public:
  explicit FormActions(QWidget& window);

  // The keys of undo and redo work everywhere; those that work on the selection only in these widgets, so
  // that text fields keep theirs.
  void WorkIn(QWidget& widget);
  void AddTo(QMenu& menu, std::initializer_list<ActionGroup> groups) const;
  void AddTo(QToolBar& bar) const;
  void AddTo(std::vector<CommandEntry>& rows) const;
  // What can be done with the form; null: none is open.
  void Update(const FormSession* session);

 signals:
  void Wanted(const ActionRow& row);

 private:
  QMenu* MenuOf(ActionGroup group) const;
  std::vector<std::pair<const ActionRow*, QAction*>> actions_;
  std::vector<std::pair<ActionGroup, QMenu*>> menus_;
};

// The clipboard of the desktop.
class DesktopClipboard : public IClipboard {
 public:
  QString Text() const override;
  void SetText(const QString& text) override;
};
