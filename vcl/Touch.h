// What a control makes of fingers and pens.
#pragma once
#include "rtl/Component.h"

enum class TInteractiveGesture : std::uint8_t { igZoom, igPan, igRotate, igTwoFingerTap, igPressAndTap };
VRX_ENUM(TInteractiveGesture, {"igZoom", "igPan", "igRotate", "igTwoFingerTap", "igPressAndTap"})
using TInteractiveGestures = TSet<TInteractiveGesture>;
VRX_SET(TInteractiveGestures, TInteractiveGesture)
enum class TInteractiveGestureOption : std::uint8_t {
  igoPanSingleFingerHorizontal,
  igoPanSingleFingerVertical,
  igoPanInertia,
  igoPanGutter,
  igoParentPassthrough
};
VRX_ENUM(TInteractiveGestureOption, {"igoPanSingleFingerHorizontal", "igoPanSingleFingerVertical",
                                     "igoPanInertia", "igoPanGutter", "igoParentPassthrough"})
using TInteractiveGestureOptions = TSet<TInteractiveGestureOption>;
VRX_SET(TInteractiveGestureOptions, TInteractiveGestureOption)
enum class TTabletOption : std::uint8_t {
  toPressAndHold,
  toPenTapFeedback,
  toPenBarrelFeedback,
  toTouchUIForceOn,
  toTouchUIForceOff,
  toTouchSwitch,
  toFlicks,
  toSmoothScrolling,
  toFlickFallbackKeys
};
VRX_ENUM(TTabletOption,
         {"toPressAndHold", "toPenTapFeedback", "toPenBarrelFeedback", "toTouchUIForceOn",
          "toTouchUIForceOff", "toTouchSwitch", "toFlicks", "toSmoothScrolling", "toFlickFallbackKeys"})
using TTabletOptions = TSet<TTabletOption>;
VRX_SET(TTabletOptions, TTabletOption)

class TTouchManager : public TKeptPart {
  VRX_CLASS(TTouchManager)
 public:
  using TKeptPart::TKeptPart;
};
