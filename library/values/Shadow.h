// The shadow that a figure casts.
#pragma once
#include <QMargins>
#include <QPainterPath>

#include "rtl/Kept.h"
#include "vcl/Canvas.h"

// hssTracing darkens what it falls on, so that white is no shadow.
enum class TVRXShadowStyle : std::uint8_t { hssNone, hssSolid, hssTracing };
VRX_ENUM(TVRXShadowStyle, {"hssNone", "hssSolid", "hssTracing"})

class TVRXShadow : public TKeptPart {
  VRX_CLASS(TVRXShadow)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TVRXShadowStyle> Style{"Style", TVRXShadowStyle::hssNone};
  static constexpr TKept<TColor> Color{"Color", clBtnShadow};
  // Pixels to the right and down; negative ones to the left and up.
  static constexpr TKept<std::int8_t> Depth{"Depth", 3};

  // What it needs around the figure.
  QMargins Room() const;
  void Draw(TCanvas& canvas, const QPainterPath& figure) const;
  // One line that says how it is.
  QString Description() const;
};
