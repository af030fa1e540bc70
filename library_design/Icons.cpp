// Icons of the library's components, known from the moment the library's design-time part is in memory.
#include <QPainter>

#include "designintf/ComponentIcons.h"
#include "library/controls/LEDLabel.h"
#include "library/values/LEDSegments.h"

namespace {
void DrawLED(QPainter& p, const TIconInk& ink) {
  p.setPen(QPen(ink.Line, 1.3));
  p.setBrush(QColor(0x14, 0x18, 0x1C));
  p.drawRoundedRect(QRectF(2.5, 4.5, 19, 15), 2.5, 2.5);
  TVRXLED led;
  led.SetSize(1, 8);
  led.SetSize(2, 3);
  led.SetSize(3, 7);
  const TLEDGlyph glyph = LEDGlyphOf(u'5');
  const auto shapes = LEDSegmentShapes(glyph.Cell, led);
  p.setPen(Qt::NoPen);
  for (const qreal x : {5.2, 12.6}) {
    p.save();
    p.translate(x, 6.6);
    p.scale(0.46, 0.46);
    for (std::size_t i = 0; i < shapes.size(); ++i) {
      p.setBrush((glyph.Lit >> i & 1) ? ink.Accent.lighter(125) : QColor(0x2C, 0x34, 0x3C));
      p.drawPolygon(shapes[i]);
    }
    p.restore();
  }
}

[[maybe_unused]] const bool Registered = [] {
  RegisterComponentIcon(TVRXLEDCustomLabel::StaticClass(), DrawLED);
  return true;
}();
}  // namespace
