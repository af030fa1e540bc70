#include "package/dialogs/pVRXGraphicLabelEditorDlg.h"

#include <QtWidgets>

#include "library_design/FillDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/pVRXCommon.h"

using D = TVRXGraphicLabelEditorDlg;

namespace {
constexpr int LargestSize = 999;
const QString Sample = QStringLiteral("Aaaaaaaaaaaaaaa");
// A field that is left without a size shows that of the font again.
class SizeLimits : public QIntValidator {
 public:
  SizeLimits(const TFont& font, QObject* parent)
      : QIntValidator(-LargestSize, LargestSize, parent), font_(font) {}
  void fixup(QString& text) const override { text = QString::number(font_.Size()); }

 private:
  const TFont& font_;
};
// In the order of the list.
enum { None, Bird, Frog };
const QStringList& PerspectiveTexts() {
  static const QStringList texts{QStringLiteral("None"), QStringLiteral("Bird"), QStringLiteral("Frog")};
  return texts;
}
}  // namespace

TVRXGraphicLabelEditorDlg::TVRXGraphicLabelEditorDlg(QWidget* owner)
    : EditorDialog(QStringLiteral("Graphic Label Editor"), QSize(640, 340), owner, 330) {
  Preview(test, "", Qt::AlignCenter);
  test->SetCaption(Sample);
  Edits(*test);
  pages = new QTabWidget(this);
  pages->setObjectName(QStringLiteral("pages"));
  static_cast<QVBoxLayout*>(SettingsPanel().layout())->insertWidget(0, pages, 1);
  delete SettingsPanel().layout()->takeAt(2);  // the room below the rows

  AddPage(QStringLiteral("Form"));
  Row(ComboBoxTransform, "ComboBoxTransform", "Transform", "Transform");
  Row(VRXSpinEditFactor, "VRXSpinEditFactor", "Factor", "Factor").Range(0, VRXStrongestFactor, 5);
  Button(ButtonFillObjectDialog, "ButtonFillObjectDialog", "FillObject >>", &D::ButtonFillObjectDialogClick);
  Wide({ButtonFillObjectDialog});

  AddPage(QStringLiteral("FontFX"));
  Row(ComboBoxStyle, "ComboBoxStyle", "FontFX.Style", "Style");
  Row(VRXSpinEditLightDepth, "VRXSpinEditLightDepth", "FontFX.LightDepth", "Lightdepth");
  Row(VRXSpinEditShadowDepth, "VRXSpinEditShadowDepth", "FontFX.ShadowDepth", "Shadowdepth");
  Row(VRXSpinEditAngle, "VRXSpinEditAngle", "FontFX.Angle", "Angle").Range(0, 360, 3);
  Row(VRXSpinEditTracing, "VRXSpinEditTracing", "FontFX.Tracing", "Tracing");
  Row(VRXLightColorComboBox, "VRXLightColorComboBox", "FontFX.LightColor", "LightColor");
  Row(VRXShadowColorComboBox, "VRXShadowColorComboBox", "FontFX.ShadowColor", "ShadowColor");

  AddPage(QStringLiteral("Font"));
  Row(VRXFontComboBox, "VRXFontComboBox", "", "Font");
  VRXFontComboBox->setFontFilters(QFontComboBox::ScalableFonts);
  VRXFontComboBox->SetSample(QStringLiteral("Abc"));
  connect(VRXFontComboBox, &FontNameCombo::Chosen, this, &D::VRXFontComboBoxChange);
  connect(VRXFontComboBox, &FontNameCombo::Left, this, &D::SetLabels);
  Row(VRXColorComboBox, "VRXColorComboBox", "Font.Color", "Color");
  VRXColorComboBox->SetStyles(
      {TColorChoice::csDefaultColors, TColorChoice::csCustomColors, TColorChoice::csAnyColor});
  Row(VRXFontSizeComboBox, "VRXFontSizeComboBox", "", "Fontsize");
  VRXFontSizeComboBox->setEditable(true);
  VRXFontSizeComboBox->setInsertPolicy(QComboBox::NoInsert);
  VRXFontSizeComboBox->setValidator(new SizeLimits(*test->Font(), this));
  for (const int size : QFontDatabase::standardSizes()) VRXFontSizeComboBox->addItem(QString::number(size));
  connect(VRXFontSizeComboBox, &QComboBox::editTextChanged, this,
          [this] { Guarded([this] { VRXFontSizeComboBoxChange(); }); });
  connect(VRXFontSizeComboBox->lineEdit(), &QLineEdit::editingFinished, this, &D::SetLabels);
  // Both buttons lead to the fill.
  Button(ButtonFontDialog, "ButtonFontDialog", "Font >>", &D::ButtonFillObjectDialogClick);
  Wide({ButtonFontDialog});

  AddPage(QStringLiteral("Attributes"));
  Row(VRXSpinEditToggle, "VRXSpinEditToggle", "Toggle", "Toggle");
  Row(ComboBoxPerspective, "ComboBoxPerspective", "", "Perspective")
      .Items(PerspectiveTexts())
      .Changes(&D::ComboBoxPerspectiveChange);
  Row(VRXSpinEditPerspectiveDepth, "VRXSpinEditPerspectiveDepth", "PerspectiveDepth", "Perspectivedepth");
  const auto attribute = [this](QCheckBox*& box, const char* name, const char* text, TVRXTransAttr element) {
    Row(box, name, "TransAttr", text).Element(static_cast<int>(element));
  };
  attribute(CheckBoxEqualLetters, "CheckBoxEqualLetters", "EqualLetters", TVRXTransAttr::taEqualLetters);
  attribute(CheckBoxAutoToggle, "CheckBoxAutoToggle", "AutoToggled", TVRXTransAttr::taAutoToggled);
  attribute(CheckBoxToggled, "CheckBoxToggled", "Toggled", TVRXTransAttr::taToggled);
  Buttons({ButtonOK, "ButtonOK"}, {ButtonCancel, "ButtonCancel"});
  VRXSetThemeMode(*this, 1);
  Finish(false);
}

