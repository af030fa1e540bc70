// The one dialog for fonts. It works on a font of its own: a control that is not touched changes nothing in
// it, and what no control shows stays as it is.
#pragma once
#include "dclstd/ColorComboBox.h"
#include "dclstd/EditorDialog.h"
#include "dclstd/SpinEdit.h"
#include "vcl/ControlView.h"
#include "vcl/Label.h"

class QCheckBox;
class QFontComboBox;

// Writes into the font only when the user confirms, and is true then.
bool EditFont(TFont& font);

class FontDialog : public EditorDialog {
  Q_OBJECT
 public:
  explicit FontDialog(QWidget* owner);
  ~FontDialog() override;
  void FormClose() override;
  // The copy that is edited.
  TFont& Font() { return font_; }

  QFontComboBox* cmbname;
  SpinEdit* edsize;    // points
  SpinEdit* edheight;  // pixels; the same value in another unit
  ColorComboBox* cmbcolor;
  QComboBox* cmbcharset;
  QComboBox* cmbpitch;
  QCheckBox* styles[4];  // in the order of TFontStyle
  QPushButton* ok;
  QPushButton* cancel;
  QPushButton* reset;
  std::unique_ptr<TLabel> test;  // the preview
  ControlView* testView;

 protected:
  void LoadControls() override;

 private:
  void Build();
  void Connect();
  void ShowCharset();
  // Does one change to the font and shows what came of it.
  void Change(const std::function<void()>& change);
  void ShowPreview();
  TFont font_;
};
