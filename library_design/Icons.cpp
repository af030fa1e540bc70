// Icons of the library's components, known from the moment the library's design-time part is in memory.
#include <QPainter>

#include "designintf/ComponentIcons.h"
#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ShapeControl.h"
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

// A raised tile with a picture of its own.
void DrawButton3D(QPainter& p, const TIconInk& ink) {
  p.setPen(QPen(ink.Line, 1.3));
  p.setBrush(ink.Accent.lighter(150));
  p.drawRoundedRect(QRectF(3, 5, 18, 14), 2, 2);
  p.setPen(QPen(Qt::white, 1.4));
  p.drawPolyline(QPolygonF({{5, 16.5}, {5, 7}, {18.5, 7}}));
  p.setPen(Qt::NoPen);
  p.setBrush(ink.Accent);
  p.drawEllipse(QRectF(8.5, 8.5, 7, 7));
}

void DrawShape(QPainter& p, const TIconInk& ink) {
  p.setPen(QPen(ink.Line, 1.3));
  p.setBrush(ink.Accent.lighter(160));
  p.drawRect(QRectF(3.5, 5.5, 17, 13));
  QFont font = p.font();
  font.setPixelSize(9);
  font.setBold(true);
  p.setFont(font);
  p.setPen(ink.Line);
  p.drawText(QRectF(3.5, 5.5, 17, 13), Qt::AlignCenter, QStringLiteral("Ab"));
}

// A picture and the part that is cut out of it.
void DrawRegion(QPainter& p, const TIconInk& ink) {
  p.setPen(QPen(ink.Line, 1, Qt::DotLine));
  p.setBrush(Qt::NoBrush);
  p.drawRect(QRectF(3.5, 3.5, 17, 17));
  p.setPen(QPen(ink.Line, 1.3));
  p.setBrush(ink.Accent);
  p.drawPolygon(QPolygonF({{12, 5},
                           {14.2, 9.8},
                           {19.2, 10.3},
                           {15.4, 13.7},
                           {16.6, 18.8},
                           {12, 16.1},
                           {7.4, 18.8},
                           {8.6, 13.7},
                           {4.8, 10.3},
                           {9.8, 9.8}}));
}

[[maybe_unused]] const bool Registered = [] {
  RegisterComponentIcon(TVRXCustom3DButton::StaticClass(), DrawButton3D);
  RegisterComponentIcon(TVRXBaseShape::StaticClass(), DrawShape);
  RegisterComponentIcon(TVRXRegion::StaticClass(), DrawRegion);
  RegisterComponentIcon(TVRXLEDCustomLabel::StaticClass(), DrawLED);
  return true;
}();
}  // namespace
