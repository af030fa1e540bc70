// The library's editor of fills: a colour, a gradient, a hatch or a bitmap, on a live preview.
#pragma once
#include "dclstd/EditorDialog.h"
#include "library/controls/ShapeControl.h"
#include "library_design/ColorCombo.h"
#include "library_design/SpinEdit.h"

class QListWidget;

// Writes into the fill only when the user confirms, and is true then. `images`: where it finds pictures by
// index, if anywhere.
bool VRXCPGetFillObject(TVRXFillObject& fill, TCustomImageList* images = nullptr);

class TVRXFillEditorDlg : public EditorDialog {
  Q_OBJECT
 public:
  explicit TVRXFillEditorDlg(QWidget* owner = nullptr);
  void SetImages(TCustomImageList* images);

  void btn(const QToolButton* sender);
  void btnbitmapClick();
  void btnaddClick();
  void btndeleteClick();

  QComboBox *cmbkind, *cmbdirection, *cmbhatch, *cmbplace;
  TVRXColorComboBox *cmbcolor, *cmbend;
  QToolButton *dlgc, *dlge;
  TVRXSpinEdit* edindex;
  QListWidget* colors;  // of a gradient that has more than two
  QPushButton *btnadd, *btndelete, *btnbitmap;
  QPushButton *ok, *cancel, *reset;
  TVRXShapeControl* test;  // its shape fill is what is edited

 protected:
  void LoadControls() override;
};
