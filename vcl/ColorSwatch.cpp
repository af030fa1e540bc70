#include "vcl/ColorSwatch.h"

#include <QPainter>
#include <QPixmap>

QIcon ColorSwatch(TColor color, const QSize& size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  const QRect r(QPoint(0, 0), size - QSize(1, 1));
  if (color == clNone) {
    p.fillRect(r, Qt::white);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(Qt::red, 1.4));
    p.drawLine(r.bottomLeft(), r.topRight());
  } else {
    p.fillRect(r, ToQColor(color));
  }
  p.setRenderHint(QPainter::Antialiasing, false);
  p.setPen(QColor(128, 128, 128));
  p.drawRect(r);
  return QIcon(pixmap);
}
