// Face controllers: states and their descriptions, settings by name, what applies to a control, and files.
#include "library/components/FaceController.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "library/controls/Button3D.h"
#include "library/controls/CustomLabel.h"
#include "library/controls/FillControl.h"
#include "library/controls/MMButton.h"
#include "library/controls/RegionControl.h"
#include "library/controls/Switch.h"
#include "library/controls/TextBoxes.h"
#include "library/values/ValueText.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "tests/library/LibraryTest.h"
#include "tests/support/Mutations.h"
#include "vcl/PictureFile.h"

namespace {
using enum TVRXStateKind;
using enum TVRXCFCSettingObjectKind;
using Setting = TVRXCFCSettingObject;
using State = TVRXCFCStateObject;

template <class T>
T& Made(TVRXFaceController& face, TVRXCFCSettingObjectKind kind) {
  return dynamic_cast<T&>(*face.SettingObjects()->Items(face.AddSettingObject(kind)));
}
TVRXCFCStateObject& MadeState(TVRXFaceController& face, TVRXStateKinds kinds,
                              std::initializer_list<const TPersistent*> objects) {
  TVRXCFCStateObject* state = face.States()->Add();
  state->setKind(VRXCFCKindOf(kinds));
  for (const TPersistent* object : objects) state->Add(object, true);
  return *state;
}

// One object of each kind with something that is not as it begins, and states that use them.
void FillAll(TVRXFaceController& face) {
  auto& font = Made<TFont>(face, okFont);
  font.SetName(QStringLiteral("Nowhere \"Sans\" \u00FC"));
  font.SetColor(clMaroon);
  font.SetStyle({TFontStyle::fsBold, TFontStyle::fsStrikeOut});
  font.SetHeight(-31);
  Made<TVRXFont3D>(face, okFont3D).Set(TVRXFont3D::OffsetX, std::int8_t{-7});
  Made<TVRXFxCaption>(face, okFontFx).SetAngle(33);
  auto& fill = Made<TVRXFillObject>(face, okFillObject);
  fill.Set(TVRXFillObject::Kind, TVRXFillKind::fkBitmap);
  QImage picture(5, 3, QImage::Format_ARGB32);
  picture.fill(QColor(10, 200, 30, 90));
  fill.Bitmap()->SetFileBytes(PictureToBytes(picture, "PNG"));
  for (const TColor color : {clRed, TColor(0x00123456), clWhite})
    static_cast<TVRXFillColor*>(fill.Colors()->Add())->Set(TVRXFillColor::Color, color);
  Made<TVRXBitmapEffect>(face, okBitmapEffect).Set(TVRXBitmapEffect::Amount, std::uint8_t{17});
  Made<TVRXBevel>(face, okBevel).Set(TVRXBevel::Outer, TBevelCut::bvLowered);
  auto& color = Made<TVRXColorObject>(face, okColor);
  color.Set(TVRXColorObject::Color, clInfoBk);
  auto& brush = Made<TBrush>(face, okBrush);
  brush.SetStyle(TBrushStyle::bsCross);
  brush.SetColor(clOlive);
  Made<TVRXStateStyle>(face, okStyle).SetStyleName(QStringLiteral(".Pressed\n\t\\\"\u2028"));
  face.SettingObjects()->SetObjName(6, QStringLiteral("\u00DCber \"all\"\n= [x]"));
  MadeState(face, {}, {&font, &fill});
  MadeState(face, {skDisabled, skChecked}, {&color});
  MadeState(face, {skReadOnly}, {});
}
QByteArray TextOf(const TVRXFaceController& face) {
  return VRXFaceText(*face.SettingObjects(), face.States());
}
void Read(const QByteArray& text, TVRXFaceController& face) {
  VRXReadFaceText(text, *face.SettingObjects(), face.States());
}
// What is told when the text cannot be read; empty when it can.
std::string Refusal(const QByteArray& text, TVRXFaceController& face) {
  try {
    Read(text, face);
  } catch (const Exception& error) {
    return error.Message().toStdString();
  }
  return {};
}
QStringList NamesOf(const TVRXFaceController& face) {
  QStringList names;
  for (int i = 0; i < face.SettingObjects()->Count(); ++i)
    names << face.SettingObjects()->Setting(i)->Get(Setting::ObjName);
  return names;
}
}  // namespace

