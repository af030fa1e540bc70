#include "library_design/SettingEditors.h"

#include "dclstd/EditValue.h"
#include "designintf/CustomColors.h"
#include "library/values/FaceObjects.h"
#include "library_design/ColorDialogs.h"
#include "library_design/FillDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/LookDialogs.h"
#include "library_design/ValueDialogs.h"
#include "library_design/pVRXCommon.h"

const TClass& TVRXEffectSample::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXEffectSample>("TVRXEffectSample", TGraphicControl::StaticClass()).Published(Effect));
  return cls;
}

namespace {
// Colours of the rainbow, light and dark, on nothing at the edges.
QImage SamplePicture(int side) {
  QImage picture(side, side, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  QPainter p(&picture);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const double half = side / 2.0;
  QConicalGradient rainbow(QPointF(half, half), 90);
  for (int i = 0; i <= 6; ++i) rainbow.setColorAt(i / 6.0, QColor::fromHsv(i % 6 * 60, 200, 220));
  p.setBrush(rainbow);
  p.drawEllipse(QRectF(1, 1, side - 2, side - 2));
  p.setBrush(QColor(40, 44, 52));
  p.drawEllipse(QPointF(half, half), half / 3, half / 3);
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(half * 0.9, half * 0.9), half / 9, half / 9);
  return picture;
}
}  // namespace

void TVRXEffectSample::Paint(TCanvas& canvas) {
  const int side = std::min((Width() - 36) / 2, Height() - 24);
  if (side < 8) return;
  const QImage picture = SamplePicture(side);
  const int top = (Height() - side) / 2;
  canvas.Painter().drawImage(Width() / 2 - 6 - side, top, picture);
  canvas.Painter().drawImage(Width() / 2 + 6, top, Get(Effect)->Apply(picture));
}

TVRXBitmapEffectDlg::TVRXBitmapEffectDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Bitmap Effect Editor"), QSize(480, 220), owner) {
  Preview(test, "Shows a picture before and after.");
  Edits(*test->Get(TVRXEffectSample::Effect));
  Row(cmbkind, "cmbkind", "Kind", "&Effect:", "What is done to the picture.");
  Row(edamount, "edamount", "Amount", "&Amount:", "How much of it, in percent.").Length(3);
  Row(cmbcolor, "cmbcolor", "Color", "&Color:", "What a tint leads to.")
      .WithButton(dlgc, "dlgc", &TVRXBitmapEffectDlg::btn);
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

bool VRXCPGetBitmapEffect(TVRXBitmapEffect& effect) { return EditValue<TVRXBitmapEffectDlg>(effect); }

namespace {
bool EditColor(TVRXColorObject& object) {
  TColor color = object.Get(TVRXColorObject::Color);
  QStringList custom = LoadIDECustomColors();
  if (!VRXCPGetColor(color, custom)) return false;
  SaveIDECustomColors(custom);
  object.Set(TVRXColorObject::Color, color);
  return true;
}
}  // namespace

bool VRXCPGetSettingEditor(TPersistent& object) {
  if (auto* font = As<TFont>(&object)) return VRXCPGetFont(*font);
  if (auto* font = As<TVRXFont3D>(&object)) return VRXCPGetFont3D(*font);
  if (auto* fx = As<TVRXFxCaption>(&object)) return VRXCPGetFontFx(*fx);
  if (auto* fill = As<TVRXFillObject>(&object)) return VRXCPGetFillObject(*fill);
  if (auto* effect = As<TVRXBitmapEffect>(&object)) return VRXCPGetBitmapEffect(*effect);
  if (auto* bevel = As<TVRXBevel>(&object)) return VRXCPGetBevel(*bevel);
  if (auto* color = As<TVRXColorObject>(&object)) return EditColor(*color);
  if (auto* brush = As<TBrush>(&object)) return VRXCPGetBrush(*brush);
  if (auto* style = As<TVRXStateStyle>(&object)) return VRXCPGetSettingEditor(*style, "StyleName");
  return false;
}
