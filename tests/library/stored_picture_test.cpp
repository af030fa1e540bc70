// Pictures that values keep: what is stored, when it is made, and what is refused before it is kept.
#include "library/values/StoredPicture.h"

#include <gtest/gtest.h>

#include "library/values/RegionMask.h"
#include "vcl/PictureFile.h"

namespace {
// Taller than a whole number of strips, with colours that differ from pixel to pixel.
QImage Large(QImage::Format format) {
  QImage image(2100, 2003, format);
  for (int y = 0; y < image.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      row[x] = qRgba(x * 7, y * 5, x ^ y, format == QImage::Format_ARGB32 ? (x + y) % 256 : 255);
  }
  image.setDotsPerMeterX(1111);
  return image;
}
StoredPicture Compressed(const QImage& image) {
  StoredPicture picture;
  picture.SetStorage(true, TVRXColorDepth::spfDefault);
  picture.SetImage(image);
  return picture;
}
}  // namespace

TEST(StoredPicture, LargePicturesComeBackPixelByPixel) {
  for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
    const QImage image = Large(format);
    ASSERT_TRUE(IsLargePicture(image.size()));
    const QByteArray bytes = Compressed(image).Bytes();
    EXPECT_TRUE(bytes.startsWith("\x89PNG"));
    StoredPicture read;
    read.SetBytes(bytes);
    EXPECT_EQ(read.Size(), image.size());
    EXPECT_EQ(read.Image(), image);
    EXPECT_EQ(read.Image().hasAlphaChannel(), image.hasAlphaChannel());
    EXPECT_EQ(read.Image().dotsPerMeterX(), 1111);
    EXPECT_EQ(read.Bytes(), bytes);
  }
}

TEST(StoredPicture, OtherPicturesKeepTheirUsualBytes) {
  const QImage image = Large(QImage::Format_ARGB32).copy(0, 0, 31, 17);
  EXPECT_EQ(Compressed(image).Bytes(), PictureToBytes(image, "PNG"));
  const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
  StoredPicture plain;
  plain.SetImage(opaque);
  EXPECT_FALSE(plain.NeedsTime());
  EXPECT_EQ(plain.Bytes(), PictureToBytes(opaque, "BMP"));
}

TEST(StoredPicture, EncodingCanBeEndedAndTakenUpAgain) {
  const QImage image = Large(QImage::Format_RGB32);
  const StoredPicture picture = Compressed(image);
  EXPECT_TRUE(picture.NeedsTime());
  int asked = 0;
  EXPECT_FALSE(picture.Encode([&](int) { return ++asked < 2; }));
  EXPECT_TRUE(picture.NeedsTime());
  int last = -1;
  EXPECT_TRUE(picture.Encode([&](int percent) {
    EXPECT_GE(percent, last);
    EXPECT_LE(percent, 100);
    last = percent;
    return true;
  }));
  EXPECT_GE(last, 0);
  EXPECT_FALSE(picture.NeedsTime());
  EXPECT_EQ(ImageFromBytes(picture.Bytes()), image);
}

TEST(StoredPicture, WhatCouldNotBeReadAgainIsNotTaken) {
  QImage small(3, 2, QImage::Format_RGB32);
  small.fill(Qt::red);
  StoredPicture picture;
  picture.SetImage(small);
  EXPECT_THROW(picture.SetImage(QImage(8193, 8192, QImage::Format_Mono)), EInvalidPicture);
  EXPECT_EQ(picture.Image(), small);
  EXPECT_THROW(picture.SetBytes("BM"), EInvalidPicture);
  EXPECT_EQ(picture.Image(), small);
  EXPECT_EQ(picture.Bytes(), PictureToBytes(small, "BMP"));
}

TEST(StoredPicture, TheWayOfStoringCanChangeBeforeAnybodyLooked) {
  QImage image(5, 4, QImage::Format_RGB32);
  image.fill(qRgb(0x35, 0x79, 0xBD));
  StoredPicture picture;
  picture.SetBytes(PictureToBytes(image, "BMP"));
  picture.SetStorage(true, TVRXColorDepth::spfMono);
  EXPECT_TRUE(picture.Bytes().startsWith("\x89PNG"));
  EXPECT_EQ(picture.Image().pixel(1, 1), qRgb(0, 0, 0));
  picture.SetStorage(false, TVRXColorDepth::spfDefault);
  EXPECT_EQ(picture.Image(), image);
}

TEST(RegionMaskLimits, ARegionOfTooManyPiecesIsRefusedWithWhatToDo) {
  // Every second pixel of a row of its own: as many rectangles as pixels.
  QByteArray data(32 + 16 * ((1 << 22) + 1), '\0');
  const auto put = [&](qsizetype at, qint32 v) { std::memcpy(data.data() + at, &v, 4); };
  put(0, 32);
  put(4, 1);
  put(8, (1 << 22) + 1);
  for (int i = 0; i <= 1 << 22; ++i) {
    const int x = i % 4096 * 2, y = i / 4096 * 2;
    const int rect[] = {x, y, x + 1, y + 1};
    for (int n = 0; n < 4; ++n) put(32 + 16 * qsizetype{i} + 4 * n, rect[n]);
  }
  TVRXRegionMask mask;
  try {
    mask.SetRegionData(data);
    FAIL();
  } catch (const EInvalidRegion& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("4194305"))) << e.what();
  }
  EXPECT_FALSE(mask.HasRegion());
  data.chop(16);
  put(8, 1 << 22);
  mask.SetRegionData(data);
  EXPECT_EQ(mask.Region().Rects().size(), std::size_t{1} << 22);
}
