#include "library/values/Outline.h"

#include <cmath>

namespace {
QPolygonF WithoutDoubles(const QPolygonF& outline) {
  QPolygonF points;
  for (const QPointF& p : outline)
    if (points.isEmpty() || p != points.last()) points << p;
  while (points.size() > 1 && points.first() == points.last()) points.removeLast();
  return points;
}

// Twice the area; positive when the outline runs clockwise on the screen.
double Turn(const QPolygonF& points) {
  double sum = 0;
  for (qsizetype i = 0; i < points.size(); ++i) {
    const QPointF a = points[i], b = points[(i + 1) % points.size()];
    sum += a.x() * b.y() - b.x() * a.y();
  }
  return sum;
}

QPointF Inward(QPointF from, QPointF to, double side) {
  const QPointF d = to - from;
  return QPointF(-d.y(), d.x()) * (side / std::hypot(d.x(), d.y()));
}

QPolygonF Inset(const QPolygonF& points, double pixels) {
  const qsizetype count = points.size();
  const double side = Turn(points) < 0 ? -1 : 1;
  QPolygonF inner;
  for (qsizetype i = 0; i < count; ++i) {
    const QPointF before = Inward(points[(i + count - 1) % count], points[i], side);
    const QPointF behind = Inward(points[i], points[(i + 1) % count], side);
    // A needle's corner would lie anywhere.
    const double open = std::max(0.05, 1 + QPointF::dotProduct(before, behind));
    inner << points[i] + (before + behind) * (pixels / open);
  }
  return inner;
}
// How far all sides can move inwards before the first one has no length left.
double DeepestInset(const QPolygonF& points) {
  const QPolygonF step = Inset(points, 1);
  double deepest = HUGE_VAL;
  for (qsizetype i = 0; i < points.size(); ++i) {
    const qsizetype next = (i + 1) % points.size();
    const QPointF side = points[next] - points[i], shorter = side - (step[next] - step[i]);
    const double lost = QPointF::dotProduct(shorter, side);
    if (lost > 1e-9) deepest = std::min(deepest, QPointF::dotProduct(side, side) / lost);
  }
  return deepest;
}
}  // namespace

QPolygonF InsetOutline(const QPolygonF& outline, double pixels) {
  const QPolygonF points = WithoutDoubles(outline);
  return points.size() < 3 ? points : Inset(points, pixels);
}

TEdgeStrip StripInside(const QPolygonF& outline, double pixels) {
  TEdgeStrip strip;
  strip.Lit.setFillRule(Qt::WindingFill);
  strip.Shaded.setFillRule(Qt::WindingFill);
  const QPolygonF points = WithoutDoubles(outline);
  if (points.size() < 3 || pixels <= 0) return strip;
  const QPolygonF inner = Inset(points, std::min(pixels, DeepestInset(points)));
  const double side = Turn(points) < 0 ? -1 : 1;
  for (qsizetype i = 0; i < points.size(); ++i) {
    const qsizetype next = (i + 1) % points.size();
    const QPointF inward = Inward(points[i], points[next], side);
    // More from the top than from the left, so that what faces the top right is lit as well.
    const bool lit = 0.6 * inward.x() + inward.y() > 0;
    (lit ? strip.Lit : strip.Shaded).addPath(PathOf({points[i], points[next], inner[next], inner[i]}));
  }
  return strip;
}

QPainterPath PathOf(const QPolygonF& outline) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addPolygon(outline);
  path.closeSubpath();
  return path;
}
