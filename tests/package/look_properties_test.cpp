// The inspector's editors of shadows, bevels, teeth, shape fills, figures and light colours.
#include "library_design/FillDialog.h"
#include "package/dialogs/pVRXLightEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXShapeEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"
#include "package/property_editors/pVRXPeMain.h"
#include "package/registration/VRX_RegMain.h"
#include "package/registration/VRX_RegMainEditors.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Modal.h"

namespace {
using enum TPropertyAttribute;
using B = TVRXBaseShape;

class LookProperties : public testing::Test {
 protected:
  LookProperties() {
    VRX_RegMain::Register();
    VRX_RegMainEditors::Register();
  }
  std::unique_ptr<TPropertyEditor> Editor(const char* name) {
    return EditorOf({&first, &second}, name, &designer);
  }
  template <class D>
  void Edit(TPropertyEditor& editor, bool ok, const std::function<void(D&)>& change) {
    bool came = false;
    modal::NextOf<D>([&](D& dialog) {
      came = true;
      change(dialog);
      ok ? dialog.accept() : dialog.reject();
    });
    editor.Edit();
    EXPECT_TRUE(came);
  }
  Scope scope;
  TVRXShapeControl first{nullptr}, second{nullptr};
  FakeDesigner designer;
};
}  // namespace

TEST_F(LookProperties, HaveTheAttributesOfTheirKind) {
  for (const char* name : {"Shadow", "ShapeFill", "Bevel", "Teeth"})
    EXPECT_EQ(Editor(name)->GetAttributes(), (TPropertyAttributes{paSubProperties, paDialog, paMultiSelect}))
        << name;
  EXPECT_EQ(Editor("Shape")->GetAttributes(),
            (TPropertyAttributes{paValueList, paDialog, paMultiSelect, paRevertable}));
  TVRXLight light(nullptr);
  EXPECT_EQ(EditorOf({&light}, "LightColor")->GetAttributes(),
            (TPropertyAttributes{paValueList, paDialog, paMultiSelect, paRevertable}));
}

TEST_F(LookProperties, CancelGivesTheFirstOnesFigureToNobodyElse) {
  first.Set(B::Shape, TVRXShapeType::stStar);
  second.Set(B::Shape, TVRXShapeType::stComb);
  Edit<TVRXShapeEditorDlg>(*Editor("Shape"), false, [](TVRXShapeEditorDlg&) {});
  EXPECT_EQ(second.Get(B::Shape), TVRXShapeType::stComb);
  EXPECT_EQ(designer.modified, 0);
  Edit<TVRXShapeEditorDlg>(*Editor("Shape"), true, [](auto& d) { d.pred->setCurrentIndex(7); });
  EXPECT_EQ(first.Get(B::Shape), TVRXShapeType::stDiamond);
  EXPECT_EQ(second.Get(B::Shape), TVRXShapeType::stDiamond);
}

TEST_F(LookProperties, ShadowAndFillSayHowTheyAreAndTheOthersTheirClass) {
  first.Shadow()->Set(TVRXShadow::Style, TVRXShadowStyle::hssSolid);
  EXPECT_EQ(Editor("Shadow")->GetValue(), first.Shadow()->Description());
  EXPECT_EQ(Editor("ShapeFill")->GetValue(), first.ShapeFill()->Description());
  EXPECT_EQ(Editor("Bevel")->GetValue(), QStringLiteral("(TVRXSimpleBevel)"));
  EXPECT_EQ(Editor("Teeth")->GetValue(), QStringLiteral("(TVRXTeeth)"));
  EXPECT_EQ(Editor("Shape")->GetValue(), QStringLiteral("stRectangle"));
}

namespace {
// A component whose shadow may be missing.
class TShadeless : public TComponent {
  VRX_CLASS(TShadeless)
 public:
  using TComponent::TComponent;
  TVRXShadow* Shadow() const { return nullptr; }
  TVRXShapeFill* Fill() const { return nullptr; }
};
const TClass& TShadeless::StaticClass() {
  static const TClass cls(DescribeClass<TShadeless>("TShadeless", TComponent::StaticClass())
                              .Published("Shadow", &TShadeless::Shadow, nullptr)
                              .Published("Fill", &TShadeless::Fill, nullptr));
  return cls;
}
}  // namespace

