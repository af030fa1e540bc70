// What is done to a picture before it is shown.
#pragma once
#include <QImage>

#include "rtl/Kept.h"
#include "vcl/Colors.h"

enum class TVRXBitmapEffectKind : std::uint8_t {
  beNone,
  beGray,
  beLighten,
  beDarken,
  beTint,
  beFade,
  beInvert
};
VRX_ENUM(TVRXBitmapEffectKind, {"beNone", "beGray", "beLighten", "beDarken", "beTint", "beFade", "beInvert"})

class TVRXBitmapEffect : public TKeptPart {
  VRX_CLASS(TVRXBitmapEffect)
 public:
  using TKeptPart::TKeptPart;
  // How much of it, in percent; 0 leaves the picture as it is.
  static constexpr TKept<std::uint8_t> Amount{"Amount", 60};
  // What a tint leads to.
  static constexpr TKept<TColor> Color{"Color", clHighlight};
  static constexpr TKept<TVRXBitmapEffectKind> Kind{"Kind", TVRXBitmapEffectKind::beGray};

  // A new picture. What is transparent stays so; only beFade makes more of it so.
  QImage Apply(const QImage& picture) const;
};