TEST(FaceStates, EveryAvailableOneHasADescriptionOfItsOwnThatLeadsBack) {
  QStringList texts;
  for (int i = 0; i < VRXCFCGetAvailableStatesCount(); ++i) {
    const QString text = VRXCFCGetStateDescription(i);
    EXPECT_FALSE(text.isEmpty());
    EXPECT_FALSE(texts.contains(text)) << text.toStdString();
    texts << text;
    TVRXCFCStateKind kind{9, 9, 9, 9, 9, 9, 9};
    ASSERT_TRUE(VRXCFCGetStateByDescription(text, kind));
    EXPECT_EQ(VRXCFCGetStateDescription(kind), text);
  }
  EXPECT_EQ(texts.mid(0, 9).join(u'|').toStdString(),
            "Normal|Disabled|Focused|Mouse over|Pressed|Checked|Default|Read only|Disabled + Checked");
  EXPECT_EQ(texts.size(), 21);
  EXPECT_TRUE(texts.contains(QStringLiteral("Pressed + Checked")));
  EXPECT_FALSE(texts.contains(QStringLiteral("Disabled + Mouse over"))) << "a mouse does nothing to it";
  EXPECT_FALSE(texts.contains(QStringLiteral("Mouse over + Pressed"))) << "pressed is with the mouse over it";
}

TEST(FaceStates, WhatIsNotAvailableHasNoDescription) {
  EXPECT_EQ(VRXCFCGetStateDescription(-1), QString());
  EXPECT_EQ(VRXCFCGetStateDescription(VRXCFCGetAvailableStatesCount()), QString());
  EXPECT_EQ(VRXCFCGetStateDescription(VRXCFCKindOf({skDisabled, skFocused})), QString());
  EXPECT_EQ(VRXCFCGetStateDescription(VRXCFCKindOf({skFocused, skMouseOver, skChecked})), QString());
  TVRXCFCStateKind kind{1, 0, 0, 0, 0, 0, 1};
  EXPECT_FALSE(VRXCFCGetStateByDescription(QStringLiteral("disabled"), kind));
  EXPECT_EQ(kind, (TVRXCFCStateKind{1, 0, 0, 0, 0, 0, 1}));
}

