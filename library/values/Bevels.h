// Bevels: the simple one along the outline of any figure, and the one around rectangular controls.
#pragma once
#include "rtl/Kept.h"
#include "vcl/Canvas.h"
#include "vcl/ControlTypes.h"

enum class TVRXSimpleBevelStyle : std::uint8_t { sbNormal, sbInset, sbOffset };
VRX_ENUM(TVRXSimpleBevelStyle, {"sbNormal", "sbInset", "sbOffset"})

class TVRXSimpleBevel : public TKeptPart {
  VRX_CLASS(TVRXSimpleBevel)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TVRXSimpleBevelStyle> Style{"Style", TVRXSimpleBevelStyle::sbNormal};
  // Pixels inside of the outline. A negative one is as wide, with the light from the other side.
  static constexpr TKept<std::int8_t> Width{"Width", 2};
  static constexpr TKept<TColor> LightColor{"LightColor", clBtnHighlight};
  static constexpr TKept<TColor> ShadowColor{"ShadowColor", clBtnShadow};
  // Of a bevel without light and shadow; clNone is none.
  static constexpr TKept<TColor> NormalColor{"NormalColor", clNone};

  // What it takes of the figure, in pixels.
  int Room() const;
  void Draw(TCanvas& canvas, const QPolygonF& outline) const;
};

class TVRXBevel : public TKeptPart {
  VRX_CLASS(TVRXBevel)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TColor> BorderColor{"BorderColor", clBtnFace};
  static constexpr TKept<int> BorderWidth{"BorderWidth", 0};
  static constexpr TKept<TBevelCut> Inner{"Inner", TBevelCut::bvNone};
  static constexpr TKept<TColor> LightColor{"LightColor", clBtnHighlight};
  static constexpr TKept<TBevelCut> Outer{"Outer", TBevelCut::bvNone};
  static constexpr TKept<TColor> ShadowColor{"ShadowColor", clBtnShadow};
  static constexpr TKept<int> Width{"Width", 1};

  // Outer bevel, border and inner bevel, from the outside; returns what is left inside.
  QRect Draw(TCanvas& canvas, const QRect& rect) const;
  // What all of them take at each edge.
  int Room() const;
};
