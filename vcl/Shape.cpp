#include "vcl/Shape.h"

#include <QPolygonF>
#include <cmath>

#include "vcl/LineRect.h"
#include "vcl/PropertyGroups.h"

const TClass& TShape::StaticClass() {
  static const TClass cls(
      DescribeClass<TShape>("TShape", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Dragging, Help, Hints, Styling, "Enabled", "PopupMenu", "Visible",
                      MouseEvents, WheelEvents, DragEvents)
          .PublishedAll(Brush, Pen, Shape)
          .Event("OnPaint")
          .Event("OnShapeClick")
          .Event("OnShapePoints", "TShapePointsEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A rectangle, an ellipse or something between."),
              "pen line 1.5 brush fill oval 8.5 8.5 12 12 pen accent 1.5 brush none box 3.5 3.5 11 11 0"));
  return cls;
}

namespace {
// Ten corners, of which every second one is drawn in.
QPolygonF Star(const QRectF& r, double first) {
  constexpr int corners = 10;
  constexpr double inner = 0.38;
  QPolygonF star;
  for (int i = 0; i < corners; ++i) {
    const double angle = first + i * 2 * M_PI / corners, reach = i % 2 == 0 ? 1 : inner;
    star << r.center() +
                QPointF(std::sin(angle) * reach * r.width() / 2, -std::cos(angle) * reach * r.height() / 2);
  }
  return star;
}

// Of shapes that have corners only; the program gives those of a polygon.
QPolygonF CornersOf(TShapeType shape, const QRectF& r) {
  const QPointF c = r.center();
  const QPointF left(r.left(), c.y()), right(r.right(), c.y()), top(c.x(), r.top()),
      bottom(c.x(), r.bottom());
  switch (shape) {
    case TShapeType::stSquaredDiamond:
    case TShapeType::stDiamond:
      return {{top, right, bottom, left}};
    case TShapeType::stTriangle:
      return {{top, r.bottomRight(), r.bottomLeft()}};
    case TShapeType::stTriangleLeft:
      return {{left, r.topRight(), r.bottomRight()}};
    case TShapeType::stTriangleRight:
      return {{right, r.bottomLeft(), r.topLeft()}};
    case TShapeType::stTriangleDown:
      return {{bottom, r.topLeft(), r.topRight()}};
    case TShapeType::stStar:
      return Star(r, 0);
    case TShapeType::stStarDown:
      return Star(r, M_PI);
    default:
      return {};
  }
}
}  // namespace

TShape::TShape(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 65, 65); }

void TShape::Paint(TCanvas& canvas) {
  QPainter& p = canvas.Painter();
  const TShapeType shape = Get(Shape);
  const QPen pen = ToQPen(*Get(Pen));
  const double half = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
  QRectF r = QRectF(ClientRect()).adjusted(half, half, -half, -half);
  using enum TShapeType;
  if (shape == stSquare || shape == stRoundSquare || shape == stCircle || shape == stSquaredDiamond) {
    const double side = std::min(r.width(), r.height());
    r = QRectF(r.center() - QPointF(side, side) / 2, QSizeF(side, side));
  }
  p.setRenderHint(QPainter::Antialiasing, shape != stRectangle && shape != stSquare);
  p.setPen(pen);
  p.setBrush(ToQBrush(*Get(Brush)));
  if (shape == stEllipse || shape == stCircle) return p.drawEllipse(r);
  if (const QPolygonF corners = CornersOf(shape, r); !corners.isEmpty()) return p.drawPolygon(corners);
  const double round =
      shape == stRoundRect || shape == stRoundSquare ? std::min(r.width(), r.height()) / 8 : 0;
  p.drawRoundedRect(r, round, round);
}

const TClass& TBevel::StaticClass() {
  static const TClass cls(
      DescribeClass<TBevel>("TBevel", TGraphicControl::StaticClass())
          .PublishAll(Placing, Placement, Help, Hints, "Visible")
          .PublishedAll(Shape, Style)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A line or a frame that divides."),
                    "pen line 1.5 brush fill box 4 5.5 16 13 0 pen accent 1.5 path 4 18.5 4 5.5 20 5.5"));
  return cls;
}

TBevel::TBevel(TComponent* owner) : TGraphicControl(owner) { SetBounds(0, 0, 50, 50); }

void TBevel::Paint(TCanvas& canvas) {
  const bool raised = Get(Style) == TBevelStyle::bsRaised;
  const TColor first = raised ? clBtnHighlight : clBtnShadow, second = raised ? clBtnShadow : clBtnHighlight;
  const QRect r = ClientRect();
  const auto line = [&](const QRect& a, const QRect& b) {
    canvas.FillRect(a, first);
    canvas.FillRect(b, second);
  };
  switch (Get(Shape)) {
    case TBevelShape::bsBox:
      canvas.Frame3D(r, first, second, 1);
      break;
    case TBevelShape::bsFrame:
      canvas.Frame3D(r.adjusted(0, 0, -1, -1), first, first, 1);
      canvas.Frame3D(r.adjusted(1, 1, 0, 0), second, second, 1);
      break;
    case TBevelShape::bsTopLine:
      line(QRect(0, 0, r.width(), 1), QRect(0, 1, r.width(), 1));
      break;
    case TBevelShape::bsBottomLine:
      line(QRect(0, r.height() - 2, r.width(), 1), QRect(0, r.height() - 1, r.width(), 1));
      break;
    case TBevelShape::bsLeftLine:
      line(QRect(0, 0, 1, r.height()), QRect(1, 0, 1, r.height()));
      break;
    case TBevelShape::bsRightLine:
      line(QRect(r.width() - 2, 0, 1, r.height()), QRect(r.width() - 1, 0, 1, r.height()));
      break;
    case TBevelShape::bsSpacer:
      // Nothing when the program runs; the designer shows where it is.
      if (IsDesigning()) {
        canvas.Painter().setPen(QPen(ToQColor(clBtnShadow), 1, Qt::DotLine));
        canvas.Painter().setBrush(Qt::NoBrush);
        canvas.Painter().drawRect(LineRect(r));
      }
      break;
  }
}
