// What shapes show: every property of theirs, and the exact pixels of shadow, outline, bevel and fill.
#include "library/controls/ShapeControl.h"

#include "tests/library/VisibleProperties.h"
#include "vcl/PictureFile.h"

namespace {
class ShapeDrawing : public testing::Test {
 protected:
  ShapeDrawing() { shape.SetBounds(0, 0, 60, 40); }
  void Apply(const char* values) { visible::Apply(shape, QString::fromLatin1(values)); }
  QColor At(int x, int y) {
    const QImage image = Draw(shape, Qt::magenta);
    return image.pixelColor(x, y);
  }
  TVRXShapeControl shape{nullptr};
};
// Neither square nor opaque.
QImage Flag() {
  QImage image(3, 2, QImage::Format_ARGB32);
  for (int x = 0; x < 3; ++x) image.setPixelColor(x, 0, QColor(Qt::red)), image.setPixelColor(x, 1, Qt::blue);
  image.setPixelColor(2, 1, QColor(0, 0, 0, 0));
  return image;
}
}  // namespace

TEST(EveryShapeProperty, IsSeen) {
  visible::ExpectAll<TVRXShapeControl>(
      {
          {"", "Shape=stStar"},
          {"Shape=stRoundRect", "RoundPercent=90"},
          {"", "Square=True"},
          {"Shape=stEllipse Color=clLime", "Transparent=True"},
          {"Shape=stEllipse", "Color=clLime"},
          {"", "BevelColor=clNone"},
          {"", "Brush.Color=clRed"},
          {"Brush.Color=clRed", "Brush.Style=bsCross"},
          {"", "DrawTeeth=True"},
          {"", "FillStyle=sfClear"},
          {"Caption.Caption=Hg", "Enabled=False"},
          {"Shadow.Style=hssSolid", "Shadow.Color=clRed"},
          {"Shadow.Style=hssSolid", "Shadow.Depth=-5"},
          {"Shadow.Style=hssSolid", "Shadow.Style=hssTracing"},
          {"Bevel.Style=sbInset", "Bevel.LightColor=clRed"},
          {"Bevel.Style=sbInset", "Bevel.ShadowColor=clRed"},
          {"", "Bevel.NormalColor=clRed"},
          {"Bevel.Style=sbInset", "Bevel.Width=-2"},
          {"Bevel.Style=sbInset", "Bevel.Style=sbOffset"},
          {"DrawTeeth=True", "Teeth.Count=9"},
          {"DrawTeeth=True", "Teeth.Direction=tdUp"},
          {"DrawTeeth=True", "Teeth.Offset=False"},
          {"DrawTeeth=True", "Teeth.SetPerCount=False"},
          {"DrawTeeth=True Teeth.SetPerCount=False", "Teeth.Width=20"},
          {"DrawTeeth=True Teeth.SetPerCount=False", "Teeth.Height=20"},
          {"FillStyle=sfShapeFill", "ShapeFill.Kind=fkSolid"},
          {"FillStyle=sfShapeFill", "ShapeFill.Color=clRed"},
          {"FillStyle=sfShapeFill", "ShapeFill.EndColor=clRed"},
          {"FillStyle=sfShapeFill", "ShapeFill.Direction=gdRadial"},
          {"FillStyle=sfShapeFill ShapeFill.Kind=fkHatch", "ShapeFill.Hatch=bsVertical"},
      },
      {61, 37},
      // With pictures, and the text: below.
      {QStringLiteral("ShapeFill.Bitmap"), QStringLiteral("ShapeFill.ImageIndex"),
       QStringLiteral("ShapeFill.Colors"), QStringLiteral("Caption")});
}

TEST(EveryShapeProperty, OfRepeatedShapesIsSeen) {
  visible::ExpectAll<TVRXRepeatedShape>(
      {{"", "Columns=4"}, {"", "Rows=3"}, {"", "HorzDistance=9"}, {"", "VertDistance=9"}}, {61, 37},
      {QStringLiteral("Bevel"), QStringLiteral("Brush"), QStringLiteral("Caption"), QStringLiteral("Color"),
       QStringLiteral("Draw"), QStringLiteral("Enabled"), QStringLiteral("Fill"), QStringLiteral("Round"),
       QStringLiteral("Sha"), QStringLiteral("Square"), QStringLiteral("Teeth"),
       QStringLiteral("Transparent")});
}

