#include "library/values/PointList.h"

#include "rtl/Class.h"
#include "rtl/Exceptions.h"

const TClass& TVRXPointList::StaticClass() {
  static const TClass cls(DescribeClass<TVRXPointList>("TVRXPointList", TValueList::StaticClass()));
  return cls;
}

QPoint TVRXPointList::Point(int index) const {
  const auto at = static_cast<std::size_t>(index) * 2;
  return {NumberAt(at, 0), NumberAt(at + 1, 0)};
}

QList<QPoint> TVRXPointList::Points() const {
  const auto isCoordinate = [](const TItem& item) {
    const auto* number = std::get_if<std::int64_t>(&item);
    return number && *number >= INT32_MIN && *number <= INT32_MAX;
  };
  if (Items().size() % 2 != 0 || !std::all_of(Items().begin(), Items().end(), isCoordinate))
    throw EConvertError(
        QStringLiteral("The list of points holds something else than pairs of whole numbers."));
  QList<QPoint> points;
  points.reserve(Count());
  for (int i = 0; i < Count(); ++i) points << Point(i);
  return points;
}

void TVRXPointList::AddPoint(QPoint point) {
  const TUpdateLock lock(*this);
  Add(std::int64_t{point.x()});
  Add(std::int64_t{point.y()});
}
