// Random pictures of the kinds that the pixel routines meet: noise, shapes, strokes of text, stripes.
#pragma once
#include <random>
#include <vector>

#include "vcl/Bitmap.h"
#include "vcl/Region.h"

// The same numbers for the same seed on every platform.
class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  int Between(int low, int high) { return low + Below(high - low + 1); }  // both included
  bool Percent(int chance) { return Below(100) < chance; }
  template <class T>
  const T& Of(const std::vector<T>& all) {
    return all[static_cast<std::size_t>(Below(static_cast<int>(all.size())))];
  }

 private:
  std::mt19937 engine_;
};

TColor RandomPlainColor(Random& random);
// System colours, none, and colours with another high byte.
TColor RandomSpecialColor(Random& random);

// A picture of the background with marks of the inks; all are plain colours.
TBitmap RandomPicture(Random& random, int width, int height, TColor background,
                      const std::vector<TColor>& inks);

// Rectangles that lie, at least in part, within the field or across its edges; some are single points.
std::vector<TRect> RandomRects(Random& random, int count, const TRect& field);
