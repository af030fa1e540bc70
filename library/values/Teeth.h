// A rectangle with one toothed side.
#pragma once
#include <QPolygonF>

#include "rtl/Kept.h"

// Where the teeth point to.
enum class TVRXTeethDirection : std::uint8_t { tdRight, tdDown, tdLeft, tdUp };
VRX_ENUM(TVRXTeethDirection, {"tdRight", "tdDown", "tdLeft", "tdUp"})

class TVRXTeeth : public TKeptPart {
  VRX_CLASS(TVRXTeeth)
 public:
  using TKeptPart::TKeptPart;
  static constexpr TKept<TVRXTeethDirection> Direction{"Direction", TVRXTeethDirection::tdRight};
  static constexpr TKept<std::int8_t> Count{"Count", 5};
  // Along the side, and across it.
  static constexpr TKept<int> Width{"Width", 8};
  static constexpr TKept<int> Height{"Height", 8};
  // Whether the side begins and ends with the tip of a tooth, which makes its corners sharp.
  static constexpr TKept<bool> Offset{"Offset", true};
  // By count the teeth are half as high as they are wide. By size as many stand on the side as fit best, all
  // of one width. Neither makes more than one for a pixel.
  static constexpr TKept<bool> SetPerCount{"SetPerCount", true};

  // The rectangle itself when there are no teeth.
  QPolygonF Outline(const QRectF& rect) const;
};
