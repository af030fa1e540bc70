// The look of a form's title bar: ground, and the letters of the caption.
#pragma once
#include "library/values/Font3D.h"
#include "vcl/Control.h"
#include "vcl/FormDecor.h"

enum class TVRXFormStylerOption : std::uint8_t {
  foAdjustRect,
  foUseDefaultFont,
  foActiveGradient,
  foInactiveGradient,
  foDrawCaptionEvent,
  foUseFormCaption
};
using TVRXFormStylerOptions = TSet<TVRXFormStylerOption>;
VRX_ENUM(TVRXFormStylerOption, {"foAdjustRect", "foUseDefaultFont", "foActiveGradient", "foInactiveGradient",
                                "foDrawCaptionEvent", "foUseFormCaption"})
VRX_SET(TVRXFormStylerOptions, TVRXFormStylerOption)

class TVRXFormStyler : public TFormDecor {
  VRX_CLASS(TVRXFormStyler)
 public:
  explicit TVRXFormStyler(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<QString> Caption{"Caption"};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<TColor> EndColor{"EndColor", clBtnFace};
  static constexpr TKept<TVRXFont3D*> Font3DPart{"Font3D"};
  static constexpr TKept<TColor> InactiveColor{"InactiveColor", clInactiveCaption};
  static constexpr TKept<TColor> InactiveEndColor{"InactiveEndColor", cl3DLight};
  static constexpr TKept<TColor> StartColor{"StartColor", clActiveCaption};

  TFont* Font() const { return font_.get(); }
  void SetFont(const TFont* v) { font_->Assign(v); }
  TVRXFont3D* Font3D() const { return Get(Font3DPart); }
  TVRXFormStylerOptions Options() const { return options_; }
  void SetOptions(TVRXFormStylerOptions v) { Change(options_, v); }

  void PaintTitle(TCanvas& canvas, const QPainterPath& bar, bool active) const override;
  bool PaintCaption(TCanvas& canvas, const QRect& room, const QRect& bar, const QString& caption,
                    bool active) const override;

 private:
  bool FontStored() const;
  bool Has(TVRXFormStylerOption option) const { return options_.Contains(option); }
  std::unique_ptr<TFont> font_;
  TVRXFormStylerOptions options_ = DefaultOptions;
  static constexpr TVRXFormStylerOptions DefaultOptions{
      TVRXFormStylerOption::foAdjustRect, TVRXFormStylerOption::foActiveGradient,
      TVRXFormStylerOption::foInactiveGradient, TVRXFormStylerOption::foUseFormCaption};
};
