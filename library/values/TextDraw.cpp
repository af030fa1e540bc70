#include "library/values/TextDraw.h"

#include <QtMath>

#include "library/values/TextLayers.h"
#include "vcl/ShownText.h"

namespace {
// From the back to the front, the letters themselves last.
std::vector<TVRXTextLayer> LayersOf(const TVRXFxCaption& fx, QColor letters, QColor behind) {
  return VRXTextLayers({fx.Style(), fx.LightColor(), fx.ShadowColor(), fx.LightDepth(), fx.ShadowDepth(), {}},
                       letters, behind);
}

// How far the effect reaches beyond the letters, to the top left and to the bottom right.
struct Reach {
  int before = 0, after = 0;
};
Reach ReachOf(const TVRXFxCaption& fx) {
  Reach reach;
  for (const TVRXTextLayer& layer : LayersOf(fx, {}, {})) {
    reach.before = std::max(reach.before, -layer.Offset.x());
    reach.after = std::max(reach.after, layer.Offset.x());
  }
  return reach;
}

double AngleOf(const TVRXFxCaption& fx, const TFont& font) {
  return fx.Angle() % 360 + font.Orientation() / 10.0;
}

QFont FontOf(const TVRXFxCaption& fx, const TFont& font) {
  QFont q = ToQFont(font);
  if (fx.Tracing() != 0) q.setLetterSpacing(QFont::AbsoluteSpacing, fx.Tracing());
  return q;
}

int QtFlags(unsigned flags) {
  return (flags & tfSingleLine ? Qt::TextSingleLine : 0) |
         (flags & tfWordBreak && !(flags & tfSingleLine) ? Qt::TextWordWrap : 0) |
         (flags & tfExpandTabs ? Qt::TextExpandTabs : 0) | (flags & tfNoPrefix ? 0 : Qt::TextShowMnemonic) |
         // A single line fills its box; lines that are not at the left would lose their tabs.
         (flags & tfSingleLine ? Qt::AlignLeft
          : flags & tfCenter   ? Qt::AlignHCenter
          : flags & tfRight    ? Qt::AlignRight
                               : Qt::AlignLeft);
}

// The size of a text that is turned by an angle.
QSizeF Turned(QSizeF size, double degrees) {
  const double c = std::abs(std::cos(qDegreesToRadians(degrees))),
               s = std::abs(std::sin(qDegreesToRadians(degrees)));
  return {size.width() * c + size.height() * s, size.width() * s + size.height() * c};
}

QSize TextSize(const QString& text, const TVRXFxCaption& fx, const TFont& font, int qtFlags, int width) {
  const QFontMetrics metrics(FontOf(fx, font));
  return metrics.boundingRect(QRect(0, 0, width > 0 ? width : 32000, 32000), qtFlags, ShownText(text)).size();
}
// How far letters reach beyond the room that their lines take, to the left and to the right; slanted ones do.
struct Overhang {
  int left = 0, right = 0;
  int Both() const { return left + right; }
};
Overhang OverhangOf(const QString& text, const TVRXFxCaption& fx, const TFont& font, unsigned flags) {
  // The letters as they are drawn.
  QString letters;
  for (qsizetype i = 0; i < text.size(); ++i) {
    QChar letter = text[i];
    if (letter == u'&' && !(flags & tfNoPrefix)) {
      if (++i == text.size()) break;
      letter = text[i];
    }
    const bool gap = letter == u'\t' || (letter == u'\n' && flags & tfSingleLine);
    letters += gap ? QChar(u' ') : letter;
  }
  const QFontMetricsF metrics(FontOf(fx, font));
  qreal left = 0, right = 0;
  for (const QString& line : letters.split(u'\n')) {
    const QRectF ink = metrics.tightBoundingRect(line);
    left = std::max(left, -ink.left());
    right = std::max(right, ink.right() - metrics.horizontalAdvance(line));
  }
  return {static_cast<int>(std::ceil(left)), static_cast<int>(std::ceil(right))};
}
}  // namespace

