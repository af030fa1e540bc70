// Edits the look of segment letters on a live preview. The dialog never touches the edited component: whoever
// shows it copies the value into the preview's LED and takes it from there when ShowModal returns 1.
#pragma once
#include "dclstd/EditorDialog.h"
#include "dclstd/OneShotComboBox.h"
#include "library/controls/LEDLabel.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

class TVRXLEDEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXLEDEditorDlg(QWidget* owner);

  void edchange(const TVRXSpinEdit* sender) { Apply(sender); }
  void cmbc(const TVRXColorComboBox* sender) { Apply(sender); }
  void predChange();
  void chkClick() { Write(chk); }
  void btn(const QToolButton* sender);

  TVRXSpinEdit *edhs, *edvs, *edt;
  TVRXColorComboBox *cmbb, *cmbL;
  QToolButton *bt1, *bt2;
  OneShotComboBox* pred;
  QCheckBox* chk;
  QPushButton *ok, *Button1, *reset;
  TVRXLEDLabel* test;
};
