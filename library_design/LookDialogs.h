// The library's editors of brushes and of bevels around controls, each on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/Light.h"
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

// Each writes its result into the argument only when the user confirms, and is true then.
bool VRXCPGetBevel(TVRXBevel& bevel);
bool VRXCPGetBrush(TBrush& brush);

class TVRXBevelEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXBevelEditorDlg(QWidget* owner = nullptr);
  void btn(const QToolButton* sender);

  QComboBox *cmbouter, *cmbinner;
  TVRXSpinEdit *edwidth, *edborder;
  TVRXColorComboBox *cmbL, *cmbs, *cmbb;
  QToolButton *dlgl, *dlgs, *dlgb;
  QPushButton *ok, *cancel, *reset;
  TVRXLight* test;  // its bevel is what is edited
};

class TVRXBrushEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXBrushEditorDlg(QWidget* owner = nullptr);
  void btn() { cmbcolor->Execute(); }

  QComboBox* cmbstyle;
  TVRXColorComboBox* cmbcolor;
  QToolButton* dlgc;
  QPushButton *ok, *cancel, *reset;
  TVRXShapeControl* test;  // its brush is what is edited
};
