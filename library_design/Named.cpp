#include "library_design/Named.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>

QLabel* QuietLine(QWidget* parent, const char* name) {
  auto* line = Named(new QLabel(parent), name, "");
  line->setMinimumHeight(line->fontMetrics().height());
  return line;
}

QIcon FontFxIcon() {
  QIcon icon;
  const QPalette palette = QApplication::palette();
  for (const qreal scale : {1.0, 2.0}) {
    QPixmap pixmap(QSize(20, 20) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    QFont font = QApplication::font();
    font.setPixelSize(16);
    font.setBold(true);
    font.setItalic(true);
    p.setFont(font);
    p.setPen(palette.color(QPalette::PlaceholderText));
    p.drawText(QRect(2, 2, 20, 20), Qt::AlignCenter, QStringLiteral("fx"));
    p.setPen(palette.color(QPalette::ButtonText));
    p.drawText(QRect(0, 0, 20, 20), Qt::AlignCenter, QStringLiteral("fx"));
    p.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}
