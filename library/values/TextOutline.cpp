#include "library/values/TextOutline.h"

#include <array>
#include <cmath>

namespace {
using Curve = std::array<QPointF, 4>;  // ends and handles

QPointF At(const Curve& c, double t) {
  const double s = 1 - t;
  return s * s * s * c[0] + 3 * s * s * t * c[1] + 3 * s * t * t * c[2] + t * t * t * c[3];
}
double Far(QPointF a, QPointF b) { return std::hypot(a.x() - b.x(), a.y() - b.y()); }

// Pieces of a line or a curve, each of them replaced by the one curve that has its ends and its directions
// there: as many as it takes to come that close to the map.
class Mapper {
 public:
  Mapper(QPainterPath& out, const TPlaneMap& map, double close, const Curve& curve)
      : out_(out), map_(map), close_(close), curve_(curve) {}
  void Run() { Piece(0, 1, map_(curve_[0]), map_(curve_[3]), 0); }

 private:
  static constexpr int MostHalvings = 6;

  QPointF Mapped(double t) const { return map_(At(curve_, t)); }
  void Piece(double from, double to, QPointF begin, QPointF end, int depth) {
    const double length = to - from, step = length / 256;
    // Directions are taken inside of the piece: the map may have an edge at its end.
    const QPointF out = (4 * Mapped(from + step) - Mapped(from + 2 * step) - 3 * begin) / (2 * step);
    const QPointF in = (3 * end - 4 * Mapped(to - step) + Mapped(to - 2 * step)) / (2 * step);
    const Curve piece{begin, begin + out * (length / 3), end - in * (length / 3), end};
    const auto misses = [&](double t) { return Far(At(piece, t), Mapped(from + t * length)) > close_; };
    if (depth < MostHalvings && (misses(0.5) || misses(0.25) || misses(0.75))) {
      const double half = from + length / 2;
      const QPointF middle = Mapped(half);
      Piece(from, half, begin, middle, depth + 1);
      return Piece(half, to, middle, end, depth + 1);
    }
    const auto besides = [&](QPointF p) {
      const QPointF way = end - begin, off = p - begin;
      const double across = std::hypot(way.x(), way.y());
      return across == 0 ? Far(p, begin) : std::abs(way.x() * off.y() - way.y() * off.x()) / across;
    };
    if (besides(piece[1]) < close_ && besides(piece[2]) < close_)
      out_.lineTo(end);
    else
      out_.cubicTo(piece[1], piece[2], end);
  }

  QPainterPath& out_;
  const TPlaneMap& map_;
  double close_;
  const Curve& curve_;
};
}  // namespace

QPainterPath MappedOutline(const QPainterPath& path, const TPlaneMap& map, double close) {
  QPainterPath out;
  out.setFillRule(path.fillRule());
  QPointF at;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element e = path.elementAt(i);
    if (e.isMoveTo()) {
      at = e;
      out.moveTo(map(at));
      continue;
    }
    Curve curve{at, at, at, at};
    if (e.isLineTo()) {
      const QPointF to = e;
      curve = {at, at + (to - at) / 3, to - (to - at) / 3, to};
    } else {
      curve = {at, e, path.elementAt(i + 1), path.elementAt(i + 2)};
      i += 2;
    }
    Mapper(out, map, close, curve).Run();
    at = curve[3];
  }
  return out;
}
