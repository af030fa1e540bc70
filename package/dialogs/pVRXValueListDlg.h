// Edits the names and values of a control's items as a grid.
#pragma once
#include "package/dialogs/PairsDialog.h"

class IVRXValueListControl;

class TVRXValueListDlg : public PairsDialog {
  Q_OBJECT
 public:
  explicit TVRXValueListDlg(QWidget* owner);
  // Shows the dialog for the control; true when the user confirmed, and the control has the items then.
  static bool Execute(IVRXValueListControl& control);
  // Fills the grid from the control, and the control from the grid.
  void UpdateView();
  void UpdateData();
  void OkButtonClick() { UpdateData(); }

  PairsGrid* ValueListEditor;
  QPushButton *OkBtn, *CancelBtn;

 protected:
  void Take() override { OkButtonClick(); }

 private:
  IVRXValueListControl* control_ = nullptr;
  int shown_ = 0;  // rows at first
};
