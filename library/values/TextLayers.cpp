#include "library/values/TextLayers.h"

using enum TVRX3DTextStyle;

namespace {
bool Sunken(TVRX3DTextStyle s) { return s == tdSunken || s == tdSunkenShadow || s == tdPColorSunken; }
bool Lit(TVRX3DTextStyle s) { return s != tdNone && s != tdShadow; }
bool Thick(TVRX3DTextStyle s) { return s == tdSunkenShadow || s == tdRaisedShadow; }
}  // namespace

std::vector<TVRXTextLayer> VRXTextLayers(const TVRXTextEffect& e, QColor letters, QColor behind) {
  std::vector<TVRXTextLayer> layers;
  const int side = Sunken(e.Style) ? -1 : 1;  // where the shadow falls
  const auto add = [&](int direction, int depth, QPoint offset, TColor color) {
    if (depth == 0 && offset.isNull()) return;
    const auto at = [&](int distance) {
      layers.push_back({offset + direction * distance * QPoint(1, 1), ToQColor(color)});
    };
    // A thick side is filled up to its depth, the others are a single copy.
    if (Thick(e.Style))
      for (int i = depth; i > 1; --i) at(i);
    at(Thick(e.Style) ? std::min(depth, 1) : depth);
  };
  if (Lit(e.Style)) add(-side, e.LightDepth, {}, e.LightColor);
  if (e.Style != tdNone) add(side, e.ShadowDepth, e.ShadowOffset, e.ShadowColor);
  layers.push_back({{}, e.Style == tdPColorSunken || e.Style == tdPColorRaised ? behind : letters});
  return layers;
}
