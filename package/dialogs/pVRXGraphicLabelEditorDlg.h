// Edits a graphic label on a live preview, which is a copy of it with a sample for a caption. Whoever shows
// the dialog takes the copy over when ShowModal returns 1.
#pragma once
#include "dclstd/EditorDialog.h"
#include "dclstd/FontNameCombo.h"
#include "library/controls/GraphicLabel.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

class QTabWidget;

class TVRXGraphicLabelEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXGraphicLabelEditorDlg(QWidget* owner);
  void SetValue(const TVRXGraphicLabel& label);
  // Everything but the sample.
  void GetValue(TVRXGraphicLabel& label);

  void ButtonFillObjectDialogClick();
  void ButtonFontDialogClick();
  void ComboBoxPerspectiveChange();
  void VRXFontComboBoxChange(const QString& name);
  void VRXFontSizeComboBoxChange();

  QTabWidget* pages;
  QComboBox* ComboBoxTransform;
  TVRXSpinEdit* VRXSpinEditFactor;
  QPushButton* ButtonFillObjectDialog;
  QComboBox* ComboBoxStyle;
  TVRXSpinEdit *VRXSpinEditLightDepth, *VRXSpinEditShadowDepth, *VRXSpinEditAngle, *VRXSpinEditTracing;
  TVRXColorComboBox *VRXLightColorComboBox, *VRXShadowColorComboBox;
  FontNameCombo* VRXFontComboBox;
  TVRXColorComboBox* VRXColorComboBox;
  QComboBox* VRXFontSizeComboBox;
  QPushButton* ButtonFontDialog;
  TVRXSpinEdit* VRXSpinEditToggle;
  QComboBox* ComboBoxPerspective;
  TVRXSpinEdit* VRXSpinEditPerspectiveDepth;
  QCheckBox *CheckBoxEqualLetters, *CheckBoxAutoToggle, *CheckBoxToggled;
  QPushButton *ButtonOK, *ButtonCancel;
  TVRXGraphicLabel* test;

 protected:
  void LoadControls() override;

 private:
  void AddPage(const QString& title);
  QString caption_;
};
