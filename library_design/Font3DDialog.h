// The library's editor of light and shadow around letters, on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/CustomLabel.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

// Writes its result into the argument only when the user confirms, and is true then.
bool VRXCPGetFont3D(TVRXFont3D& font);

class TVRXFont3DEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXFont3DEditorDlg(QWidget* owner = nullptr);

  QComboBox* cmbstyle;
  TVRXSpinEdit* eddepth[2];  // light, shadow
  TVRXColorComboBox* cmbcolor[2];
  TVRXSpinEdit *edx, *edy;
  QPushButton *ok, *cancel, *reset;
  TVRXStaticText* test;
};
