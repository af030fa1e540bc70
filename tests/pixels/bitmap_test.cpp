#include "Drawn.h"
#include "RandomPictures.h"
#include "rtl/Exceptions.h"
#include "vcl/FormColors.h"

// Asked for too much, the sanitizer's allocator fails like any other instead of ending the program.
extern "C" const char* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {
TBitmap Numbered(int width, int height) {
  TBitmap bitmap(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) bitmap.SetPixel(x, y, TColor(static_cast<unsigned>(x + 1000 * y + 1)));
  return bitmap;
}
}  // namespace

TEST(Bitmap, ReadingOutsideEqualsNoColor) {
  const TBitmap bitmap = Numbered(3, 2);
  for (const auto& [x, y] : {std::pair{-1, 0},
                             {0, -1},
                             {3, 0},
                             {0, 2},
                             {-1, -1},
                             {3, 2},
                             {INT32_MAX, 0},
                             {INT32_MIN, 0},
                             {0, INT32_MIN},
                             {0, INT32_MAX}}) {
    EXPECT_EQ(bitmap.Pixel(x, y), clInvalid) << x << ", " << y;
    EXPECT_FALSE(ExactPixelOf(bitmap.Pixel(x, y)));
  }
  EXPECT_EQ(TBitmap().Pixel(0, 0), clInvalid);
  EXPECT_EQ(TBitmap(5, 0).Pixel(0, 0), clInvalid);
  for (const TColorEntry& named : NamedColors()) EXPECT_NE(named.Value, clInvalid) << named.Name;
}

TEST(Bitmap, WritingOutsideDoesNothing) {
  TBitmap bitmap = Numbered(3, 2);
  for (const auto& [x, y] : {std::pair{-1, 0},
                             {0, -1},
                             {3, 0},
                             {0, 2},
                             {-1, 1},
                             {3, 1},
                             {INT32_MAX, 1},
                             {INT32_MIN, 1},
                             {1, INT32_MIN},
                             {1, INT32_MAX}})
    bitmap.SetPixel(x, y, clRed);
  EXPECT_TRUE(Same(Numbered(3, 2), bitmap));
  TBitmap empty;
  empty.SetPixel(0, 0, clRed);
  EXPECT_TRUE(empty.Empty());
}

TEST(Bitmap, EveryPixelHoldsItsPlainColor) {
  Random random(3);
  TBitmap bitmap(67, 5);
  OraclePicture expected(bitmap);
  for (int i = 0; i < 5000; ++i) {
    const int x = random.Below(67), y = random.Below(5);
    const TColor color = RandomPlainColor(random);
    bitmap.SetPixel(x, y, color);
    expected.Set(x, y, color);
    ASSERT_EQ(bitmap.Pixel(x, y), color);
    ASSERT_EQ(ColorOfPixel(PixelOf(color)), color);
    ASSERT_EQ(ExactPixelOf(color), PixelOf(color));
    ASSERT_EQ(bitmap.Row(y)[x], PixelOf(color));
  }
  EXPECT_TRUE(Same(expected, bitmap));
  EXPECT_EQ(PixelOf(RGBColor(0x12, 0x34, 0x56)), 0xFF123456u);
}

TEST(Bitmap, AColorWithAHighByteIsResolvedWhenWritten) {
  TBitmap bitmap(1, 1);
  const std::pair<TColor, TColor> rows[] = {{clNone, clBlack},
                                            {clDefault, clBlack},
                                            {TColor(0x02FF00FF), clFuchsia},
                                            {clBtnFace, ColorToRGB(clBtnFace)},
                                            {clHighlight, ColorToRGB(clHighlight)}};
  for (const auto& [color, plain] : rows) {
    bitmap.SetPixel(0, 0, color);
    EXPECT_EQ(bitmap.Pixel(0, 0), plain) << qPrintable(ColorToString(color));
    bitmap.Fill(color);
    EXPECT_EQ(bitmap.Pixel(0, 0), plain) << qPrintable(ColorToString(color));
    EXPECT_NE(bitmap.Pixel(0, 0), color);
    EXPECT_FALSE(ExactPixelOf(color));
  }
}

TEST(Bitmap, AWrittenSystemColorStaysWhenTheSchemeChanges) {
  TBitmap bitmap(2, 1);
  bitmap.SetPixel(0, 0, clWindow);
  const TColor light = ColorToRGB(clWindow);
  const FormColorScope colors(TFormColors::Dark);
  bitmap.SetPixel(1, 0, clWindow);
  EXPECT_EQ(bitmap.Pixel(0, 0), light);
  EXPECT_EQ(bitmap.Pixel(1, 0), ColorToRGB(clWindow));
  EXPECT_NE(bitmap.Pixel(0, 0), bitmap.Pixel(1, 0));
}

