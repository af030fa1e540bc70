// A text that is a window of its own, with a border when asked for.
#pragma once
#include "vcl/Control.h"

enum class TStaticBorderStyle : std::uint8_t { sbsNone, sbsSingle, sbsSunken };
VRX_ENUM(TStaticBorderStyle, {"sbsNone", "sbsSingle", "sbsSunken"})

class TCustomStaticText : public TWinControl {
  VRX_CLASS(TCustomStaticText)
 public:
  explicit TCustomStaticText(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taLeftJustify};
  static constexpr TKept<TStaticBorderStyle> BorderStyle{"BorderStyle", TStaticBorderStyle::sbsNone};
  static constexpr TKept<TWinControl*> FocusControl{"FocusControl"};
  static constexpr TKept<bool> ShowAccelChar{"ShowAccelChar", true};
  static constexpr TKept<bool> Transparent{"Transparent", true};

  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override;
};

class TStaticText : public TCustomStaticText {
  VRX_CLASS(TStaticText)
 public:
  using TCustomStaticText::TCustomStaticText;
};
