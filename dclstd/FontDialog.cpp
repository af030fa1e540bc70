#include "dclstd/FontDialog.h"

#include <QtWidgets>

#include "dclstd/EditValue.h"

namespace {
// What can be chosen; a font of another size keeps it and is shown with it.
constexpr int MaxSize = 999, MaxHeight = 1332;
}  // namespace

FontDialog::FontDialog(QWidget* owner) : EditorDialog(tr("Font Editor"), QSize(533, 318), owner) {
  Preview(test, "", Qt::AlignCenter);
  test->SetShowAccelChar(false);
  test->SetCaption(QStringLiteral("AaBbYyZz 123"));
  Edits(font_);
  Row(cmbname, "cmbname", "", "&Name:");
  Row(edsize, "edsize", "Size",
      "Si&ze:", "Points. Negative: the height of the line instead of that of the letters.")
      .Range(-MaxSize, MaxSize, 4);
  Row(edheight, "edheight", "Height",
      "&Height:", "Pixels. Negative: the height of the letters instead of that of the line.")
      .Range(-MaxHeight, MaxHeight, 5);
  Row(cmbcolor, "cmbcolor", "Color", "&Color:");
  Row(cmbcharset, "cmbcharset", "Charset", "Cha&rset:");
  Row(cmbpitch, "cmbpitch", "Pitch", "&Pitch:");
  Row(styles[0], "bold", "Style", "&Bold").Element(0);
  Row(styles[1], "italic", "Style", "&Italic").Element(1).Beside(styles[0]);
  Row(styles[2], "underline", "Style", "&Underline").Element(2);
  Row(styles[3], "strikeout", "Style", "Stri&ke out").Element(3).Beside(styles[2]);
  Buttons({ok, "ok"}, {cancel, "cancel"}, {reset, "reset"});
  Finish();

  connect(cmbname, &FontNameCombo::Chosen, this, &FontDialog::SetName);
  connect(cmbname, &FontNameCombo::Left, this, &FontDialog::SetLabels);  // no name is none
}

void FontDialog::SetName(const QString& name) {
  Guarded([&] {
    font_.SetName(name);
    SetLabels();
  });
}

void FontDialog::LoadControls() {
  EditorDialog::LoadControls();
  cmbname->ShowName(font_.Name());
  // Light letters are shown on a dark ground.
  const auto light = [](TColor c) { return qGray(ToQColor(c).rgb()); };
  const bool faint = std::abs(light(font_.Color()) - light(clBtnFace)) < 64;
  test->SetTransparent(!faint);
  test->SetColor(light(clBtnFace) > 128 ? TColor(0x00404040) : TColor(0x00E0E0E0));
  TFont shown;
  shown.Assign(&font_);
  shown.SetHeight(std::clamp(font_.Height(), -MaxHeight, MaxHeight));
  test->SetFont(&shown);
}

bool EditFont(TFont& font) { return EditValue<FontDialog>(font); }
