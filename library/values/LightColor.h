// The colour schemes of the library's lights and LED letters.
#pragma once
#include "vcl/Colors.h"

enum class TVRXLightColor : std::uint8_t { lcNone, lcBlue, lcRed, lcGreen, lcYellow, lcMarine, lcPurple };
VRX_ENUM(TVRXLightColor, {"lcNone", "lcBlue", "lcRed", "lcGreen", "lcYellow", "lcMarine", "lcPurple"})

struct TVRXLightColors {
  TColor Active;
  TColor Inactive;
};
// The pair of colours that a scheme lights up and goes dark with. Ordinals outside the enumeration give
// lcNone's.
TVRXLightColors VRXGetLightColors(TVRXLightColor color);
