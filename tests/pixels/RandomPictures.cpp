#include "RandomPictures.h"

#include <algorithm>

TColor RandomPlainColor(Random& random) {
  return RGBColor(static_cast<unsigned>(random.Below(256)), static_cast<unsigned>(random.Below(256)),
                  static_cast<unsigned>(random.Below(256)));
}

TColor RandomSpecialColor(Random& random) {
  static const std::vector<TColor> special{clNone,
                                           clDefault,
                                           clBtnFace,
                                           clBtnText,
                                           clWindow,
                                           clHighlight,
                                           clInvalid,
                                           TColor(0x02FF00FF),
                                           TColor(0x01000005),
                                           TColor(0x8000000F),
                                           TColor(0x7F000000),
                                           TColor(0x02FFFFFF)};
  return random.Of(special);
}

namespace {
class RandomPainter {
 public:
  RandomPainter(Random& random, TBitmap& bitmap, const std::vector<TColor>& inks)
      : random_(random), bitmap_(bitmap), inks_(inks), width_(bitmap.Width()), height_(bitmap.Height()) {}

  void Noise() {
    static const std::vector<int> densities{2, 5, 10, 25, 50, 75, 90, 98};
    const int density = random_.Of(densities);
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x)
        if (random_.Percent(density)) Dot(x, y);
  }
  void Blobs() {
    for (int n = random_.Between(1, 5); n > 0; --n) {
      const int cx = random_.Below(width_), cy = random_.Below(height_);
      const int rx = random_.Between(0, width_ / 2), ry = random_.Between(0, height_ / 2);
      const bool round = random_.Percent(60);
      const TColor ink = random_.Of(inks_);
      for (int y = cy - ry; y <= cy + ry; ++y)
        for (int x = cx - rx; x <= cx + rx; ++x) {
          const int dx = (x - cx) * (ry + 1), dy = (y - cy) * (rx + 1), r = (rx + 1) * (ry + 1);
          if (!round || dx * dx + dy * dy < r * r) bitmap_.SetPixel(x, y, ink);
        }
    }
  }
  // Letters are lines of one or two pixels that turn now and then.
  void Strokes() {
    for (int n = random_.Between(1, 6); n > 0; --n) {
      int x = random_.Below(width_), y = random_.Below(height_), dx = 1, dy = 0;
      const bool bold = random_.Percent(40);
      const TColor ink = random_.Of(inks_);
      for (int step = random_.Between(1, 25); step > 0; --step) {
        bitmap_.SetPixel(x, y, ink);
        if (bold) bitmap_.SetPixel(x + 1, y, ink);
        if (random_.Percent(25)) {
          dx = random_.Between(-1, 1);
          dy = random_.Between(-1, 1);
        }
        x += dx;
        y += dy;
      }
    }
  }
  void Stripes() {
    const int period = random_.Between(2, 7), thickness = random_.Between(1, period - 1);
    const int a = random_.Between(-1, 1), b = a == 0 ? 1 : random_.Between(-1, 1);
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x)
        if ((a * x + b * y + 1000 * period) % period < thickness) Dot(x, y);
  }
  void Full() {
    const int holes = random_.Of(std::vector<int>{0, 0, 1, 5});
    for (int y = 0; y < height_; ++y)
      for (int x = 0; x < width_; ++x)
        if (!random_.Percent(holes)) Dot(x, y);
  }
  void FewDots() {
    for (int n = random_.Below(4); n > 0; --n) Dot(random_.Below(width_), random_.Below(height_));
  }

 private:
  void Dot(int x, int y) { bitmap_.SetPixel(x, y, random_.Of(inks_)); }
  Random& random_;
  TBitmap& bitmap_;
  const std::vector<TColor>& inks_;
  int width_, height_;
};
}  // namespace

TBitmap RandomPicture(Random& random, int width, int height, TColor background,
                      const std::vector<TColor>& inks) {
  TBitmap bitmap(width, height);
  if (bitmap.Empty()) return bitmap;
  bitmap.Fill(background);
  RandomPainter paint(random, bitmap, inks);
  switch (random.Below(10)) {
    case 0:
    case 1:
    case 2:
      paint.Noise();
      break;
    case 3:
    case 4:
      paint.Blobs();
      break;
    case 5:
    case 6:
      paint.Strokes();
      break;
    case 7:
      paint.Stripes();
      break;
    case 8:
      paint.Full();
      break;
    default:
      paint.FewDots();
      break;
  }
  return bitmap;
}

std::vector<TRect> RandomRects(Random& random, int count, const TRect& field) {
  std::vector<TRect> rects;
  for (; count > 0; --count) {
    TRect r;
    r.Left = random.Between(field.Left, field.Right - 1);
    r.Top = random.Between(field.Top, field.Bottom - 1);
    const bool point = random.Percent(30);
    r.Right = point ? r.Left + 1 : random.Between(r.Left + 1, std::min(field.Right, r.Left + 20));
    r.Bottom = point ? r.Top + 1 : random.Between(r.Top + 1, std::min(field.Bottom, r.Top + 20));
    rects.push_back(r);
  }
  return rects;
}
