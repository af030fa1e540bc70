// The picture of the slow references: one plain colour per pixel, read and written one at a time.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vcl/Bitmap.h"

class OraclePicture {
 public:
  OraclePicture() = default;
  // Negative sides count as 0.
  OraclePicture(int width, int height, TColor fill);
  explicit OraclePicture(const TBitmap& bitmap);

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool Inside(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }
  // Whether the pixel is of exactly this colour. Nothing outside is of any colour, and no pixel is of a
  // colour with a high byte.
  bool Is(int x, int y, TColor color) const;
  // The pixel must be inside.
  TColor At(int x, int y) const;
  // The plain colour that remains of `color`; dropped outside.
  void Set(int x, int y, TColor color);
  // The other picture with its top left corner at (x, y).
  void Draw(int x, int y, const OraclePicture& picture);

  TBitmap ToBitmap() const;
  // One character per pixel, for the messages of failures.
  std::string Text() const;

 private:
  std::size_t Index(int x, int y) const;
  int width_ = 0, height_ = 0;
  std::vector<std::uint32_t> pixels_;
};

// The first pixel in which the two differ, or their sizes.
testing::AssertionResult Same(const OraclePicture& expected, const TBitmap& actual);
testing::AssertionResult Same(const TBitmap& expected, const TBitmap& actual);

// numerator / denominator to the nearest whole number, of two equally near ones the even one.
int OracleRound(std::int64_t numerator, std::int64_t denominator);
