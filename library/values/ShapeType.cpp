#include "library/values/ShapeType.h"

#include <QPainterPath>
#include <QTransform>
#include <cmath>
#include <numbers>

namespace {
QPolygonF Flattened(const QPainterPath& path) {
  constexpr double Fine = 8;
  return QTransform::fromScale(1 / Fine, 1 / Fine).map(path.toFillPolygon(QTransform::fromScale(Fine, Fine)));
}

// A sign post pointing to the right, as long as the rectangle is in that direction; the point takes half of
// the breadth, where there is that much.
QPolygonF Post(double length, double breadth) {
  const double point = length - std::min(length, breadth) / 2;
  return QPolygonF({{0, 0}, {point, 0}, {length, breadth / 2}, {point, breadth}, {0, breadth}});
}

// Five points on an ellipse and five between, moved and stretched to touch all sides.
QPolygonF Star(const QRectF& r) {
  constexpr double Inner = 0.381966;  // where the sides of a pentagram meet
  QPolygonF points;
  for (int i = 0; i < 10; ++i) {
    const double angle = i * std::numbers::pi / 5, radius = i % 2 == 0 ? 1 : Inner;
    points << QPointF(radius * std::sin(angle), -radius * std::cos(angle));
  }
  const QRectF is = points.boundingRect();
  return (QTransform::fromTranslate(-is.left(), -is.top()) *
          QTransform::fromScale(r.width() / is.width(), r.height() / is.height()) *
          QTransform::fromTranslate(r.left(), r.top()))
      .map(points);
}
}  // namespace

QPolygonF VRXShapeOutline(TVRXShapeType type, const QRectF& r, int roundPercent) {
  using enum TVRXShapeType;
  const double w = r.width(), h = r.height();
  const QTransform place = QTransform::fromTranslate(r.left(), r.top());
  const double shorter = std::min(w, h);
  QPainterPath path;
  switch (type) {
    case stEllipse:
      path.addEllipse(r);
      return Flattened(path);
    case stRoundRect: {
      const double radius = shorter / 2 * std::clamp(roundPercent, 0, 100) / 100;
      path.addRoundedRect(r, radius, radius);
      return Flattened(path);
    }
    case stDirectRight:
      return place.map(Post(w, h));
    case stDirectLeft:
      return (QTransform(-1, 0, 0, 1, w, 0) * place).map(Post(w, h));
    case stDirectDown:
      return (QTransform(0, 1, 1, 0, 0, 0) * place).map(Post(h, w));
    case stDirectUp:
      return (QTransform(0, -1, 1, 0, 0, h) * place).map(Post(h, w));
    case stDiamond:
      return place.map(QPolygonF({{w / 2, 0}, {w, h / 2}, {w / 2, h}, {0, h / 2}}));
    case stComb: {
      const double cut = w / 4;
      return place.map(QPolygonF({{cut, 0}, {w - cut, 0}, {w, h / 2}, {w - cut, h}, {cut, h}, {0, h / 2}}));
    }
    case stOctagon: {
      const double cut = shorter / (2 + std::numbers::sqrt2);  // a square's sides become equal
      return place.map(QPolygonF(
          {{cut, 0}, {w - cut, 0}, {w, cut}, {w, h - cut}, {w - cut, h}, {cut, h}, {0, h - cut}, {0, cut}}));
    }
    case stStar:
      return Star(r);
    default:
      return place.map(QPolygonF({{0, 0}, {w, 0}, {w, h}, {0, h}}));
  }
}