TEST_F(LookProperties, WithoutAnObjectTheTextIsEmpty) {
  TShadeless component(nullptr);
  EXPECT_EQ(EditorOf({&component}, "Shadow")->GetValue(), QString());
  EXPECT_EQ(EditorOf({&component}, "Fill")->GetValue(), QString());
}

TEST_F(LookProperties, OkWritesACopyToAllSelectedAndCancelNothing) {
  for (const bool ok : {false, true}) {
    designer.modified = 0;
    Edit<TVRXShadowEditorDlg>(*Editor("Shadow"), ok, [&](auto& d) {
      d.spind->setValue(9);
      EXPECT_EQ(first.Shadow()->Get(TVRXShadow::Depth), 3) << "a copy";
    });
    Edit<TVRXSimpleBevelEditorDlg>(*Editor("Bevel"), ok, [](auto& d) { d.spind->setValue(9); });
    Edit<TVRXTeethEditorDlg>(*Editor("Teeth"), ok, [](auto& d) { d.spinc->setValue(9); });
    Edit<TVRXFillEditorDlg>(*Editor("ShapeFill"), ok, [](auto& d) { d.edindex->setValue(9); });
    EXPECT_EQ(designer.modified, ok ? 4 : 0);
    for (const TVRXShapeControl* shape : {&first, &second}) {
      EXPECT_EQ(shape->Shadow()->Get(TVRXShadow::Depth), ok ? 9 : 3);
      EXPECT_EQ(shape->Bevel()->Get(TVRXSimpleBevel::Width), ok ? 9 : 2);
      EXPECT_EQ(shape->Teeth()->Get(TVRXTeeth::Count), ok ? 9 : 5);
      EXPECT_EQ(shape->ShapeFill()->Get(TVRXFillObject::ImageIndex), ok ? 9 : -1);
    }
  }
}

TEST_F(LookProperties, TheFillsDialogSeesTheImageListOfTheFirstShape) {
  TImageList images(nullptr);
  first.Set(B::ShapeFillImageList, &images);
  Edit<TVRXFillEditorDlg>(*Editor("ShapeFill"), false,
                          [&](auto& d) { EXPECT_EQ(d.test->Get(B::ShapeFillImageList), &images); });
}

TEST_F(LookProperties, AFigureIsWrittenWhateverTheAnswer) {
  first.Set(B::Shape, TVRXShapeType::stDiamond);
  Edit<TVRXShapeEditorDlg>(*Editor("Shape"), true, [](auto& d) {
    EXPECT_EQ(d.pred->currentIndex(), 7) << "the first one's";
    d.pred->setCurrentIndex(10);
  });
  EXPECT_EQ(first.Get(B::Shape), TVRXShapeType::stStar);
  EXPECT_EQ(second.Get(B::Shape), TVRXShapeType::stStar);
  designer.modified = 0;
  Edit<TVRXShapeEditorDlg>(*Editor("Shape"), false, [](auto& d) { d.pred->setCurrentIndex(0); });
  EXPECT_EQ(first.Get(B::Shape), TVRXShapeType::stStar);
  EXPECT_EQ(second.Get(B::Shape), TVRXShapeType::stStar);
  EXPECT_EQ(designer.modified, 1) << "unchanged, and written";
}

TEST_F(LookProperties, ALightColourIsPickedForAllSelected) {
  TVRXLight one(nullptr), other(nullptr);
  const auto editor = EditorOf({&one, &other}, "LightColor", &designer);
  EXPECT_EQ(ValuesOf(*editor).join(u' '),
            QStringLiteral("lcNone lcBlue lcRed lcGreen lcYellow lcMarine lcPurple"));
  Edit<TVRXLightEditorDlg>(*editor, true, [](auto& d) { d.pred->setCurrentIndex(6); });
  EXPECT_EQ(one.Get(TVRXCustomLight::LightColor), TVRXLightColor::lcPurple);
  EXPECT_EQ(other.Get(TVRXCustomLight::LightColor), TVRXLightColor::lcPurple);
}
