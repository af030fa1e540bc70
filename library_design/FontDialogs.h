// The library's editors of fonts and of font effects, on a live preview.
#pragma once
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/EditorDialog.h"
#include "library_design/SpinEdit.h"
#include "vcl/ControlView.h"

class QCheckBox;
class QFontComboBox;

// Each writes its result into the argument only when the user confirms, and is true then.
bool VRXCPGetFont(TFont& font);
bool VRXCPGetFontFx(TVRXFxCaption& fx);

class TVRXFontEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  TVRXFontEditorDlg();
  ~TVRXFontEditorDlg() override;
  void SetLabels();
  void FormClose() override;
  TFont& Font() { return *test->Caption()->Font(); }

  QFontComboBox* cmbname;
  TVRXSpinEdit* edsize;
  TVRXColorComboBox* cmbcolor;
  QCheckBox* styles[4];  // in the order of TFontStyle
  std::unique_ptr<TVRXShapeControl> test;
  ControlView* testView;

 private:
  void Changed();
  bool loading_ = false;
};

class TVRXFontFxEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  TVRXFontFxEditorDlg();
  ~TVRXFontFxEditorDlg() override;
  void SetLabels();
  void FormClose() override;
  TVRXFxCaption& FontFx() { return *test->Caption()->FontFX(); }

  QComboBox* cmbstyle;
  TVRXSpinEdit* eddepth[2];  // light, shadow
  TVRXColorComboBox* cmbcolor[2];
  TVRXSpinEdit* edangle;
  TVRXSpinEdit* edtracing;
  QPushButton* reset;
  std::unique_ptr<TVRXShapeControl> test;
  ControlView* testView;
};
