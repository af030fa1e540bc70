// Edits a simple bevel on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

class TVRXSimpleBevelEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXSimpleBevelEditorDlg(QWidget* owner);

  void cmbChange();
  void cmbSChange(const TVRXColorComboBox* sender) { WriteShown(sender); }
  void spindChange() { WriteShown(spind); }
  void dlglClick(const QToolButton* sender);
  // The ground of the preview stays that of forms.
  void IdeThemeChanged();

  QComboBox* cmbstyle;
  TVRXSpinEdit* spind;
  TVRXColorComboBox *cmbL, *cmbs, *cmbn;
  QToolButton *dlgl, *dlgs, *dlgn;
  QPushButton *ok, *Button1, *reset;
  TVRXShapeControl* test;  // its bevel is what is edited

 protected:
  void changeEvent(QEvent* event) override;

 private:
  // Loads as soon as the dialog is seen; the style waits for the first activation, too.
  void WriteShown(const QWidget* sender);
};
