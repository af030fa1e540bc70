// The editors of setting objects, each opened by what the object is; and the editor of bitmap effects, on a
// live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/values/BitmapEffect.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"
#include "vcl/Control.h"

// Writes into the object only when the user confirms, and is true then. Nothing is opened for what is none.
bool VRXCPGetSettingEditor(TPersistent& object);
bool VRXCPGetBitmapEffect(TVRXBitmapEffect& effect);

// A picture under an effect, beside itself.
class TVRXEffectSample : public TGraphicControl {
  VRX_CLASS(TVRXEffectSample)
 public:
  using TGraphicControl::TGraphicControl;
  static constexpr TKept<TVRXBitmapEffect*> Effect{"Effect"};
  void Paint(TCanvas& canvas) override;
};

class TVRXBitmapEffectDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXBitmapEffectDlg(QWidget* owner = nullptr);
  void btn() { cmbcolor->Execute(); }

  QComboBox* cmbkind;
  TVRXSpinEdit* edamount;
  TVRXColorComboBox* cmbcolor;
  QToolButton* dlgc;
  QPushButton *ok, *cancel, *reset;
  TVRXEffectSample* test;
};
