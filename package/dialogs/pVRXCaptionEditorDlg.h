// Edits a caption on a live preview: text, place, font and effects.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "vcl/ControlView.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

class TVRXCaptionEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXCaptionEditorDlg(QWidget* owner);
  ~TVRXCaptionEditorDlg() override;

  void FormCreate();
  void cmbChange();
  void capChange();
  void chkClick();
  void btncClick(const QPushButton* sender);
  void resetClick();

  QComboBox* cmb;
  QLineEdit* cap;
  QCheckBox* chk;
  QPushButton* btnf;
  QPushButton* btnffx;
  QPushButton* ok;
  QPushButton* Button1;
  QPushButton* reset;
  std::unique_ptr<TVRXShapeControl> test;  // the preview; its caption is what is edited
  ControlView* testView;

 protected:
  void LoadControls() override;

 private:
  void Build();
};
