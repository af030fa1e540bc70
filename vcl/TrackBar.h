// Handles that are moved along a track.
#pragma once
#include "vcl/Control.h"
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

class TTrackBar : public TWinControl {
  VRX_CLASS(TTrackBar)
 public:
  explicit TTrackBar(TComponent* owner);
  static constexpr TKept<int> Frequency{"Frequency", 1};
  static constexpr TKept<int> Max{"Max", 10};
  static constexpr TKept<int> Min{"Min", 0};
  static constexpr TKept<TTrackBarOrientation> Orientation{"Orientation", TTrackBarOrientation::trHorizontal};
  static constexpr TKept<int> Position{"Position", 0};
  static constexpr TKept<bool> Reversed{"Reversed", false};
  static constexpr TKept<bool> SliderVisible{"SliderVisible", true};
  static constexpr TKept<TTickMark> TickMarks{"TickMarks", TTickMark::tmBottomRight};
  static constexpr TKept<TTickStyle> TickStyle{"TickStyle", TTickStyle::tsAuto};

  TTrackBarOrientation OrientationOf() const { return Get(Orientation); }
  // The sides change places.
  void SetOrientation(TTrackBarOrientation v);
  // The position stays within its ends; ends that would change places are refused.
  int MaxOf() const { return Get(Max); }
  void SetMax(int v) { ChangeRange(*this, Get(Min), v); }
  int MinOf() const { return Get(Min); }
  void SetMin(int v) { ChangeRange(*this, v, Get(Max)); }
  int PositionOf() const { return Get(Position); }
  void SetPosition(int v) { ChangePosition(*this, v); }

  void Paint(TCanvas& canvas) override;
};
