// Lights that are on or off, in the colours of the schemes.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/LightColor.h"
#include "vcl/Control.h"

enum class TVRXLightStyle : std::uint8_t { ltRound, ltRectangle };
VRX_ENUM(TVRXLightStyle, {"ltRound", "ltRectangle"})

class TVRXCustomLight : public TGraphicControl {
  VRX_CLASS(TVRXCustomLight)
 public:
  explicit TVRXCustomLight(TComponent* owner);
  static constexpr TKept<bool> Active{"Active", true};
  static constexpr TKept<TVRXLightColor> LightColor{"LightColor", TVRXLightColor::lcGreen};
  static constexpr TKept<TVRXLightStyle> Style{"Style", TVRXLightStyle::ltRound};
  static constexpr TKept<bool> Transparent{"Transparent", true};
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  TVRXBevel* Bevel() const { return Get(BevelPart); }

  void Paint(TCanvas& canvas) override;
};

class TVRXLight : public TVRXCustomLight {
  VRX_CLASS(TVRXLight)
 public:
  using TVRXCustomLight::TVRXCustomLight;
};
