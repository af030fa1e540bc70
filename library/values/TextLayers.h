// The copies of a text that make its light and shadow.
#pragma once
#include <QPoint>
#include <vector>

#include "library/values/FontFx.h"

struct TVRXTextEffect {
  TVRX3DTextStyle Style;
  TColor LightColor, ShadowColor;
  int LightDepth, ShadowDepth;
  QPoint ShadowOffset;  // beyond its depth
};
struct TVRXTextLayer {
  QPoint Offset;
  QColor Color;
};
// From the back to the front, the letters themselves last. `behind` is the colour of letters that take it
// from what they stand on.
std::vector<TVRXTextLayer> VRXTextLayers(const TVRXTextEffect& effect, QColor letters, QColor behind);
