#include "VclTest.h"
#include "rtl/PropAccess.h"
#include "vcl/FormColors.h"
#include "vcl/FormFrame.h"
#include "vcl/Panel.h"

using enum TFormBorderStyle;

TEST(Form, ClientAndFrameSizeDifferByTheFrame) {
  for (const auto style : {bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin}) {
    TForm form(nullptr);
    form.SetBorderStyle(style);
    form.SetClientWidth(300);
    form.SetClientHeight(200);
    const QMargins m = form.FrameMargins();
    EXPECT_EQ(form.Width(), 300 + m.left() + m.right());
    EXPECT_EQ(form.Height(), 200 + m.top() + m.bottom());
    EXPECT_EQ(form.ClientRect(), QRect(0, 0, 300, 200));
    EXPECT_EQ(m.isNull(), style == bsNone);
    form.SetBounds(0, 0, 4, 4);
    EXPECT_GE(form.ClientWidth(), 0);
    EXPECT_GE(form.ClientHeight(), 0);
  }
}

TEST(Form, StartsWithAClientAreaOf320By240) {
  const TForm form(nullptr);
  EXPECT_EQ(form.ClientWidth(), 320);
  EXPECT_EQ(form.ClientHeight(), 240);
  EXPECT_FALSE(form.Visible());
  EXPECT_EQ(form.BorderStyle(), bsSizeable);
}

TEST(Form, AnotherBorderKeepsTheClientArea) {
  TForm form(nullptr);
  TPanel child(&form);
  child.SetParent(&form);
  child.SetAlign(TAlign::alClient);
  for (const auto style : {bsNone, bsToolWindow, bsDialog, bsSizeable}) {
    form.SetBorderStyle(style);
    EXPECT_EQ(form.ClientRect().size(), QSize(320, 240));
    EXPECT_EQ(child.BoundsRect(), QRect(0, 0, 320, 240));
  }
}

TEST(Form, AToolWindowHasASmallerTitle) {
  TForm form(nullptr);
  const int normal = form.FrameMargins().top();
  form.SetBorderStyle(bsToolWindow);
  EXPECT_LT(form.FrameMargins().top(), normal);
  const int tool = form.FrameMargins().top();
  form.SetBorderStyle(bsSizeToolWin);
  EXPECT_EQ(form.FrameMargins().top(), tool);
}

TEST(Form, TheSizeThatWasReadIsTheSizeThatIsStored) {
  const auto stored = [](const TForm& f, const char* name) {
    return IsStoredProp(f, TForm::StaticClass().GetProp(name));
  };
  const auto set = [](TForm& f, const char* name, int v) {
    SetOrdProp(f, TForm::StaticClass().GetProp(name), v);
  };
  TForm framed(nullptr);
  framed.BeginLoading();
  set(framed, "Width", 500);
  set(framed, "Height", 400);
  framed.Loaded();
  EXPECT_EQ(framed.Width(), 500);
  EXPECT_TRUE(stored(framed, "Width"));
  EXPECT_TRUE(stored(framed, "Height"));
  EXPECT_FALSE(stored(framed, "ClientWidth"));
  TForm client(nullptr);
  client.BeginLoading();
  set(client, "ClientWidth", 500);
  set(client, "ClientHeight", 400);
  client.Loaded();
  EXPECT_EQ(client.ClientRect().size(), QSize(500, 400));
  EXPECT_FALSE(stored(client, "Width"));
  EXPECT_TRUE(stored(client, "ClientWidth"));
}

TEST(Form, TheClientSizeWinsInEitherOrder) {
  for (const bool frameFirst : {true, false}) {
    TForm form(nullptr);
    form.BeginLoading();
    const auto set = [&](const char* name, int v) {
      SetOrdProp(form, TForm::StaticClass().GetProp(name), v);
    };
    if (frameFirst) set("Width", 999), set("Height", 888);
    set("ClientHeight", 100);
    set("ClientWidth", 200);
    // The border decides the frame, wherever it stands.
    SetOrdProp(form, TForm::StaticClass().GetProp("BorderStyle"), static_cast<int>(bsNone));
    if (!frameFirst) set("Width", 999), set("Height", 888);
    form.Loaded();
    EXPECT_EQ(form.ClientRect().size(), QSize(200, 100));
  }
}

TEST(Form, TakesTheClassNameOfItsFile) {
  TForm form(nullptr);
  EXPECT_EQ(form.StreamClassName(), "TForm");
  form.SetStreamClassName("TMainForm");
  EXPECT_EQ(form.StreamClassName(), "TMainForm");
}

