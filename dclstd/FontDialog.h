// The one dialog for fonts. It works on a font of its own: a control that is not touched changes nothing in
// it, and what no control shows stays as it is.
#pragma once
#include "dclstd/ColorComboBox.h"
#include "dclstd/EditorDialog.h"
#include "dclstd/FontNameCombo.h"
#include "vcl/Label.h"

// Writes into the font only when the user confirms, and is true then.
bool EditFont(TFont& font);

class FontDialog : public EditorDialog {
  Q_OBJECT
 public:
  explicit FontDialog(QWidget* owner);
  // The copy that is edited.
  TFont& Font() { return font_; }

  FontNameCombo* cmbname;
  SpinEdit* edsize;    // points
  SpinEdit* edheight;  // pixels; the same value in another unit
  ColorComboBox* cmbcolor;
  QComboBox *cmbcharset, *cmbpitch;
  QCheckBox* styles[4];  // in the order of TFontStyle
  QPushButton *ok, *cancel, *reset;
  TLabel* test;  // the preview

 protected:
  void LoadControls() override;

 private:
  void SetName(const QString& name);
  TFont font_;
};
