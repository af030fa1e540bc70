// Plain drawings on a form: shapes and bevels.
#pragma once
#include "vcl/Brush.h"
#include "vcl/Control.h"
#include "vcl/Pen.h"

enum class TShapeType : std::uint8_t {
  stRectangle,
  stSquare,
  stRoundRect,
  stRoundSquare,
  stEllipse,
  stCircle,
  stSquaredDiamond,
  stDiamond,
  stTriangle,
  stTriangleLeft,
  stTriangleRight,
  stTriangleDown,
  stStar,
  stStarDown,
  stPolygon
};
VRX_ENUM(TShapeType, {"stRectangle", "stSquare", "stRoundRect", "stRoundSquare", "stEllipse", "stCircle",
                      "stSquaredDiamond", "stDiamond", "stTriangle", "stTriangleLeft", "stTriangleRight",
                      "stTriangleDown", "stStar", "stStarDown", "stPolygon"})
enum class TBevelShape : std::uint8_t {
  bsBox,
  bsFrame,
  bsTopLine,
  bsBottomLine,
  bsLeftLine,
  bsRightLine,
  bsSpacer
};
VRX_ENUM(TBevelShape,
         {"bsBox", "bsFrame", "bsTopLine", "bsBottomLine", "bsLeftLine", "bsRightLine", "bsSpacer"})
enum class TBevelStyle : std::uint8_t { bsLowered, bsRaised };
VRX_ENUM(TBevelStyle, {"bsLowered", "bsRaised"})

class TShape : public TGraphicControl {
  VRX_CLASS(TShape)
 public:
  explicit TShape(TComponent* owner);
  static constexpr TKept<TBrush*> Brush{"Brush"};
  static constexpr TKept<TPen*> Pen{"Pen"};
  static constexpr TKept<TShapeType> Shape{"Shape", TShapeType::stRectangle};
  void Paint(TCanvas& canvas) override;
};

class TBevel : public TGraphicControl {
  VRX_CLASS(TBevel)
 public:
  explicit TBevel(TComponent* owner);
  static constexpr TKept<TBevelShape> Shape{"Shape", TBevelShape::bsBox};
  static constexpr TKept<TBevelStyle> Style{"Style", TBevelStyle::bsLowered};
  void Paint(TCanvas& canvas) override;
};
