// Surfaces that group other controls.
#pragma once
#include "vcl/Edit.h"

enum class TVerticalAlignment : std::uint8_t { taAlignTop, taAlignBottom, taVerticalCenter };
VRX_ENUM(TVerticalAlignment, {"taAlignTop", "taAlignBottom", "taVerticalCenter"})

class TCustomPanel : public TWinControl {
  VRX_CLASS(TCustomPanel)
 public:
  explicit TCustomPanel(TComponent* owner);
  static constexpr TKept<TAlignment> Alignment{"Alignment", TAlignment::taCenter};
  static constexpr TKept<TBevelCut> BevelInner{"BevelInner", TBevelCut::bvNone};
  static constexpr TKept<TBevelCut> BevelOuter{"BevelOuter", TBevelCut::bvRaised};
  static constexpr TKept<TBorderStyle> BorderStyle{"BorderStyle", TBorderStyle::bsNone};
  static constexpr TKept<int> BorderWidth{"BorderWidth", 0};
  static constexpr TKept<bool> ShowCaption{"ShowCaption", true};
  static constexpr TKept<TVerticalAlignment> VerticalAlignment{"VerticalAlignment",
                                                               TVerticalAlignment::taVerticalCenter};

  bool AcceptsControls() const override { return true; }
  // Without what lies outside of the surface: a border, and edges of a kind.
  QRect ClientRect() const override;
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return ContentExtent(); }

 private:
  QMargins Frame() const;
};

class TPanel : public TCustomPanel {
  VRX_CLASS(TPanel)
 public:
  using TCustomPanel::TCustomPanel;
};
