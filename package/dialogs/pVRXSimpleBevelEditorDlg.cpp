#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"

#include <QEvent>

#include "library_design/pVRXCommon.h"

using D = TVRXSimpleBevelEditorDlg;

TVRXSimpleBevelEditorDlg::TVRXSimpleBevelEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Simple Bevel Editor"), QSize(539, 319), owner) {
  Preview(test, "Displays the current settings.");
  test->Set(TVRXBaseShape::Shape, TVRXShapeType::stEllipse);
  test->Brush()->SetColor(clBtnFace);
  test->Set(TVRXBaseShape::BevelColor, clBtnShadow);
  Edits(*test->Bevel());
  Row(cmbstyle, "cmbstyle", "Style", "Style: ", "Specifies the style for the bevel.").Changes(&D::cmbChange);
  // Three characters, of which the lowest eight bits are kept.
  Row(spind, "spind", "Width", "Width:", "Define the width of the bevel.")
      .Range(-99, 999, 3)
      .Changes(&D::spindChange);
  Row(cmbL, "cmbL", "LightColor", "LightColor: ", "Defines the LightColor for 3D-effects.")
      .WithButton(dlgl, "dlgl", &D::dlglClick)
      .Changes(&D::cmbSChange);
  Row(cmbs, "cmbs", "ShadowColor", "ShadowColor: ", "Defines the ShadowColor for 3D-effects.")
      .WithButton(dlgs, "dlgs", &D::dlglClick)
      .Changes(&D::cmbSChange);
  Row(cmbn, "cmbn", "NormalColor", "NormalColor: ", "Defines the NormalColor while not using 3D-effects.")
      .WithButton(dlgn, "dlgn", &D::dlglClick)
      .Changes(&D::cmbSChange);
  cmbL->SetStyles({TColorChoice::csDefaultColors, TColorChoice::csSystemColors, TColorChoice::csAnyColor});
  for (QToolButton* button : {dlgl, dlgs, dlgn}) {
    button->setIcon({});
    button->setText(QStringLiteral("..."));
    // As large as the font needs.
    button->setMinimumSize(0, 0);
    button->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  }
  Buttons({ok, "ok"}, {Button1, "Button1"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
  IdeThemeChanged();
}

void TVRXSimpleBevelEditorDlg::cmbChange() {
  Write(cmbstyle);
  if (activated && isVisible()) SetLabels();
}

void TVRXSimpleBevelEditorDlg::WriteShown(const QWidget* sender) {
  Write(sender);
  if (isVisible()) SetLabels();
}

// All three work on the one list of custom colours that cmbL holds.
void TVRXSimpleBevelEditorDlg::dlglClick(const QToolButton* sender) {
  if (sender == dlgl)
    cmbL->Execute();
  else
    (sender == dlgs ? cmbs : cmbn)->ExecuteEnh(*cmbL);
}

void TVRXSimpleBevelEditorDlg::IdeThemeChanged() {
  auto* panel = findChild<QWidget*>(QStringLiteral("previewPanel"));
  if (!panel || !testView) return;
  QPalette palette = panel->palette();
  if (palette.color(QPalette::Window) == ToQColor(clBtnFace) && panel->autoFillBackground()) return;
  palette.setColor(QPalette::Window, ToQColor(clBtnFace));
  panel->setAutoFillBackground(true);
  panel->setPalette(palette);
}

void TVRXSimpleBevelEditorDlg::changeEvent(QEvent* event) {
  EditorDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) IdeThemeChanged();
}
