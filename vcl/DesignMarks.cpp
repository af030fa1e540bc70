#include "vcl/DesignMarks.h"

#include "vcl/FormColors.h"
#include "vcl/LineRect.h"

namespace {
QColor Quiet() { return FormPalette().color(QPalette::PlaceholderText); }

void PaintWords(TCanvas& canvas, const QRect& room, const TFont& font, int flags, const QString& text) {
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(room, Qt::IntersectClip);
  p.setFont(ToQFont(font));
  p.setPen(Quiet());
  p.drawText(room, flags, text);
  p.restore();
}
}  // namespace

// Between the dashes is the color of an empty field: one of the two differs from whatever they lie on.
void PaintDesignOutline(TCanvas& canvas, const QPainterPath& outline) {
  QPainter& p = canvas.Painter();
  p.save();
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(FormPalette().color(QPalette::Base), 1));
  p.drawPath(outline);
  p.setPen(QPen(Quiet(), 1, Qt::DashLine, Qt::FlatCap));
  p.drawPath(outline);
  p.restore();
}

void PaintDesignFrame(TCanvas& canvas, const QRect& rect) {
  QPainterPath outline;
  outline.addRect(LineRect(rect));
  PaintDesignOutline(canvas, outline);
}

void PaintDesignHint(TCanvas& canvas, const QRect& rect, const TFont& font, const QString& text) {
  constexpr int around = 8;
  const QRect room = rect.adjusted(around, around, -around, -around);
  if (!room.isEmpty()) PaintWords(canvas, room, font, Qt::AlignCenter | Qt::TextWordWrap, text);
}

void PaintDesignName(TCanvas& canvas, const QRect& rect, const TControl& control, Qt::Alignment alignment) {
  const int around = alignment.testFlag(Qt::AlignHCenter) ? 4 : 0;
  const QRect room = rect.adjusted(around, 0, -around, 0);
  if (!control.IsDesigning() || room.isEmpty()) return;
  const QFontMetrics metrics(ToQFont(*control.Font()));
  PaintWords(canvas, room, *control.Font(), static_cast<int>(alignment.toInt()) | Qt::TextSingleLine,
             metrics.elidedText(control.Name(), Qt::ElideRight, room.width()));
}
