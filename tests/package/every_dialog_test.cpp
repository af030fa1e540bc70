// Every dialog, opened on values that its controls can hardly show: the focus goes through all of it, the
// wheel turns over every field, it is confirmed, and nothing has changed.
#include "dclstd/ColorDialog.h"
#include "dclstd/DialogRegistration.h"
#include "dclstd/FontDialog.h"
#include "dclstd/LinesDialog.h"
#include "library_design/ColorDialogs.h"
#include "library_design/Font3DDialog.h"
#include "library_design/FontDialogs.h"
#include "library_design/LookDialogs.h"
#include "library_design/SettingEditors.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"
#include "tests/package/PixelDialogTest.h"
#include "tests/support/Fields.h"

namespace {
// Every published value and those of the objects inside.
QStringList TextsOf(const TPersistent& value) {
  QStringList texts;
  for (const TPropInfo* prop : value.ClassType().Properties()) {
    if (prop->Is<QByteArray>())
      texts << QString::fromLatin1(GetBinaryProp(value, *prop).toHex());
    else if (prop->IsPart())
      texts << TextsOf(*GetObjectProp(value, *prop));
    else
      texts << QString::fromLatin1(prop->Name) + u'=' + GetPropText(value, *prop);
  }
  return texts;
}

enum class End { Low, High };
void GoTo(End end, TPersistent& value) {
  // What a component is called and where it stands is no matter of dialogs.
  static const QByteArrayList others{"Name", "Left", "Top", "Width", "Height", "Align"};
  for (const TPropInfo* prop : value.ClassType().Properties()) {
    if (As<TComponent>(&value) && others.contains(prop->Name)) continue;
    const TTypeInfo& type = *prop->PropType;
    switch (prop->Kind()) {
      case TTypeKind::tkClass:
        if (prop->IsPart()) GoTo(end, *GetObjectProp(value, *prop));
        break;
      case TTypeKind::tkString:
        SetStrProp(value, *prop,
                   end == End::Low ? QStringLiteral(" ")
                                   : QStringLiteral("one\ntwo\t\u00A0 ") + QString(40000, u'x'));
        break;
      case TTypeKind::tkInteger:
      case TTypeKind::tkEnumeration:
        SetOrdProp(value, *prop, end == End::Low ? type.MinValue : type.MaxValue);
        break;
      default:
        break;
    }
  }
}

// Everything but a change.
void Wander(QDialog& dialog) {
  fields::TabThrough(dialog);
  for (QWidget* field : dialog.findChildren<QWidget*>()) {
    if (!field->isVisible() || field->hasFocus()) continue;
    if (!qobject_cast<QComboBox*>(field) && !qobject_cast<QAbstractSpinBox*>(field)) continue;
    fields::Wheel(*field);
  }
  EXPECT_FALSE(dialog.grab().isNull());
}
// Opens, wanders and confirms.
void Confirm(const std::function<void()>& open) {
  bool came = false;
  modal::Next([&](QDialog& dialog) {
    came = true;
    Wander(dialog);
    dialog.accept();
  });
  open();
  EXPECT_TRUE(came);
}

template <class Value>
void ExpectKept(bool (*launcher)(Value&), const char* name) {
  for (const End end : {End::Low, End::High}) {
    Value value;
    GoTo(end, value);
    const QStringList before = TextsOf(value);
    ASSERT_FALSE(before.isEmpty());
    Confirm([&] { EXPECT_TRUE(launcher(value)); });
    EXPECT_EQ(TextsOf(value), before) << name << static_cast<int>(end);
  }
}
}  // namespace

class EveryDialog : public pixeltest::PictureDialogTest {};

