// What controls paint on: a painter that is told platform colours and fonts.
#pragma once
#include <QPainter>

#include "vcl/Font.h"

class TCanvas {
 public:
  explicit TCanvas(QPainter& painter) : painter_(painter) {}
  QPainter& Painter() { return painter_; }

  void FillRect(const QRect& rect, TColor color);
  void Polygon(const QPolygonF& points, TColor color);
  // A frame of `width` pixels inside the rectangle, lit from the top left; returns what is left inside.
  QRect Frame3D(QRect rect, TColor topLeft, TColor bottomRight, int width);
  // `flags` are Qt::AlignmentFlag and Qt::TextFlag: "&" is a mark with Qt::TextShowMnemonic only.
  void TextRect(const QRect& rect, int flags, const QString& text, const TFont& font, bool enabled = true);

 private:
  QPainter& painter_;
};

// Size of a text, with `width` as the limit for wrapped text.
QSize TextExtent(const QString& text, const TFont& font, int flags = 0, int width = 0);
