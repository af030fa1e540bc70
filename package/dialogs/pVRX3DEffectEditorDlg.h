// Turns a picture or a caption into the pictures of a three-dimensional button.
//
// Whoever shows the dialog hands it colours, bevel width and bitmaps before and reads them after ShowModal
// returned 1. The bitmaps stay the caller's and must outlive the dialog.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/pixels/Button3D.h"
#include "library/values/Caption.h"
#include "library_design/ColorCombo.h"
#include "library_design/PictureView.h"
#include "library_design/ProgressBar.h"
#include "library_design/SpinEdit.h"

class QToolButton;

// Sizes the bitmap to the caption and draws it there on silver, which an editor takes for transparent.
void VRXDrawCaptionFace(const TVRXCaption& caption, TBitmap& bitmap);

class TVRX3DEffectEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRX3DEffectEditorDlg(QWidget* owner);
  ~TVRX3DEffectEditorDlg() override;

  // Set before the dialog is shown.
  TColor colors[4] = {clBlack, clWhite, clWhite, clGray};  // bevel, disabled, light, shadow
  std::uint8_t bevelWidth = 2;
  TBitmap* bitmaps[4] = {};  // the original, then the results up, down, disabled
  std::unique_ptr<TVRXCaption> caption;

  void FormCreate();
  void FormActivate() override;
  void FormClose() override;
  void cmbBChange(const TVRXColorComboBox* sender);
  void spindChange();
  void dlgBClick(const QToolButton* sender);
  void btngetpicClick(const QPushButton* sender);
  void EXECUTEClick();
  void STOPClick();
  void cmbStateChange();

  QPushButton* btngetpic;
  QPushButton* btngetcap;
  TVRXSpinEdit* spind;
  TVRXColorComboBox *cmbB, *cmbD, *cmbL, *cmbS;
  QToolButton *dlgb, *dlgd, *dlgl, *dlgs;
  PictureView* BtnImg;
  QComboBox* cmbState;
  QPushButton* EXECUTE;
  QPushButton* STOP;
  TVRXProgressBar* vrxprog;
  QPushButton* Ok;
  QPushButton* VRXButton4;

 protected:
  void done(int result) override;
  void LoadControls() override;

 private:
  void Build();
  void BuildSettings();
  void BuildRight();
  void ShowState(int state);
  bool running_ = false;
  std::vector<QWidget*> settings_;
};
