// What the library's panels have in common: an edge around a surface that may let through what is behind it.
#pragma once
#include "library/values/Bevels.h"
#include "vcl/Control.h"

class TVRXSimplePanel : public TWinControl {
  VRX_CLASS(TVRXSimplePanel)
 public:
  using TWinControl::TWinControl;
  static constexpr TKept<TVRXBevel*> BevelPart{"Bevel"};
  static constexpr TKept<bool> Transparent{"Transparent", false};
  TVRXBevel* Bevel() const { return Get(BevelPart); }

  bool AcceptsControls() const override { return true; }
  QMargins Insets() const override;
  void Paint(TCanvas& canvas) override;
};