TEST(Bitmap, NewAreaIsWhiteAndWhatIsCommonStays) {
  EXPECT_TRUE(Same(OraclePicture(70, 3, clWhite), TBitmap(70, 3)));
  Random random(8);
  for (int i = 0; i < 500; ++i) {
    const int w = random.Below(9), h = random.Below(9), toW = random.Between(-2, 9),
              toH = random.Between(-2, 9);
    TBitmap bitmap = Numbered(w, h);
    OraclePicture expected(toW, toH, clWhite);
    expected.Draw(0, 0, OraclePicture(bitmap));
    bitmap.SetSize(toW, toH);
    ASSERT_TRUE(Same(expected, bitmap)) << w << " x " << h << " to " << toW << " x " << toH;
  }
}

TEST(Bitmap, ASideMayBeZero) {
  TBitmap bitmap(0, 5);
  EXPECT_TRUE(bitmap.Empty());
  EXPECT_EQ(bitmap.Width(), 0);
  EXPECT_EQ(bitmap.Height(), 5);
  EXPECT_TRUE(bitmap.Image().isNull());
  EXPECT_FALSE(bitmap == TBitmap(0, 4));
  EXPECT_TRUE(bitmap == TBitmap(0, 5));
  bitmap.Fill(clRed);
  bitmap.Draw(0, 0, Numbered(3, 3));
  bitmap.SetSize(2, 5);
  EXPECT_TRUE(Same(OraclePicture(2, 5, clWhite), bitmap));
  EXPECT_TRUE(TBitmap(-3, 4) == TBitmap(0, 4));
}

TEST(Bitmap, ASizeWithoutMemoryIsRefusedAndNothingChanges) {
  TBitmap bitmap = Numbered(3, 2);
  EXPECT_THROW(bitmap.SetSize(INT32_MAX, INT32_MAX), Exception);
  EXPECT_TRUE(Same(Numbered(3, 2), bitmap));
}

TEST(Bitmap, DrawingIsCutAtTheEdges) {
  Random random(21);
  for (int i = 0; i < 3000; ++i) {
    TBitmap bitmap = Numbered(random.Below(9), random.Below(9));
    const TBitmap picture =
        RandomPicture(random, random.Below(12), random.Below(12), clRed, {clBlue, clLime});
    const int x = random.Between(-14, 14), y = random.Between(-14, 14);
    OraclePicture expected(bitmap);
    expected.Draw(x, y, OraclePicture(picture));
    bitmap.Draw(x, y, picture);
    ASSERT_TRUE(Same(expected, bitmap)) << "at " << x << ", " << y;
  }
}

TEST(Bitmap, DrawingFarAwayDoesNothing) {
  TBitmap bitmap = Numbered(4, 4);
  const TBitmap picture = Numbered(70, 70);
  for (const int far : {INT32_MIN, INT32_MIN + 70, -70, 4, INT32_MAX - 69, INT32_MAX}) {
    bitmap.Draw(far, 0, picture);
    bitmap.Draw(0, far, picture);
    bitmap.Draw(far, far, picture);
  }
  EXPECT_TRUE(Same(Numbered(4, 4), bitmap));
}

TEST(Bitmap, DrawingOntoItselfReadsWhatItWas) {
  for (int y = -4; y <= 4; ++y)
    for (int x = -4; x <= 4; ++x) {
      TBitmap bitmap = Numbered(4, 3);
      OraclePicture expected(bitmap);
      expected.Draw(x, y, OraclePicture(bitmap));
      bitmap.Draw(x, y, bitmap);
      ASSERT_TRUE(Same(expected, bitmap)) << x << ", " << y;
    }
}

TEST(Bitmap, CopiesAreSeparateOnceOneIsChanged) {
  TBitmap first = Numbered(4, 3), second, third;
  second.Assign(&first);
  third.Assign(&second);
  EXPECT_TRUE(first == second);
  second.SetPixel(1, 1, clRed);
  third.Fill(clBlue);
  EXPECT_TRUE(Same(Numbered(4, 3), first));
  EXPECT_EQ(second.Pixel(1, 1), clRed);
  EXPECT_EQ(second.Pixel(0, 0), TColor(1));
  EXPECT_TRUE(Same(OraclePicture(4, 3, clBlue), third));
  second.Assign(&first);
  first.WritableRow(2)[3] = PixelOf(clLime);
  EXPECT_TRUE(Same(Numbered(4, 3), second));
  EXPECT_EQ(first.Pixel(3, 2), clLime);
  second.Assign(&second);
  EXPECT_TRUE(Same(Numbered(4, 3), second));
  second.Assign(nullptr);
  EXPECT_TRUE(second.Empty() && second.Width() == 0 && second.Height() == 0);
}

