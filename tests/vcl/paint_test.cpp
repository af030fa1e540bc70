#include "VclTest.h"
#include "tests/support/Waiting.h"
#include "vcl/Button.h"
#include "vcl/ControlView.h"
#include "vcl/FormColors.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"

namespace {
const QColor Background(1, 254, 3);

template <class T>
QImage Picture(TFormColors colors, bool enabled) {
  const FormColorScope scope(colors);
  T control(nullptr);
  control.SetCaption(QStringLiteral("Sample text"));
  control.SetEnabled(enabled);
  return Draw(control, ToQColor(clBtnFace));
}

template <class T>
class PaintedClass : public testing::Test {};
using PaintedClasses = testing::Types<TLabel, TButton, TPanel>;
TYPED_TEST_SUITE(PaintedClass, PaintedClasses);
}  // namespace

TYPED_TEST(PaintedClass, LooksDifferentDisabledAndInEachScheme) {
  const QImage light = Picture<TypeParam>(TFormColors::Light, true),
               lightOff = Picture<TypeParam>(TFormColors::Light, false);
  const QImage dark = Picture<TypeParam>(TFormColors::Dark, true),
               darkOff = Picture<TypeParam>(TFormColors::Dark, false);
  ASSERT_GT(light.width(), 20);
  EXPECT_NE(light, lightOff);
  EXPECT_NE(dark, darkOff);
  EXPECT_NE(light, dark);
  EXPECT_NE(lightOff, darkOff);
}

TYPED_TEST(PaintedClass, LooksTheSameInEachThemeOfTheDesigner) {
  for (const bool enabled : {true, false}) {
    QImage pictures[2];
    for (const auto theme : {TTheme::Light, TTheme::Dark}) {
      const ThemeScope scope(theme);
      pictures[theme == TTheme::Dark] = Picture<TypeParam>(TFormColors::Light, enabled);
    }
    EXPECT_EQ(pictures[0], pictures[1]) << enabled;
  }
}

TYPED_TEST(PaintedClass, ShowsItsCaptionAndFontColor) {
  TypeParam control(nullptr);
  control.SetBounds(0, 0, 120, 30);
  const QImage empty = Draw(control);
  control.SetCaption(QStringLiteral("HHHH"));
  control.SetBounds(0, 0, 120, 30);
  const QImage text = Draw(control);
  EXPECT_NE(empty, text);
  control.Font()->SetHeight(-24);
  control.Font()->SetStyle({TFontStyle::fsBold});
  control.Font()->SetColor(clRed);
  control.SetBounds(0, 0, 120, 30);
  EXPECT_GT(CountPixels(Draw(control), Qt::red), 0);
  EXPECT_EQ(CountPixels(text, Qt::red), 0);
}

TEST(PaintPanel, TheDefaultColorIsTheFace) {
  const FormColorScope colors(TFormColors::Dark);
  TPanel panel(nullptr);
  panel.SetCaption(QStringLiteral("HHHH"));
  const QImage usual = Draw(panel);
  panel.SetColor(clDefault);
  panel.Font()->SetColor(clDefault);
  EXPECT_EQ(Draw(panel), usual);
}

TEST(PaintLabel, TransparentLeavesTheBackground) {
  TLabel label(nullptr);
  label.SetAutoSize(false);
  label.SetBounds(0, 0, 60, 40);
  label.SetColor(clYellow);
  EXPECT_EQ(Draw(label, Background).pixelColor(59, 39), Background);
  label.SetTransparent(false);
  EXPECT_EQ(Draw(label, Background).pixelColor(59, 39), QColor(Qt::yellow));
  label.SetColor(clNone);
  EXPECT_EQ(Draw(label, Background).pixelColor(59, 39), Background);
}

