// The two border painters of the slow reference.
#include "OracleRegion.h"

namespace {
class OraclePainter {
 public:
  OraclePainter(int painter, OraclePicture& picture, const SlowRegion* region, int style)
      : rowwise_(painter == 3), picture_(picture), region_(region), style_(style) {
    if (style == 3 || style == 5) std::swap(light_, dark_);
  }
  void Point(int x, int y) {
    Horizontal(x, y);
    Vertical(x, y);
  }

 private:
  bool In(int x, int y) const { return region_ && region_->In(x, y); }
  void Put(int x, int y, TColor color) {
    // The painter of rows has no column before the first.
    if (rowwise_ && x < 0) return;
    picture_.Set(x, y, color);
  }

  void Horizontal(int x, int y) {
    if (In(x, y) && !In(x - 1, y)) {
      if (style_ == 1) Put(x, y, clBlack);
      if (style_ == 2 || style_ == 3) Put(x, y, light_);
      if (style_ == 4 || style_ == 5) {
        Put(x, y, clBlack);
        Put(x + 1, y, light_);
      }
    } else if (!In(x, y) && In(x - 1, y)) {
      if (style_ == 1) Put(x - 1, y, clBlack);
      if (style_ == 2 || style_ == 3) Put(x - 1, y, dark_);
      if (style_ == 4 || style_ == 5) {
        Put(x - 1, y, clBlack);
        Put(x - 2, y, dark_);
      }
    }
  }

  void Vertical(int x, int y) {
    if (In(x, y) && !In(x, y - 1)) {
      if (style_ == 1) Put(x, y, clBlack);
      if (style_ == 2 || style_ == 3) Put(x, y, light_);
      if (style_ == 4 || style_ == 5) {
        Put(x, y, clBlack);
        Put(x, y + 1, light_);
      }
    } else if (!In(x, y) && In(x, y - 1)) {
      if (rowwise_ && y <= 0) return;
      if (style_ == 1) Put(x, y - 1, clBlack);
      if (style_ == 2 || style_ == 3) Put(x, y - 1, dark_);
      if (style_ == 4 || style_ == 5) {
        Put(x, y - 1, clBlack);
        Put(x, y - 2, dark_);
      }
    }
  }

  bool rowwise_;
  OraclePicture& picture_;
  const SlowRegion* region_;
  int style_;
  TColor light_ = clWhite, dark_ = clGray;
};
}  // namespace

void OraclePaintBorder(int painter, OraclePicture& picture, const SlowRegion* region, int style,
                       TRegionPhase phase, IVRXProgress* progress) {
  TRect box = region ? region->Bounds() : TRect();
  if (box.Right == 0) box.Right = 1;
  if (box.Bottom == 0) box.Bottom = 1;
  OraclePainter paint(painter, picture, region, style);
  for (int x = box.Left; x <= box.Right; ++x)
    for (int y = box.Top; y <= box.Bottom; ++y) {
      paint.Point(x, y);
      if (!progress) continue;
      const int percent = phase.Offset + OracleRound(1LL * phase.Scale * (x + 1), box.Right);
      progress->Report(static_cast<std::uint8_t>(percent), 1);
      progress->ProcessMessages(1);
    }
}
