// The library's editors of fonts, which is the framework's, and of font effects, on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

// Each writes its result into the argument only when the user confirms, and is true then.
bool VRXCPGetFont(TFont& font);
bool VRXCPGetFontFx(TVRXFxCaption& fx);
// A letter with a shadow, for buttons that open font effects.
QIcon FontFxIcon();

class TVRXFontFxEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXFontFxEditorDlg(QWidget* owner = nullptr);
  TVRXFxCaption& FontFx() { return *test->Caption()->FontFX(); }

  QComboBox* cmbstyle;
  TVRXSpinEdit* eddepth[2];  // light, shadow
  TVRXColorComboBox* cmbcolor[2];
  TVRXSpinEdit *edangle, *edtracing;
  QPushButton *ok, *cancel, *reset;
  TVRXShapeControl* test;
};
