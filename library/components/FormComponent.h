// What a form does as a window of the application, and the line inside of its frame.
#pragma once
#include "rtl/Kept.h"
#include "vcl/FormDecor.h"

class TVRXForm : public TFormDecor {
  VRX_CLASS(TVRXForm)
 public:
  explicit TVRXForm(TComponent* owner) : TFormDecor(owner) {}
  static constexpr TKept<TColor> FrameColor{"FrameColor", clNone};
  static constexpr TKept<int> FrameWidth{"FrameWidth", 2};

  void PaintBorder(TCanvas& canvas, const QPainterPath& outline, bool active) const override;
};
