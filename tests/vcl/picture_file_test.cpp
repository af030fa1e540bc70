#include "vcl/PictureFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

namespace {
// The head of a PNG that announces a size; nothing follows that would have to be read.
QByteArray PngHead(quint32 width, quint32 height) {
  QByteArray head("\x89PNG\r\n\x1a\n", 8);
  QByteArray chunk("IHDR", 4);
  char number[4];
  for (const quint32 side : {width, height}) {
    qToBigEndian(side, number);
    chunk.append(number, 4);
  }
  chunk.append("\x08\x02\x00\x00\x00", 5);
  quint32 crc = 0xFFFFFFFFu;
  for (const char c : chunk) {
    crc ^= static_cast<unsigned char>(c);
    for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
  }
  qToBigEndian(quint32{13}, number);
  head.append(number, 4).append(chunk);
  qToBigEndian(~crc, number);
  return head.append(number, 4).append("\x00\x00\x00\x00IDAT", 8);
}
std::string Refusal(const QByteArray& bytes) {
  try {
    ImageFromBytes(bytes);
  } catch (const EInvalidPicture& e) {
    return e.what();
  }
  return {};
}
}  // namespace

TEST(PictureFile, AnAbsurdSizeIsRefusedBeforeAnythingIsRead) {
  const std::string text = Refusal(PngHead(20000, 20000));
  EXPECT_NE(text.find("20000 x 20000"), std::string::npos) << text;
  EXPECT_NE(text.find("8192"), std::string::npos) << text;
}

TEST(PictureFile, WhatIsNoPictureIsRefusedWithTheFormatsThatAre) {
  EXPECT_NE(Refusal("no picture at all").find("png"), std::string::npos);
  EXPECT_NE(Refusal(PngHead(10, 10)).find("damaged"), std::string::npos);
}

TEST(PictureFile, MissingFilesAndFoldersAreNamed) {
  QTemporaryDir folder;
  EXPECT_THROW(LoadPicture(folder.filePath(QStringLiteral("none.png"))), EInvalidPicture);
  EXPECT_THROW(LoadPicture(folder.path()), EInvalidPicture);
}

TEST(PictureFile, WritingAndReadingKeepsEveryPixel) {
  TBitmap picture(3, 2);
  picture.SetPixel(1, 1, TColor(0x123456));
  for (const char* format : {"PNG", "BMP"})
    EXPECT_TRUE(TBitmap::FromImage(ImageFromBytes(PictureToBytes(picture.Image(), format))) == picture)
        << format;
}
