// New and empty components on a form that is being designed: what they are can be seen, in either scheme.
#include "library/components/FormShadow.h"
#include "library/controls/AniCtrl.h"
#include "library/controls/ButtonBar.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/DlgButtonPanel.h"
#include "library/controls/HTMLComboBox.h"
#include "library/controls/LabelFill.h"
#include "library/controls/ListBoxes.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ScrollText.h"
#include "library/controls/Switch.h"
#include "library/controls/TextBoxes.h"
#include "library/controls/ValueListBox.h"
#include "tests/library/VisibleProperties.h"
#include "tests/support/Contrast.h"
#include "vcl/Form.h"
#include "vcl/FormColors.h"

namespace {
constexpr TFormColors kSchemes[] = {TFormColors::Light, TFormColors::Dark};
QColor Ground() { return FormPalette().color(QPalette::Window); }

// As one that somebody has just put on a form.
template <class C>
struct New {
  explicit New(const char* name = "New1", bool designing = true) {
    form.SetDesigning(designing);
    control = new C(&form);
    control->SetParent(&form);
    control->SetName(QString::fromLatin1(name));
  }
  QImage Look() { return Draw(*control, Ground()); }
  TForm form{nullptr};
  C* control = nullptr;
};

template <class C>
void ExpectNamedWhileDesigned() {
  const auto look = [](const char* name, bool designing) {
    New<C> made(name, designing);
    made.control->SetCaption({});
    return made.Look();
  };
  SCOPED_TRACE(C::StaticClass().ClassName().constData());
  EXPECT_NE(look("Abc", true), look("Wxyz", true));
  EXPECT_EQ(look("Abc", false), look("Wxyz", false));
}

template <class C>
void ExpectSeen() {
  SCOPED_TRACE(C::StaticClass().ClassName().constData());
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    EXPECT_GE(Contrast(New<C>().Look()), 3);
  }
}

// Only dots at the end of the line: no upper half of a letter that is cut.
template <class C>
void ExpectEllipsis() {
  SCOPED_TRACE(C::StaticClass().ClassName().constData());
  New<C> made("WWWWWWWWWWWWWWWWWWWWWWWWWWWW");
  made.control->SetCaption({});
  const QImage image = made.Look();
  constexpr int knob = 17;
  const QRect end(image.width() - knob - 9, 4, 5, image.height() / 2 - 4);
  const QRgb base = image.pixel(end.right(), end.top());
  EXPECT_EQ(CountPixels(image.copy(end), QColor(base)), end.width() * end.height());
  EXPECT_GT(CountPixels(image, QColor(base)), 0);
  EXPECT_GE(Contrast(image.copy(4, 4, image.width() - knob - 8, image.height() - 8)), 4)
      << "an empty field does not look disabled";
  EXPECT_LT(CountPixels(image.copy(QRect(4, 4, image.width() - knob - 8, image.height() - 8)), QColor(base)),
            (image.width() - knob - 8) * (image.height() - 8));
}
}  // namespace

TEST(DesignLooks, EmptyControlsShowTheirNames) {
  ExpectNamedWhileDesigned<TVRXScrollText>();
  ExpectNamedWhileDesigned<TVRXAniCtrl>();
  ExpectNamedWhileDesigned<TVRXCaptionPanelGroup>();
  ExpectNamedWhileDesigned<TVRXDlgButtonPanel>();
  ExpectNamedWhileDesigned<TVRXButtonBar>();
  ExpectNamedWhileDesigned<TVRXTagEditor>();
}

TEST(DesignLooks, OnesThatHaveContentDoNot) {
  const auto lines = [](const char* name) {
    New<TVRXScrollText> made(name);
    made.control->Lines()->SetLines({QStringLiteral("A line")});
    made.control->Set(TVRXScrollText::Scroll, false);
    return made.Look();
  };
  EXPECT_EQ(lines("Abc"), lines("Wxyz"));
  const auto tags = [](const char* name) {
    New<TVRXTagEditor> made(name);
    made.control->Get(TVRXTagEditor::Tags)->SetLines({QStringLiteral("tag")});
    return made.Look();
  };
  EXPECT_EQ(tags("Abc"), tags("Wxyz"));
}

TEST(DesignLooks, NewOnesStandOutFromTheFormInBothSchemes) {
  ExpectSeen<TVRXSwitch>();
  ExpectSeen<TVRXWSwitch>();
  ExpectSeen<TVRXAniCtrl>();
  ExpectSeen<TVRXScrollText>();
  ExpectSeen<TVRXCaptionPanelGroup>();
  ExpectSeen<TVRXDlgButtonPanel>();
  ExpectSeen<TVRXButtonBar>();
}

TEST(DesignLooks, TheOutlineOfAShapeIsSeenWithoutItsCaption) {
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    New<TVRXPanelShape> panel;
    panel.control->SetCaption({});
    EXPECT_GE(Contrast(panel.Look()), 3);
    New<TVRXWndButtonShape> button;
    button.control->SetCaption({});
    EXPECT_GE(Contrast(button.Look()), 3);
  }
}

TEST(DesignLooks, TheLettersOfANewFilledLabelCanBeRead) {
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    New<TVRXLabelFill> made("LabelFill1");
    const QImage image = made.Look();
    int inked = 0, clear = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        const double contrast = Contrast(image.pixelColor(x, y), Ground());
        inked += contrast > 1.3;
        clear += contrast >= 4;
      }
    EXPECT_GE(clear, inked / 3);
    EXPECT_GE(clear, 60);
  }
}

TEST(DesignLooks, AFilledLabelThatIsReadKeepsItsColors) {
  TForm form(nullptr);
  form.SetDesigning(true);
  TVRXLabelFill label(&form);
  label.BeginLoading();
  label.SetName(QStringLiteral("Read"));
  label.Loaded();
  EXPECT_EQ(label.FillObject()->Get(TVRXFillObject::EndColor), clBtnShadow);
}

TEST(DesignLooks, ANewShadowStandsOutFromTheDeskInBothSchemes) {
  TForm form(nullptr);
  form.SetDesigning(true);
  TVRXFormShadow shadow(&form);
  shadow.SetName(QStringLiteral("Shadow1"));
  for (const TFormColors colors : kSchemes) {
    const FormColorScope scope(colors);
    EXPECT_GE(Contrast(ToQColor(shadow.Shadow()->Get(TVRXShadow::Color)), Ground()), 2);
  }
}

TEST(DesignLooks, NamesThatAreTooLongForAFieldEndWithAnEllipsis) {
  ExpectEllipsis<TVRXHTMLComboBox>();
  ExpectEllipsis<TVRXValueComboBox>();
  ExpectEllipsis<TVRXListComboBox>();
}