TEST_F(ShapeDrawing, ARectangleHasAnOutlineOfOnePixelAndItsBrush) {
  Apply("Brush.Color=clRed BevelColor=clBlue");
  for (int x = 0; x < 60; ++x)
    for (int y = 0; y < 40; ++y) {
      const bool edge = x == 0 || y == 0 || x == 59 || y == 39;
      ASSERT_EQ(At(x, y), edge ? QColor(0, 0, 255) : QColor(255, 0, 0)) << x << ' ' << y;
      if (!edge && x > 2) x = std::max(x, 56);
    }
}

TEST_F(ShapeDrawing, TheShadowLiesUnderTheFigureByItsDepth) {
  Apply(
      "BevelColor=clNone Brush.Color=clRed Color=clLime Shadow.Style=hssSolid Shadow.Color=clBlue "
      "Shadow.Depth=7");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(0, 0, 53, 33));
  EXPECT_EQ(At(52, 32), QColor(255, 0, 0));
  EXPECT_EQ(At(53, 20), QColor(0, 0, 255));
  EXPECT_EQ(At(59, 39), QColor(0, 0, 255));
  EXPECT_EQ(At(59, 6), QColor(0, 255, 0));
  EXPECT_EQ(At(6, 39), QColor(0, 255, 0));
  Apply("Shadow.Depth=-7");
  EXPECT_EQ(At(59, 39), QColor(255, 0, 0));
  EXPECT_EQ(At(6, 6), QColor(0, 0, 255));
  EXPECT_EQ(At(0, 33), QColor(0, 255, 0));
}

TEST_F(ShapeDrawing, ATracingShadowDarkensWhatIsBehindAndWhiteDoesNot) {
  Apply("Transparent=True Shadow.Style=hssTracing Shadow.Color=clYellow Shadow.Depth=7");
  EXPECT_EQ(At(56, 36), QColor(255, 0, 0)) << "magenta through yellow";
  Apply("Shadow.Color=clWhite");
  EXPECT_EQ(At(56, 36), QColor(Qt::magenta));
}

TEST_F(ShapeDrawing, ABevelStandsInsideOfTheOutline) {
  Apply(
      "BevelColor=clBlack Brush.Color=clLime Bevel.Style=sbOffset Bevel.Width=3 Bevel.LightColor=clRed "
      "Bevel.ShadowColor=clBlue");
  EXPECT_EQ(At(0, 20), QColor(0, 0, 0));
  for (const int x : {1, 2, 3}) EXPECT_EQ(At(x, 20), QColor(255, 0, 0)) << x;
  for (const int x : {56, 57, 58}) EXPECT_EQ(At(x, 20), QColor(0, 0, 255)) << x;
  EXPECT_EQ(At(30, 1), QColor(255, 0, 0));
  EXPECT_EQ(At(30, 38), QColor(0, 0, 255));
  EXPECT_EQ(At(4, 20), QColor(0, 255, 0));
  EXPECT_EQ(At(55, 20), QColor(0, 255, 0));
  Apply("Bevel.Style=sbInset");
  EXPECT_EQ(At(30, 1), QColor(0, 0, 255));
  Apply("Bevel.Width=-3");
  EXPECT_EQ(At(30, 1), QColor(255, 0, 0)) << "the light comes from the other side";
  EXPECT_EQ(At(30, 38), QColor(0, 0, 255));
  Apply("Bevel.Style=sbNormal Bevel.NormalColor=clAqua");
  EXPECT_EQ(At(30, 1), QColor(0, 255, 255));
  EXPECT_EQ(At(30, 38), QColor(0, 255, 255));
}

TEST_F(ShapeDrawing, ABevelIsNotSeenOutsideOfTheFigure) {
  for (int type = 0; type <= 10; ++type) {
    shape.Set(TVRXBaseShape::Shape, static_cast<TVRXShapeType>(type));
    Apply("BevelColor=clNone Transparent=True Brush.Color=clRed");
    QImage plain = Draw(shape, Qt::white);
    Apply("Bevel.Style=sbInset Bevel.Width=127 Bevel.LightColor=clRed Bevel.ShadowColor=clRed");
    const QImage bevelled = Draw(shape, Qt::white);
    int untouched = 0;
    for (int y = 0; y < 40; ++y)
      for (int x = 0; x < 60; ++x)
        if (plain.pixelColor(x, y) == QColor(Qt::white)) {
          ++untouched;
          ASSERT_EQ(bevelled.pixelColor(x, y), QColor(Qt::white)) << type << ": " << x << ' ' << y;
        }
    EXPECT_EQ(untouched > 0, type != 1) << type;
    Apply("Bevel.Style=sbNormal");
  }
}

