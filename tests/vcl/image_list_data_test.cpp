#include <gtest/gtest.h>
#include <zlib.h>

#include <QtEndian>
#include <random>

#include "vcl/ImageListData.h"
#include "vcl/PictureFile.h"

namespace {
// Not square, neither opaque nor plain, more than a row of the strip.
TImageListData Sample(TImageListLayout layout, int count, unsigned seed) {
  std::mt19937 random(seed);
  TImageListData list{.layout = layout, .size = QSize(5, 3)};
  for (int i = 0; i < count; ++i) {
    QImage image(list.size, QImage::Format_ARGB32);
    for (int y = 0; y < 3; ++y)
      for (int x = 0; x < 5; ++x)
        image.setPixel(x, y, (random() & 0xFFFFFF) | (x == y ? 0x80000000 : 0xFF000000));
    list.images << image;
  }
  return list;
}

template <class T>
void Put(QByteArray& bytes, T value) {
  char little[sizeof(T)];
  qToLittleEndian(value, little);
  bytes.append(little, sizeof(T));
}

QByteArray Bmp(int width, int height, int bits, const QByteArray& palette, const QByteArray& rows) {
  // Old strips give the length of the head as the length of the file.
  QByteArray bytes("BM");
  for (const int n : {54, 0, 54, 40, width, height}) Put<std::int32_t>(bytes, n);
  Put<std::uint16_t>(bytes, 1);
  Put<std::uint16_t>(bytes, static_cast<std::uint16_t>(bits));
  for (int i = 0; i < 6; ++i) Put<std::int32_t>(bytes, 0);
  return bytes + palette + rows;
}

QByteArray StripHead(int count, int width, int height, int flags) {
  QByteArray bytes("IL");
  for (const int n : {0x101, count, 4, 4, width, height})
    Put<std::uint16_t>(bytes, static_cast<std::uint16_t>(n));
  Put<std::uint32_t>(bytes, 0xFFFFFFFF);
  Put<std::uint16_t>(bytes, static_cast<std::uint16_t>(flags));
  for (int i = 0; i < 4; ++i) Put<std::int16_t>(bytes, -1);
  return bytes;
}

QString Refusal(const QByteArray& bytes) {
  try {
    ReadImageList(bytes);
  } catch (const EInvalidPicture& e) {
    return e.Message();
  }
  return QStringLiteral("read");
}
}  // namespace

TEST(ImageListData, BothLayoutsComeBackAsTheyWere) {
  for (const TImageListLayout layout : {TImageListLayout::CommonControls, TImageListLayout::Plain})
    for (const int count : {1, 4, 5, 9}) {
      const TImageListData list = Sample(layout, count, 7u + static_cast<unsigned>(count));
      EXPECT_EQ(ReadImageList(WriteImageList(list)), list) << count;
      EXPECT_EQ(WriteImageList(ReadImageList(WriteImageList(list))), WriteImageList(list));
    }
}

TEST(ImageListData, AnEmptyListHasNoBytes) {
  EXPECT_TRUE(WriteImageList({}).isEmpty());
  EXPECT_TRUE(ReadImageList({}).images.isEmpty());
}

TEST(ImageListData, TheMaskOfAnOldStripMakesPixelsTransparent) {
  // Two pictures of 2 x 1 with a palette of two colours; the strip is four pictures wide.
  QByteArray palette;
  Put<std::uint32_t>(palette, 0x0000FF00);
  Put<std::uint32_t>(palette, 0x00112233);
  const QByteArray colors = Bmp(8, 1, 1, palette, QByteArray::fromHex("60000000"));  // 0110 0000
  const QByteArray mask = Bmp(8, 1, 1, palette.left(4).fill('\0') + QByteArray(4, '\xFF'),
                              QByteArray::fromHex("90000000"));  // 1001 0000
  const TImageListData list = ReadImageList(StripHead(2, 2, 1, 1) + colors + mask);
  ASSERT_EQ(list.images.size(), 2);
  EXPECT_EQ(list.images[0].pixel(0, 0), 0u);
  EXPECT_EQ(list.images[0].pixel(1, 0), 0xFF112233);
  EXPECT_EQ(list.images[1].pixel(0, 0), 0xFF112233);
  EXPECT_EQ(list.images[1].pixel(1, 0), 0u);
}

TEST(ImageListData, PackedPixelsAreUnpacked) {
  const TImageListData list = Sample(TImageListLayout::Plain, 3, 3);
  const QByteArray plain = WriteImageList(list);
  QByteArray packed = qCompress(plain.sliced(14)).sliced(4), bytes = "Lz" + plain.sliced(2, 12);
  Put<std::int64_t>(bytes, packed.size());
  EXPECT_EQ(ReadImageList(bytes + packed), list);
  EXPECT_TRUE(Refusal(bytes + packed.chopped(1)).contains("ends 1 bytes early"));
  packed[packed.size() / 2] = static_cast<char>(~packed[packed.size() / 2]);
  EXPECT_TRUE(Refusal(bytes + packed).contains("does not unpack to 180 bytes"));
}

TEST(ImageListData, WhatIsNoListIsRefusedWithTheReason) {
  EXPECT_TRUE(Refusal("something").contains("(9 bytes) is of a layout that is not known"));
  EXPECT_TRUE(Refusal(StripHead(1, 16, 16, 0)).contains("a bitmap is missing"));
  EXPECT_TRUE(Refusal(StripHead(5, 2, 1, 0) + Bmp(8, 1, 32, {}, QByteArray(32, 'x')))
                  .contains("5 pictures do not fit on 8 x 1"));
  EXPECT_TRUE(Refusal(StripHead(1, 0, 16, 0)).contains("1 pictures of 0 x 16"));
}

TEST(ImageListData, HugeSizesAreRefusedBeforeAnythingIsMade) {
  QByteArray bytes("Li");
  for (const int n : {1 << 20, 4096, 4096}) Put<std::int32_t>(bytes, n);
  EXPECT_TRUE(Refusal(bytes).contains("67,108,864"));
  EXPECT_TRUE(Refusal(StripHead(1, 16, 16, 0) + Bmp(30000, 30000, 32, {}, {})).contains("67,108,864"));
}

TEST(ImageListData, EveryShorterPieceIsRefusedAndNothingElseHappens) {
  for (const TImageListLayout layout : {TImageListLayout::CommonControls, TImageListLayout::Plain}) {
    const QByteArray whole = WriteImageList(Sample(layout, 2, 1));
    for (qsizetype size = 1; size < whole.size(); ++size)
      EXPECT_NE(Refusal(whole.first(size)), QStringLiteral("read")) << size;
  }
}

TEST(ImageListData, TheCostIsKnownFromTheHead) {
  EXPECT_EQ(ImageListDecodedBytes(WriteImageList(Sample(TImageListLayout::Plain, 3, 1)).first(20)),
            3 * 5 * 3 * 4);
  EXPECT_EQ(ImageListDecodedBytes(StripHead(2, 7, 3, 1)), 2 * 7 * 3 * 4);
  EXPECT_EQ(ImageListDecodedBytes("BMBMBMBMBMBMBMBMBMBMBMBMBMBMBM"), 0);
}
