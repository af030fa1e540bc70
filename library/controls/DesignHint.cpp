#include "library/controls/DesignHint.h"

#include <QPainter>

void PaintDesignHint(TCanvas& canvas, const QRect& rect, const TFont& font, const QString& text) {
  constexpr int around = 8;
  const QRect room = rect.adjusted(around, around, -around, -around);
  if (room.isEmpty()) return;
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  p.setFont(ToQFont(font));
  p.setPen(ToQColor(clGrayText));
  p.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text);
  p.restore();
}
