#include "library/components/FormShape.h"

const TClass& TVRXFormShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXFormShape>("TVRXFormShape", TFormDecor::StaticClass())
          .Published(BorderColor)
          .Doc(QStringLiteral("Color of the line along the outline; clNone is none."))
          .Published(BorderWidth)
          .Doc(QStringLiteral("Width of the line along the outline, in pixels."))
          .Published(Enabled)
          .Doc(QStringLiteral("Whether the form has the shape."))
          .Published(Radius)
          .Doc(QStringLiteral("Of rounded corners, in pixels."))
          .Published("RegionMask", &TVRXFormShape::RegionMask, &TVRXFormShape::SetRegionMask)
          .Doc(QStringLiteral("The outline of a form that is cut out of a picture."))
          .Published(Shape)
          .Doc(QStringLiteral("The outline of the form."))
          .ClassDoc(QStringLiteral("Gives the form an outline that is no rectangle."),
                    "pen line 1 dots brush none box 3 4 18 16 0 pen line 1.5 brush accent oval 4 5 16 14"));
  return cls;
}

TVRXFormShape::TVRXFormShape(TComponent* owner)
    : TFormDecor(owner), mask_(std::make_unique<TVRXRegionMask>(this)) {}

QPainterPath TVRXFormShape::Outline(const QRect& window) const {
  QPainterPath path;
  if (!Get(Enabled)) return path;
  switch (Get(Shape)) {
    case TVRXFormOutline::foRectangle:
      path.addRect(window);
      break;
    case TVRXFormOutline::foRounded: {
      const int radius = std::clamp(Get(Radius), 0, std::min(window.width(), window.height()) / 2);
      path.addRoundedRect(window, radius, radius);
      break;
    }
    case TVRXFormOutline::foEllipse:
      path.addEllipse(window);
      break;
    case TVRXFormOutline::foRegion:
      for (const TRect& r : mask_->Region().Rects())
        path.addRect(QRect(QPoint(r.Left, r.Top), QPoint(r.Right - 1, r.Bottom - 1)));
      path = path.simplified();
      break;
  }
  return path;
}

void TVRXFormShape::PaintBorder(TCanvas& canvas, const QPainterPath& outline, bool) const {
  const int width = Get(BorderWidth);
  if (!Get(Enabled) || width <= 0 || Get(BorderColor) == clNone) return;
  QPainter& p = canvas.Painter();
  p.setRenderHint(QPainter::Antialiasing);
  p.setClipPath(outline, Qt::IntersectClip);
  // The outer half of the line is cut off.
  p.strokePath(outline, QPen(ToQColor(Get(BorderColor)), 2.0 * width));
}
