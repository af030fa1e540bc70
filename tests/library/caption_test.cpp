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

namespace {
// As a picture of its own, and the same with room all around it.
struct Face {
  QImage exact, roomy;
};
Face FaceOf(const TVRXCaption& caption) {
  const QRect rect =
      VRXDrawTextCalcExt(caption.Caption(), *caption.FontFX(), *caption.Font(), caption.MultiLine());
  const auto draw = [&](int margin) {
    QImage image(rect.size() + QSize(2 * margin, 2 * margin), QImage::Format_RGB32);
    image.fill(Qt::white);
    if (image.isNull()) return image;
    QPainter painter(&image);
    TCanvas canvas(painter);
    VRXDrawTextExt(canvas, caption.Caption(), *caption.FontFX(), *caption.Font(),
                   rect.translated(margin, margin), {TVRXTextOption::Measured}, caption.TextFlags(), rect,
                   clWhite);
    return image;
  };
  return {draw(0), draw(60)};
}
}  // namespace

TEST(Caption, NothingThatIsDrawnIsCut) {
  const char* const texts[] = {"f",    "j", "Wolf", "jelly of", "R&D", "&Go",
                               "A&&B", "&", "&&",   "ff\njj",   "f\tj"};
  for (const char* text : texts)
    for (const bool italic : {false, true})
      for (const int height : {-11, -33})
        for (const int angle : {0, 30, 90, 270, 360})
          for (const bool multiLine : {false, true})
            for (const int alignment : {0, 4, 8}) {
              TVRXCaption caption;
              caption.SetCaption(QString::fromLatin1(text));
              caption.SetMultiLine(multiLine);
              caption.SetAlignment(static_cast<TVRXAlignment>(alignment));
              caption.Font()->SetHeight(height);
              if (italic) caption.Font()->SetStyle({TFontStyle::fsItalic, TFontStyle::fsBold});
              caption.FontFX()->SetAngle(static_cast<std::uint16_t>(angle));
              if (height == -11) caption.FontFX()->SetStyle(TVRX3DTextStyle::tdRaised);
              const Face face = FaceOf(caption);
              const QRect ink = InkOf(face.roomy).translated(-60, -60);
              ASSERT_TRUE(ink.isEmpty() || face.exact.rect().contains(ink))
                  << text << " italic " << italic << " height " << height << " angle " << angle << " lines "
                  << multiLine << " alignment " << alignment << " ink " << ink.left() << ' ' << ink.top()
                  << ' ' << ink.right() << ' ' << ink.bottom() << " of " << face.exact.width() << 'x'
                  << face.exact.height();
            }
}

TEST(Caption, ATabIsMeasuredAsItIsDrawn) {
  for (const int alignment : {0, 4, 8})
    for (const bool multiLine : {false, true}) {
      if (multiLine && alignment != 0) continue;  // lines that are not at the left have no tab stops
      TVRXCaption caption;
      caption.SetCaption(QStringLiteral("H\tH"));
      caption.SetAlignment(static_cast<TVRXAlignment>(alignment));
      caption.SetMultiLine(multiLine);
      const Face face = FaceOf(caption);
      const QRect ink = InkOf(face.exact);
      EXPECT_LE(face.exact.width() - ink.width(), 4) << "alignment " << alignment << " lines " << multiLine;
      EXPECT_GT(ink.width(), 40) << "a tab is wider than a space";
    }
}

TEST(Caption, AnAmpersandIsMeasuredAsItIsDrawn) {
  const auto width = [](const char* text, int angle) {
    TVRXCaption caption;
    caption.SetCaption(QString::fromLatin1(text));
    caption.FontFX()->SetAngle(static_cast<std::uint16_t>(angle));
    return VRXDrawTextCalcExt(caption.Caption(), *caption.FontFX(), *caption.Font(), false).width();
  };
  EXPECT_EQ(width("&Go", 0), width("Go", 0));
  EXPECT_EQ(width("A&&B", 0), width("A&B", 360));
  // A turned text has no accelerator; every one of them is a letter.
  EXPECT_GT(width("&Go", 360), width("Go", 360));
  EXPECT_GT(width("A&&B", 360), width("A&B", 360));
  EXPECT_GT(width("&", 360), 0);
  EXPECT_EQ(width("&", 0), 0);
  EXPECT_EQ(width("&", 0), width("", 0));
}

TEST(Caption, TheDefaultFontIsNotStored) {
  TVRXShapeControl shape(nullptr);
  EXPECT_TRUE(shape.Caption()->ContentEmpty());
  shape.Caption()->Font()->SetHeight(-20);
  EXPECT_FALSE(shape.Caption()->ContentEmpty());
  shape.Caption()->ClearContent();
  EXPECT_TRUE(shape.Caption()->ContentEmpty());
}
