#include "vcl/Canvas.h"

#include <QFontMetrics>
#include <QPolygonF>

#include "vcl/ShownText.h"

// clDefault is what a control of the kind usually has.
void TCanvas::FillRect(const QRect& rect, TColor color) {
  if (color != clNone) painter_.fillRect(rect, ToQColor(color == clDefault ? clBtnFace : color));
}

void TCanvas::Polygon(const QPolygonF& points, TColor color) {
  if (color == clNone) return;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(ToQColor(color));
  painter_.drawPolygon(points);
}

QRect TCanvas::Frame3D(QRect r, TColor topLeft, TColor bottomRight, int width) {
  const QColor light = ToQColor(topLeft);
  const QColor dark = ToQColor(bottomRight);
  for (int i = 0; i < width && r.width() > 1 && r.height() > 1; ++i) {
    painter_.fillRect(QRect(r.left(), r.top(), r.width() - 1, 1), light);
    painter_.fillRect(QRect(r.left(), r.top(), 1, r.height() - 1), light);
    painter_.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), dark);
    painter_.fillRect(QRect(r.right(), r.top(), 1, r.height()), dark);
    r.adjust(1, 1, -1, -1);
  }
  return r;
}

void TCanvas::TextRect(const QRect& rect, int flags, const QString& text, const TFont& font, bool enabled) {
  painter_.setFont(ToQFont(font));
  const TColor color = font.Color() == clDefault ? clWindowText : font.Color();
  painter_.setPen(ToQColor(enabled ? color : clGrayText));
  painter_.drawText(rect, flags, ShownText(text));
}

QSize TextExtent(const QString& text, const TFont& font, int flags, int width) {
  const QFontMetrics metrics(ToQFont(font));
  return metrics.boundingRect(QRect(0, 0, width > 0 ? width : 32000, 32000), flags, ShownText(text)).size();
}
