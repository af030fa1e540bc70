// Bars that show how far something has come.
#pragma once
#include "vcl/Control.h"
#include "vcl/Ranged.h"

enum class TProgressBarOrientation : std::uint8_t { pbHorizontal, pbVertical, pbRightToLeft, pbTopDown };
VRX_ENUM(TProgressBarOrientation, {"pbHorizontal", "pbVertical", "pbRightToLeft", "pbTopDown"})
enum class TProgressBarState : std::uint8_t { pbsNormal, pbsError, pbsPaused };
VRX_ENUM(TProgressBarState, {"pbsNormal", "pbsError", "pbsPaused"})
enum class TProgressBarStyle : std::uint8_t { pbstNormal, pbstMarquee };
VRX_ENUM(TProgressBarStyle, {"pbstNormal", "pbstMarquee"})

class TProgressBar : public TWinControl {
  VRX_CLASS(TProgressBar)
 public:
  explicit TProgressBar(TComponent* owner);
  static constexpr TKept<bool> BarShowText{"BarShowText", false};
  static constexpr TKept<int> Max{"Max", 100};
  static constexpr TKept<int> Min{"Min", 0};
  static constexpr TKept<TProgressBarOrientation> Orientation{"Orientation",
                                                              TProgressBarOrientation::pbHorizontal};
  static constexpr TKept<int> Position{"Position", 0};
  static constexpr TKept<TProgressBarStyle> Style{"Style", TProgressBarStyle::pbstNormal};

  // The position stays within its ends; ends that would change places are refused.
  int MaxOf() const { return Get(Max); }
  void SetMax(int v) { ChangeRange(*this, Get(Min), v); }
  int MinOf() const { return Get(Min); }
  void SetMin(int v) { ChangeRange(*this, v, Get(Max)); }
  int PositionOf() const { return Get(Position); }
  void SetPosition(int v) { ChangePosition(*this, v); }

  void Paint(TCanvas& canvas) override;
};
