// Measuring and drawing texts with font effects.
#pragma once
#include "library/values/FontFx.h"
#include "vcl/Canvas.h"

// The platform's text-format flags, as far as they are used here.
enum TTextFlag : unsigned {
  tfCenter = 0x1,
  tfRight = 0x2,
  tfVCenter = 0x4,
  tfBottom = 0x8,
  tfWordBreak = 0x10,
  tfSingleLine = 0x20,
  tfExpandTabs = 0x40,
  tfNoPrefix = 0x800,
};

// Disabled: grey letters. ParentColor: the letters have the colour behind them. Ellipsis: a text that is too
// long ends in dots. Measured: the calculation rectangle is given and the text is not measured again.
enum class TVRXTextOption : std::uint8_t { Disabled, ParentColor, Ellipsis, Measured };
using TVRXTextOptions = TSet<TVRXTextOption>;

// The rectangle from (0, 0) that holds the text with its effects. `maxWidth` limits the lines of a multi-line
// text; 0 is no limit.
QRect VRXDrawTextCalcExt(const QString& text, const TVRXFxCaption& fx, const TFont& font, bool multiLine,
                         int maxWidth = 0);
// Draws the text into the rectangle by the flags. With an angle the text is one line, and its turned outline
// is what is aligned. `behind` is the colour of letters that take it from what they stand on.
void VRXDrawTextExt(TCanvas& canvas, const QString& text, const TVRXFxCaption& fx, const TFont& font,
                    const QRect& rect, TVRXTextOptions options, unsigned flags, const QRect& calculated,
                    TColor behind = clBtnFace);
