#include "library/values/Teeth.h"

#include <QTransform>
#include <cmath>

#include "rtl/Class.h"

const TClass& TVRXTeeth::StaticClass() {
  static const TClass cls(
      DescribeClass<TVRXTeeth>("TVRXTeeth", TPersistent::StaticClass())
          .Published(Count)
          .Doc(QStringLiteral("How many teeth the side has, where they are set by count."))
          .Published(Direction)
          .Doc(QStringLiteral("Where the teeth point to."))
          .Published(Height)
          .Doc(QStringLiteral("How far a tooth stands out, in pixels, where they are not set by count."))
          .Published(Offset)
          .Doc(QStringLiteral("Begins and ends with the tip of a tooth, so that the corners are sharp."))
          .Published(SetPerCount)
          .Doc(QStringLiteral("By count, or by width and height."))
          .Published(Width)
          .Doc(QStringLiteral(
              "Width of a tooth along the side, in pixels, where they are not set by count.")));
  return cls;
}

namespace {
// From the outline of teeth that point to the right, in a rectangle from (0, 0), to its place.
QTransform Turned(TVRXTeethDirection direction, const QRectF& r) {
  using enum TVRXTeethDirection;
  switch (direction) {
    case tdDown:
      return QTransform(0, 1, 1, 0, r.left(), r.top());
    case tdLeft:
      return QTransform(-1, 0, 0, 1, r.right(), r.top());
    case tdUp:
      return QTransform(0, -1, 1, 0, r.left(), r.bottom());
    default:
      return QTransform::fromTranslate(r.left(), r.top());
  }
}
}  // namespace

QPolygonF TVRXTeeth::Outline(const QRectF& rect) const {
  const TVRXTeethDirection direction = Get(Direction);
  const bool upright = direction == TVRXTeethDirection::tdDown || direction == TVRXTeethDirection::tdUp;
  const double length = upright ? rect.height() : rect.width();
  const double side = upright ? rect.width() : rect.height();
  double count = Get(Count);
  if (!Get(SetPerCount)) count = Get(Width) > 0 ? std::max(1.0, std::round(side / Get(Width))) : 0;
  count = std::min(count, std::floor(side));
  QPolygonF points;
  points << QPointF(0, 0);
  if (count < 1) {
    points << QPointF(length, 0) << QPointF(length, side);
  } else {
    const double pitch = side / count;
    const double height = std::clamp<double>(Get(SetPerCount) ? pitch / 2 : Get(Height), 0, length);
    const double valley = length - height;
    const bool tipFirst = Get(Offset);
    for (int half = 0; half <= 2 * static_cast<int>(count); ++half)
      points << QPointF((half % 2 == 0) == tipFirst ? length : valley, half * pitch / 2);
  }
  points << QPointF(0, side);
  return Turned(direction, rect).map(points);
}
