#include "package/dialogs/pVRXShapeEditorDlg.h"

TVRXShapeEditorDlg::TVRXShapeEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Shape Editor"), QSize(439, 242), owner) {
  Preview(test);
  Row(pred, "pred", "", "&Shape:")
      .Items(TypeInfoOf<TVRXShapeType>::Get())
      .Changes(&TVRXShapeEditorDlg::predChange);
  Buttons({btnOK, "btnOK"}, {btnCancel, "btnCancel"});
  Finish();
}

void TVRXShapeEditorDlg::FormActivate() {
  if (!activated) SetLabels();
  EditorDialog::FormActivate();
}

void TVRXShapeEditorDlg::LoadControls() {
  pred->setCurrentIndex(static_cast<int>(test->Get(TVRXBaseShape::Shape)));
}

void TVRXShapeEditorDlg::predChange() {
  if (pred->currentIndex() != -1)
    test->Set(TVRXBaseShape::Shape, static_cast<TVRXShapeType>(pred->currentIndex()));
  if (activated) SetLabels();
}
