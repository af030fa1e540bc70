// The window that hides and shows the icons of a form's non-visual components.
//
// There is one, which follows the form of the component it was opened on last. Closing it only hides it; it
// is freed with the form's designer, with the component, and with the package. What it does to the form is
// one step each that can be undone.
#pragma once
#include <QPointer>

#include "designintf/DesignRegistry.h"
#include "designintf/DesignWindow.h"
#include "library/components/HideNonVC.h"

class QLabel;
class QListWidget;
class QMenu;
class QPushButton;

class TVRXHideNonVCfrm : public TDesignWindow, private INewComponentHandler {
  Q_OBJECT
 public:
  explicit TVRXHideNonVCfrm(QWidget* owner = nullptr);
  ~TVRXHideNonVCfrm() override;

  // In front, about that component. `registry` makes the editors of what it lists; without one the entries
  // have no menu.
  static TVRXHideNonVCfrm& Open(TVRXHideNonVC& component, IDesigner& designer,
                                const DesignRegistry* registry);
  // Null when there is none.
  static TVRXHideNonVCfrm* Instance();
  // At once; the package is going.
  static void Free();

  // Null for none. Its form's designer has been set before.
  void SetComponent(TVRXHideNonVC* component);
  TVRXHideNonVC* Component() const { return component_; }
  // Lists what there is.
  void Initialize();
  static QString BuildAddString(const TComponent& component);
  // The name that such a text begins with.
  static QString GetAddStringName(const QString& text);

  void CheckInfo();
  void CheckButtonStates();

  // In the order of the list.
  std::vector<TComponent*> GetSelected() const;
  void SelectAll();
  void SelectNone();
  // To the designer: all between BeginUpdate and EndUpdate at once, or that one alone.
  void BeginUpdate();
  void SelectAdd(TComponent& component);
  void EndUpdate();
  void SelectOne(TComponent& component);
  // What is selected in the list is what the designer selects.
  void UpdateSelection();
  void DoSelectAll();

  void HideSelection();
  void ShowSelection();
  void DeleteSelection();

  void ItemDeleted(IDesigner* designer, TPersistent* item) override;
  void ItemsModified(IDesigner* designer) override;
  void DesignerClosed(IDesigner* designer) override;
  void SelectionChanged(IDesigner* designer, const TDesignerSelections& list) override;
  void Activated() override;
  TEditStates GetEditState() const override;
  void EditAction(TEditAction action) override;

  QLabel *lbl = nullptr, *d = nullptr;
  QListWidget* cbList = nullptr;
  QPushButton *btHide = nullptr, *btShow = nullptr, *btHideAll = nullptr, *btshowall = nullptr,
              *btDelete = nullptr, *CloseButton = nullptr;
  QMenu* popMenu = nullptr;

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  // The button with that letter; null when there is none.
  QPushButton* Lettered(const QKeyEvent& event) const;
  bool placed_ = false;
  struct Entry;
  void NewComponent(TVRXHideNonVC&) override { newComponentPending_ = true; }
  void HideComponentFreed(TVRXHideNonVC&) override { component_ = nullptr; }
  void BuildControls();
  Entry* EntryAt(int row) const;
  Entry* EntryOf(const TPersistent* component) const;
  Entry* Focused() const;
  TComponent* Form() const { return component_ ? component_->Owner() : nullptr; }
  bool Remembers() const { return component_->Get(TVRXHideNonVC::RememberPosition); }
  void AddEntry(TComponent& component);
  bool UpdateEntries();
  void UpdateCaption();
  bool SelectsTheSame(const TPersistent* without) const;
  void BuildMenu();
  // One step; what it throws is told.
  void Do(const QString& text, const std::function<void()>& action);
  void Release();

  TVRXHideNonVC* component_ = nullptr;
  QString name_;  // of the component: it may be made anew
  const DesignRegistry* registry_ = nullptr;
  TDesignerSelections selections_;  // on the way to the designer
  bool newComponentPending_ = false;
  bool updatingSelection_ = false;
  bool loading_ = false;
  bool released_ = false;  // on its way out
};
