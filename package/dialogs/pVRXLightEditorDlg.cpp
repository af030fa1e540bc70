#include "package/dialogs/pVRXLightEditorDlg.h"

#include <QMouseEvent>

TVRXLightEditorDlg::TVRXLightEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Light Editor"), QSize(478, 271), owner) {
  Preview(test);
  test->Set(TVRXCustomLight::Active, false);
  testView->installEventFilter(this);
  Row(pred, "pred", "", "&LightColor:")
      .Items(TypeInfoOf<TVRXLightColor>::Get())
      .Changes(&TVRXLightEditorDlg::predChange);
  Note(
      "LightControl displays disabled Color by default. Click on control to switch between enabled and "
      "disabled colors.");
  Buttons({btnOK, "btnOK"}, {btnCancel, "btnCancel"});
  Finish();
}

void TVRXLightEditorDlg::FormActivate() {
  if (!activated) SetLabels();
  EditorDialog::FormActivate();
}

void TVRXLightEditorDlg::LoadControls() {
  pred->setCurrentIndex(static_cast<int>(test->Get(TVRXCustomLight::LightColor)));
}

void TVRXLightEditorDlg::predChange() {
  if (pred->currentIndex() != -1)
    test->Set(TVRXCustomLight::LightColor, static_cast<TVRXLightColor>(pred->currentIndex()));
  if (activated) SetLabels();
}

void TVRXLightEditorDlg::testClick() {
  test->Set(TVRXCustomLight::Active, !test->Get(TVRXCustomLight::Active));
}

// A click as controls have it: pressed and released on the preview.
bool TVRXLightEditorDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched == testView && event->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::LeftButton && testView->rect().contains(mouse->position().toPoint()))
      Guarded([this] { testClick(); });
  }
  return EditorDialog::eventFilter(watched, event);
}
