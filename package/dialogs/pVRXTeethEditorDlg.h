// Edits the teeth of a toothed side on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/SpinEdit.h"

class TVRXTeethEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXTeethEditorDlg(QWidget* owner);

  void cmbChange() { Apply(cmb); }
  void spincChange(const TVRXSpinEdit* sender) { Apply(sender); }
  void chkcClick(const QCheckBox* sender) { Apply(sender); }

  QComboBox* cmb;
  TVRXSpinEdit *spinc, *spinW, *spinh;
  QCheckBox *chkc, *chko;
  QPushButton *ok, *Button1, *reset;
  TVRXShapeControl* test;  // its teeth are what is edited
};
