// Edits a caption on a live preview: text, place, font and effects.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/FlatCheckBox.h"

class TVRXCaptionEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXCaptionEditorDlg(QWidget* owner);

  void cmbChange() { Apply(cmb); }
  // Loading would move the cursor.
  void capChange() { Write(cap); }
  void chkClick() { Write(chk); }
  void btncClick(const QPushButton* sender);

  QComboBox* cmb;
  QLineEdit* cap;
  FlatCheckBox* chk;
  QPushButton *btnf, *btnffx;
  QPushButton *ok, *Button1, *reset;
  TVRXShapeControl* test;  // its caption is what is edited
};
