// The outline of a form that is no rectangle.
#pragma once
#include "library/values/RegionMask.h"
#include "rtl/Kept.h"
#include "vcl/FormDecor.h"

enum class TVRXFormOutline : std::uint8_t { foRectangle, foRounded, foEllipse, foRegion };
VRX_ENUM(TVRXFormOutline, {"foRectangle", "foRounded", "foEllipse", "foRegion"})

class TVRXFormShape : public TFormDecor {
  VRX_CLASS(TVRXFormShape)
 public:
  explicit TVRXFormShape(TComponent* owner);
  static constexpr TKept<TColor> BorderColor{"BorderColor", clWindowFrame};
  static constexpr TKept<int> BorderWidth{"BorderWidth", 1};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> Radius{"Radius", 16};
  static constexpr TKept<TVRXFormOutline> Shape{"Shape", TVRXFormOutline::foRounded};
  TVRXRegionMask* RegionMask() const { return mask_.get(); }
  void SetRegionMask(const TVRXRegionMask* v) { mask_->Assign(v); }

  // Shows the border anew.
  void PaintBorder() const { RepaintForm(); }

  QPainterPath Outline(const QRect& window) const override;
  void PaintBorder(TCanvas& canvas, const QPainterPath& outline, bool active) const override;

 private:
  std::unique_ptr<TVRXRegionMask> mask_;
};
