// Bars that show how far something has come.
#pragma once
#include "vcl/Ranged.h"

enum class TProgressBarOrientation : std::uint8_t { pbHorizontal, pbVertical, pbRightToLeft, pbTopDown };
VRX_ENUM(TProgressBarOrientation, {"pbHorizontal", "pbVertical", "pbRightToLeft", "pbTopDown"})
enum class TProgressBarState : std::uint8_t { pbsNormal, pbsError, pbsPaused };
VRX_ENUM(TProgressBarState, {"pbsNormal", "pbsError", "pbsPaused"})
enum class TProgressBarStyle : std::uint8_t { pbstNormal, pbstMarquee };
VRX_ENUM(TProgressBarStyle, {"pbstNormal", "pbstMarquee"})

class TProgressBar : public TRangedControl<100> {
  VRX_CLASS(TProgressBar)
 public:
  explicit TProgressBar(TComponent* owner);
  static constexpr TKept<bool> BarShowText{"BarShowText", false};
  static constexpr TKept<TProgressBarOrientation> Orientation{"Orientation",
                                                              TProgressBarOrientation::pbHorizontal};
  static constexpr TKept<TProgressBarStyle> Style{"Style", TProgressBarStyle::pbstNormal};

  void Paint(TCanvas& canvas) override;
};
