// The pictures of an image list as form files keep them.
//
// Two layouts exist: the common controls' (a strip of pictures four in a row as one BMP, and a second one of
// two colours that says what is transparent) and the plain one of the other dialect (all pixels one after
// the other, blue, green, red, alpha). Bytes come from strangers: sizes are checked before anything is made.
#pragma once
#include <QByteArray>
#include <QImage>
#include <QList>

enum class TImageListLayout : std::uint8_t { CommonControls, Plain };

struct TImageListData {
  TImageListLayout layout = TImageListLayout::CommonControls;
  QSize size{16, 16};      // of each picture
  QList<QImage> images{};  // QImage::Format_ARGB32

  bool operator==(const TImageListData&) const = default;
};

// What decoding the bytes will take in memory, from their first bytes; 0 when they are of no known layout.
std::int64_t ImageListDecodedBytes(QByteArrayView bytes);
// Throws EInvalidPicture for an unknown layout, for sizes beyond the limit of pictures, and for bytes that
// end too early. No bytes are an empty list.
TImageListData ReadImageList(const QByteArray& bytes);
// Every picture must have the list's size. An empty list has no bytes.
QByteArray WriteImageList(const TImageListData& list);