TEST(FaceStates, KindsAreBytes) {
  EXPECT_EQ(VRXCFCKindOf({skDisabled, skReadOnly}), (TVRXCFCStateKind{1, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(VRXKindsOf({0, 7, 0, 255, 0, 0, 0}), (TVRXStateKinds{skFocused, skPressed}));
  EXPECT_EQ(std::string(StateStyleNames.front()) + StateStyleNames.back(), ".Disabled.ReadOnly");
}

TEST(FaceSettings, HaveAnObjectOfTheirKindAndANameOfTheirOwn) {
  TVRXFaceController face(nullptr);
  for (int kind = 1; kind <= 9; ++kind)
    for (int twice = 0; twice < 2; ++twice) {
      const int index = face.AddSettingObject(static_cast<TVRXCFCSettingObjectKind>(kind));
      EXPECT_EQ(index, face.SettingObjects()->Count() - 1);
      const TPersistent* object = face.SettingObjects()->Items(index);
      ASSERT_NE(object, nullptr) << kind;
      EXPECT_EQ(static_cast<int>(VRXCFCGetSettingsKindObject(object)), kind);
      EXPECT_EQ(face.SettingObjects()->IndexOfObject(object), index);
    }
  EXPECT_EQ(NamesOf(face).join(u' ').toStdString(),
            "Font1 Font2 Font3D1 Font3D2 FontFx1 FontFx2 FillObject1 FillObject2 BitmapEffect1 BitmapEffect2 "
            "Bevel1 Bevel2 Color1 Color2 Brush1 Brush2 Style1 Style2");
  face.RemoveSettingObject(0);
  EXPECT_EQ(face.SettingObjects()->IndexOf(QStringLiteral("font2")), 0) << "no regard to case";
  face.AddSettingObject(okFont);
  EXPECT_EQ(NamesOf(face).last(), QStringLiteral("Font1")) << "the first name that is free";
  TVRXLED stranger;
  EXPECT_EQ(VRXCFCGetSettingsKindObject(&stranger), okNone);
  EXPECT_EQ(face.SettingObjects()->NameOfObject(&stranger), QString());
}

TEST(FaceSettings, SayWhatTheyAre) {
  TVRXColorObject color;
  color.Set(TVRXColorObject::Color, clBtnFace);
  EXPECT_EQ(VRXCFCDescriptionOf(color), QStringLiteral("clBtnFace"));
  TVRXFont3D font;
  EXPECT_EQ(VRXCFCDescriptionOf(font), QStringLiteral("Style tdNone"));
  font.Set(TVRXFont3D::Style, TVRX3DTextStyle::tdRaised);
  font.Set(TVRXFont3D::LightDepth, std::uint8_t{4});
  EXPECT_EQ(VRXCFCDescriptionOf(font), QStringLiteral("LightDepth 4, Style tdRaised"));
  TVRXStateStyle style;
  style.SetStyleName(QStringLiteral(".Checked"));
  EXPECT_EQ(VRXCFCDescriptionOf(style), QStringLiteral(".Checked"));
  TVRXFillObject fill;
  EXPECT_EQ(VRXCFCDescriptionOf(fill), fill.Description());
}

TEST(FaceSettings, NewOnesSayWhatTheyAre) {
  TVRXFaceController face(nullptr);
  QStringList texts;
  for (const auto kind : {okFont3D, okFontFx, okFillObject, okBitmapEffect, okBevel, okColor, okBrush})
    texts << VRXCFCDescriptionOf(*face.SettingObjects()->Items(face.AddSettingObject(kind)));
  EXPECT_EQ(texts.join(u'|').toStdString(),
            "Style tdNone|Style tdNone|Gradient, clBtnHighlight to clBtnShadow|Kind beGray|"
            "Inner bvNone, Outer bvNone|clBtnFace|Style bsSolid");
}

TEST(FaceStateObjects, OfTwoObjectsOfANameTheFirstIsMeant) {
  const auto make = [](TVRXFaceController& face) -> TVRXCFCStateObject& {
    Made<TFont>(face, okFont);
    auto& color = Made<TVRXColorObject>(face, okColor);
    Made<TVRXBevel>(face, okBevel);
    TVRXCFCStateObject& state = MadeState(face, {skChecked}, {&color});
    // As a form or a file may tell it.
    face.SettingObjects()->Setting(2)->Set(Setting::ObjName, QStringLiteral("color1"));
    return state;
  };
  enum { First = 1, Second };
  {
    TVRXFaceController face(nullptr);
    TVRXCFCStateObject& state = make(face);
    EXPECT_EQ(state.Items(0), face.SettingObjects()->Items(First));
    face.SettingObjects()->SetObjName(Second, QStringLiteral("Edge"));
    face.States()->SynchronizeNames();
    EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Color1")) << "the other got a new name";
    EXPECT_EQ(state.Items(0), face.SettingObjects()->Items(First));
  }
  {
    TVRXFaceController face(nullptr);
    TVRXCFCStateObject& state = make(face);
    face.SettingObjects()->SetObjName(First, QStringLiteral("Ground"));
    face.SettingObjects()->SetObjName(Second, QStringLiteral("Edge"));
    face.States()->SynchronizeNames();
    EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Ground"));
    EXPECT_EQ(state.Items(0), face.SettingObjects()->Items(First));
  }
  {
    TVRXFaceController face(nullptr);
    TVRXCFCStateObject& state = make(face);
    face.RemoveSettingObject(Second);
    EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Color1"));
    EXPECT_EQ(state.Items(0), face.SettingObjects()->Items(First));
  }
  {
    TVRXFaceController face(nullptr);
    TVRXCFCStateObject& state = make(face);
    face.RemoveSettingObject(First);
    EXPECT_EQ(state.Count(), 0) << "what is removed is not replaced by another object";
    state.Add(face.SettingObjects()->Items(First), true);
    EXPECT_EQ(state.Names().join(u' '), QStringLiteral("color1"));
  }
  TVRXFaceController face(nullptr);
  TVRXCFCStateObject& state = make(face);
  EXPECT_THROW(state.Add(face.SettingObjects()->Items(Second), true), Exception);
  EXPECT_EQ(state.Count(), 1);
}

TEST(FaceStateObjects, KeepObjectsByNameAndFollowThemWhenTold) {
  TVRXFaceController face(nullptr);
  auto& font = Made<TFont>(face, okFont);
  auto& color = Made<TVRXColorObject>(face, okColor);
  TVRXCFCStateObject& state = MadeState(face, {skChecked}, {&font, &color});
  state.Add(&font, true);
  EXPECT_EQ(state.Count(), 2) << "once is enough";
  state.Add(&font, false);
  EXPECT_EQ(state.Count(), 3);
  state.Delete(2);
  state.Delete(-1);
  state.Delete(7);
  EXPECT_EQ(state.Items(0), &font);
  EXPECT_EQ(state.Items(1), &color);
  EXPECT_EQ(state.Items(5), nullptr);
  face.SettingObjects()->SetObjName(0, QStringLiteral("First"));
  face.SettingObjects()->SetObjName(0, QStringLiteral("Big"));
  EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Font1 Color1"));
  face.States()->SynchronizeNames();
  EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Big Color1"));
  EXPECT_EQ(state.Items(0), &font);
  // An object that came later with the old name is another one.
  face.AddSettingObject(okFont);
  face.States()->SynchronizeNames();
  EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Big Color1"));
  state.Add(face.SettingObjects()->Items(2), true);
  face.States()->SynchronizeNames();
  EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Big Color1 Font1"));
  EXPECT_EQ(state.Items(2), face.SettingObjects()->Items(2));
  state.Delete(2);
  TFont stranger;
  state.Add(&stranger, true);
  state.Add(nullptr, true);
  EXPECT_EQ(state.Count(), 2);
  face.RemoveSettingObject(0);
  EXPECT_EQ(state.Names().join(u' '), QStringLiteral("Color1"));
}

TEST(FaceLook, IsThatOfTheStateThatSaysMost) {
  TVRXFaceController face(nullptr);
  auto& plain = Made<TVRXColorObject>(face, okColor);
  auto& disabled = Made<TVRXColorObject>(face, okColor);
  auto& both = Made<TVRXColorObject>(face, okColor);
  auto& font = Made<TFont>(face, okFont);
  plain.Set(TVRXColorObject::Color, clYellow);
  disabled.Set(TVRXColorObject::Color, clSilver);
  both.Set(TVRXColorObject::Color, clGreen);
  MadeState(face, {skChecked, skDisabled}, {&both});
  MadeState(face, {}, {&plain, &font});
  MadeState(face, {skDisabled}, {&disabled});
  const auto color = [&](TVRXStateKinds kinds) { return face.LookIn(kinds).Color(clNone); };
  EXPECT_EQ(color({}), clYellow);
  EXPECT_EQ(color({skFocused, skMouseOver}), clYellow);
  EXPECT_EQ(color({skDisabled}), clSilver);
  EXPECT_EQ(color({skDisabled, skChecked}), clGreen);
  EXPECT_EQ(color({skChecked}), clYellow);
  EXPECT_EQ(face.LookIn({skDisabled}).Of(okFont), &font)
      << "what it does not say itself, the plain state says";
  EXPECT_FALSE(face.LookIn({skDisabled}).HasLetters(false));
  MadeState(face, {skDisabled}, {&font});
  EXPECT_TRUE(face.LookIn({skDisabled}).HasLetters(false)) << "of two states of the same kinds both count";
  // As many kinds: what a person sees first.
  auto& hot = Made<TVRXColorObject>(face, okColor);
  auto& focused = Made<TVRXColorObject>(face, okColor);
  hot.Set(TVRXColorObject::Color, clRed);
  focused.Set(TVRXColorObject::Color, clNavy);
  MadeState(face, {skMouseOver}, {&hot});
  MadeState(face, {skFocused}, {&focused});
  EXPECT_EQ(color({skFocused, skMouseOver}), clRed);
}

namespace {
// The picture of a control without, and in each state of, a controller with a strong colour for each.
template <class C>
void ExpectShowsItsStates(std::initializer_list<const char*> properties) {
  SCOPED_TRACE(C::StaticClass().ClassName().toStdString());
  TVRXFaceController face(nullptr);
  const auto state = [&](TVRXStateKinds kinds, TColor color) {
    auto& object = Made<TVRXColorObject>(face, okColor);
    object.Set(TVRXColorObject::Color, color);
    MadeState(face, kinds, {&object});
  };
  state({}, clFuchsia);
  state({skDisabled}, clAqua);
  state({skPressed}, clLime);
  state({skChecked}, clYellow);
  state({skReadOnly}, clRed);
  C control(nullptr);
  control.SetAutoSize(false);
  control.SetBounds(0, 0, 81, 37);
  const QImage without = Draw(control, Qt::white);
  EXPECT_EQ(CountPixels(without, ToQColor(clFuchsia)), 0);
  control.Set(VRXFaceControllerRef, &face);
  EXPECT_GT(CountPixels(Draw(control, Qt::white), ToQColor(clFuchsia)), 300);
  static const QHash<QByteArray, TColor> colors{
      {"Enabled", clAqua}, {"Down", clLime}, {"Checked", clYellow}, {"ReadOnly", clRed}};
  for (const char* property : properties) {
    const TPropInfo& prop = C::StaticClass().GetProp(property);
    const std::int64_t before = GetOrdProp(control, prop);
    SetOrdProp(control, prop, !before);
    EXPECT_GT(CountPixels(Draw(control, Qt::white), ToQColor(colors[property])), 300) << property;
    SetOrdProp(control, prop, before);
  }
  control.SetDesigning(true);
  face.Set(TVRXFaceController::DesignStates, {skPressed});
  EXPECT_GT(CountPixels(Draw(control, Qt::white), ToQColor(clLime)), 300) << "the designer shows states";
  control.SetDesigning(false);
  EXPECT_EQ(CountPixels(Draw(control, Qt::white), ToQColor(clLime)), 0);
  control.Set(VRXFaceControllerRef, nullptr);
  EXPECT_EQ(Draw(control, Qt::white), without);
}
}  // namespace

TEST(FaceLook, IsShownByControlsInTheirState) {
  ExpectShowsItsStates<TVRXStaticText>({"Enabled"});
  ExpectShowsItsStates<TVRXFill>({"Enabled"});
  ExpectShowsItsStates<TVRXMMButton>({"Enabled", "Down", "Checked"});
  ExpectShowsItsStates<TVRXShapeButton>({"Enabled", "Down", "Checked"});
  ExpectShowsItsStates<TVRX3DEffectButton>({"Enabled", "Down"});
  ExpectShowsItsStates<TVRXPanelShape>({"Enabled", "Down"});
  ExpectShowsItsStates<TVRXWndButtonShape>({"Enabled", "Down"});
  ExpectShowsItsStates<TVRXEditAutoComplete>({"Enabled", "ReadOnly"});
  ExpectShowsItsStates<TVRXSwitch>({"Enabled", "Checked"});
  ExpectShowsItsStates<TVRXWSwitch>({"Enabled", "Checked"});
  ExpectShowsItsStates<TVRXFormComboBox>({"Enabled", "ReadOnly"});
}

TEST(FaceLook, OfEachKindChangesWhatAControlShows) {
  const auto expect = [](TControl& control, std::initializer_list<TVRXCFCSettingObjectKind> kinds) {
    SCOPED_TRACE(control.ClassType().ClassName().toStdString());
    for (const TVRXCFCSettingObjectKind kind : kinds) {
      TVRXFaceController face(nullptr);
      FillAll(face);
      TPersistent* object = face.SettingObjects()->Items(static_cast<int>(kind) - 1);
      if (auto* font3d = As<TVRXFont3D>(object)) font3d->Set(TVRXFont3D::Style, TVRX3DTextStyle::tdShadow);
      face.States()->Clear();
      MadeState(face, {}, {object});
      control.Set(VRXFaceControllerRef, nullptr);
      const QImage before = Draw(control, Qt::darkCyan);
      control.Set(VRXFaceControllerRef, &face);
      EXPECT_NE(Draw(control, Qt::darkCyan), before) << static_cast<int>(kind);
      control.Set(VRXFaceControllerRef, nullptr);
    }
  };
  TVRXStaticText text(nullptr);
  text.SetCaption(QStringLiteral("Words"));
  text.SetBounds(0, 0, 83, 31);
  expect(text, {okFont, okFont3D, okFillObject, okBevel, okColor, okBrush});
  TVRXFill fill(nullptr);
  fill.Caption()->SetCaption(QStringLiteral("Words"));
  fill.SetBounds(0, 0, 83, 31);
  expect(fill, {okFont, okFontFx, okFillObject, okBevel, okColor, okBrush});
  TVRXPanelShape panel(nullptr);
  panel.SetCaption(QStringLiteral("Words"));
  panel.SetBounds(0, 0, 83, 61);
  expect(panel, {okFont, okFontFx, okFillObject, okColor, okBrush});
  TVRXFormComboBox box(nullptr);
  box.SetText(QStringLiteral("Words"));
  expect(box, {okFont, okFillObject, okColor, okBrush});
}

TEST(BitmapEffect, ChangesPicturesByItsAmount) {
  QImage picture(3, 2, QImage::Format_ARGB32);
  picture.fill(QColor(200, 100, 40, 120));
  TVRXBitmapEffect effect;
  const auto pixel = [&](TVRXBitmapEffectKind kind, int amount) {
    effect.Set(TVRXBitmapEffect::Kind, kind);
    effect.Set(TVRXBitmapEffect::Amount, static_cast<std::uint8_t>(amount));
    return effect.Apply(picture).pixelColor(2, 1);
  };
  using enum TVRXBitmapEffectKind;
  EXPECT_EQ(pixel(beNone, 100), QColor(200, 100, 40, 120));
  EXPECT_EQ(pixel(beInvert, 0), QColor(200, 100, 40, 120));
  EXPECT_EQ(pixel(beInvert, 100), QColor(55, 155, 215, 120));
  EXPECT_EQ(pixel(beLighten, 50), QColor(228, 178, 148, 120));
  EXPECT_EQ(pixel(beDarken, 50), QColor(100, 50, 20, 120));
  EXPECT_EQ(pixel(beFade, 50), QColor(200, 100, 40, 60));
  const int gray = qGray(200, 100, 40);
  EXPECT_EQ(pixel(beGray, 100), QColor(gray, gray, gray, 120));
  effect.Set(TVRXBitmapEffect::Color, clNavy);
  EXPECT_EQ(pixel(beTint, 100), QColor(0, 0, 128, 120));
  EXPECT_TRUE(effect.Apply(QImage()).isNull());
}

// --- Files

TEST(FaceFile, HoldsEverythingAndIsReadAsItWasWritten) {
  TVRXFaceController face(nullptr), read(nullptr);
  FillAll(face);
  const QByteArray text = TextOf(face);
  Read(text, read);
  EXPECT_EQ(TextOf(read), text);
  ASSERT_EQ(read.SettingObjects()->Count(), 9);
  for (int i = 0; i < 9; ++i) {
    EXPECT_TRUE(SameValues(*read.SettingObjects()->Items(i), *face.SettingObjects()->Items(i))) << i;
    EXPECT_EQ(read.SettingObjects()->Setting(i)->Get(Setting::ObjName),
              face.SettingObjects()->Setting(i)->Get(Setting::ObjName));
  }
  const auto* fill = As<TVRXFillObject>(read.SettingObjects()->Items(3));
  ASSERT_EQ(fill->Colors()->Count(), 3);
  EXPECT_EQ(fill->Colors()->Color(1), TColor(0x00123456));
  EXPECT_EQ(fill->Bitmap()->Image().pixelColor(4, 2), QColor(10, 200, 30, 90));
  ASSERT_EQ(read.States()->Count(), 3);
  EXPECT_EQ(read.States()->Items(0)->Items(0), read.SettingObjects()->Items(0));
  EXPECT_EQ(read.States()->Items(1)->getKind(), VRXCFCKindOf({skDisabled, skChecked}));
  EXPECT_EQ(read.States()->Items(1)->Items(0), read.SettingObjects()->Items(6))
      << "a name with everything in it";
}

TEST(FaceFile, IsTextThatAPersonCanRead) {
  TVRXFaceController face(nullptr);
  auto& color = Made<TVRXColorObject>(face, okColor);
  color.Set(TVRXColorObject::Color, clRed);
  auto& style = Made<TVRXStateStyle>(face, okStyle);
  style.SetStyleName(QStringLiteral("\u00DC \"x\""));
  MadeState(face, {skDisabled, skChecked}, {&color, &style});
  MadeState(face, {}, {});
  EXPECT_EQ(TextOf(face).toStdString(),
            "FaceController states 1\n"
            "setting okColor \"Color1\"\n"
            "  Color = clRed\n"
            "setting okStyle \"Style1\"\n"
            "  StyleName = \"\u00DC \\\"x\\\"\"\n"
            "state skDisabled skChecked\n"
            "  use \"Color1\"\n"
            "  use \"Style1\"\n"
            "state\n"
            "end\n");
  EXPECT_EQ(VRXFaceText(*face.SettingObjects(), nullptr).toStdString(),
            "FaceController settings 1\n"
            "setting okColor \"Color1\"\n"
            "  Color = clRed\n"
            "setting okStyle \"Style1\"\n"
            "  StyleName = \"\u00DC \\\"x\\\"\"\n"
            "end\n");
}

TEST(FaceFile, IsReadFromOtherSystemsAndByHand) {
  TVRXFaceController face(nullptr);
  Read(
      "\xEF\xBB\xBF"
      "FaceController states 1\r\n\r\nsetting okBevel \"B\"\r\n\tWidth=3\r\n   Outer =bvRaised  \r\n"
      "state  skFocused\r\n\r\n  use   \"B\"\r\nend",
      face);
  EXPECT_EQ(As<TVRXBevel>(face.SettingObjects()->Items(0))->Get(TVRXBevel::Width), 3);
  EXPECT_EQ(face.States()->Items(0)->Items(0), face.SettingObjects()->Items(0));
}

TEST(FaceFile, KeepsWhatALaterVersionWroteAndWritesItAgain) {
  const QByteArray text =
      "FaceController states 1\n"
      "setting okColor \"Color1\"\n"
      "  Color = clRed\n"
      "  Glow = 17\n"
      "  Depth.Light = \"x\"\n"
      "setting okBitmapEffect \"Effect\"\n"
      "  Amount = 4\n"
      "  Kind = beSparkle\n"
      "state skFocused\n"
      "  use \"Color1\"\n"
      "  use \"Glow1\"\n"
      "  blend 30\n"
      "setting okGlow \"Glow1\"\n"
      "  Radius = 4\n"
      "state skHovering\n"
      "  use \"Color1\"\n"
      "animation \"Fade\"\n"
      "  Length = 200\n"
      "end\n";
  TVRXFaceController face(nullptr), copy(nullptr), again(nullptr);
  Read(text, face);
  EXPECT_EQ(NamesOf(face).join(u' '), QStringLiteral("Color1 Effect"));
  EXPECT_EQ(As<TVRXBitmapEffect>(face.SettingObjects()->Items(1))->Get(TVRXBitmapEffect::Amount), 4);
  EXPECT_EQ(face.States()->Count(), 1);
  EXPECT_EQ(face.States()->Items(0)->Count(), 2);
  EXPECT_EQ(face.States()->Items(0)->Items(1), nullptr);
  const QByteArray written = TextOf(face);
  for (const QByteArray& line : text.split('\n'))
    EXPECT_TRUE(written.contains(line + '\n')) << line.toStdString();
  EXPECT_EQ(written.size(), text.size());
  copy.Assign(&face);
  EXPECT_EQ(TextOf(copy), written) << "in a copy, too";
  Read(written, again);
  EXPECT_EQ(TextOf(again), written);
  face.SettingObjects()->Clear();
  face.States()->Clear();
  EXPECT_EQ(TextOf(face).toStdString(), "FaceController states 1\nend\n") << "cleared is cleared";
}

TEST(FaceFile, IsAlwaysReadAgainWhateverAFormSaysOfTheController) {
  TVRXFaceController face(nullptr), read(nullptr);
  FillAll(face);
  const QByteArray before = TextOf(face);
  face.SettingObjects()->SetForeignBlocks(
      QStringLiteral("  lost\nend\nit's\nglow 3\n x\nit's \u20AC\nend\n\n"));
  face.SettingObjects()->Setting(5)->Set(Setting::Foreign, QStringLiteral("Width = 1 2\nit's\nGlow = 3\n"));
  face.States()->Items(0)->Set(State::Foreign, QStringLiteral("use x\nblend 3"));
  const QByteArray text = TextOf(face);
  Read(text, read);
  EXPECT_EQ(TextOf(read), text);
  EXPECT_TRUE(text.endsWith("glow 3\n  x\n  it's \u20AC\n  end\nend\n")) << text.toStdString();
  EXPECT_TRUE(text.contains("  Glow = 3\nsetting"));
  EXPECT_TRUE(text.contains("  blend 3\nstate"));
  // Names that are there twice, or are none.
  face.SettingObjects()->SetObjName(1, face.SettingObjects()->Setting(0)->Get(Setting::ObjName));
  face.SettingObjects()->Setting(2)->Set(Setting::ObjName, QString());
  Read(TextOf(face), read);
  EXPECT_EQ(read.SettingObjects()->Count(), 9);
}

TEST(FaceFile, OfSettingsKeepsForeignBlocksToo) {
  const QByteArray text =
      "FaceController settings 1\nsetting okGlow \"G\"\n  R = 1\nstate skFocused\n  use \"G\"\nend\n";
  TVRXCFCSettingObjects settings;
  VRXReadFaceText(text, settings, nullptr);
  EXPECT_EQ(settings.Count(), 0);
  EXPECT_EQ(VRXFaceText(settings, nullptr), text);
}

TEST(FaceFile, ThatIsDamagedIsRefusedWithLineAndReason) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "line 1: a file that begins with \"FaceController states 1\" is needed"},
      {"FaceController settings 1\nend\n",
       "line 1: a file that begins with \"FaceController states 1\" is needed"},
      {"FaceController states 2\nend\n", "line 1: the file is of version 2, and only version 1 is known"},
      {"FaceController states 1\n", "line 2: it ends before its last line, \"end\""},
      {"FaceController states 1\nend\nstate\n", "line 3: there is something behind the end"},
      {"FaceController states 1\n  use \"x\"\nend\n", "line 2: a line of a block stands in none"},
      {"FaceController states 1\n!\nend\n", "line 2: \"!\" begins no block"},
      {"FaceController states 1\nsetting okFont\nend\n",
       "line 2: a setting needs its kind and its name in quotes"},
      {"FaceController states 1\nsetting okFont \"a\nend\n",
       "line 2: a setting needs its kind and its name in quotes"},
      {"FaceController states 1\nsetting okColor \"a\"\n  Color\nend\n", "line 3: a value has no \"=\""},
      {"FaceController states 1\nsetting okColor \"a\"\n  Co lor = 1\nend\n",
       "line 3: \"Co lor\" is no name of a value"},
      {"FaceController states 1\nsetting okStyle \"a\"\n  StyleName = x\nend\n",
       "line 3: StyleName needs a text in quotes"},
      {"FaceController states 1\nsetting okFillObject \"a\"\n  Bitmap.Data = %\nend\n",
       "line 3: the data of Data is damaged"},
      {"FaceController states 1\nsetting okFillObject \"a\"\n  Colors[1] = item\nend\n",
       "line 3: item 1 stands where item 0 should"},
      {"FaceController states 1\nsetting okFillObject \"a\"\n  Colors[3].Color = clRed\nend\n",
       "line 3: there is no item 3"},
      {"FaceController states 1\nstate skFocused\n  use x\nend\n",
       "line 3: what a state uses stands in quotes"},
      {"FaceController states 1\n\xFF\nend\n", "line 2: it is no text"},
  };
  for (const auto& [text, reason] : rows) {
    TVRXFaceController face(nullptr);
    FillAll(face);
    const QByteArray before = TextOf(face);
    EXPECT_EQ(Refusal(text, face), reason);
    EXPECT_EQ(TextOf(face), before) << reason;
  }
  TVRXFaceController face(nullptr);
  EXPECT_NE(Refusal("FaceController states 1\nsetting okBevel \"a\"\n  Width = 99999999999\nend\n", face),
            "");
  EXPECT_NE(Refusal("FaceController states 1\nsetting okBevel \"a\"\n  Width = 1 2\nend\n", face), "");
}