void TVRXGraphicLabelEditorDlg::AddPage(const QString& title) {
  auto* page = new QWidget(pages);
  auto* box = new QVBoxLayout(page);
  box->setContentsMargins(12, 12, 12, 12);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(8);
  box->addLayout(grid);
  box->addStretch(1);
  RowsInto(*grid);
  pages->addTab(page, title);
}

void TVRXGraphicLabelEditorDlg::SetValue(const TVRXGraphicLabel& label) {
  test->Assign(&label);
  caption_ = label.Caption();
  test->SetCaption(Sample);
  SetLabels();
}

void TVRXGraphicLabelEditorDlg::GetValue(TVRXGraphicLabel& label) {
  test->SetCaption(caption_);
  label.Assign(test);
}

void TVRXGraphicLabelEditorDlg::LoadControls() {
  EditorDialog::LoadControls();
  VRXFontComboBox->ShowName(test->Font()->Name());
  const QString size = QString::number(test->Font()->Size());
  if (VRXFontSizeComboBox->currentText() != size) VRXFontSizeComboBox->setEditText(size);
  const bool on = test->Get(TVRXGraphicLabel::TransAttr).Contains(TVRXTransAttr::taPerspective);
  const bool bird = test->Get(TVRXGraphicLabel::Perspective) == TVRXPerspective::tpBird;
  ComboBoxPerspective->setCurrentIndex(!on ? None : bird ? Bird : Frog);
}

void TVRXGraphicLabelEditorDlg::ButtonFillObjectDialogClick() {
  VRXCPGetFillObject(*test->FillObject(), test->Get(TVRXGraphicLabel::ImageList));
}

void TVRXGraphicLabelEditorDlg::ButtonFontDialogClick() {
  TFont font;
  font.Assign(test->Font());
  if (!VRXCPGetFont(font)) return;
  test->SetFont(&font);
  SetLabels();
}

// What is stored of it stays when it is switched off.
void TVRXGraphicLabelEditorDlg::ComboBoxPerspectiveChange() {
  const QString text = ComboBoxPerspective->currentText();
  const bool on = text != PerspectiveTexts()[None];
  const std::uint64_t flag = TVRXTransAttrs{TVRXTransAttr::taPerspective}.Bits();
  const std::uint64_t others = test->Get(TVRXGraphicLabel::TransAttr).Bits() & ~flag;
  test->SetTransAttr(TVRXTransAttrs::FromBits(on ? others | flag : others));
  if (on)
    test->SetPerspective(text == PerspectiveTexts()[Bird] ? TVRXPerspective::tpBird
                                                          : TVRXPerspective::tpFrog);
}

void TVRXGraphicLabelEditorDlg::VRXFontComboBoxChange(const QString& name) {
  Guarded([&] { test->Font()->SetName(name); });
}

void TVRXGraphicLabelEditorDlg::VRXFontSizeComboBoxChange() {
  bool number = false;
  const int size = VRXFontSizeComboBox->currentText().toInt(&number);
  if (number && size != 0 && size != test->Font()->Size()) test->Font()->SetSize(size);
}
