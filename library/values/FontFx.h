// Effects on the letters of a text: direction, spacing, and light and shadow around them.
#pragma once
#include "rtl/Persistent.h"
#include "vcl/Colors.h"

enum class TVRX3DTextStyle : std::uint8_t {
  tdNone,
  tdSunken,
  tdRaised,
  tdSunkenShadow,
  tdRaisedShadow,
  tdPColorSunken,
  tdPColorRaised,
  tdShadow
};
VRX_ENUM(TVRX3DTextStyle, {"tdNone", "tdSunken", "tdRaised", "tdSunkenShadow", "tdRaisedShadow",
                           "tdPColorSunken", "tdPColorRaised", "tdShadow"})

class TVRXFxCaption : public TOwnedPersistent {
  VRX_CLASS(TVRXFxCaption)
 public:
  explicit TVRXFxCaption(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}

  // Indexed setters, as editors use them: 0 light, 1 shadow.
  void SetDepth(int index, std::uint8_t pixels);
  void SetColor(int index, TColor color);

  // Degrees against the clock, 0 to 360.
  std::uint16_t Angle() const { return angle_; }
  void SetAngle(std::uint16_t v) { Change(angle_, std::min<std::uint16_t>(v, 360)); }
  TColor LightColor() const { return lightColor_; }
  TColor ShadowColor() const { return shadowColor_; }
  // How far light and shadow stand out, in pixels.
  std::uint8_t LightDepth() const { return lightDepth_; }
  std::uint8_t ShadowDepth() const { return shadowDepth_; }
  TVRX3DTextStyle Style() const { return style_; }
  void SetStyle(TVRX3DTextStyle v) { Change(style_, v); }
  // Pixels between letters beyond their own distance.
  std::int16_t Tracing() const { return tracing_; }
  void SetTracing(std::int16_t v) { Change(tracing_, v); }

 private:
  void SetLightColor(TColor v) { SetColor(0, v); }
  void SetShadowColor(TColor v) { SetColor(1, v); }
  void SetLightDepth(std::uint8_t v) { SetDepth(0, v); }
  void SetShadowDepth(std::uint8_t v) { SetDepth(1, v); }

  TColor lightColor_ = clWhite, shadowColor_ = clGray;
  std::int16_t tracing_ = 0;
  std::uint16_t angle_ = 0;
  std::uint8_t lightDepth_ = 1, shadowDepth_ = 1;
  TVRX3DTextStyle style_ = TVRX3DTextStyle::tdNone;
};
