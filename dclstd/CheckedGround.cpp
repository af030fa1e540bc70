#include "dclstd/CheckedGround.h"

void PaintCheckedGround(QPainter& painter, const QRect& place, int check) {
  painter.save();
  painter.setClipRect(place, Qt::IntersectClip);
  for (int y = place.top(); y <= place.bottom(); y += check)
    for (int x = place.left(); x <= place.right(); x += check) {
      const bool dark = ((x - place.left()) / check + (y - place.top()) / check) % 2 != 0;
      painter.fillRect(QRect(x, y, check, check), dark ? QColor(0xC8, 0xC8, 0xC8) : QColor(0xF4, 0xF4, 0xF4));
    }
  painter.restore();
}