TEST(PaintLabel, AlignmentAndLayoutMoveTheText) {
  TLabel label(nullptr);
  label.SetAutoSize(false);
  label.SetBounds(0, 0, 100, 80);
  label.SetCaption(QStringLiteral("H"));
  const auto inked = [&] {
    const QImage image = Draw(label, Qt::white);
    QRect box;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) != QColor(Qt::white)) box |= QRect(x, y, 1, 1);
    return box.center();
  };
  const QPoint topLeft = inked();
  label.SetAlignment(TAlignment::taRightJustify);
  label.SetLayout(TTextLayout::tlBottom);
  const QPoint bottomRight = inked();
  label.SetAlignment(TAlignment::taCenter);
  label.SetLayout(TTextLayout::tlCenter);
  const QPoint centre = inked();
  EXPECT_LT(topLeft.x(), 20);
  EXPECT_LT(topLeft.y(), 20);
  EXPECT_GT(bottomRight.x(), 80);
  EXPECT_GT(bottomRight.y(), 60);
  EXPECT_NEAR(centre.x(), 50, 3);
  EXPECT_NEAR(centre.y(), 40, 5);
}

TEST(PaintPanel, BevelsAreLitFromTheTopLeft) {
  TPanel panel(nullptr);
  panel.SetBounds(0, 0, 40, 30);
  panel.SetColor(clRed);
  panel.Set(TPanel::BevelWidth, 3);
  const QColor light = ToQColor(clBtnHighlight), shadow = ToQColor(clBtnShadow);
  ASSERT_NE(light, shadow);
  QImage image = Draw(panel);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(image.pixelColor(i, 15), light);
    EXPECT_EQ(image.pixelColor(20, i), light);
    EXPECT_EQ(image.pixelColor(39 - i, 15), shadow);
    EXPECT_EQ(image.pixelColor(20, 29 - i), shadow);
  }
  EXPECT_EQ(CountPixels(image, Qt::red), 34 * 24);
  panel.Set(TPanel::BevelOuter, TBevelCut::bvLowered);
  image = Draw(panel);
  EXPECT_EQ(image.pixelColor(0, 15), shadow);
  EXPECT_EQ(image.pixelColor(39, 15), light);
  panel.Set(TPanel::BorderWidth, 4);
  panel.Set(TPanel::BevelInner, TBevelCut::bvRaised);
  image = Draw(panel);
  EXPECT_EQ(image.pixelColor(4, 15), QColor(Qt::red)) << "the border between the bevels";
  EXPECT_EQ(image.pixelColor(7, 15), light);
  EXPECT_EQ(image.pixelColor(32, 15), shadow);
  panel.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  panel.Set(TPanel::BevelInner, TBevelCut::bvNone);
  EXPECT_EQ(CountPixels(Draw(panel), Qt::red), 40 * 30);
}

TEST(PaintButton, TheDefaultButtonStandsOut) {
  TButton button(nullptr);
  const QImage plain = Draw(button, ToQColor(clBtnFace));
  button.SetDefault(true);
  EXPECT_NE(Draw(button, ToQColor(clBtnFace)), plain);
}

TEST(PaintChildren, WindowedControlsCoverGraphicOnes) {
  TPanel parent(nullptr);
  parent.SetBounds(0, 0, 40, 40);
  parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  TPanel window(&parent);
  TLabel label(&parent);
  for (TControl* c : {static_cast<TControl*>(&window), static_cast<TControl*>(&label)}) {
    c->SetParent(&parent);
    c->SetAutoSize(false);
    c->SetBounds(10, 10, 20, 20);
  }
  window.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  window.SetColor(clBlue);
  label.SetTransparent(false);
  label.SetColor(clRed);
  EXPECT_EQ(CountPixels(Draw(parent), Qt::blue), 400);
  EXPECT_EQ(CountPixels(Draw(parent), Qt::red), 0);
  window.SetVisible(false);
  EXPECT_EQ(CountPixels(Draw(parent), Qt::red), 400);
  window.SetDesigning(true);
  EXPECT_EQ(CountPixels(Draw(parent), Qt::blue), 400) << "in the designer it is still shown";
}

