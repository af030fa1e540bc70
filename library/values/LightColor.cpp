#include "library/values/LightColor.h"

#include <array>

TVRXLightColors VRXGetLightColors(TVRXLightColor color) {
  // The dark shade is the bright one at about a quarter of its light, so that a dark segment is still seen.
  static constexpr std::array<TVRXLightColors, 7> colors{{
      {clSilver, RGBColor(64, 64, 64)},
      {RGBColor(72, 148, 255), RGBColor(16, 34, 78)},
      {RGBColor(255, 56, 48), RGBColor(80, 14, 12)},
      {RGBColor(56, 240, 88), RGBColor(10, 62, 20)},
      {RGBColor(255, 222, 40), RGBColor(78, 66, 8)},
      {RGBColor(40, 224, 224), RGBColor(8, 60, 64)},
      {RGBColor(208, 92, 255), RGBColor(56, 20, 72)},
  }};
  const auto index = static_cast<std::size_t>(color);
  return colors[index < colors.size() ? index : 0];
}