TEST_F(ShapeDrawing, SquareMakesTheFigureAsWideAsHighInTheMiddle) {
  Apply("Square=True");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(10, 0, 40, 40));
  Apply("Shadow.Style=hssSolid Shadow.Depth=4");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(10, 0, 36, 36));
  shape.SetBounds(0, 0, 21, 40);
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(0, 9, 17, 17));
}

// 60 by 40: the figure keeps 30 by 20, on the side that the shadow falls away from.
TEST_F(ShapeDrawing, AShadowDeeperThanTheControlLeavesHalfOfItToTheFigure) {
  Apply("Shadow.Style=hssSolid Shadow.Depth=100");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(0, 0, 30, 20));
  Apply("Shadow.Depth=-100");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(30, 20, 30, 20));
  Apply("Shadow.Depth=25");
  EXPECT_EQ(shape.Outline(shape.ClientRect()).boundingRect(), QRectF(0, 0, 35, 20));
}

TEST_F(ShapeDrawing, TheColourIsAroundTheFigureUnlessItIsTransparent) {
  Apply("Shape=stDiamond Color=clYellow Brush.Color=clRed");
  EXPECT_EQ(At(1, 1), QColor(255, 255, 0));
  EXPECT_EQ(At(30, 20), QColor(255, 0, 0));
  Apply("Transparent=True");
  EXPECT_EQ(At(1, 1), QColor(Qt::magenta));
  Apply("FillStyle=sfClear");
  EXPECT_EQ(At(30, 20), QColor(Qt::magenta));
  Apply("FillStyle=sfColor");
  EXPECT_EQ(At(30, 20), QColor(255, 255, 0));
}

TEST_F(ShapeDrawing, AGradientRunsWhereItsDirectionSays) {
  Apply(
      "BevelColor=clNone FillStyle=sfShapeFill ShapeFill.Color=clBlack ShapeFill.EndColor=clWhite "
      "ShapeFill.Direction=gdHorizontal");
  EXPECT_LT(At(1, 20).red(), 15);
  EXPECT_GT(At(58, 20).red(), 240);
  EXPECT_EQ(At(30, 1), At(30, 38));
  Apply("ShapeFill.Direction=gdVertical");
  EXPECT_LT(At(30, 1).red(), 15);
  EXPECT_EQ(At(1, 20), At(58, 20));
  Apply("ShapeFill.Direction=gdDiagonalDown");
  EXPECT_LT(At(0, 0).red(), 15);
  EXPECT_GT(At(59, 39).red(), 240);
  Apply("ShapeFill.Direction=gdDiagonalUp");
  EXPECT_LT(At(0, 39).red(), 15);
  EXPECT_GT(At(59, 0).red(), 240);
  Apply("ShapeFill.Direction=gdRadial");
  EXPECT_LT(At(30, 20).red(), 15);
  EXPECT_GT(At(0, 0).red(), 240);
  EXPECT_LT(At(59, 20).red(), 230) << "it ends at the corners";
}

TEST_F(ShapeDrawing, AGradientOfManyColoursHasThemAtEqualDistances) {
  Apply("BevelColor=clNone FillStyle=sfShapeFill ShapeFill.Direction=gdHorizontal");
  shape.SetBounds(0, 0, 201, 20);
  for (const TColor color : {clRed, clLime, clBlue, clYellow, clBlack})
    static_cast<TVRXFillColor*>(shape.ShapeFill()->Colors()->Add())->Set(TVRXFillColor::Color, color);
  const QColor wanted[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::black};
  for (int i = 0; i < 5; ++i) {
    const QColor is = At(i * 50, 10);
    EXPECT_NEAR(is.red(), wanted[i].red(), 8) << i;
    EXPECT_NEAR(is.green(), wanted[i].green(), 8) << i;
    EXPECT_NEAR(is.blue(), wanted[i].blue(), 8) << i;
  }
}