TEST(PaintChildren, AreCutAtTheirParent) {
  TPanel parent(nullptr);
  parent.SetBounds(0, 0, 40, 40);
  parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  TPanel inner(&parent), deep(&parent);
  inner.SetParent(&parent);
  deep.SetParent(&inner);
  for (TPanel* p : {&inner, &deep}) p->Set(TPanel::BevelOuter, TBevelCut::bvNone);
  inner.SetBounds(5, 5, 10, 10);
  deep.SetBounds(5, 5, 100, 100);
  deep.SetColor(clRed);
  EXPECT_EQ(CountPixels(Draw(parent), Qt::red), 25);
}

namespace {
class PaintCounter : public QObject {
 public:
  int paints = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    paints += event->type() == QEvent::Paint;
    return false;
  }
};
}  // namespace

TEST(ControlView, RepaintsWhenSomethingInsideChanges) {
  TPanel panel(nullptr);
  TLabel label(nullptr);
  label.SetParent(&panel);
  panel.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  ControlView view(&panel);
  PaintCounter counter;
  view.installEventFilter(&counter);
  view.resize(200, 60);
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, WaitLimit));
  QCoreApplication::processEvents();
  const int before = counter.paints;
  ASSERT_GT(before, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(counter.paints, before);
  label.SetCaption(QStringLiteral("changed"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > before; }, WaitLimit));
  panel.SetColor(clRed);
  EXPECT_EQ(view.grab().toImage().pixelColor(100, 45), QColor(Qt::red));
}

// What is behind a transparent control is part of what it looks like.
TEST(ControlView, ShowsTheFormsFaceWhateverTheThemeOfTheDesigner) {
  TLabel label(nullptr);
  label.SetCaption(QStringLiteral("Sample"));
  label.SetBounds(0, 0, 60, 20);
  ControlView view(&label);
  view.resize(100, 60);
  QImage pictures[2];
  for (const auto theme : {TTheme::Light, TTheme::Dark}) {
    const ThemeScope scope(theme);
    pictures[theme == TTheme::Dark] = view.grab().toImage();
  }
  EXPECT_EQ(pictures[0], pictures[1]);
  EXPECT_EQ(pictures[1].pixelColor(1, 1), ToQColor(clBtnFace));
  const FormColorScope colors(TFormColors::Dark);
  const QImage dark = view.grab().toImage();
  EXPECT_EQ(dark.pixelColor(1, 1), ToQColor(clBtnFace));
  EXPECT_NE(dark, pictures[0]);
}

TEST(ControlView, LetsGoOfItsControl) {
  TPanel panel(nullptr);
  {
    ControlView view(&panel);
    EXPECT_EQ(panel.FindHost(), &view);
    TPanel other(nullptr);
    view.SetControl(&other);
    EXPECT_EQ(panel.FindHost(), nullptr);
    EXPECT_EQ(other.FindHost(), &view);
    view.SetControl(&panel);
  }
  EXPECT_EQ(panel.FindHost(), nullptr);
  ControlView empty(nullptr);
  EXPECT_GT(empty.sizeHint().width(), 0);
  EXPECT_FALSE(empty.grab().isNull());
}

TEST(ControlView, ShowsTheControlInItsSizeAtItsPlace) {
  TPanel panel(nullptr);
  panel.SetBounds(0, 0, 400, 100);
  panel.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  panel.SetColor(clRed);
  ControlView view(&panel);
  EXPECT_EQ(view.sizeHint(), QSize(400, 100));
  EXPECT_EQ(view.minimumSizeHint(), QSize(400, 100));
  const std::tuple<Qt::Alignment, QPoint> places[] = {{Qt::AlignCenter, {200, 350}},
                                                      {Qt::AlignTop | Qt::AlignRight, {400, 0}},
                                                      {Qt::AlignBottom | Qt::AlignLeft, {0, 700}}};
  for (const auto& [place, corner] : places) {
    view.SetPlace(place);
    view.resize(800, 800);
    const QImage picture = view.grab().toImage();
    EXPECT_EQ(CountPixels(picture, Qt::red), 400 * 100);
    EXPECT_EQ(picture.pixelColor(corner), QColor(Qt::red));
    view.resize(100, 100);
    EXPECT_EQ(CountPixels(view.grab().toImage(), Qt::red), 100 * 100) << "cut at the right and the bottom";
  }
}
