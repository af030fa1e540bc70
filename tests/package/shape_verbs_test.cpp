// Context menus of shapes, lights, switches and technical lines: the captions in every state, and what each
// verb does to the component and the designer.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "designintf/CustomColors.h"
#include "library_design/ColorDialogs.h"
#include "library_design/FillDialog.h"
#include "library_design/LookDialogs.h"
#include "library_design/ValueDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/dialogs/pVRXLightEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXShapeEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Modal.h"

namespace {
QJsonArray Cases(const char* list) {
  QFile file(QStringLiteral(VRX_SOURCE_DIR "/tests/package/cases/verbs.json"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonArray cases = QJsonDocument::fromJson(file.readAll()).object()[QLatin1String(list)].toArray();
  EXPECT_FALSE(cases.isEmpty()) << list;
  return cases;
}
QStringList Captions(const QJsonValue& verbs) {
  QStringList captions;
  for (const QJsonValue& verb : verbs.toArray())
    captions << verb.toString()
                    .replace(QStringLiteral("{True}"), QString::fromUtf8(BoolStr[1]))
                    .replace(QStringLiteral("{False}"), QString::fromUtf8(BoolStr[0]));
  return captions;
}
void ExpectMenu(const TComponentEditor& editor, const QJsonValue& verbs) {
  QStringList menu;
  for (int i = 0; i < editor.GetVerbCount(); ++i) menu << editor.GetVerb(i);
  EXPECT_EQ(menu.join(u'|').toStdString(), Captions(verbs).join(u'|').toStdString());
  for (const int i : {-1, editor.GetVerbCount(), 1000}) EXPECT_EQ(editor.GetVerb(i), QString());
}

// A light of somebody's own class.
class NamedLight : public TVRXCustomLight {
 public:
  explicit NamedLight(const QString& name)
      : TVRXCustomLight(nullptr), class_(TClassBuilder(name.toLatin1(), &TVRXCustomLight::StaticClass())) {}
  const TClass& ClassType() const override { return class_; }

 private:
  TClass class_;
};
class TVRXDBSwitch : public TVRXSwitch {
  VRX_CLASS(TVRXDBSwitch)
 public:
  using TVRXSwitch::TVRXSwitch;
};
const TClass& TVRXDBSwitch::StaticClass() {
  static const TClass cls(DescribeClass<TVRXDBSwitch>("TVRXDBSwitch", TVRXSwitch::StaticClass()));
  return cls;
}

class TVRXDBLEDLabel : public TVRXLEDCustomLabel {
  VRX_CLASS(TVRXDBLEDLabel)
 public:
  using TVRXLEDCustomLabel::TVRXLEDCustomLabel;
};
const TClass& TVRXDBLEDLabel::StaticClass() {
  static const TClass cls(DescribeClass<TVRXDBLEDLabel>("TVRXDBLEDLabel", TVRXLEDCustomLabel::StaticClass())
                              .Publish("AutoSize", true));
  return cls;
}

class ShapeVerbs : public testing::Test {
 protected:
  void SetUp() override { SaveIDECustomColors({}); }
  // Runs a verb whose dialog is D, cancelled and confirmed after `change`; Modified is called for the second.
  template <class D>
  void ExpectDialog(TComponentEditor& editor, int verb, const std::function<void(D&)>& change) {
    SCOPED_TRACE(editor.GetVerb(verb).toStdString());
    for (const bool ok : {false, true}) {
      bool came = false;
      designer.modified = 0;
      modal::NextOf<D>([&](D& dialog) {
        came = true;
        change(dialog);
        ok ? dialog.accept() : dialog.reject();
      });
      editor.ExecuteVerb(verb);
      EXPECT_TRUE(came);
      EXPECT_EQ(designer.modified, ok ? 1 : 0);
    }
  }
  // Runs a verb that changes something at once.
  void Run(TComponentEditor& editor, int verb) {
    designer.modified = 0;
    editor.ExecuteVerb(verb);
    EXPECT_EQ(designer.modified, 1);
  }
  FakeDesigner designer;
};
}  // namespace

TEST_F(ShapeVerbs, OfAShapeFollowFigureTeethAndFilling) {
  for (const QJsonValue& c : Cases("shape")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    TVRXShapeControl shape(nullptr);
    shape.Set(TVRXBaseShape::Shape, static_cast<TVRXShapeType>(state[QStringLiteral("shape")].toInt()));
    shape.Set(TVRXBaseShape::DrawTeeth, state[QStringLiteral("teeth")].toBool());
    shape.Set(TVRXBaseShape::Square, state[QStringLiteral("square")].toBool());
    shape.Set(TVRXBaseShape::FillStyle,
              static_cast<TVRXShapeFillStyle>(state[QStringLiteral("fillStyle")].toInt()));
    ExpectMenu(TVRXCustomShapeComponentEditor(&shape, &designer), c[QStringLiteral("verbs")]);
  }
}

TEST_F(ShapeVerbs, OfARectangleOpenTheDialogsOfItsParts) {
  TVRXShapeControl shape(nullptr);
  TVRXCustomShapeComponentEditor editor(&shape, &designer);
  ExpectDialog<TVRXBrushEditorDlg>(editor, 1, [](auto& d) { d.cmbstyle->setCurrentIndex(2); });
  EXPECT_EQ(shape.Brush()->Style(), TBrushStyle::bsHorizontal);
  ExpectDialog<TVRXCaptionEditorDlg>(editor, 2, [](auto& d) {
    EXPECT_TRUE(d.chk->isVisible());
    d.cap->setText(QStringLiteral("Hg"));
  });
  EXPECT_EQ(shape.Caption()->Caption(), QStringLiteral("Hg"));
  ExpectDialog<TVRXShadowEditorDlg>(editor, 3, [](auto& d) { d.spind->setValue(9); });
  EXPECT_EQ(shape.Shadow()->Get(TVRXShadow::Depth), 9);
  Run(editor, 4);
  EXPECT_TRUE(shape.Get(TVRXBaseShape::Square));
  ExpectDialog<TVRXSimpleBevelEditorDlg>(editor, 5, [](auto& d) { d.spind->setValue(9); });
  EXPECT_EQ(shape.Bevel()->Get(TVRXSimpleBevel::Width), 9);
  ExpectDialog<TVRXFillEditorDlg>(editor, 6, [](auto& d) { d.edindex->setValue(9); });
  EXPECT_EQ(shape.ShapeFill()->Get(TVRXFillObject::ImageIndex), 9);
  shape.Set(TVRXBaseShape::FillStyle, TVRXShapeFillStyle::sfShapeFill);
  ExpectDialog<TVRXFillEditorDlg>(editor, 5, [](auto& d) { d.edindex->setValue(5); });
  EXPECT_EQ(shape.ShapeFill()->Get(TVRXFillObject::ImageIndex), 5);
  ExpectDialog<TVRXShapeEditorDlg>(editor, 0, [](auto& d) { d.pred->setCurrentIndex(10); });
  EXPECT_EQ(shape.Get(TVRXBaseShape::Shape), TVRXShapeType::stStar);
  shape.Set(TVRXBaseShape::DrawTeeth, true);
  ExpectDialog<TVRXTeethEditorDlg>(editor, 0, [](auto& d) { d.spinc->setValue(9); });
  EXPECT_EQ(shape.Teeth()->Get(TVRXTeeth::Count), 9);
}

TEST_F(ShapeVerbs, AFillFromTheMenuSeesTheShapesImageList) {
  TVRXShapeControl shape(nullptr);
  TImageList images(nullptr);
  shape.Set(TVRXBaseShape::ShapeFillImageList, &images);
  TVRXCustomShapeComponentEditor editor(&shape, &designer);
  ExpectDialog<TVRXFillEditorDlg>(
      editor, 6, [&](auto& d) { EXPECT_EQ(d.test->Get(TVRXBaseShape::ShapeFillImageList), &images); });
}

TEST_F(ShapeVerbs, OfALightAreThoseOfItsStyle) {
  for (const QJsonValue& c : Cases("light")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    NamedLight light(state[QStringLiteral("class")].toString());
    light.Set(TVRXCustomLight::Style, static_cast<TVRXLightStyle>(state[QStringLiteral("style")].toInt()));
    TVRXLightComponentEditor editor(&light, &designer);
    ExpectMenu(editor, c[QStringLiteral("verbs")]);
    Run(editor, 3);
    EXPECT_EQ(static_cast<int>(light.Get(TVRXCustomLight::Style)), c[QStringLiteral("verb3Sets")].toInt());
  }
}

TEST_F(ShapeVerbs, OfALightTurnItOnAndOpenItsDialogs) {
  TVRXLight light(nullptr);
  TVRXLightComponentEditor editor(&light, &designer);
  Run(editor, 0);
  EXPECT_FALSE(light.Get(TVRXCustomLight::Active));
  ExpectDialog<TVRXBevelEditorDlg>(editor, 1, [](auto& d) { d.edwidth->setValue(9); });
  EXPECT_EQ(light.Bevel()->Get(TVRXBevel::Width), 9);
  ExpectDialog<TVRXLightEditorDlg>(editor, 2, [](auto& d) { d.pred->setCurrentIndex(5); });
  EXPECT_EQ(light.Get(TVRXCustomLight::LightColor), TVRXLightColor::lcMarine);
}

TEST_F(ShapeVerbs, ADataAwareLightOrSwitchIsNotTurnedOn) {
  designer.modified = 0;
  NamedLight light(QStringLiteral("TVRXDBLight"));
  TVRXLightComponentEditor lights(&light, &designer);
  lights.ExecuteVerb(0);
  EXPECT_TRUE(light.Get(TVRXCustomLight::Active));
  TVRXDBSwitch control(nullptr);
  TVRXSwitchComponentEditor switches(&control, &designer);
  EXPECT_EQ(switches.GetVerb(0), QStringLiteral("[DB] Option not available"));
  EXPECT_EQ(switches.GetVerbCount(), 7);
  EXPECT_NE(switches.GetVerbProblem(0), QString()) << "grey in the menu";
  EXPECT_EQ(switches.GetVerbProblem(1), QString());
  EXPECT_EQ(switches.GetVerbProblem(77), QString());
  switches.ExecuteVerb(0);
  EXPECT_FALSE(control.Get(TVRXCustomSwitch::Checked));
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(ShapeVerbs, OfASwitchAreSeven) {
  TVRXSwitch control(nullptr);
  TVRXSwitchComponentEditor editor(&control, &designer);
  const QJsonArray verbs{QStringLiteral("Checked{False}"),  QStringLiteral("Bevel"),
                         QStringLiteral("Caption Checked"), QStringLiteral("Caption UnChecked"),
                         QStringLiteral("Color Checked"),   QStringLiteral("Color UnChecked"),
                         QStringLiteral("Enabled{True}")};
  ExpectMenu(editor, verbs);
  Run(editor, 0);
  EXPECT_TRUE(control.Get(TVRXCustomSwitch::Checked));
  Run(editor, 6);
  EXPECT_FALSE(control.Enabled());
  EXPECT_EQ(editor.GetVerb(0), QStringLiteral("Checked") + QString::fromUtf8(BoolStr[1]));
  ExpectDialog<TVRXBevelEditorDlg>(editor, 1, [](auto& d) { d.edwidth->setValue(9); });
  EXPECT_EQ(control.Bevel()->Get(TVRXBevel::Width), 9);
  ExpectDialog<TVRXCaptionEditorDlg>(editor, 2, [](auto& d) { d.cap->setText(QStringLiteral("On")); });
  ExpectDialog<TVRXCaptionEditorDlg>(editor, 3, [](auto& d) { d.cap->setText(QStringLiteral("Off")); });
  EXPECT_EQ(control.CaptionChecked()->Caption(), QStringLiteral("On"));
  EXPECT_EQ(control.CaptionUnChecked()->Caption(), QStringLiteral("Off"));
}

TEST_F(ShapeVerbs, ColoursOfASwitchSaveCustomColoursOnlyWhenOneIsChosen) {
  TVRXSwitch control(nullptr);
  TVRXSwitchComponentEditor editor(&control, &designer);
  for (const int verb : {4, 5}) {
    SaveIDECustomColors({});
    int shown = 0;
    ExpectDialog<ColorEnhDialog>(editor, verb, [&](auto& colors) {
      EXPECT_TRUE(LoadIDECustomColors().isEmpty()) << "the first was cancelled";
      ++shown;
      colors.template findChildren<QSpinBox*>()[0]->setValue(10 + verb);
      colors.template findChild<QPushButton*>(QStringLiteral("addCustom"))->click();
    });
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(LoadIDECustomColors().size(), 1);
    EXPECT_EQ(ToQColor(control.StateColor(verb - 4)).red(), 10 + verb);
  }
}

TEST_F(ShapeVerbs, OfATechnicalLineHaveLiteralFlags) {
  for (const QJsonValue& c : Cases("technicalLine")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    TVRXTechnicalLine line(nullptr);
    line.Set(TVRXTechnicalLine::Arrowed, state[QStringLiteral("arrowed")].toBool());
    line.Set(TVRXTechnicalLine::ShadowVisible, state[QStringLiteral("shadowVisible")].toBool());
    TVRXTechnicalLineComponentEditor editor(&line, &designer);
    ExpectMenu(editor, c[QStringLiteral("verbs")]);
    Run(editor, 0);
    Run(editor, 1);
    EXPECT_NE(line.Get(TVRXTechnicalLine::Arrowed), state[QStringLiteral("arrowed")].toBool());
    EXPECT_NE(line.Get(TVRXTechnicalLine::ShadowVisible), state[QStringLiteral("shadowVisible")].toBool());
  }
}

TEST_F(ShapeVerbs, PresetsOfATechnicalLineSetWhatTheySayAndNothingElse) {
  using T = TVRXTechnicalLine;
  int verb = 2;
  for (const QJsonValue& c : Cases("technicalLinePresets")) {
    T line(nullptr);
    line.Set(T::LineType, TVRXLineType::ltDiagonalUp);
    line.Set(T::SignPlaces, TVRXSignPlaces::spBoth);
    line.Set(T::LineStart, TVRXLineSign::lsBar);
    line.Set(T::LineEnding, TVRXLineSign::lsCircle);
    TVRXTechnicalLineComponentEditor editor(&line, &designer);
    EXPECT_EQ(editor.GetVerb(verb), c[QStringLiteral("verb")].toString());
    Run(editor, verb++);
    const QJsonObject sets = c[QStringLiteral("sets")].toObject();
    const auto wanted = [&](const char* name, int otherwise) {
      return sets.value(QLatin1String(name)).toInt(otherwise);
    };
    EXPECT_EQ(static_cast<int>(line.Get(T::LineType)), wanted("lineType", -1));
    EXPECT_EQ(static_cast<int>(line.Get(T::SignPlaces)), wanted("signPlaces", -1));
    EXPECT_EQ(static_cast<int>(line.Get(T::LineStart)), wanted("lineStart", 9));
    EXPECT_EQ(static_cast<int>(line.Get(T::LineEnding)), wanted("lineEnding", 6));
  }
  EXPECT_EQ(verb, 6);
}

TEST_F(ShapeVerbs, OfALedLabelAreFourAndADataAwareOneHasNoCaption) {
  for (const QJsonValue& c : Cases("ledLabel")) {
    const QJsonObject state = c[QStringLiteral("state")].toObject();
    std::unique_ptr<TVRXLEDCustomLabel> label;
    if (state[QStringLiteral("class")].toString().contains(QStringLiteral("TVRXDB")))
      label = std::make_unique<TVRXDBLEDLabel>(nullptr);
    else
      label = std::make_unique<TVRXLEDLabel>(nullptr);
    label->SetAutoSize(state[QStringLiteral("autoSize")].toBool());
    ExpectMenu(TVRXLEDLabelComponentEditor(label.get(), &designer), c[QStringLiteral("verbs")]);
  }
  TVRXDBLEDLabel bound(nullptr);
  bound.SetCaption(QStringLiteral("7"));
  TVRXLEDLabelComponentEditor(&bound, &designer).ExecuteVerb(0);
  EXPECT_EQ(bound.Caption(), QStringLiteral("7"));
  EXPECT_EQ(designer.modified, 0);
}

TEST_F(ShapeVerbs, OfALedLabelGiveItsCaptionBevelAndLook) {
  TVRXLEDLabel label(nullptr);
  TVRXLEDLabelComponentEditor editor(&label, &designer);
  ExpectDialog<TVRXTextDlg>(editor, 0, [](auto& d) { d.text->setText(QStringLiteral("12:34")); });
  EXPECT_EQ(label.Caption(), QStringLiteral("12:34"));
  Run(editor, 1);
  EXPECT_FALSE(label.AutoSize());
  ExpectDialog<TVRXBevelEditorDlg>(editor, 2, [](auto& d) { d.edwidth->setValue(4); });
  EXPECT_EQ(label.Bevel()->Get(TVRXBevel::Width), 4);
  ExpectDialog<TVRXLEDEditorDlg>(editor, 3, [](auto& d) { d.edhs->setValue(11); });
  EXPECT_EQ(label.LED()->HorzSize(), 11);
}

TEST_F(ShapeVerbs, TheBevelOfALedLabelStandsAroundItsLetters) {
  TVRXLEDLabel label(nullptr);
  label.SetCaption(QStringLiteral("8"));
  const QSize plain = label.BoundsRect().size();
  label.Bevel()->Set(TVRXBevel::Outer, TBevelCut::bvRaised);
  label.Bevel()->Set(TVRXBevel::Width, 5);
  label.SetCaption(QStringLiteral("88"));
  label.SetCaption(QStringLiteral("8"));
  EXPECT_EQ(label.BoundsRect().size(), plain + QSize(10, 10));
}
