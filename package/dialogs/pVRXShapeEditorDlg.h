// Picks a figure on a live shape.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"

class TVRXShapeEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXShapeEditorDlg(QWidget* owner);
  void FormActivate() override;
  void predChange();

  QComboBox* pred;
  QPushButton *btnOK, *btnCancel;
  TVRXShapeControl* test;  // its figure is what is picked

 protected:
  void LoadControls() override;
};
