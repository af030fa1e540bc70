// The strip with a title that panels have along one of their edges: its ground, a picture, the text, small
// buttons at its end.
#pragma once
#include "library/values/Fill.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

struct TVRXStrip {
  QString Text;
  const TFont* Font = nullptr;
  bool Bold = true;
  TAlignment Alignment = TAlignment::taLeftJustify;
  const TVRXFillObject* Fill = nullptr;  // null: what is behind shows through
  const TCustomImageList* Images = nullptr;
  int Image = -1;
  bool Enabled = true;
  int AtEnd = 0;  // pixels that others take at its end
};
// How thick a strip is that has room for its text.
int StripThickness(const TFont& font, const TCustomImageList* images = nullptr, int image = -1);
void PaintStrip(TCanvas& canvas, const QRect& rect, const TVRXStrip& strip);
// The same along the left or the right edge: the text runs up or down.
void PaintUprightStrip(TCanvas& canvas, const QRect& rect, const TVRXStrip& strip, bool up);

// What small buttons show.
enum class TVRXStripMark : std::uint8_t { Close, Help, Menu, Fold, Unfold, FoldLeft, FoldRight, Pin };
void PaintStripMark(TCanvas& canvas, const QRect& rect, TVRXStripMark mark, const TFont& font, bool enabled);
