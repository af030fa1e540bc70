// Lets a panel slide out from an edge of its form, and back.
#pragma once
#include "vcl/Control.h"

enum class TVRXFlyoutSide : std::uint8_t { fsLeft, fsTop, fsRight, fsBottom };
VRX_ENUM(TVRXFlyoutSide, {"fsLeft", "fsTop", "fsRight", "fsBottom"})

class TVRXFlyoutController : public TComponent {
  VRX_CLASS(TVRXFlyoutController)
 public:
  using TComponent::TComponent;
  static constexpr TKept<TWinControl*> Control{"Control"};
  // In milliseconds: before it begins to slide, and until it has slid.
  static constexpr TKept<int> Delay{"Delay", 250};
  static constexpr TKept<int> Duration{"Duration", 150};
  static constexpr TKept<bool> Enabled{"Enabled", true};
  static constexpr TKept<int> HandleSize{"HandleSize", 8};
  static constexpr TKept<bool> Pinned{"Pinned", false};
  static constexpr TKept<TVRXFlyoutSide> Side{"Side", TVRXFlyoutSide::fsLeft};

  // How far it is out, from 0 to 1, so many milliseconds after the pointer came (or went). One that is pinned
  // or not enabled is always out.
  double OutAfter(int milliseconds, bool came) const;
  // Where the control stands in a parent of that size when it is so far out: on its side, with the handle in
  // sight when it is not out at all.
  QRect PlaceAt(double out, QSize parent) const;
};
