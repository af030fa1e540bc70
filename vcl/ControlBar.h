// Bars that others can be moved about in.
#pragma once
#include "vcl/Control.h"

enum class TCornerEdge : std::uint8_t { ceNone, ceSmall, ceMedium, ceLarge };
VRX_ENUM(TCornerEdge, {"ceNone", "ceSmall", "ceMedium", "ceLarge"})

class TControlBar : public TWinControl {
  VRX_CLASS(TControlBar)
 public:
  explicit TControlBar(TComponent* owner);
  static constexpr TKept<TBevelKind> BevelKind{"BevelKind", TBevelKind::bkTile};
  static constexpr TKept<int> RowSize{"RowSize", 26};

  bool AcceptsControls() const override { return true; }
  QRect ClientRect() const override;
  QMargins Insets() const override;
  // A grip in front of everything that stands in it.
  void Paint(TCanvas& canvas) override;

 protected:
  QSize AutoSizeHint() const override { return ContentExtent(); }
};
