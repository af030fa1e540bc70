#include "designintf/ComponentTile.h"

#include <QApplication>
#include <QPainter>

#include "designintf/ComponentIcons.h"
#include "vcl/FormColors.h"

void PaintComponentTile(QPainter& p, const TComponent& c, const QPoint& topLeft, qreal ratio) {
  const QPalette palette = FormPalette();
  const QRect r(topLeft, QSize(ComponentTileSize, ComponentTileSize));
  p.save();
  QFont font = QApplication::font();
  font.setPixelSize(11);
  p.setFont(font);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(palette.color(QPalette::Mid));
  p.setBrush(palette.color(QPalette::Base));
  p.drawRoundedRect(QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
  p.drawPixmap(r.topLeft() + QPoint(2, 2),
               ComponentPixmap(c.ClassType(), ComponentTileSize - 4, ratio, palette));
  const int width = p.fontMetrics().horizontalAdvance(c.Name()) + 6;
  const QRect label(r.center().x() - width / 2, r.bottom() + 2, width, 14);
  p.setPen(Qt::NoPen);
  QColor back = palette.color(QPalette::Base);
  back.setAlpha(200);
  p.setBrush(back);
  p.drawRoundedRect(label, 3, 3);
  p.setPen(palette.color(QPalette::WindowText));
  p.drawText(label, Qt::AlignCenter, c.Name());
  p.restore();
}