TEST_F(ShapeDrawing, ABitmapStandsInTheMiddleIsRepeatedOrStretched) {
  shape.ShapeFill()->Bitmap()->SetFileBytes(PictureToBytes(Flag(), "PNG"));
  Apply(
      "BevelColor=clNone FillStyle=sfShapeFill ShapeFill.Kind=fkBitmap ShapeFill.Color=clLime "
      "ShapeFill.BitmapPlace=bpCenter");
  const int left = (60 - 3) / 2, top = (40 - 2) / 2;
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x<60; x += y> 15 && y < 25 ? 1 : 7) {
      const int px = x - left, py = y - top;
      QColor wanted(Qt::green);
      if (px >= 0 && px < 3 && py >= 0 && py < 2 && !(px == 2 && py == 1))
        wanted = py == 0 ? Qt::red : Qt::blue;
      ASSERT_EQ(At(x, y), wanted) << x << ' ' << y;
    }
  Apply("ShapeFill.BitmapPlace=bpTile");
  EXPECT_EQ(At(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(At(0, 1), QColor(0, 0, 255));
  EXPECT_EQ(At(2, 1), QColor(Qt::green));
  EXPECT_EQ(At(57, 38), QColor(255, 0, 0));
  EXPECT_EQ(At(59, 39), QColor(Qt::green));
  Apply("ShapeFill.BitmapPlace=bpStretch");
  EXPECT_EQ(At(2, 2), QColor(255, 0, 0));
  EXPECT_EQ(At(2, 37), QColor(0, 0, 255));
  EXPECT_EQ(At(57, 37), QColor(Qt::green));
}

TEST_F(ShapeDrawing, APictureOfTheListByItsIndexTakesThePlaceOfTheBitmap) {
  TImageList images(nullptr);
  QImage red(16, 16, QImage::Format_ARGB32), blue(16, 16, QImage::Format_ARGB32);
  red.fill(Qt::red);
  blue.fill(Qt::blue);
  images.SetPictures({red, blue});
  Apply("BevelColor=clNone FillStyle=sfShapeFill ShapeFill.Kind=fkBitmap ShapeFill.Color=clLime");
  shape.Set(TVRXBaseShape::ShapeFillImageList, &images);
  EXPECT_EQ(At(30, 20), QColor(Qt::green));
  Apply("ShapeFill.ImageIndex=1");
  EXPECT_EQ(At(30, 20), QColor(0, 0, 255));
  Apply("ShapeFill.ImageIndex=0");
  EXPECT_EQ(At(30, 20), QColor(255, 0, 0));
  Apply("ShapeFill.ImageIndex=7");
  EXPECT_EQ(At(30, 20), QColor(Qt::green)) << "there is none";
}

TEST_F(ShapeDrawing, WithoutAListTheBitmapIsShownWhateverTheIndex) {
  shape.ShapeFill()->Bitmap()->SetFileBytes(PictureToBytes(Flag(), "PNG"));
  Apply("BevelColor=clNone FillStyle=sfShapeFill ShapeFill.Kind=fkBitmap ShapeFill.ImageIndex=3");
  EXPECT_EQ(At(0, 0), QColor(255, 0, 0));
}

TEST_F(ShapeDrawing, AFillStaysInsideOfTheFigure) {
  shape.ShapeFill()->Bitmap()->SetFileBytes(PictureToBytes(Flag(), "PNG"));
  for (const char* kind : {"fkSolid", "fkGradient", "fkHatch", "fkBitmap"}) {
    Apply("Shape=stEllipse Transparent=True FillStyle=sfShapeFill");
    Apply((std::string("ShapeFill.Kind=") + kind).c_str());
    EXPECT_EQ(At(2, 2), QColor(Qt::magenta)) << kind;
    EXPECT_NE(At(30, 20), QColor(Qt::magenta)) << kind;
  }
}

TEST_F(ShapeDrawing, FiguresStandInRowsAndColumnsWithTheirDistances) {
  TVRXRepeatedShape many(nullptr);
  many.SetBounds(0, 0, 64, 22);
  visible::Apply(many, QStringLiteral("Columns=3 Rows=2 HorzDistance=2 VertDistance=4 BevelColor=clNone "
                                      "Brush.Color=clRed Transparent=True"));
  const QImage image = Draw(many, Qt::white);
  for (int y = 0; y < 22; ++y)
    for (int x = 0; x < 64; ++x) {
      const bool gap = x == 20 || x == 21 || x == 42 || x == 43 || (y >= 9 && y < 13);
      ASSERT_EQ(image.pixelColor(x, y), QColor(gap ? Qt::white : Qt::red)) << x << ' ' << y;
    }
}

TEST_F(ShapeDrawing, RepeatedWithoutRoomAreAsManyAsThereArePixels) {
  TVRXRepeatedShape many(nullptr);
  many.SetBounds(0, 0, 9, 5);
  visible::Apply(many, QStringLiteral("Columns=2147483647 Rows=-5 HorzDistance=2147483647 BevelColor=clNone "
                                      "Brush.Color=clRed"));
  EXPECT_EQ(CountPixels(Draw(many, Qt::white), Qt::red), 45) << "one";
  visible::Apply(many, QStringLiteral("HorzDistance=-1"));
  EXPECT_EQ(CountPixels(Draw(many, Qt::white), Qt::red), 45) << "nine without a gap";
}

TEST_F(ShapeDrawing, PaintEveryFigureOfAnySizeWithoutHarm) {
  Apply("Shadow.Style=hssSolid Bevel.Style=sbInset Bevel.Width=9 FillStyle=sfShapeFill Caption.Caption=x");
  for (int type = 0; type <= 10; ++type)
    for (const bool teeth : {false, true})
      for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(3, 200), QSize(200, 2), QSize(7, 7)}) {
        shape.Set(TVRXBaseShape::Shape, static_cast<TVRXShapeType>(type));
        shape.Set(TVRXBaseShape::DrawTeeth, teeth);
        shape.SetBounds(0, 0, size.width(), size.height());
        EXPECT_FALSE(Draw(shape, Qt::white).isNull());
      }
}