TEST(Bitmap, AssigningKeepsSidesWithoutPixels) {
  TBitmap bitmap = Numbered(3, 3);
  const TBitmap flat(7, 0);
  bitmap.Assign(&flat);
  EXPECT_EQ(bitmap.Width(), 7);
  EXPECT_EQ(bitmap.Height(), 0);
  EXPECT_TRUE(bitmap == flat);
}

TEST(Bitmap, EqualityIsOfSizesAndPixels) {
  EXPECT_TRUE(Numbered(3, 2) == Numbered(3, 2));
  EXPECT_FALSE(Numbered(3, 2) == Numbered(2, 3));
  for (int i = 0; i < 6; ++i) {
    TBitmap other = Numbered(3, 2);
    other.SetPixel(i % 3, i / 3, clRed);
    EXPECT_FALSE(Numbered(3, 2) == other);
  }
}

TEST(BitmapFromImage, MoreThanHalfTransparentIsFuchsia) {
  QImage image(256, 1, QImage::Format_ARGB32);
  for (int alpha = 0; alpha < 256; ++alpha) image.setPixel(alpha, 0, qRgba(10, 20, 30, alpha));
  const TBitmap bitmap = TBitmap::FromImage(image);
  for (int alpha = 0; alpha < 256; ++alpha) {
    EXPECT_EQ(bitmap.Pixel(alpha, 0), 255 - alpha > 127 ? clFuchsia : RGBColor(10, 20, 30)) << alpha;
    EXPECT_EQ(bitmap.Row(0)[alpha] >> 24, 0xFFu);
  }
}

TEST(BitmapFromImage, EveryFormatGivesItsColors) {
  for (const QImage::Format format :
       {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
        QImage::Format_RGB888, QImage::Format_BGR888, QImage::Format_RGBA8888, QImage::Format_RGBX8888,
        QImage::Format_RGBA64}) {
    QImage image(2, 2, format);
    image.fill(QColor(0x12, 0x34, 0x56));
    image.setPixelColor(1, 0, QColor(0xFE, 0xDC, 0xBA));
    const TBitmap bitmap = TBitmap::FromImage(image);
    EXPECT_EQ(bitmap.Pixel(0, 0), RGBColor(0x12, 0x34, 0x56)) << format;
    EXPECT_EQ(bitmap.Pixel(1, 0), RGBColor(0xFE, 0xDC, 0xBA)) << format;
    EXPECT_EQ(bitmap.Row(1)[1], 0xFF123456u) << format;
  }
  QImage indexed(3, 1, QImage::Format_Indexed8);
  indexed.setColorTable({qRgb(1, 2, 3), qRgba(9, 9, 9, 0), qRgb(4, 5, 6)});
  for (int i = 0; i < 3; ++i) indexed.setPixel(i, 0, static_cast<unsigned>(i));
  const TBitmap bitmap = TBitmap::FromImage(indexed);
  EXPECT_EQ(bitmap.Pixel(0, 0), RGBColor(1, 2, 3));
  EXPECT_EQ(bitmap.Pixel(1, 0), clFuchsia);
  EXPECT_EQ(bitmap.Pixel(2, 0), RGBColor(4, 5, 6));
  EXPECT_TRUE(TBitmap::FromImage(QImage()) == TBitmap());
}

// The fourth byte of an image without transparency may be anything.
TEST(BitmapFromImage, TheUnusedByteBecomesThatOfAPlainPixel) {
  QImage image(2, 1, QImage::Format_RGB32);
  auto* row = reinterpret_cast<std::uint32_t*>(image.scanLine(0));
  row[0] = 0x00123456u;
  row[1] = 0x7F123456u;
  const TBitmap bitmap = TBitmap::FromImage(image);
  for (int x = 0; x < 2; ++x) {
    EXPECT_EQ(bitmap.Pixel(x, 0), RGBColor(0x12, 0x34, 0x56));
    EXPECT_EQ(bitmap.Row(0)[x], 0xFF123456u);
  }
}

TEST(BitmapFromImage, TheImageStaysAsItIs) {
  QImage image(2, 1, QImage::Format_RGB32);
  image.fill(QColor(1, 2, 3));
  TBitmap bitmap = TBitmap::FromImage(image);
  bitmap.SetPixel(0, 0, clRed);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(1, 2, 3));
  bitmap = TBitmap::FromImage(image);
  image.setPixelColor(1, 0, QColor(9, 9, 9));
  EXPECT_EQ(bitmap.Pixel(1, 0), RGBColor(1, 2, 3));
}
