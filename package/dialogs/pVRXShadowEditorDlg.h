// Edits a shadow on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

class TVRXShadowEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXShadowEditorDlg(QWidget* owner);

  void cmbChange() { Apply(cmbstyle); }
  void cmbSChange() { Apply(cmbS); }
  void spindChange() { Apply(spind); }
  void dlglClick() { cmbS->Execute(); }

  QComboBox* cmbstyle;
  TVRXColorComboBox* cmbS;
  QToolButton* dlgl;
  TVRXSpinEdit* spind;
  QPushButton *ok, *Button1, *reset;
  TVRXShapeControl* test;  // its shadow is what is edited
};
