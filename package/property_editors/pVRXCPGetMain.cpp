#include "package/property_editors/pVRXCPGetMain.h"

#include <QCheckBox>

#include "dclstd/EditValue.h"
#include "library_design/Encoding.h"
#include "library_design/FillDialog.h"
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXControlFaceEditorDlg.h"
#include "package/dialogs/pVRXDateListEditorDlg.h"
#include "package/dialogs/pVRXGraphicLabelEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/dialogs/pVRXLightEditorDlg.h"
#include "package/dialogs/pVRXPointListEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXShapeEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"

bool VRXCPGetButtonFace3D(TVRXCustom3DButton& button) {
  TVRX3DEffectEditorDlg dialog(ApplicationOwner());
  const TBitmap& original = *dialog.bitmaps[0];
  if (dialog.ShowModal() != mrOk || original.Empty()) return false;
  const TColor transparent = original.Pixel(0, original.Height() - 1);
  const auto masks = [&](int state) { return VRXBmpCreateMasksExt(*dialog.bitmaps[state], transparent); };
  TVRX3DButtonFace face;
  face.SetPictures(masks(1), masks(2), masks(3));
  if (!Encoded(face)) return false;
  button.BeginUpdate();
  button.SetButtonFace(&face);
  button.SetBounds(button.Left(), button.Top(), dialog.bitmaps[1]->Width(), dialog.bitmaps[1]->Height());
  button.EndUpdate();
  return true;
}

bool VRXCPGetFaceController(TVRXFaceController& controller) {
  TVRXControlFaceEditorDlg dialog(ApplicationOwner());
  dialog.Edit(controller);
  if (dialog.ShowModal() != mrOk) return false;
  controller.Assign(&dialog.EditFaceController());
  return true;
}

bool VRXCPGetVRXCaption(TVRXCaption& caption, bool showMultiLine) {
  return EditValue<TVRXCaptionEditorDlg>(caption, ApplicationOwner(),
                                         [=](auto& dialog) { dialog.chk->setVisible(showMultiLine); });
}

namespace {
// As long as all forms can keep it, and not in the middle of a letter.
QString Kept(const QString& description) {
  constexpr qsizetype Most = 255;
  const bool splits = description.size() > Most && description[Most - 1].isHighSurrogate();
  return description.left(splits ? Most - 1 : Most);
}
}  // namespace
bool VRXCPGetDateList(TVRXDateList& list) {
  TVRXDateListEditorDlg dialog(nullptr);
  dialog.Lines().SetEntries(list.Entries());
  if (dialog.ShowModal() != mrOk) return false;
  const TUpdateLock lock(list);
  list.Clear();
  for (int row = 0; row < dialog.Lines().rowCount(); ++row) {
    TVRXDateEntry entry = dialog.Lines().Entry(row);
    entry.Description = Kept(entry.Description);
    list.AddEntry(entry);
  }
  return true;
}

bool VRXCPGetPointList(TVRXPointList& list) {
  TfrmTVRXPointListEditor dialog(nullptr);
  dialog.SetPointList(list);
  if (dialog.ShowModal() != mrOk) return false;
  dialog.GetPointList(list);
  return true;
}

bool VRXCPGetGraphicLabel(TVRXGraphicLabel& label) {
  TVRXGraphicLabelEditorDlg dialog(ApplicationOwner());
  dialog.SetValue(label);
  if (dialog.ShowModal() != mrOk) return false;
  dialog.GetValue(label);
  return true;
}

bool VRXCPGetLED(TVRXLED& led) { return EditValue<TVRXLEDEditorDlg>(led, nullptr); }
bool VRXCPGetRegionMask(TVRXRegionMask& mask, bool window) {
  return EditValue<TVRXfrmRegionFromBMPdlg>(mask, ApplicationOwner(), [=](auto& dialog) {
    if (!window) dialog.SetButtonFace();
  });
}
bool VRXCPGetShadow(TVRXShadow& shadow) { return EditValue<TVRXShadowEditorDlg>(shadow); }
bool VRXCPGetShapeFill(TVRXShapeFill& fill, TCustomImageList* images) {
  return EditValue<TVRXFillEditorDlg>(fill, ApplicationOwner(), [=](auto& dialog) {
    dialog.setWindowTitle(QStringLiteral("ShapeFill-Editor"));
    dialog.SetImages(images);
  });
}
bool VRXCPGetSimpleBevel(TVRXSimpleBevel& bevel) { return EditValue<TVRXSimpleBevelEditorDlg>(bevel); }
bool VRXCPGetTeeth(TVRXTeeth& teeth) { return EditValue<TVRXTeethEditorDlg>(teeth); }

namespace {
template <class D, class T>
T Pick(const TKept<T>& property, T value, QWidget* owner) {
  D dialog(owner);
  dialog.test->Set(property, value);
  dialog.SetLabels();
  return dialog.ShowModal() == mrOk ? dialog.test->Get(property) : value;
}
}  // namespace

TVRXLightColor VRXCPGetLightColor(TVRXLightColor color) {
  return Pick<TVRXLightEditorDlg>(TVRXCustomLight::LightColor, color, nullptr);
}
TVRXShapeType VRXCPGetShape(TVRXShapeType shape) {
  return Pick<TVRXShapeEditorDlg>(TVRXBaseShape::Shape, shape, ApplicationOwner());
}
