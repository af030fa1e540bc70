// The menus of clocks, form components, running texts and pictures: captions, counts, what each verb does and
// whether the designer hears of it.
#include <gtest/gtest.h>

#include "library_design/DateTimeFormatDialog.h"
#include "library_design/Font3DDialog.h"
#include "library_design/ImageListDialogs.h"
#include "library_design/ValueDialogs.h"
#include "package/component_editors/pVRXCEForms.h"
#include "tests/designintf/DesignTest.h"
#include "tests/support/Modal.h"
#include "vcl/Form.h"

namespace {
template <class Editor, class C>
struct Menu {
  Menu() : component(new C(&form)), editor(component, &designer) {}
  QString Texts() const {
    QStringList verbs;
    for (int i = 0; i < editor.GetVerbCount(); ++i) verbs << editor.GetVerb(i);
    return verbs.join(u'|')
        .replace(QString::fromUtf8(BoolStr[0]), QStringLiteral("{0}"))
        .replace(QString::fromUtf8(BoolStr[1]), QStringLiteral("{1}"));
  }
  std::string Text() const { return Texts().toStdString(); }
  // How often the designer heard of a change.
  int Run(int verb) {
    const int before = designer.modified;
    editor.ExecuteVerb(verb);
    return designer.modified - before;
  }
  TForm form{nullptr};
  C* component;
  FakeDesigner designer{&form};
  Editor editor;
};

template <class M>
void ExpectNothingBeyond(M& menu) {
  for (const int index : {-1, menu.editor.GetVerbCount(), 1000}) {
    EXPECT_EQ(menu.editor.GetVerb(index), QString()) << index;
    EXPECT_EQ(menu.Run(index), 0) << index;
  }
}
// Every verb that opens a dialog, cancelled: the designer hears nothing.
template <class M>
void ExpectCancelSilent(M& menu, std::initializer_list<int> verbs) {
  for (const int verb : verbs) {
    SCOPED_TRACE(menu.editor.GetVerb(verb).toStdString());
    bool came = false;
    modal::Next([&](QDialog& dialog) {
      came = true;
      dialog.reject();
    });
    EXPECT_EQ(menu.Run(verb), 0);
    EXPECT_TRUE(came);
  }
}
// Flags: each turns its own value round, and the caption follows.
template <class M>
void ExpectFlags(M& menu, std::initializer_list<int> verbs) {
  for (const int verb : verbs) {
    const QString before = menu.editor.GetVerb(verb);
    EXPECT_EQ(menu.Run(verb), 1) << before.toStdString();
    EXPECT_NE(menu.editor.GetVerb(verb), before);
    EXPECT_EQ(menu.Run(verb), 1);
    EXPECT_EQ(menu.editor.GetVerb(verb), before);
  }
}
}  // namespace

TEST(FormsVerbs, OfAClock) {
  Menu<TVRXClockComponentEditor, TVRXClock> menu;
  EXPECT_EQ(menu.Text(), "Bevel|Digital|DigitalOnly{0}|CustomDateTimeFormat");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1, 3});
  ExpectFlags(menu, {2});
  EXPECT_EQ(menu.Run(2), 1);
  EXPECT_TRUE(menu.component->Get(TVRXClock::DigitalOnly));
  modal::NextOf<TVRXDateTimeFormatDlg>([](auto& dialog) {
    dialog.edformat->setText(QStringLiteral("dd.mm"));
    dialog.accept();
  });
  EXPECT_EQ(menu.Run(3), 1);
  EXPECT_EQ(menu.component->Get(TVRXClock::CustomDateTimeFormat), QStringLiteral("dd.mm"));
}

TEST(FormsVerbs, OfAFill) {
  Menu<TVRXFillComponentEditor, TVRXFill> menu;
  EXPECT_EQ(menu.Text(), "ImageList|FillObject|Bevel|Caption|Color");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1, 2, 3, 4});
}

TEST(FormsVerbs, OfAFormFillAndOfOthers) {
  Menu<TVRXFormFillComponentEditor, TVRXFormFill> menu;
  EXPECT_EQ(menu.Text(), "FillObject|DefaultFill{1}|Enabled{1}|ImageList");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 3});
  ExpectFlags(menu, {1, 2});
  EXPECT_EQ(menu.Run(2), 1);
  EXPECT_FALSE(menu.component->Get(TVRXCustomFormFill::Enabled));
  EXPECT_TRUE(menu.component->Get(TVRXCustomFormFill::DefaultFill));
  Menu<TVRXFormFillComponentEditor, TVRXBack> other;
  EXPECT_EQ(other.Text(), "ImageList|DefaultFill{1}|Enabled{1}");
  ExpectNothingBeyond(other);
  ExpectCancelSilent(other, {0});
  ExpectFlags(other, {1, 2});
}

