// Turns a picture or a caption into the pictures of a three-dimensional button.
//
// Whoever shows the dialog hands it colours, bevel width and bitmaps before and reads them after ShowModal
// returned 1. The bitmaps stay the caller's and must outlive the dialog.
#pragma once
#include <array>
#include <optional>

#include "dclstd/EditorDialog.h"
#include "library/pixels/Button3D.h"
#include "library/values/Caption.h"
#include "library_design/ColorCombo.h"
#include "library_design/PictureView.h"
#include "library_design/ProgressBar.h"
#include "library_design/SpinEdit.h"

// Sizes the bitmap to the caption and draws it there on silver, which an editor takes for transparent.
void VRXDrawCaptionFace(const TVRXCaption& caption, TBitmap& bitmap);

class TVRX3DEffectEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRX3DEffectEditorDlg(QWidget* owner);

  // Set before the dialog is shown.
  TColor colors[4] = {clBlack, clWhite, clWhite, clGray};  // bevel, disabled, light, shadow
  std::uint8_t bevelWidth = 2;
  // The original, then the results up, down, disabled.
  TBitmap* bitmaps[4] = {&own_[0], &own_[1], &own_[2], &own_[3]};
  std::unique_ptr<TVRXCaption> caption = std::make_unique<TVRXCaption>();

  void FormActivate() override;
  void reject() override;
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
  QLabel* note;  // why the results are not what they could be; quiet
  QComboBox* cmbState;
  QPushButton* EXECUTE;
  QPushButton* STOP;
  TVRXProgressBar* vrxprog;
  QPushButton* Ok;
  QPushButton* VRXButton4;

 protected:
  void done(int result) override;
  // What is older than the settings is confirmed by the button itself only.
  bool ReturnConfirms() const override { return !ResultsAreOlder(); }
  void LoadControls() override;

 private:
  void ShowState(int state);
  void ShowNote();
  // What the results depend on besides the picture.
  struct Settings {
    std::array<TColor, 4> colors;
    std::uint8_t bevelWidth;
    bool operator==(const Settings&) const = default;
  };
  Settings CurrentSettings() const { return {std::to_array(colors), bevelWidth}; }
  // Whether OK would take results that other settings led to.
  bool ResultsAreOlder() const;
  std::optional<Settings> made_;  // of the results
  bool nothingToDo_ = false;      // the last run had no picture
  bool running_ = false;
  TBitmap own_[4];  // when nobody hands bitmaps over
};
