#include "vcl/ItemPainting.h"

#include <QFontMetrics>

#include "vcl/Canvas.h"
#include "vcl/ShownText.h"

QRect PaintListFrame(TCanvas& canvas, const QRect& rect, TPartStates states) {
  PaintEditFrame(canvas, rect, states);
  return rect.adjusted(2, 2, -2, -2);
}

void PaintPlainText(TCanvas& canvas, const QRect& rect, int alignment, const QString& text, const TFont& font,
                    bool enabled) {
  if (text.isEmpty() || rect.width() <= 0 || rect.height() <= 0) return;
  const QString shown = QFontMetrics(ToQFont(font))
                            .elidedText(ShownText(text).replace(u'\n', u' '), Qt::ElideRight, rect.width());
  canvas.Painter().save();
  canvas.Painter().setClipRect(rect, Qt::IntersectClip);
  canvas.TextRect(rect, alignment | Qt::AlignVCenter | Qt::TextSingleLine, shown, font, enabled);
  canvas.Painter().restore();
}

QRect PaintItemImage(TCanvas& canvas, const QRect& rect, const QImage& image, QSize size, bool enabled) {
  const QRect place(rect.left(), rect.top() + (rect.height() - size.height()) / 2, size.width(),
                    size.height());
  if (!image.isNull()) {
    canvas.Painter().save();
    canvas.Painter().setClipRect(rect, Qt::IntersectClip);
    canvas.Painter().setOpacity(enabled ? 1 : 0.4);
    canvas.Painter().drawImage(place.topLeft(), image);
    canvas.Painter().restore();
  }
  return rect.adjusted(size.width(), 0, 0, 0);
}

QRect PaintItemBars(TCanvas& canvas, const QRect& rect, TPartStates states, QSize content) {
  constexpr int Bar = 17;
  bool down = content.height() > rect.height();
  const bool across = content.width() > rect.width() - (down ? Bar : 0);
  down = content.height() > rect.height() - (across ? Bar : 0);
  const QRect left = rect.adjusted(0, 0, down ? -Bar : 0, across ? -Bar : 0);
  if (left.width() <= 0 || left.height() <= 0) return rect;
  if (down)
    PaintScrollBar(canvas, QRect(left.right() + 1, rect.top(), Bar, left.height()), states,
                   {.Max = content.height(), .Page = left.height()}, Qt::Vertical);
  if (across)
    PaintScrollBar(canvas, QRect(rect.left(), left.bottom() + 1, left.width(), Bar), states,
                   {.Max = content.width(), .Page = left.width()}, Qt::Horizontal);
  return left;
}
