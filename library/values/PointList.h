// Points with whole coordinates. A form keeps them as numbers, X and Y in turn.
#pragma once
#include <QList>
#include <QPoint>

#include "rtl/ValueList.h"

class TVRXPointList : public TValueList {
  VRX_CLASS(TVRXPointList)
 public:
  using TValueList::TValueList;

  int Count() const { return static_cast<int>(Items().size() / 2); }
  QPoint Point(int index) const;
  // Throws EConvertError when a file keeps anything there that is no point.
  QList<QPoint> Points() const;
  // Behind the others.
  void AddPoint(QPoint point);
  void Clear() { SetItems({}); }
};
