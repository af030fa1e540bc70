#include "OraclePicture.h"

#include <algorithm>
#include <array>
#include <map>

OraclePicture::OraclePicture(int width, int height, TColor fill)
    : width_(std::max(width, 0)), height_(std::max(height, 0)) {
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) Set(x, y, fill);
}

OraclePicture::OraclePicture(const TBitmap& bitmap)
    : OraclePicture(bitmap.Width(), bitmap.Height(), clBlack) {
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) Set(x, y, bitmap.Pixel(x, y));
}

std::size_t OraclePicture::Index(int x, int y) const {
  return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
}

bool OraclePicture::Is(int x, int y, TColor color) const {
  return Inside(x, y) && pixels_[Index(x, y)] == static_cast<std::uint32_t>(color);
}

TColor OraclePicture::At(int x, int y) const { return TColor(pixels_.at(Index(x, y))); }

void OraclePicture::Set(int x, int y, TColor color) {
  if (!Inside(x, y)) return;
  auto value = static_cast<std::uint32_t>(color);
  if (value > 0xFFFFFFu) value = static_cast<std::uint32_t>(ColorToRGB(color));
  pixels_[Index(x, y)] = value;
}

void OraclePicture::Draw(int x, int y, const OraclePicture& picture) {
  for (int row = 0; row < picture.height_; ++row)
    for (int column = 0; column < picture.width_; ++column) Set(x + column, y + row, picture.At(column, row));
}

TBitmap OraclePicture::ToBitmap() const {
  TBitmap bitmap(width_, height_);
  for (int y = 0; y < height_; ++y)
    for (int x = 0; x < width_; ++x) bitmap.SetPixel(x, y, At(x, y));
  return bitmap;
}

std::string OraclePicture::Text() const {
  std::map<std::uint32_t, char> names;
  std::string text = std::to_string(width_) + " x " + std::to_string(height_) + "\n";
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const std::uint32_t pixel = pixels_[Index(x, y)];
      const char next = static_cast<char>('a' + static_cast<int>(std::min<std::size_t>(names.size(), 25)));
      text += names.emplace(pixel, next).first->second;
    }
    text += '\n';
  }
  for (const auto& [pixel, name] : names) {
    std::array<char, 16> hex{};
    std::snprintf(hex.data(), hex.size(), "%c=%06X ", name, static_cast<unsigned>(pixel));
    text += hex.data();
  }
  return text + '\n';
}

testing::AssertionResult Same(const OraclePicture& expected, const TBitmap& actual) {
  if (expected.Width() != actual.Width() || expected.Height() != actual.Height())
    return testing::AssertionFailure() << "the picture is " << actual.Width() << " x " << actual.Height()
                                       << " instead of " << expected.Width() << " x " << expected.Height();
  for (int y = 0; y < expected.Height(); ++y)
    for (int x = 0; x < expected.Width(); ++x)
      if (expected.At(x, y) != actual.Pixel(x, y))
        return testing::AssertionFailure()
               << "pixel (" << x << ", " << y << ") is " << qPrintable(ColorToString(actual.Pixel(x, y)))
               << " instead of " << qPrintable(ColorToString(expected.At(x, y))) << "\nexpected "
               << expected.Text() << "actual " << OraclePicture(actual).Text();
  return testing::AssertionSuccess();
}

testing::AssertionResult Same(const TBitmap& expected, const TBitmap& actual) {
  return Same(OraclePicture(expected), actual);
}

int OracleRound(std::int64_t numerator, std::int64_t denominator) {
  const auto distance = [&](std::int64_t n) { return std::abs(numerator - n * denominator); };
  const std::int64_t near = numerator / denominator;
  std::int64_t best = near;
  for (const std::int64_t n : {near - 1, near + 1})
    if (distance(n) < distance(best) || (distance(n) == distance(best) && n % 2 == 0)) best = n;
  return static_cast<int>(best);
}
