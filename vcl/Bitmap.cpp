#include "vcl/Bitmap.h"

#include <cstring>

#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "vcl/LargeMemory.h"

const TClass& TBitmap::StaticClass() {
  static const TClass cls(DescribeClass<TBitmap>("TBitmap", TPersistent::StaticClass()));
  return cls;
}

namespace {
constexpr std::uint32_t Opaque = 0xFF000000u;
constexpr std::uint32_t Exchange(std::uint32_t v) {
  return (v & 0xFFu) << 16 | (v & 0xFF00u) | (v >> 16 & 0xFFu);
}
constexpr bool IsPlain(TColor color) { return (static_cast<std::uint32_t>(color) & Opaque) == 0; }
}  // namespace

std::uint32_t PixelOf(TColor color) {
  return Opaque | Exchange(static_cast<std::uint32_t>(IsPlain(color) ? color : ColorToRGB(color)));
}
TColor ColorOfPixel(std::uint32_t pixel) { return TColor(Exchange(pixel)); }
std::optional<std::uint32_t> ExactPixelOf(TColor color) {
  return IsPlain(color) ? std::optional(PixelOf(color)) : std::nullopt;
}

TBitmap TBitmap::Uninitialized(int width, int height) {
  TBitmap result;
  width = std::max(width, 0);
  height = std::max(height, 0);
  if (width > 0 && height > 0) {
    const std::size_t bytes = static_cast<std::size_t>(width) * 4 * static_cast<std::size_t>(height);
    void* memory = AllocateLarge(bytes);
    if (memory)
      result.image_ =
          QImage(static_cast<uchar*>(memory), width, height, QImage::Format_RGB32, FreeLarge, memory);
    if (result.image_.isNull()) {
      FreeLarge(memory);
      throw Exception(QStringLiteral("There is not enough memory for a picture of %1 x %2 pixels.")
                          .arg(width)
                          .arg(height));
    }
  }
  result.width_ = width;
  result.height_ = height;
  return result;
}

TBitmap TBitmap::FromImage(const QImage& image) {
  TBitmap result = Uninitialized(image.width(), image.height());
  if (result.Empty()) return result;
  if (!image.hasAlphaChannel()) {
    // In an image of this format the highest byte means nothing and may be anything.
    const QImage source = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < result.height_; ++y) {
      const auto* from = reinterpret_cast<const std::uint32_t*>(source.constScanLine(y));
      std::uint32_t* to = result.WritableRow(y);
      for (int x = 0; x < result.width_; ++x) to[x] = from[x] | Opaque;
    }
    return result;
  }
  const QImage source = image.convertToFormat(QImage::Format_ARGB32);
  const std::uint32_t key = PixelOf(clFuchsia);
  for (int y = 0; y < result.height_; ++y) {
    const auto* from = reinterpret_cast<const std::uint32_t*>(source.constScanLine(y));
    std::uint32_t* to = result.WritableRow(y);
    for (int x = 0; x < result.width_; ++x) to[x] = from[x] >> 24 < 0x80u ? key : from[x] | Opaque;
  }
  return result;
}

void TBitmap::SetSize(int width, int height) {
  width = std::max(width, 0);
  height = std::max(height, 0);
  if (width == width_ && height == height_) return;
  TBitmap sized = Uninitialized(width, height);
  if (!sized.Empty() && (width > width_ || height > height_ || Empty())) sized.Fill(clWhite);
  sized.Draw(0, 0, *this);
  Swap(sized);
}

TColor TBitmap::Pixel(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return clInvalid;
  return ColorOfPixel(Row(y)[x]);
}

void TBitmap::SetPixel(int x, int y, TColor color) {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
  WritableRow(y)[x] = PixelOf(color);
}

void TBitmap::Fill(TColor color) {
  if (!Empty()) image_.fill(PixelOf(color));
}

void TBitmap::Draw(int x, int y, const TBitmap& picture) {
  const int left = std::max(x, 0),
            right = static_cast<int>(std::min<qint64>(qint64{x} + picture.width_, width_));
  const int top = std::max(y, 0),
            bottom = static_cast<int>(std::min<qint64>(qint64{y} + picture.height_, height_));
  if (left >= right) return;
  const QImage source = picture.image_;  // keeps the pixels when a bitmap is drawn on itself
  for (int row = top; row < bottom; ++row)
    std::memcpy(WritableRow(row) + left,
                reinterpret_cast<const std::uint32_t*>(source.constScanLine(row - y)) + (left - x),
                static_cast<std::size_t>(right - left) * 4);
}

void TBitmap::Assign(const TPersistent* source) {
  if (!source) {
    *this = TBitmap();
  } else if (const auto* bitmap = dynamic_cast<const TBitmap*>(source)) {
    image_ = bitmap->image_;
    width_ = bitmap->width_;
    height_ = bitmap->height_;
    Changed();
  } else {
    TPersistent::Assign(source);
  }
}

bool TBitmap::operator==(const TBitmap& other) const {
  return width_ == other.width_ && height_ == other.height_ && (Empty() || image_ == other.image_);
}

void TBitmap::Swap(TBitmap& other) noexcept {
  image_.swap(other.image_);
  std::swap(width_, other.width_);
  std::swap(height_, other.height_);
}
