#include "OracleRegion.h"

#include <algorithm>

SlowRegion::SlowRegion(const TRect& field) : field_(field) {
  const int width = std::max(field.Right - field.Left, 0), height = std::max(field.Bottom - field.Top, 0);
  points_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
}

bool SlowRegion::InField(int x, int y) const {
  return x >= field_.Left && x < field_.Right && y >= field_.Top && y < field_.Bottom;
}

std::size_t SlowRegion::Index(int x, int y) const {
  return static_cast<std::size_t>(y - field_.Top) * static_cast<std::size_t>(field_.Right - field_.Left) +
         static_cast<std::size_t>(x - field_.Left);
}

void SlowRegion::Add(const TRect& rect) {
  for (int y = rect.Top; y < rect.Bottom; ++y)
    for (int x = rect.Left; x < rect.Right; ++x) {
      if (!InField(x, y)) throw std::out_of_range("a rectangle leaves the field");
      points_[Index(x, y)] = true;
    }
}

bool SlowRegion::In(int x, int y) const { return InField(x, y) && points_[Index(x, y)]; }

TRect SlowRegion::Bounds() const {
  bool any = false;
  TRect box;
  for (int y = field_.Top; y < field_.Bottom; ++y)
    for (int x = field_.Left; x < field_.Right; ++x) {
      if (!In(x, y)) continue;
      if (!any) box = {x, y, x + 1, y + 1};
      any = true;
      box = {std::min(box.Left, x), std::min(box.Top, y), std::max(box.Right, x + 1),
             std::max(box.Bottom, y + 1)};
    }
  return box;
}

std::vector<TRect> SlowRegion::Rects() const {
  std::vector<TRect> rects, above;
  for (int y = field_.Top; y < field_.Bottom; ++y) {
    std::vector<TRect> row;
    for (int x = field_.Left; x < field_.Right; ++x) {
      if (!In(x, y)) continue;
      if (!In(x - 1, y)) row.push_back({x, y, x, y + 1});
      row.back().Right = x + 1;
    }
    const bool continues = !row.empty() && std::equal(row.begin(), row.end(), above.begin(), above.end(),
                                                      [](const TRect& a, const TRect& b) {
                                                        return a.Left == b.Left && a.Right == b.Right;
                                                      });
    if (continues) {
      for (std::size_t i = rects.size() - row.size(); i < rects.size(); ++i) rects[i].Bottom = y + 1;
    } else {
      rects.insert(rects.end(), row.begin(), row.end());
    }
    above = row;
  }
  return rects;
}

testing::AssertionResult Same(const SlowRegion& expected, const TRegion& actual) {
  if (expected.Rects() != RectList(actual))
    return testing::AssertionFailure() << "expected " << testing::PrintToString(expected.Rects())
                                       << "\nactual " << testing::PrintToString(RectList(actual));
  if (expected.Bounds() != actual.Bounds())
    return testing::AssertionFailure() << "bounds " << actual.Bounds() << " instead of " << expected.Bounds();
  if (actual.Empty() != expected.Rects().empty()) return testing::AssertionFailure() << "emptiness";
  for (int y = expected.Field().Top - 2; y < expected.Field().Bottom + 2; ++y)
    for (int x = expected.Field().Left - 2; x < expected.Field().Right + 2; ++x)
      if (expected.In(x, y) != actual.Contains(x, y))
        return testing::AssertionFailure()
               << "point (" << x << ", " << y << ") of " << testing::PrintToString(RectList(actual));
  return testing::AssertionSuccess();
}

std::ostream& operator<<(std::ostream& out, const TRect& rect) {
  return out << '(' << rect.Left << ", " << rect.Top << ", " << rect.Right << ", " << rect.Bottom << ')';
}

std::optional<SlowRegion> OracleCreateRegion(const OraclePicture& picture, const std::vector<TColor>& colors,
                                             int scale, IVRXProgress* progress) {
  std::optional<SlowRegion> region;
  int startX = -1, startY = 0, endX = 0, endY = 0;
  for (int y = 0; y < picture.Height(); ++y) {
    for (int x = 0; x < picture.Width(); ++x) {
      bool transparent = false;
      for (const TColor color : colors) {
        transparent = picture.At(x, y) == color;
        if (transparent) break;
      }
      if (!transparent && x < picture.Width() - 1) {
        if (startX == -1) {
          startX = x;
          startY = y;
        }
        endX = x + 1;
        endY = y + 1;
      } else if (startX != -1) {
        if (!region) region.emplace(TRect{0, 0, picture.Width(), picture.Height()});
        region->Add({startX, startY, endX, endY});
        startX = -1;
      }
    }
    if (progress) progress->Report(OracleRound(1LL * scale * (y + 1), picture.Height()), 1);
  }
  return region;
}

OracleBuild OracleBuildRegion(const OraclePicture& picture, const std::vector<TColor>& colors, bool button,
                              int style, IVRXProgress* progress) {
  const int scale = button ? 33 : style < 1 ? 100 : 50;
  int offset = 0;
  OracleBuild build;
  build.Region = OracleCreateRegion(picture, colors, scale, progress);
  const SlowRegion* region = build.Region ? &*build.Region : nullptr;
  offset += scale;
  build.Border = picture;
  if (!button) {
    OraclePaintBorder(2, build.Border, region, style, {scale, offset}, progress);
    return build;
  }
  build.First = picture;
  if (style == 0) OraclePaintBorder(3, build.First, region, 4, {scale, offset}, progress);
  if (style == 1) OraclePaintBorder(3, build.First, region, 2, {scale, offset}, progress);
  offset += scale;
  build.Second = OraclePicture(picture.Width(), picture.Height(), clWhite);
  build.Second.Draw(1, 1, picture);
  if (style == 0) OraclePaintBorder(3, build.Second, region, 5, {scale, offset}, progress);
  if (style == 1) OraclePaintBorder(3, build.Second, region, 3, {scale, offset}, progress);
  return build;
}
