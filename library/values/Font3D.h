// Light and shadow around the letters of a text.
#pragma once
#include <QMargins>

#include "library/values/FontFx.h"
#include "rtl/Kept.h"
#include "vcl/Canvas.h"

class TVRXFont3D : public TKeptPart {
  VRX_CLASS(TVRXFont3D)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TColor> LightColor{"LightColor", clWhite};
  static constexpr TKept<std::uint8_t> LightDepth{"LightDepth", 1};
  // Pixels by which the shadow lies beyond its depth: to the right and down, negative to the left and up.
  static constexpr TKept<std::int8_t> OffsetX{"OffsetX", 0};
  static constexpr TKept<std::int8_t> OffsetY{"OffsetY", 0};
  static constexpr TKept<TColor> ShadowColor{"ShadowColor", clGray};
  static constexpr TKept<std::uint8_t> ShadowDepth{"ShadowDepth", 1};
  static constexpr TKept<TVRX3DTextStyle> Style{"Style", TVRX3DTextStyle::tdNone};

  // What light and shadow need around the letters.
  QMargins Room() const;
  // Draws the text and its effect into the rectangle; `flags` are Qt::AlignmentFlag and Qt::TextFlag.
  // `behind` is the colour that the text stands on.
  void Draw(TCanvas& canvas, const QRect& rect, int flags, const QString& text, const TFont& font,
            bool enabled, TColor behind) const {
    DrawLayers(canvas, rect, flags, text, font, enabled, behind, true);
  }
  // The effect alone, for letters that are drawn in another way.
  void DrawEffect(TCanvas& canvas, const QRect& rect, int flags, const QString& text,
                  const TFont& font) const {
    DrawLayers(canvas, rect, flags, text, font, true, clNone, false);
  }

 private:
  void DrawLayers(TCanvas& canvas, const QRect& rect, int flags, const QString& text, const TFont& font,
                  bool enabled, TColor behind, bool withLetters) const;
};
