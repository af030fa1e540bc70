#include "library/controls/ShapeControl.h"

#include "vcl/PropertyGroups.h"

const TClass& TVRXBaseShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXBaseShape>("TVRXBaseShape", TGraphicControl::StaticClass())
          .Icon(
              "pen line 1.3 brush fill shape 8 4.5 16 4.5 21 12 16 19.5 8 19.5 3 12 pen accent 1.8 path 8.5 "
              "10.5 15.5 10.5 path 8.5 13.5 13.5 13.5")
          .Declared("BevelColor", &TVRXBaseShape::BevelColor, &TVRXBaseShape::SetBevelColor, clBlack)
          .Doc(QStringLiteral("Colour of the outline; clNone is none."))
          .Declared("Brush", &TVRXBaseShape::Brush, &TVRXBaseShape::SetBrush)
          .Doc(QStringLiteral("How the area is filled."))
          .Declared("Caption", &TVRXBaseShape::Caption, &TVRXBaseShape::SetCaption)
          .Doc(QStringLiteral("The text, with its place, font and effects."))
          .Declared("Transparent", &TVRXBaseShape::Transparent, &TVRXBaseShape::SetTransparent, false)
          .Doc(QStringLiteral("Lets what is behind the shape show through.")));
  return cls;
}

const TClass& TVRXShapeControl::StaticClass() {
  static const TClass cls(DescribeClass<TVRXShapeControl>("TVRXShapeControl", TVRXBaseShape::StaticClass())
                              .PublishAll(Placing, "BevelColor", "Brush", "Caption", "Enabled", Hints,
                                          "Transparent", "Visible", MouseEvents)
                              .ClassDoc(QStringLiteral("A filled area with an outline and a text.")));
  return cls;
}

TVRXBaseShape::TVRXBaseShape(TComponent* owner)
    : TGraphicControl(owner),
      brush_(std::make_unique<TBrush>(this)),
      caption_(std::make_unique<TVRXCaption>(this)) {
  SetBounds(0, 0, 105, 65);
}
TVRXBaseShape::~TVRXBaseShape() = default;

void TVRXBaseShape::SetBevelColor(TColor v) { Change(bevelColor_, v); }

void TVRXBaseShape::SetTransparent(bool v) { Change(transparent_, v); }

void TVRXBaseShape::Paint(TCanvas& canvas) {
  const QRect area = ClientRect();
  QPainter& p = canvas.Painter();
  if (!transparent_) p.fillRect(area, ToQBrush(*brush_));
  int edge = 0;
  if (bevelColor_ != clNone && area.width() > 1 && area.height() > 1) {
    canvas.Frame3D(area, bevelColor_, bevelColor_, 1);
    edge = 1;
  }
  constexpr int Padding = 2;
  const QRect room = area.adjusted(edge + Padding, edge + Padding, -edge - Padding, -edge - Padding);
  p.save();
  p.setClipRect(area, Qt::IntersectClip);
  caption_->Draw(canvas, room, Enabled(), brush_->Color());
  p.restore();
}
