// Fills a panel with the buttons of a dialog, or puts those that it holds in another order. It works on the
// designer's panel itself, once it is confirmed.
#pragma once
#include <QRadioButton>
#include <array>

#include "dclstd/RowDialog.h"
#include "dclstd/RowDrag.h"
#include "package/dialogs/DialogButtons.h"

class LinesTable;
class QGroupBox;
class QListWidget;
class QStackedWidget;
class QStandardItemModel;

class TVRXDlgBtnEditorDlg : public RowDialog {
  Q_OBJECT
 public:
  explicit TVRXDlgBtnEditorDlg(QWidget* owner);
  // Whose buttons it is about. The designer names new ones.
  void SetPanel(TVRXDlgButtonPanel& panel, IDesigner& designer);
  // The page of the order, with the list filled; else that of new buttons.
  void ShowOrder();

  void GetIniSettings();
  void SetIniSettings();
  void InsertButtons(std::uint16_t mask, bool withGap);
  void LBFill();
  // What the page that is shown says, done to the panel.
  void Execute();

  void chkClick(int item);
  void list2Click();
  void lbClick();
  void upClick();
  void DownClick();

  QStackedWidget* pages;
  QRadioButton *rb1, *rb2;
  QGroupBox* chk;
  std::array<QCheckBox*, 11> items;
  QListWidget* list2;
  SpinEdit *ext1, *ext2;
  QCheckBox *chkr, *chkr2;
  LinesTable* lb;
  QToolButton *up, *Down;
  QPushButton *ok, *cancel;

  std::uint16_t Mask() const { return mask_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* BuildButtonsPage();
  QWidget* BuildOrderPage();
  void MoveLine(const RowMoves& moves);
  void MoveLineBy(int by);
  void ShowMask();
  TVRXDlgButtonPanel* panel_ = nullptr;
  IDesigner* designer_ = nullptr;
  std::uint16_t mask_ = 0;
  QStandardItemModel* lines_;
  std::vector<TButton*> order_;  // of the lines
};
