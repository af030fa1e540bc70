// The figures that shapes are drawn as.
#pragma once
#include <QPolygonF>

#include "rtl/TypeInfo.h"

enum class TVRXShapeType : std::uint8_t {
  stEllipse,
  stRectangle,
  stRoundRect,
  stDirectUp,
  stDirectRight,
  stDirectDown,
  stDirectLeft,
  stDiamond,
  stComb,
  stOctagon,
  stStar
};
VRX_ENUM(TVRXShapeType, {"stEllipse", "stRectangle", "stRoundRect", "stDirectUp", "stDirectRight",
                         "stDirectDown", "stDirectLeft", "stDiamond", "stComb", "stOctagon", "stStar"})

// The outline that fills the rectangle. `roundPercent` is that of a round rectangle: how much of the shorter
// half of a side its corners take. Curves are as fine as they must be at eight times the size.
QPolygonF VRXShapeOutline(TVRXShapeType type, const QRectF& rect, int roundPercent);