TEST(RenderForm, IsAsLargeAsTheFrameTimesTheScale) {
  TForm form(nullptr);
  form.SetBounds(0, 0, 301, 203);
  EXPECT_EQ(RenderForm(form, 1).size(), QSize(301, 203));
  EXPECT_EQ(RenderForm(form, 2).size(), QSize(602, 406));
  EXPECT_EQ(RenderForm(form, 0.5).size(), QSize(151, 102));
  EXPECT_EQ(RenderForm(form, 0.0001).size(), QSize(1, 1));
  form.SetBorderStyle(bsNone);
  form.SetBounds(0, 0, 40, 30);
  form.SetColor(clRed);
  const QImage image = RenderForm(form, 3);
  EXPECT_EQ(image.size(), QSize(120, 90));
  EXPECT_EQ(CountPixels(image, Qt::red), 120 * 90);
}

TEST(RenderForm, ChildrenLieInsideTheFrame) {
  TForm form(nullptr);
  form.SetClientWidth(100);
  form.SetClientHeight(80);
  form.SetColor(clWhite);
  TPanel panel(&form);
  panel.SetParent(&form);
  panel.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  panel.SetColor(clRed);
  panel.SetBounds(0, 0, 10, 10);
  const QMargins m = form.FrameMargins();
  const QImage image = RenderForm(form, 1);
  EXPECT_EQ(CountPixels(image, Qt::red), 100);
  EXPECT_EQ(image.pixelColor(m.left(), m.top()), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(m.left() + 10, m.top() + 10), QColor(Qt::white));
  EXPECT_NE(image.pixelColor(m.left() - 1, m.top() + 20), QColor(Qt::white)) << "the border";
  panel.SetBounds(95, 75, 50, 50);
  EXPECT_EQ(CountPixels(RenderForm(form, 1), Qt::red), 25) << "cut at the client area";
}

TEST(RenderForm, TitleAndButtonsShow) {
  TForm form(nullptr);
  const QImage plain = RenderForm(form, 1);
  form.SetCaption(QStringLiteral("A title"));
  const QImage titled = RenderForm(form, 1);
  EXPECT_NE(plain, titled);
  form.SetBorderIcons({TBorderIcon::biSystemMenu});
  const QImage closeOnly = RenderForm(form, 1);
  EXPECT_NE(titled, closeOnly);
  form.SetBorderIcons({});
  EXPECT_NE(RenderForm(form, 1), closeOnly);
}

TEST(FormKind, OnlyAFormHasAWindowFrame) {
  TForm form(nullptr);
  form.SetClientWidth(200);
  form.SetClientHeight(100);
  for (const auto kind : {TFormKind::Frame, TFormKind::DataModule}) {
    form.SetKind(kind);
    EXPECT_EQ(form.ClientRect(), QRect(0, 0, 200, 100));
    EXPECT_EQ(form.BoundsRect().size(), QSize(200, 100));
    EXPECT_EQ(RenderForm(form, 1).size(), QSize(200, 100));
  }
  EXPECT_FALSE(form.AcceptsControls());
  form.SetKind(TFormKind::Form);
  EXPECT_TRUE(form.AcceptsControls());
  EXPECT_EQ(form.ClientRect(), QRect(0, 0, 200, 100));
  EXPECT_GT(form.Height(), 100);
}

TEST(FormKind, AFrameIsAllItsOwnFaceAndADataModuleADesk) {
  TForm form(nullptr);
  form.SetKind(TFormKind::Frame);
  form.SetColor(clRed);
  const QImage frame = RenderForm(form, 1);
  EXPECT_EQ(CountPixels(frame, Qt::red), frame.width() * frame.height());
  form.SetKind(TFormKind::DataModule);
  EXPECT_EQ(RenderForm(form, 1).pixelColor(50, 50), ToQColor(clWindow));
}

TEST(RenderForm, FollowsTheFormsSchemeAndNotTheTheme) {
  TForm form(nullptr);
  QImage light, dark;
  {
    const ThemeScope scope(TTheme::Light);
    light = RenderForm(form, 1);
  }
  {
    const ThemeScope scope(TTheme::Dark);
    EXPECT_EQ(RenderForm(form, 1), light);
  }
  {
    const FormColorScope colors(TFormColors::Dark);
    dark = RenderForm(form, 1);
  }
  EXPECT_GT(light.pixelColor(100, 100).lightness(), 200);
  EXPECT_LT(dark.pixelColor(100, 100).lightness(), 80);
}
