// Pictures with one plain colour per pixel.
//
// A pixel is plain RGB. A colour with a high byte is resolved when it is written (system colours by the
// palette of the moment, clNone to black) and therefore never equals a colour that is read. Reading outside
// gives clInvalid, which equals no real colour; writing outside does nothing. New area is white. A side may
// be 0. Copies share their pixels until one of them is changed.
#pragma once
#include <QImage>

#include "rtl/Persistent.h"
#include "vcl/Colors.h"

constexpr TColor clInvalid = TColor(0xFFFFFFFF);

// How a pixel lies in memory: 0xFFRRGGBB.
std::uint32_t PixelOf(TColor color);
TColor ColorOfPixel(std::uint32_t pixel);
// The pixel that a colour is equal to in comparisons; none for a colour with a high byte.
std::optional<std::uint32_t> ExactPixelOf(TColor color);

class TBitmap : public TPersistent {
  VRX_CLASS(TBitmap)
 public:
  TBitmap() = default;
  TBitmap(int width, int height) { SetSize(width, height); }
  TBitmap(TBitmap&& other) noexcept { Swap(other); }
  TBitmap& operator=(TBitmap&& other) noexcept {
    Swap(other);
    return *this;
  }
  // Takes over the colours; what is more than half transparent becomes clFuchsia, the customary colour for
  // that, and the rest opaque.
  static TBitmap FromImage(const QImage& image);
  // With unspecified pixels, for code that writes every one of them.
  static TBitmap Uninitialized(int width, int height);

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Empty() const { return width_ == 0 || height_ == 0; }
  // Keeps what is common to both sizes. Negative sides count as 0. Throws Exception when there is not enough
  // memory.
  void SetSize(int width, int height);

  TColor Pixel(int x, int y) const;
  void SetPixel(int x, int y, TColor color);
  void Fill(TColor color);
  // The other picture with its top left corner at (x, y); what lies outside is cut off.
  void Draw(int x, int y, const TBitmap& picture);

  const std::uint32_t* Row(int y) const {
    return reinterpret_cast<const std::uint32_t*>(image_.constScanLine(y));
  }
  // Makes the pixels this bitmap's own.
  std::uint32_t* WritableRow(int y) { return reinterpret_cast<std::uint32_t*>(image_.scanLine(y)); }
  // QImage::Format_RGB32; null when a side is 0.
  const QImage& Image() const { return image_; }
  QImage& WritableImage() { return image_; }

  // Copies size and pixels of a bitmap; null makes it empty.
  void Assign(const TPersistent* source) override;
  bool operator==(const TBitmap& other) const;
  void Swap(TBitmap& other) noexcept;

 private:
  QImage image_;
  int width_ = 0, height_ = 0;
};