TEST(FormsVerbs, OfAFormStyler) {
  Menu<TVRXFormStylerComponentEditor, TVRXFormStyler> menu;
  EXPECT_EQ(menu.Text(),
            "Enabled{1}|Font|Font3D|AdjustRect{1}|UseDefaultFont{0}|InactiveGradient{1}|DrawCaptionEvent{0}|"
            "UseFormCaption{1}");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {1, 2});
  ExpectFlags(menu, {0, 3, 4, 5, 6, 7});
  using enum TVRXFormStylerOption;
  const auto before = menu.component->Options();
  const std::pair<int, TVRXFormStylerOption> rows[] = {{3, foAdjustRect},
                                                       {4, foUseDefaultFont},
                                                       {5, foInactiveGradient},
                                                       {6, foDrawCaptionEvent},
                                                       {7, foUseFormCaption}};
  for (const auto& [verb, option] : rows) {
    menu.component->SetOptions(before);
    menu.Run(verb);
    for (const auto each : {foAdjustRect, foUseDefaultFont, foActiveGradient, foInactiveGradient,
                            foDrawCaptionEvent, foUseFormCaption})
      EXPECT_EQ(menu.component->Options().Contains(each), before.Contains(each) != (each == option)) << verb;
  }
}

TEST(FormsVerbs, OfAShapeHint) {
  Menu<TVRXShapeHintComponentEditor, TVRXShapeHint> menu;
  EXPECT_EQ(menu.Text(), "BorderColor|Color|Enabled{1}|Font|Font3D|Shadow");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1, 3, 4, 5});
  ExpectFlags(menu, {2});
}

TEST(FormsVerbs, OfShadowAndShapeOfAForm) {
  Menu<TVRXShadowComponentEditor, TVRXFormShadow> shadow;
  EXPECT_EQ(shadow.Text(), "Shadow|ShowInActive {0}");
  ExpectNothingBeyond(shadow);
  ExpectCancelSilent(shadow, {0});
  ExpectFlags(shadow, {1});
  Menu<TVRXFormShapeComponentEditor, TVRXFormShape> shape;
  EXPECT_EQ(shape.Text(), "Refresh");
  ExpectNothingBeyond(shape);
  EXPECT_EQ(shape.Run(0), 1);
}

// Where no picture could be kept, none is offered.
TEST(FormsVerbs, APictureIsChosenOnlyWhereThereIsAPlaceForIt) {
  const auto offered = [](auto& menu, int verb) {
    bool pictures = false;
    modal::NextOf<TVRXImageListDlg>([&](TVRXImageListDlg& dialog) {
      pictures = !dialog.images[0]->isHidden();
      EXPECT_TRUE(dialog.images[1]->isHidden());
      dialog.cancel->click();
    });
    EXPECT_EQ(menu.Run(verb), 0);
    return pictures;
  };
  Menu<TVRXFillComponentEditor, TVRXFill> fill;
  EXPECT_FALSE(offered(fill, 0));
  Menu<TVRXFormFillComponentEditor, TVRXFormFill> form;
  EXPECT_FALSE(offered(form, 3));
  Menu<TVRXLabelFillComponentEditor, TVRXLabelFill> label;
  EXPECT_FALSE(offered(label, 9));
  Menu<TVRXFormFillComponentEditor, TVRXBack> back;
  EXPECT_TRUE(offered(back, 0));
  Menu<TVRXAniCtrlComponentEditor, TVRXAniCtrl> picture;
  EXPECT_TRUE(offered(picture, 0));
}

TEST(FormsVerbs, OfPicturesThatRun) {
  Menu<TVRXAniCtrlComponentEditor, TVRXAniCtrl> menu;
  EXPECT_EQ(menu.Text(), "ImageList|Bitmap|AutoSize{0}|Stretch{0}|Transparent{1}|Animate{0}");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1});
  ExpectFlags(menu, {2, 3, 4, 5});
  menu.Run(5);
  EXPECT_TRUE(menu.component->Get(TVRXAniCtrl::Animate));
}

TEST(FormsVerbs, OfALabelWithFilledLetters) {
  Menu<TVRXLabelFillComponentEditor, TVRXLabelFill> menu;
  EXPECT_EQ(
      menu.Text(),
      "Caption|Font|Font3D|Bevel|Alignment|AutoSize{1}|Transparent{1}|FillObject|BrushBackColor|ImageList");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1, 2, 3, 4, 7, 8, 9});
  ExpectFlags(menu, {5, 6});
}

TEST(FormsVerbs, OfARunningText) {
  Menu<TVRXScrollTextComponentEditor, TVRXScrollText> menu;
  EXPECT_EQ(menu.Text(), "Bevel|Font|Font3D|Transparent{0}|Scroll{0}|Lines");
  ExpectNothingBeyond(menu);
  ExpectCancelSilent(menu, {0, 1, 2, 5});
  ExpectFlags(menu, {3, 4});
  menu.Run(4);
  EXPECT_TRUE(menu.component->Get(TVRXScrollText::Scroll));
  EXPECT_FALSE(menu.component->Get(TVRXScrollText::Transparent));
}

TEST(FormsVerbs, OfAButtonAndAPanelInAShape) {
  Menu<TVRXWndButtonShapeComponentEditor, TVRXWndButtonShape> button;
  EXPECT_EQ(button.Text(), "OnClick...|ImageList|Transparent{1}|FontFX|Font");
  ExpectNothingBeyond(button);
  ExpectCancelSilent(button, {1, 3, 4});
  ExpectFlags(button, {2});
  Menu<TVRXPanelShapeComponentEditor, TVRXPanelShape> panel;
  EXPECT_EQ(panel.Text(), "ImageList|Transparent{1}|FontFX|Font");
  ExpectNothingBeyond(panel);
  ExpectCancelSilent(panel, {0, 2, 3});
  ExpectFlags(panel, {1});
}