TEST(FaceFile, ThatEndsTooEarlyAnywhereIsRefusedAndLeavesTheControllerAlone) {
  for (const bool withStates : {true, false}) {
    TVRXFaceController whole(nullptr), face(nullptr);
    FillAll(whole);
    Made<TVRXBevel>(face, okBevel);
    const QByteArray before = TextOf(face);
    const QByteArray text = VRXFaceText(*whole.SettingObjects(), withStates ? whole.States() : nullptr);
    // Without its last line feed it is whole.
    for (qsizetype length = 0; length < text.size() - 1; ++length) {
      EXPECT_THROW(
          VRXReadFaceText(text.left(length), *face.SettingObjects(), withStates ? face.States() : nullptr),
          Exception)
          << length;
      ASSERT_EQ(TextOf(face), before) << length;
    }
    VRXReadFaceText(text.chopped(1), *face.SettingObjects(), withStates ? face.States() : nullptr);
    EXPECT_EQ(VRXFaceText(*face.SettingObjects(), withStates ? face.States() : nullptr), text);
  }
}

TEST(FaceFile, ThatIsMutatedIsReadOrRefusedAndNeverHalfRead) {
  TVRXFaceController whole(nullptr);
  FillAll(whole);
  const QByteArray text = TextOf(whole);
  Mutations mutations(text, 20);
  int read = 0, refused = 0;
  for (int i = 0; i < 4000; ++i) {
    const QByteArray bytes = mutations.Next();
    TVRXFaceController face(nullptr);
    Made<TVRXBevel>(face, okBevel);
    const QByteArray before = TextOf(face);
    try {
      Read(bytes, face);
      ++read;
      const QByteArray once = TextOf(face);
      TVRXFaceController again(nullptr);
      Read(once, again);
      ASSERT_EQ(TextOf(again), once) << bytes.toStdString();
    } catch (const Exception& error) {
      ++refused;
      ASSERT_EQ(TextOf(face), before) << bytes.toStdString();
      EXPECT_TRUE(error.Message().startsWith(QStringLiteral("line "))) << error.what();
    }
  }
  EXPECT_GT(read, 100);
  EXPECT_GT(refused, 500);
}