TEST(ValueObjects, SayInOneLineHowTheyAre) {
  TVRXShadow shadow;
  EXPECT_EQ(shadow.Description(), QStringLiteral("None"));
  visible::Apply(shadow, QStringLiteral("Style=hssTracing Color=clRed Depth=-4"));
  EXPECT_EQ(shadow.Description(), QStringLiteral("Tracing, clRed, depth -4"));
  visible::Apply(shadow, QStringLiteral("Style=hssSolid"));
  EXPECT_EQ(shadow.Description(), QStringLiteral("Solid, clRed, depth -4"));
  TVRXShapeFill fill;
  EXPECT_EQ(fill.Description(), QStringLiteral("Gradient, clBtnHighlight to clBtnShadow"));
  fill.Colors()->Add();
  EXPECT_EQ(fill.Description(), QStringLiteral("Gradient of 1 colors"));
  visible::Apply(fill, QStringLiteral("Kind=fkSolid"));
  EXPECT_EQ(fill.Description(), QStringLiteral("Solid, clBtnHighlight"));
  visible::Apply(fill, QStringLiteral("Kind=fkHatch"));
  EXPECT_EQ(fill.Description(), QStringLiteral("Hatch, clBtnHighlight on clBtnShadow"));
  visible::Apply(fill, QStringLiteral("Kind=fkBitmap"));
  EXPECT_EQ(fill.Description(), QStringLiteral("Bitmap, none"));
  fill.Bitmap()->SetFileBytes(PictureToBytes(Flag(), "PNG"));
  EXPECT_EQ(fill.Description(), QStringLiteral("Bitmap"));
  visible::Apply(fill, QStringLiteral("ImageIndex=2"));
  EXPECT_EQ(fill.Description(), QStringLiteral("Bitmap, image 2"));
}

TEST(ValueObjects, AreCopiedWholeAndTellTheirOwnerOnce) {
  TVRXShapeFill fill, copy;
  visible::Apply(fill, QStringLiteral("Kind=fkBitmap Color=clRed ImageIndex=4 BitmapPlace=bpStretch"));
  fill.Colors()->Add();
  fill.Bitmap()->SetFileBytes(PictureToBytes(Flag(), "PNG"));
  copy.Assign(&fill);
  EXPECT_EQ(copy.Description(), fill.Description());
  EXPECT_EQ(copy.Colors()->Count(), 1);
  EXPECT_EQ(copy.Bitmap()->Image(), fill.Bitmap()->Image());
  class Host : public IControlHost {
   public:
    void ControlChanged(TControl&) override { ++changes; }
    int changes = 0;
  } host;
  TVRXShapeControl shape(nullptr);
  shape.SetHost(&host);
  for (const char* value : {"Shadow.Depth=9", "Bevel.Width=9", "Teeth.Count=9", "ShapeFill.Color=clRed"}) {
    host.changes = 0;
    visible::Apply(shape, QString::fromLatin1(value));
    EXPECT_EQ(host.changes, 1) << value;
    visible::Apply(shape, QString::fromLatin1(value));
    EXPECT_EQ(host.changes, 1) << value;
  }
  shape.SetHost(nullptr);
}
