// Edits the filter of a file dialog, names and patterns separated by "|", as a grid of pairs.
#pragma once
#include "package/dialogs/PairsDialog.h"

class TVRXFilterPropsDlg : public PairsDialog {
  Q_OBJECT
 public:
  explicit TVRXFilterPropsDlg(QWidget* owner);
  void FormCreate() override;
  void FormActivate() override;
  // Shows the filter in the grid.
  void FormShow();
  // Makes the filter of the grid. Pairs of which a half is missing are left out.
  void OKBtnClick();

  QString Filter;  // what is edited
  PairsGrid* FilterGrid;
  QPushButton *OKBtn, *CancelBtn;

 protected:
  void LoadControls() override { FormShow(); }
  void Take() override { OKBtnClick(); }
  void GridChanged() override;
};
