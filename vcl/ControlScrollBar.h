// The scroll bars that a form or a scroll box brings along.
#pragma once
#include "rtl/Kept.h"
#include "vcl/Colors.h"

enum class TScrollBarStyle : std::uint8_t { ssRegular, ssFlat, ssHotTrack };
VRX_ENUM(TScrollBarStyle, {"ssRegular", "ssFlat", "ssHotTrack"})

class TControlScrollBar : public TKeptPart {
  VRX_CLASS(TControlScrollBar)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<int> Position{"Position", 0};
  static constexpr TKept<int> Range{"Range", 0};
  static constexpr TKept<bool> Visible{"Visible", true};
};
