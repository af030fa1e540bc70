#include "library/controls/CaptionStrip.h"

#include "vcl/ShownText.h"

namespace {
constexpr int Around = 8;  // beside the text
TFont* BoldOf(const TFont& font, TFont& bold) {
  bold.Assign(&font);
  TFontStyles style = font.Style();
  style.Include(TFontStyle::fsBold);
  bold.SetStyle(style);
  return &bold;
}
}  // namespace

int StripThickness(const TFont& font, const TCustomImageList* images, int image) {
  constexpr int least = 20, above = 7;
  const QImage picture = images ? images->Image(image) : QImage();
  const int text = TextExtent(QStringLiteral("Wg"), font).height();
  return std::max({least, text + above, picture.isNull() ? 0 : picture.height() + 4});
}

void PaintStrip(TCanvas& canvas, const QRect& rect, const TVRXStrip& strip) {
  if (rect.isEmpty()) return;
  if (strip.Fill) {
    QPainterPath area;
    area.addRect(rect);
    strip.Fill->Draw(canvas, area, strip.Images);
  }
  QRect room = rect.adjusted(Around, 0, -Around - strip.AtEnd, 0);
  const QImage picture = strip.Images ? strip.Images->Image(strip.Image) : QImage();
  QPainter& p = canvas.Painter();
  p.save();
  p.setClipRect(rect, Qt::IntersectClip);
  if (!picture.isNull()) {
    p.setOpacity(strip.Enabled ? 1 : 0.5);
    p.drawImage(room.left(), room.top() + (room.height() - picture.height()) / 2, picture);
    p.setOpacity(1);
    room.setLeft(room.left() + picture.width() + 4);
  }
  if (room.width() > 0) {
    TFont bold;
    const TFont& font = strip.Bold ? *BoldOf(*strip.Font, bold) : *strip.Font;
    const QString text =
        QFontMetrics(ToQFont(font))
            .elidedText(ShownText(strip.Text), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    canvas.TextRect(room, AlignmentFlag(strip.Alignment) | Qt::AlignVCenter | Qt::TextShowMnemonic, text,
                    font, strip.Enabled);
  }
  p.restore();
}

void PaintUprightStrip(TCanvas& canvas, const QRect& rect, const TVRXStrip& strip, bool up) {
  QPainter& p = canvas.Painter();
  p.save();
  if (up) {
    p.translate(rect.left(), rect.top() + rect.height());
    p.rotate(-90);
  } else {
    p.translate(rect.left() + rect.width(), rect.top());
    p.rotate(90);
  }
  PaintStrip(canvas, QRect(0, 0, rect.height(), rect.width()), strip);
  p.restore();
}

void PaintStripMark(TCanvas& canvas, const QRect& rect, TVRXStripMark mark, const TFont& font, bool enabled) {
  using enum TVRXStripMark;
  QPainter& p = canvas.Painter();
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  const QColor color = ToQColor(enabled ? font.Color() : clGrayText);
  p.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.translate(QRectF(rect).center());
  // Two arms that point upwards.
  const auto arrow = [&](double angle) {
    p.rotate(angle);
    p.drawPolyline(QPolygonF{{-3.5, 2}, {0, -1.5}, {3.5, 2}});
  };
  switch (mark) {
    case Close:
      p.drawLine(QPointF(-3, -3), QPointF(3, 3));
      p.drawLine(QPointF(-3, 3), QPointF(3, -3));
      break;
    case Help: {
      QPainterPath path({-2.5, -2});
      path.cubicTo(-2.5, -5.5, 3, -5, 2.5, -2);
      path.cubicTo(2.2, -0.6, 0, -0.4, 0, 1.5);
      p.drawPath(path);
      p.drawPoint(QPointF(0, 4.2));
      break;
    }
    case Menu:
      for (const double y : {-3.0, 0.0, 3.0}) p.drawLine(QPointF(-3.5, y), QPointF(3.5, y));
      break;
    case Fold:
      arrow(0);
      break;
    case Unfold:
      arrow(180);
      break;
    case FoldLeft:
      arrow(-90);
      break;
    case FoldRight:
      arrow(90);
      break;
    case Pin:
      p.drawLine(QPointF(0, 1), QPointF(0, 4.5));
      p.drawLine(QPointF(-3.5, 1), QPointF(3.5, 1));
      p.drawRect(QRectF(-2, -4, 4, 5));
      break;
  }
  p.restore();
}
