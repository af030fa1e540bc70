// The style editor: registered classes and their properties on the left, the styles on the right, and a
// control with the selected style below. Works on styles of its own.
#pragma once
#include <deque>

#include "dclstd/RowDialog.h"
#include "package/styles/StyleTree.h"

class QGroupBox;
class QMenu;
class QRadioButton;
class QTreeWidget;
class QTreeWidgetItem;
class StyleModel;
class StylePreview;
class StylesView;

enum class TVRXPropViewGrouping : std::uint8_t { pvgTypeName, pvgClassName };

namespace pVRXStyleManProp {
void Initialization();
void Finalization();
}  // namespace pVRXStyleManProp

class TfrmVRXStyleManProp : public RowDialog {
  Q_OBJECT
 public:
  explicit TfrmVRXStyleManProp(QWidget* owner);
  ~TfrmVRXStyleManProp() override;
  // Shows the dialog for the manager; true when the person confirmed, and the manager has the styles then.
  static bool Execute(TVRXStyleManager& manager);

  void SetData(const TVRXStyleManager& manager);
  void GetData(TVRXStyleManager& manager);
  // The styles that are edited.
  const TVRXStyleManager& Manager() const { return manager_; }
  TVRXStyleTree& Tree() { return *tree_; }

  // Everything from the manager anew; what is open stays open.
  void BuildStylesTreeView();
  TVRXStyleNode* FindNodeByFullStyleName(const QString& path) const { return tree_->Find(path); }
  TVRXPropViewGrouping Grouping() const;
  void FillPropTree(TVRXPropViewGrouping grouping);
  // Of a row of the property view: its TVRXPropListItem; a class or a type has none.
  static constexpr int PropertyRole = Qt::UserRole;
  void PropTreeClick();
  void PropTreeExpanding(QTreeWidgetItem* item);
  // A row of the property view, dropped on a node of the style tree; null is below all of them.
  void DropFromProperties(QTreeWidgetItem* item, TVRXStyleNode* at);
  void DropStyle(TVRXStyleNode* dragged, TVRXStyleNode* at, bool copy);
  void ShowPreviewControl();
  void ApplyStyleToPreviewControl();
  // Writes the value in the open editor and closes it.
  void SavePropValue();
  QRect GetValueRect(const TVRXStyleNode& property) const;

  void bttLoadFromFileClick();
  void btnSaveToFileClick();
  void btnAddStyleClick();
  void btnDeleteStyleClick();
  void btnAddComponentClick();
  void btnCreateStyleClick();
  void Cut(bool copy);
  void Paste();
  void Undo();
  void Redo();

  QGroupBox* PVGrouping;
  QRadioButton *byType, *byComponent;
  QLineEdit* fltEdit;
  QToolButton* fltClear;
  QTreeWidget *PropTree, *PropView;
  QLabel *Label1, *Label2;
  QToolButton *bttLoadFromFile, *btnSaveToFile, *btnAddStyle, *btnDeleteStyle, *btnAddComponent,
      *btnCreateStyle;
  StylesView* Styles;
  QCheckBox *cbStateStyles, *cbConfirmDeletion, *cbCtlXp, *cbAlign, *cbUseBgr, *cbCascade;
  StylePreview* PreviewPanel;
  QPushButton *OkBtn, *CancelBtn;
  QMenu *StylesMenu, *PropMenu;
  QAction *mnuEdit, *mnuCut, *mnuCopy, *mnuPaste, *mnuAddStyle, *mnuAddStates, *mnuDelete, *mnuUndo, *mnuRedo,
      *mnuAddToStyle;

 protected:
  void done(int result) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool ReturnConfirms() const override;

 private:
  // What undo goes back to: the styles, and properties that nobody has given a value yet.
  struct Loose {
    QString Style, Name, TypeName;
    bool operator==(const Loose&) const = default;
  };
  struct State {
    TVRXStyles Styles;
    std::vector<Loose> Properties{};
    bool operator==(const State&) const = default;
  };
  State Now() const;
  void GoTo(const State& state);
  // One step that can be undone. What the open editor has is saved first, as a step of its own.
  void Step(const std::function<void()>& change);
  void Change(const std::function<void()>& change);
  void Travel(std::deque<State>& from, std::deque<State>& to);

  QLayout* PropertyPart();
  QLayout* StylePart();
  QLayout* PreviewPart();
  QToolButton* SpeedButton(const char* name, const char* text, const char* hint, const char* drawing,
                           void (TfrmVRXStyleManProp::*click)());
  QAction* Action(QMenu& menu, QWidget& of, const char* name, const char* text, const QKeySequence& key,
                  const std::function<void()>& act);
  void BuildMenus();
  void UpdateMenu();
  QTreeWidgetItem* PropertyItem(const TVRXPropListItem& item) const;
  QString PropertyPathOf(const QTreeWidgetItem* item) const;
  QTreeWidgetItem* SelectedProperty() const;
  void ChoosePicture(TVRXStyleNode& property);
  QString PreviewClass() const;

  TVRXStyleManager manager_{nullptr};
  const TVRXStyleManager* edited_ = nullptr;
  std::unique_ptr<TVRXStyleTree> tree_;
  StyleModel* model_;
  std::deque<State> undo_, redo_;
  TVRXStyleNode* cut_ = nullptr;  // to be pasted
  bool cutCopies_ = false;
  QStringList open_;  // of the property view, while nothing is filtered
  bool filtered_ = false;
  bool stepping_ = false;
};