QRect VRXDrawTextCalcExt(const QString& text, const TVRXFxCaption& fx, const TFont& font, bool multiLine,
                         int maxWidth) {
  if (text.isEmpty()) return {};
  const double angle = AngleOf(fx, font);
  const Reach reach = ReachOf(fx);
  const bool single = !multiLine || fx.Angle() != 0 || angle != 0;
  const unsigned flags = tfExpandTabs | (single ? unsigned{tfSingleLine} : unsigned{tfWordBreak}) |
                         (fx.Angle() > 0 ? unsigned{tfNoPrefix} : 0u);
  const int room = maxWidth > 0 ? std::max(1, maxWidth - reach.before - reach.after) : 0;
  const QSize lines = TextSize(text, fx, font, QtFlags(flags), room);
  if (lines.width() == 0) return {};
  const QSizeF size = Turned(lines + QSize(OverhangOf(text, fx, font, flags).Both(), 0), angle);
  const int more = reach.before + reach.after;
  return {0, 0, static_cast<int>(std::ceil(size.width() - 1e-6)) + more,
          static_cast<int>(std::ceil(size.height() - 1e-6)) + more};
}

void VRXDrawTextExt(TCanvas& canvas, const QString& text, const TVRXFxCaption& fx, const TFont& font,
                    const QRect& rect, TVRXTextOptions options, unsigned flags, const QRect& calculated,
                    TColor behind) {
  if (text.isEmpty()) return;
  const double angle = AngleOf(fx, font);
  if (angle != 0) flags |= tfSingleLine;
  const Reach reach = ReachOf(fx);
  const QRect room = rect.adjusted(reach.before, reach.before, -reach.after, -reach.after);
  int qtFlags = QtFlags(flags);
  const int more = reach.before + reach.after;
  // What was measured has room for letters that overhang; elsewhere lines stand where their room is.
  const bool measured = options.Contains(TVRXTextOption::Measured) && calculated.isValid();
  const Overhang over = measured ? OverhangOf(text, fx, font, flags) : Overhang();
  if (measured) qtFlags |= Qt::TextDontClip;
  // The text as it lies before it is turned, and the outline it has then.
  const QSize size = measured && angle == 0 ? calculated.size() - QSize(more + over.Both(), more)
                                            : TextSize(text, fx, font, qtFlags,
                                                       flags & tfSingleLine ? 0 : std::max(1, room.width()));
  const QSizeF outline = Turned(size + QSize(over.Both(), 0), angle);
  const auto place = [](double from, double space, double taken, bool centre, bool end) {
    return from + (centre ? (space - taken) / 2 : end ? space - taken : 0);
  };
  const QPointF at(place(room.left(), room.width(), outline.width(), flags & tfCenter, flags & tfRight),
                   place(room.top(), room.height(), outline.height(), flags & tfVCenter, flags & tfBottom));
  const QColor letters = options.Contains(TVRXTextOption::Disabled)      ? ToQColor(clGrayText)
                         : options.Contains(TVRXTextOption::ParentColor) ? ToQColor(behind)
                                                                         : ToQColor(font.Color());
  QString shown = ShownText(text);
  if (options.Contains(TVRXTextOption::Ellipsis) && flags & tfSingleLine && angle == 0)
    shown = QFontMetrics(FontOf(fx, font)).elidedText(shown, Qt::ElideRight, room.width(), qtFlags);
  QPainter& p = canvas.Painter();
  p.save();
  p.setFont(FontOf(fx, font));
  for (const TVRXTextLayer& layer : LayersOf(fx, letters, ToQColor(behind))) {
    if (layer.Color.alpha() == 0) continue;
    p.setPen(layer.Color);
    const double offset = layer.Offset.x();
    if (angle == 0) {
      const QRect box(
          QPoint(static_cast<int>(std::floor(at.x())) + over.left, static_cast<int>(std::floor(at.y()))),
          size);
      p.drawText(box.translated(layer.Offset), qtFlags, shown);
      continue;
    }
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(at.x() + outline.width() / 2 + offset, at.y() + outline.height() / 2 + offset);
    p.rotate(-angle);
    p.drawText(QRectF(QPointF((over.left - over.right - size.width()) / 2.0, -size.height() / 2.0), size),
               qtFlags, shown);
    p.restore();
  }
  p.restore();
}
