#include "vcl/Picture.h"

#include <QtEndian>

#include "rtl/Class.h"
#include "vcl/PictureFile.h"

namespace {
struct GraphicRow {
  QByteArrayView start;  // of a file of the format
  const char* className;
  bool length;  // after the class name, whatever the dialect
};
const GraphicRow Graphics[] = {{"BM", "TBitmap", true},
                               {"\x89PNG", "TPngImage", false},
                               {"\xFF\xD8\xFF", "TJPEGImage", true},
                               {"GIF8", "TGIFImage", false},
                               {QByteArrayView("\0\0\1\0", 4), "TIcon", false}};

const GraphicRow* RowOf(QByteArrayView bytes) {
  for (const GraphicRow& row : Graphics)
    if (bytes.startsWith(row.start)) return &row;
  return nullptr;
}

QByteArrayView BehindLength(QByteArrayView data) {
  constexpr qsizetype Length = 4;
  if (data.size() < Length) return data;
  const auto length = qFromLittleEndian<std::uint32_t>(data.data());
  return length == static_cast<std::uint64_t>(data.size() - Length) ? data.sliced(Length) : data;
}

// A class name with its length in one byte.
qsizetype NameSize(QByteArrayView data) {
  if (data.size() < 2 || data[1] != 'T') return 0;
  const auto length = static_cast<unsigned char>(data[0]);
  return length < data.size() ? length : 0;
}

QByteArray Framed(const QByteArray& bytes) {
  QByteArray length(4, '\0');
  qToLittleEndian(static_cast<std::uint32_t>(bytes.size()), length.data());
  return length + bytes;
}
}  // namespace

QByteArrayView PictureInside(QByteArrayView data) {
  if (const qsizetype name = NameSize(data); name > 0) data = data.sliced(1 + name);
  return BehindLength(data);
}

const TClass& TPicture::StaticClass() {
  static const TClass cls(DescribeClass<TPicture>("TPicture", TPersistent::StaticClass())
                              .Streamed("Data", &TPicture::Data, &TPicture::SetData));
  return cls;
}

const TClass& TGlyph::StaticClass() {
  static const TClass cls(DescribeClass<TGlyph>("TGlyph", TPicture::StaticClass()));
  return cls;
}

const TClass& TIcon::StaticClass() {
  static const TClass cls(DescribeClass<TIcon>("TIcon", TPicture::StaticClass()));
  return cls;
}

void TPicture::SetData(const QByteArray& bytes) {
  if (bytes == data_) return;
  Changing();
  data_ = bytes;
  image_ = {};
  problem_.clear();
  decoded_ = false;
  Changed();
}

void TPicture::Assign(const TPersistent* source) {
  if (const auto* other = As<TPicture>(source))
    SetData(other->data_);
  else
    TOwnedPersistent::Assign(source);
}

QByteArray TPicture::GraphicClass() const {
  if (const qsizetype name = NameSize(data_); name > 0) return data_.mid(1, name);
  return data_.isEmpty() ? QByteArray() : QByteArray("TBitmap");
}

QByteArray TPicture::FileBytes() const {
  const QByteArrayView inside = PictureInside(data_);
  return QByteArray(inside.data(), inside.size());
}

void TPicture::SetFileBytes(const QByteArray& bytes) {
  const QImage image = PixelPictureFromBytes(bytes, QStringLiteral("The file"));
  const GraphicRow* row = RowOf(bytes);
  if (framing_ == Framing::Length) {
    SetData(Framed(row && row->start == "BM" ? bytes : PictureToBytes(image, "bmp")));
    return;
  }
  if (framing_ == Framing::None) return SetData(bytes);
  if (!row) throw EInvalidPicture(QStringLiteral("Forms keep BMP, PNG, JPEG, GIF and ICO pictures only."));
  const QByteArray name(row->className);
  SetData(static_cast<char>(name.size()) + name + (row->length ? Framed(bytes) : bytes));
}

void TPicture::Decode() const {
  if (decoded_) return;
  decoded_ = true;
  if (data_.isEmpty()) return;
  const QByteArray bytes = FileBytes();
  if (!RowOf(bytes)) {
    problem_ = QStringLiteral("A %1 cannot be shown here; it is kept as it is.")
                   .arg(QString::fromLatin1(GraphicClass()));
    return;
  }
  try {
    image_ = IsStoredPicture(bytes) ? ImageFromBytes(bytes)
                                    : PixelPictureFromBytes(bytes, QStringLiteral("The picture"));
  } catch (const EInvalidPicture& e) {
    problem_ = e.Message();
  }
}

const QImage& TPicture::Image() const {
  Decode();
  return image_;
}

const QString& TPicture::Problem() const {
  Decode();
  return problem_;
}

QImage TGlyph::Transparent() const {
  const QImage& image = Image();
  if (image.isNull() || image.hasAlphaChannel()) return image;
  QImage result = image.convertToFormat(QImage::Format_ARGB32);
  const QRgb ground = image.pixel(0, image.height() - 1);
  for (int y = 0; y < result.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x)
      if ((row[x] | 0xFF000000) == (ground | 0xFF000000)) row[x] = 0;
  }
  return result;
}
