#include "library_design/FillDialog.h"

#include <QListWidget>

#include "dclstd/EditValue.h"
#include "dclstd/PictureEditor.h"
#include "library_design/ColorDialogs.h"
#include "library_design/Named.h"
#include "library_design/pVRXCommon.h"

using D = TVRXFillEditorDlg;

TVRXFillEditorDlg::TVRXFillEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Fill-Editor"), QSize(563, 420), owner) {
  Preview(test, "Shows the current settings.");
  test->Set(TVRXBaseShape::FillStyle, TVRXShapeFillStyle::sfShapeFill);
  Edits(*test->ShapeFill());
  Row(cmbkind, "cmbkind", "Kind", "&Kind:", "A color, a gradient, a hatch or a bitmap.");
  Row(cmbcolor, "cmbcolor", "Color",
      "&Color:", "Color of the area, of the gradient's beginning or of the hatch's lines.")
      .WithButton(dlgc, "dlgc", &D::btn);
  Row(cmbend, "cmbend", "EndColor", "&EndColor:", "Color of the gradient's end or of the hatch's ground.")
      .WithButton(dlge, "dlge", &D::btn);
  Row(cmbdirection, "cmbdirection", "Direction", "&Direction:", "Where the gradient runs to.");
  colors = Named(new QListWidget(this), "colors", "All colors of a gradient that has more than two.");
  colors->setMaximumHeight(72);
  Wide({colors});
  Follows(colors);
  Button(btnadd, "btnadd", "&Add color...", &D::btnaddClick);
  Button(btndelete, "btndelete", "De&lete color", &D::btndeleteClick);
  Wide({btnadd, btndelete});
  Row(cmbhatch, "cmbhatch", "Hatch", "&Hatch:", "The lines of a hatch.");
  Row(cmbplace, "cmbplace", "BitmapPlace",
      "Bitmap&Place:", "Whether the bitmap stands in the middle, is repeated or stretched.");
  Row(edindex, "edindex", "ImageIndex",
      "&ImageIndex:", "A picture of the image list, in place of the bitmap; -1 is none.")
      .Range(-1, 9999, 4);
  Button(btnbitmap, "btnbitmap", "&Bitmap >>", &D::btnbitmapClick);
  Wide({btnbitmap});
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  VRXSetThemeMode(*this, 1);
  Finish();
}

void TVRXFillEditorDlg::SetImages(TCustomImageList* images) {
  test->Set(TVRXBaseShape::ShapeFillImageList, images);
}

void TVRXFillEditorDlg::LoadControls() {
  EditorDialog::LoadControls();
  const TVRXFillColors& list = *test->ShapeFill()->Colors();
  const int row = std::min(colors->currentRow(), list.Count() - 1);
  colors->clear();
  for (int i = 0; i < list.Count(); ++i)
    colors->addItem(new QListWidgetItem(ColorSwatch(list.Color(i)), ColorToString(list.Color(i))));
  colors->setCurrentRow(row);
  btndelete->setEnabled(list.Count() > 0);
}

// Both dialogs work on the one list of custom colours.
void TVRXFillEditorDlg::btn(const QToolButton* sender) {
  sender == dlgc ? cmbcolor->Execute() : cmbend->ExecuteEnh(*cmbcolor);
}

void TVRXFillEditorDlg::btnbitmapClick() {
  if (EditPicture(*test->ShapeFill()->Bitmap())) SetLabels();
}

// The first one that is added stands behind the two that the gradient had.
void TVRXFillEditorDlg::btnaddClick() {
  TVRXFillObject& fill = *test->ShapeFill();
  TColor color = fill.Get(TVRXFillObject::EndColor);
  QStringList custom = cmbcolor->CustomColors();
  const bool chosen = ChooseColorEnh(this, color, custom);
  cmbcolor->SetCustomColors(custom);
  if (!chosen) return;
  const TUpdateLock lock(fill);
  const auto add = [&fill](TColor c) {
    static_cast<TVRXFillColor*>(fill.Colors()->Add())->Set(TVRXFillColor::Color, c);
  };
  if (fill.Colors()->Count() == 0) {
    add(fill.Get(TVRXFillObject::Color));
    add(fill.Get(TVRXFillObject::EndColor));
  }
  add(color);
  SetLabels();
}

// What is selected, or the last one.
void TVRXFillEditorDlg::btndeleteClick() {
  TVRXFillColors& list = *test->ShapeFill()->Colors();
  if (list.Count() == 0) return;
  list.Delete(colors->currentRow() >= 0 ? colors->currentRow() : list.Count() - 1);
  SetLabels();
}

bool VRXCPGetFillObject(TVRXFillObject& fill, TCustomImageList* images) {
  return EditValue<TVRXFillEditorDlg>(fill, ApplicationOwner(),
                                      [=](auto& dialog) { dialog.SetImages(images); });
}