TEST_F(EveryDialog, OfAValueKeepsIt) {
  ExpectKept<TVRXLED>(VRXCPGetLED, "LED");
  ExpectKept<TVRXCaption>([](TVRXCaption& v) { return VRXCPGetVRXCaption(v, true); }, "caption");
  ExpectKept<TVRXFxCaption>(VRXCPGetFontFx, "font effects");
  ExpectKept<TVRXShadow>(VRXCPGetShadow, "shadow");
  ExpectKept<TVRXSimpleBevel>(VRXCPGetSimpleBevel, "simple bevel");
  ExpectKept<TVRXTeeth>(VRXCPGetTeeth, "teeth");
  ExpectKept<TVRXShapeFill>([](TVRXShapeFill& v) { return VRXCPGetShapeFill(v); }, "shape fill");
  ExpectKept<TVRXBevel>(VRXCPGetBevel, "bevel");
  ExpectKept<TBrush>(VRXCPGetBrush, "brush");
  ExpectKept<TVRXBitmapEffect>(VRXCPGetBitmapEffect, "bitmap effect");
  ExpectKept<TVRXFont3D>(VRXCPGetFont3D, "light and shadow");
  ExpectKept<TFont>(VRXCPGetFont, "font");
  ExpectKept<TFont>(EditFont, "font of the inspector");
  for (const bool window : {true, false}) {
    TVRXRegionMask mask;
    mask.SetCompress(true);
    mask.SetColorDepth(TVRXColorDepth::spf16bit);
    mask.SetBorderPicture(pixeltest::BarOnSilver());
    const QStringList before = TextsOf(mask);
    const QImage picture = mask.BorderPicture();
    Confirm([&] { EXPECT_TRUE(VRXCPGetRegionMask(mask, window)); });
    EXPECT_EQ(TextsOf(mask), before);
    EXPECT_EQ(mask.BorderPicture(), picture);
  }
}

TEST_F(EveryDialog, ThatIsRegisteredKeepsWhatItsValueHas) {
  DesignRegistry registry;
  const RegistrationScope scope(registry, nullptr, {});
  VRX_RegMainEditors::Register();
  int values = 0;
  for (const TDialogRegistration& entry : registry.Dialogs())
    for (const End end : {End::Low, End::High}) {
      SCOPED_TRACE(entry.Name.constData());
      const std::unique_ptr<QDialog> opened = entry.Open();
      auto& dialog = dynamic_cast<RowDialog&>(*opened);
      if (!dialog.HasValue()) continue;
      GoTo(end, dialog.Value());
      const QStringList before = TextsOf(dialog.Value());
      Confirm([&] { dialog.ShowModal(); });
      EXPECT_EQ(TextsOf(dialog.Value()), before);
      ++values;
    }
  EXPECT_GE(values, 6);
}

TEST_F(EveryDialog, ATracingOfThreeHundredStays) {
  TVRXFxCaption fx;
  fx.SetTracing(300);
  Confirm([&] { EXPECT_TRUE(VRXCPGetFontFx(fx)); });
  EXPECT_EQ(fx.Tracing(), 300);
  modal::NextOf<TVRXFontFxEditorDlg>([](auto& dlg) {
    EXPECT_EQ(dlg.edtracing->text(), QStringLiteral("300"));
    dlg.edangle->setValue(45);
    dlg.accept();
  });
  EXPECT_TRUE(VRXCPGetFontFx(fx));
  EXPECT_EQ(fx.Tracing(), 300);
  EXPECT_EQ(fx.Angle(), 45);
}

TEST_F(EveryDialog, OfColoursKeepsThem) {
  for (const TColor color : {clBtnFace, clNone, clDefault, TColor(0x800000FFu), TColor(0x7FFFFFFFu), clRed}) {
    for (auto* choose : {ChooseColor, ChooseColorEnh}) {
      TColor edited = color;
      QStringList custom = CustomColorEntries({clNavy, clBtnShadow, clNone});
      const QStringList before = custom;
      Confirm([&] { EXPECT_TRUE(choose(nullptr, edited, custom)); });
      EXPECT_EQ(edited, color) << ColorToString(color).toStdString();
      EXPECT_EQ(custom, before);
    }
  }
}

TEST_F(EveryDialog, OfLinesKeepsThem) {
  TStrings lines;
  lines.SetLines({QStringLiteral("a\u00A0b"), QStringLiteral("c\nd\r"), QString()});
  Confirm([&] { EXPECT_FALSE(EditLines(lines)); });
  EXPECT_EQ(lines.Count(), 3);
  EXPECT_EQ(lines.Text(), QStringLiteral("a\u00A0b\nc\nd\r\n"));
}

TEST_F(EveryDialog, OfAButtonsFaceKeepsIt) {
  TVRXCustom3DButton button(nullptr);
  button.SetBounds(1, 2, 30, 40);
  Confirm([&] { EXPECT_FALSE(VRXCPGetButtonFace3D(button)); });
  EXPECT_EQ(button.BoundsRect(), QRect(1, 2, 30, 40));
  EXPECT_TRUE(button.ButtonFace()->Empty());
}
