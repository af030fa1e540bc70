// Handles that are moved along a track.
#pragma once
#include "vcl/Ranged.h"

enum class TTrackBarOrientation : std::uint8_t { trHorizontal, trVertical };
VRX_ENUM(TTrackBarOrientation, {"trHorizontal", "trVertical"})
enum class TTickMark : std::uint8_t { tmBottomRight, tmTopLeft, tmBoth };
VRX_ENUM(TTickMark, {"tmBottomRight", "tmTopLeft", "tmBoth"})
enum class TTickStyle : std::uint8_t { tsNone, tsAuto, tsManual };
VRX_ENUM(TTickStyle, {"tsNone", "tsAuto", "tsManual"})
enum class TPositionToolTip : std::uint8_t { ptNone, ptTop, ptLeft, ptBottom, ptRight };
VRX_ENUM(TPositionToolTip, {"ptNone", "ptTop", "ptLeft", "ptBottom", "ptRight"})
enum class TTrackBarScalePos : std::uint8_t { trLeft, trRight, trTop, trBottom };
VRX_ENUM(TTrackBarScalePos, {"trLeft", "trRight", "trTop", "trBottom"})

class TTrackBar : public TRangedControl<10> {
  VRX_CLASS(TTrackBar)
 public:
  explicit TTrackBar(TComponent* owner);
  static constexpr TKept<int> Frequency{"Frequency", 1};
  static constexpr TKept<TTrackBarOrientation> Orientation{"Orientation", TTrackBarOrientation::trHorizontal};
  static constexpr TKept<bool> Reversed{"Reversed", false};
  static constexpr TKept<bool> SliderVisible{"SliderVisible", true};
  static constexpr TKept<TTickMark> TickMarks{"TickMarks", TTickMark::tmBottomRight};
  static constexpr TKept<TTickStyle> TickStyle{"TickStyle", TTickStyle::tsAuto};

  TTrackBarOrientation OrientationOf() const { return Get(Orientation); }
  // The sides change places.
  void SetOrientation(TTrackBarOrientation v);

  void Paint(TCanvas& canvas) override;
};
