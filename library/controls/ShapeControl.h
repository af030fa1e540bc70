// Figures with a shadow, a bevel, a filling and a text.
#pragma once
#include "library/values/Bevels.h"
#include "library/values/Caption.h"
#include "library/values/Fill.h"
#include "library/values/Shadow.h"
#include "library/values/ShapeType.h"
#include "library/values/Teeth.h"
#include "vcl/Control.h"
#include "vcl/ImageList.h"

enum class TVRXShapeFillStyle : std::uint8_t { sfBrush, sfColor, sfClear, sfShapeFill };
VRX_ENUM(TVRXShapeFillStyle, {"sfBrush", "sfColor", "sfClear", "sfShapeFill"})

class TVRXBaseShape : public TGraphicControl {
  VRX_CLASS(TVRXBaseShape)
 public:
  explicit TVRXBaseShape(TComponent* owner);

  static constexpr TKept<TVRXShapeType> Shape{"Shape", TVRXShapeType::stRectangle};
  static constexpr TKept<std::uint8_t> RoundPercent{"RoundPercent", 40};
  // The figure is as wide as it is high, in the middle.
  static constexpr TKept<bool> Square{"Square", false};
  // A rectangle with teeth in place of the shape.
  static constexpr TKept<bool> DrawTeeth{"DrawTeeth", false};
  static constexpr TKept<TVRXShapeFillStyle> FillStyle{"FillStyle", TVRXShapeFillStyle::sfBrush};
  // Where a shape fill finds pictures by index.
  static constexpr TKept<TCustomImageList*> ShapeFillImageList{"ShapeFillImageList"};
  // The outline, of one pixel; clNone is none.
  static constexpr TKept<TColor> BevelColor{"BevelColor", clBlack};
  // What is around the figure shows through; else it has the control's colour.
  static constexpr TKept<bool> Transparent{"Transparent", false};
  static constexpr TKept<TVRXSimpleBevel*> BevelPart{"Bevel"};
  static constexpr TKept<TBrush*> BrushPart{"Brush"};
  static constexpr TKept<TVRXCaption*> CaptionPart{"Caption"};
  static constexpr TKept<TVRXShadow*> ShadowPart{"Shadow"};
  static constexpr TKept<TVRXShapeFill*> ShapeFillPart{"ShapeFill"};
  static constexpr TKept<TVRXTeeth*> TeethPart{"Teeth"};

  TVRXSimpleBevel* Bevel() const { return Get(BevelPart); }
  TBrush* Brush() const { return Get(BrushPart); }
  TVRXCaption* Caption() const { return Get(CaptionPart); }
  TVRXShadow* Shadow() const { return Get(ShadowPart); }
  TVRXShapeFill* ShapeFill() const { return Get(ShapeFillPart); }
  TVRXTeeth* Teeth() const { return Get(TeethPart); }

  // Of the figure that stands in this part of the control.
  QPolygonF Outline(const QRect& place) const;
  void Paint(TCanvas& canvas) override;

 protected:
  // Where figures stand.
  virtual std::vector<QRect> Places() const { return {ClientRect()}; }

 private:
  void PaintFigure(TCanvas& canvas, const QRect& place);
  void FillFigure(TCanvas& canvas, const QPainterPath& figure);
};

class TVRXShapeControl : public TVRXBaseShape {
  VRX_CLASS(TVRXShapeControl)
 public:
  using TVRXBaseShape::TVRXBaseShape;
};

// The same figure side by side and one below the other.
class TVRXRepeatedShape : public TVRXBaseShape {
  VRX_CLASS(TVRXRepeatedShape)
 public:
  explicit TVRXRepeatedShape(TComponent* owner);
  static constexpr TKept<int> Columns{"Columns", 3};
  static constexpr TKept<int> Rows{"Rows", 2};
  // Pixels between two of them.
  static constexpr TKept<int> HorzDistance{"HorzDistance", 4};
  static constexpr TKept<int> VertDistance{"VertDistance", 4};

 protected:
  std::vector<QRect> Places() const override;
};
