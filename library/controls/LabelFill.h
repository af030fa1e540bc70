// Letters that are filled as an area is: with a gradient, a hatch, a bitmap.
#pragma once
#include "library/controls/CustomLabel.h"
#include "library/values/Fill.h"

class TVRXCustomLabelFill : public TVRXCustomLabel {
  VRX_CLASS(TVRXCustomLabelFill)
 public:
  using TVRXCustomLabel::TVRXCustomLabel;
  // Between the lines of a hatch; clNone leaves it to the fill.
  static constexpr TKept<TColor> BrushBackColor{"BrushBackColor", clNone};
  static constexpr TKept<TVRXFillObject*> FillPart{"FillObject"};
  static constexpr TKept<TCustomImageList*> ImageList{"ImageList"};

  TVRXFillObject* FillObject() const { return Get(FillPart); }
  void SetBrushBack(TColor v) { Set(BrushBackColor, v); }

 protected:
  void PaintText(TCanvas& canvas, const QRect& rect) override;
};

class TVRXLabelFill : public TVRXCustomLabelFill {
  VRX_CLASS(TVRXLabelFill)
 public:
  using TVRXCustomLabelFill::TVRXCustomLabelFill;

 protected:
  void NameChanged(const QString& oldName) override;
};