TEST(FaceFile, IsReplacedAsAWholeOrStays) {
  QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("my faces.fcstates"));
  TVRXFaceController face(nullptr), read(nullptr);
  FillAll(face);
  face.SaveToFile(path);
  read.LoadFromFile(path);
  EXPECT_EQ(TextOf(read), TextOf(face));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1)
      << "nothing is left beside it";
  const auto message = [](const std::function<void()>& act) {
    try {
      act();
    } catch (const Exception& error) {
      return error.Message();
    }
    return QString();
  };
  const QString nowhere = folder.filePath(QStringLiteral("none/x.fcstates"));
  EXPECT_TRUE(message([&] {
                face.SaveToFile(nowhere);
              }).startsWith(nowhere + QStringLiteral(" cannot be written: ")));
  EXPECT_TRUE(
      message([&] { face.LoadFromFile(nowhere); }).startsWith(nowhere + QStringLiteral(" cannot be read: ")));
  EXPECT_EQ(message([&] { face.LoadFromFile(folder.path()); }),
            folder.path() + QStringLiteral(" cannot be read: it is no file."));
  EXPECT_EQ(message([&] { face.SettingObjects()->LoadFromFile(path); }),
            path + QStringLiteral(
                       " cannot be read: line 1: a file that begins with \"FaceController settings 1\" is "
                       "needed."));
  EXPECT_EQ(TextOf(face), TextOf(read));
  const QString settings = folder.filePath(QStringLiteral("x.fcsettings"));
  face.SettingObjects()->SaveToFile(settings);
  read.SettingObjects()->Clear();
  read.SettingObjects()->LoadFromFile(settings);
  EXPECT_EQ(TextOf(read), TextOf(face));
}

TEST(ValueText, QuotesEveryText) {
  for (const QString& text :
       {QString(), QStringLiteral("a \"b\" \\u0041 \\"), QStringLiteral("\n\r\t\u0085\u2028"),
        QString(QChar(0xD800)) + u'x', QString(QChar(0))}) {
    const QString quoted = QuotedText(text);
    EXPECT_EQ(QString::fromUtf8(quoted.toUtf8()), quoted);
    EXPECT_FALSE(quoted.contains(u'\n'));
    QString back = QStringLiteral("before");
    EXPECT_TRUE(UnquotedText(quoted, back));
    EXPECT_EQ(back, text);
  }
  for (const char* wrong : {"", "\"", "x", "\"a\"b\"", "\"\\\"", "\"\\x\"", "\"\\u12\"", "\"\\u12g4\""}) {
    QString text = QStringLiteral("before");
    EXPECT_FALSE(UnquotedText(QString::fromLatin1(wrong), text)) << wrong;
    EXPECT_EQ(text, QStringLiteral("before"));
  }
}
