// Captions are drawn with every one of their values.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "library/controls/ShapeControl.h"
#include "library/values/TextDraw.h"

namespace {
QImage Drawn(const TVRXCaption& caption, QSize size = {160, 90}) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  TCanvas canvas(painter);
  caption.Draw(canvas, QRect(QPoint(0, 0), size), true, clWhite);
  return image;
}
QRect InkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != qRgb(255, 255, 255)) ink = ink.united(QRect(x, y, 1, 1));
  return ink;
}
}  // namespace

TEST(Caption, TheNineAlignmentsPutTheTextWhereTheySay) {
  TVRXCaption caption;
  caption.SetCaption(QStringLiteral("Ab"));
  for (int i = 0; i < 9; ++i) {
    caption.SetAlignment(static_cast<TVRXAlignment>(i));
    const QRect ink = InkOf(Drawn(caption));
    ASSERT_FALSE(ink.isEmpty());
    const int column = ink.center().x() * 3 / 160, row = ink.center().y() * 3 / 90;
    EXPECT_EQ(column, i % 3) << i;
    EXPECT_EQ(row, i / 3) << i;
  }
}

TEST(Caption, EveryEffectChangesThePicture) {
  TVRXCaption plain;
  plain.SetCaption(QStringLiteral("Effect"));
  plain.Font()->SetHeight(-24);
  const QImage before = Drawn(plain);
  std::vector<QImage> seen{before};
  for (int style = 1; style <= static_cast<int>(TVRX3DTextStyle::tdShadow); ++style) {
    TVRXCaption caption;
    caption.Assign(&plain);
    caption.FontFX()->SetStyle(static_cast<TVRX3DTextStyle>(style));
    caption.FontFX()->SetColor(0, clYellow);
    caption.FontFX()->SetColor(1, clMaroon);
    caption.FontFX()->SetDepth(0, 2);
    caption.FontFX()->SetDepth(1, 3);
    const QImage now = Drawn(caption);
    for (const QImage& other : seen) EXPECT_NE(now, other) << style;
    seen.push_back(now);
  }
  TVRXCaption turned, spaced;
  turned.Assign(&plain);
  turned.FontFX()->SetAngle(90);
  EXPECT_GT(InkOf(Drawn(turned)).height(), InkOf(before).height());
  spaced.Assign(&plain);
  spaced.FontFX()->SetTracing(5);
  EXPECT_GT(InkOf(Drawn(spaced)).width(), InkOf(before).width());
}

TEST(Caption, MultiLineWrapsAndASingleLineDoesNot) {
  TVRXCaption caption;
  caption.SetCaption(QStringLiteral("several words that do not fit in one line"));
  const int single = InkOf(Drawn(caption)).height();
  caption.SetMultiLine(true);
  EXPECT_GT(InkOf(Drawn(caption)).height(), single);
}

TEST(Caption, TheMeasuredRectangleHoldsTheTextWithItsEffect) {
  for (const int angle : {0, 30, 90, 200}) {
    TVRXCaption caption;
    caption.SetCaption(QStringLiteral("Measured"));
    caption.FontFX()->SetStyle(TVRX3DTextStyle::tdRaisedShadow);
    caption.FontFX()->SetDepth(1, 6);
    caption.FontFX()->SetAngle(static_cast<std::uint16_t>(angle));
    const QRect rect = VRXDrawTextCalcExt(caption.Caption(), *caption.FontFX(), *caption.Font(), false);
    const QImage exact = Drawn(caption, rect.size());
    // With more room around it nothing more is to be seen.
    const QRect wide = InkOf(Drawn(caption, rect.size() + QSize(40, 40)));
    EXPECT_LE(std::abs(InkOf(exact).width() - wide.width()), 1) << angle;
    EXPECT_LE(std::abs(InkOf(exact).height() - wide.height()), 1) << angle;
  }
}

TEST(Caption, TheDefaultFontIsNotStored) {
  TVRXShapeControl shape(nullptr);
  EXPECT_TRUE(shape.Caption()->ContentEmpty());
  shape.Caption()->Font()->SetHeight(-20);
  EXPECT_FALSE(shape.Caption()->ContentEmpty());
  shape.Caption()->ClearContent();
  EXPECT_TRUE(shape.Caption()->ContentEmpty());
}
