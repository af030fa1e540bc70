#include "library/values/LEDSegments.h"

#include <QHash>
#include <climits>
#include <cmath>

namespace {
// Seven segments:            Fourteen: the middle bar in two halves, and the inner six.
//    aaa                        aaaaa
//   f   b                      fh i jb
//   f   b                      f h i jb
//    ggg                        g1 g2
//   e   c                      e k l mc
//   e   c                      ek l mc
//    ddd                        ddddd
enum : std::uint16_t {
  A = 1 << 0,
  B = 1 << 1,
  C = 1 << 2,
  D = 1 << 3,
  E = 1 << 4,
  F = 1 << 5,
  G = 1 << 6,
  G1 = G,
  G2 = 1 << 7,
  H = 1 << 8,
  I = 1 << 9,
  J = 1 << 10,
  K = 1 << 11,
  L = 1 << 12,
  M = 1 << 13,
  GG = G1 | G2,
};

struct Row {
  char16_t character;
  TLEDCell cell;
  std::uint16_t lit;
};
constexpr TLEDCell S7 = TLEDCell::Seven, S14 = TLEDCell::Fourteen, PT = TLEDCell::Point;
// Point cells: bit 0 the point on the base line, bit 1 the upper and bit 3 the lower one of a colon, bit 2
// the tail of a comma.
constexpr Row Rows[] = {
    {u' ', S7, 0},
    {u'0', S7, A | B | C | D | E | F},
    {u'1', S7, B | C},
    {u'2', S7, A | B | D | E | G},
    {u'3', S7, A | B | C | D | G},
    {u'4', S7, B | C | F | G},
    {u'5', S7, A | C | D | F | G},
    {u'6', S7, A | C | D | E | F | G},
    {u'7', S7, A | B | C},
    {u'8', S7, A | B | C | D | E | F | G},
    {u'9', S7, A | B | C | D | F | G},
    {u'-', S7, G},
    {u'_', S7, D},
    {u'=', S7, D | G},
    {u'[', S7, A | D | E | F},
    {u']', S7, A | B | C | D},
    {u'\u00B0', S7, A | B | F | G},
    {u'"', S7, B | F},
    {u'A', S14, A | B | C | E | F | GG},
    {u'B', S14, A | B | C | D | G2 | I | L},
    {u'C', S14, A | D | E | F},
    {u'D', S14, A | B | C | D | I | L},
    {u'E', S14, A | D | E | F | GG},
    {u'F', S14, A | E | F | GG},
    {u'G', S14, A | C | D | E | F | G2},
    {u'H', S14, B | C | E | F | GG},
    {u'I', S14, A | D | I | L},
    {u'J', S14, B | C | D | E},
    {u'K', S14, E | F | G1 | J | M},
    {u'L', S14, D | E | F},
    {u'M', S14, B | C | E | F | H | J},
    {u'N', S14, B | C | E | F | H | M},
    {u'O', S14, A | B | C | D | E | F},
    {u'P', S14, A | B | E | F | GG},
    {u'Q', S14, A | B | C | D | E | F | M},
    {u'R', S14, A | B | E | F | GG | M},
    {u'S', S14, A | C | D | F | GG},
    {u'T', S14, A | I | L},
    {u'U', S14, B | C | D | E | F},
    {u'V', S14, E | F | J | K},
    {u'W', S14, B | C | E | F | K | M},
    {u'X', S14, H | J | K | M},
    {u'Y', S14, H | J | L},
    {u'Z', S14, A | D | J | K},
    {u'+', S14, GG | I | L},
    {u'*', S14, GG | H | I | J | K | L | M},
    {u'/', S14, J | K},
    {u'\\', S14, H | M},
    {u'|', S14, I | L},
    {u'<', S14, J | M},
    {u'>', S14, H | K},
    {u'(', S14, J | M},
    {u')', S14, H | K},
    {u'?', S14, A | B | G2 | L},
    {u'\'', S14, I},
    {u'$', S14, A | C | D | F | GG | I | L},
    {u'%', S14, C | F | J | K},
    {u'&', S14, A | D | E | G1 | H | J | M},
    {u'@', S14, A | B | D | E | F | G2 | I},
    {u'#', S14, B | C | D | GG | I | L},
    {u'^', S14, K | M},
    {u'!', PT, 1 | 2},
    {u'.', PT, 1},
    {u',', PT, 1 | 4},
    {u':', PT, 2 | 8},
    {u';', PT, 1 | 2 | 4},
};

// Size 0 is drawn as the smallest letters there are.
int Horz(const TVRXLED& led) { return std::max<int>(1, led.HorzSize()); }
int Vert(const TVRXLED& led) { return std::max<int>(1, led.VertSize()); }

struct Box {
  qreal t, gap, left, mid, right, top, middle, bottom;
  explicit Box(const TVRXLED& led)
      : t(led.Thickness()),
        gap(std::max<qreal>(0.35, t * 0.12)),
        left(t / 2),
        mid(t + Horz(led) / 2.0),
        right(t * 1.5 + Horz(led)),
        top(t / 2),
        middle(t * 1.5 + Vert(led)),
        bottom(t * 2.5 + Vert(led) * 2) {}

  QPolygonF Horizontal(qreal x0, qreal x1, qreal y) const {
    x0 += gap;
    x1 -= gap;
    const qreal h = std::min(t / 2, (x1 - x0) / 2);
    return {{{x0, y},
             {x0 + h, y - t / 2},
             {x1 - h, y - t / 2},
             {x1, y},
             {x1 - h, y + t / 2},
             {x0 + h, y + t / 2}}};
  }
  QPolygonF Vertical(qreal x, qreal y0, qreal y1) const {
    y0 += gap;
    y1 -= gap;
    const qreal h = std::min(t / 2, (y1 - y0) / 2);
    return {{{x, y0},
             {x + t / 2, y0 + h},
             {x + t / 2, y1 - h},
             {x, y1},
             {x - t / 2, y1 - h},
             {x - t / 2, y0 + h}}};
  }
  // From a corner of an inner box to the opposite one; x0 may be right of x1.
  QPolygonF Diagonal(qreal x0, qreal x1, qreal y0, qreal y1) const {
    const qreal inset = t / 2 + gap;
    const qreal sign = x1 > x0 ? 1 : -1;
    x0 += sign * inset;
    x1 -= sign * inset;
    y0 += inset;
    y1 -= inset;
    if ((x1 - x0) * sign < 0.5 || y1 - y0 < 0.5) return {};
    const qreal v = std::min((y1 - y0) * 0.6, t * 1.25);
    return {{{x0, y0}, {x1, y1 - v}, {x1, y1}, {x0, y0 + v}}};
  }
};
}  // namespace

TLEDGlyph LEDGlyphOf(QChar c) {
  static const QHash<char16_t, TLEDGlyph> glyphs = [] {
    QHash<char16_t, TLEDGlyph> table;
    for (const Row& row : Rows) table.insert(row.character, {row.cell, row.lit});
    return table;
  }();
  return glyphs.value(c.toUpper().unicode(), {TLEDCell::Fourteen, 0});
}

QSize LEDCellSize(TLEDCell cell, const TVRXLED& led) {
  const int t = led.Thickness();
  return {cell == TLEDCell::Point ? t : Horz(led) + 2 * t, 2 * Vert(led) + 3 * t};
}

std::vector<QPolygonF> LEDSegmentShapes(TLEDCell cell, const TVRXLED& led) {
  const Box b(led);
  if (cell == TLEDCell::Point) {
    const auto square = [&](qreal y) {
      return QPolygonF({{0, y - b.t / 2}, {b.t, y - b.t / 2}, {b.t, y + b.t / 2}, {0, y + b.t / 2}});
    };
    const bool alone = Vert(led) < 2 * led.Thickness();
    const qreal upper = alone ? b.top + Vert(led) / 2.0 : b.middle - Vert(led) / 2.0;
    return {square(b.bottom), square(upper),
            QPolygonF({{0, b.bottom + b.t / 2}, {b.t, b.bottom + b.t / 2}, {0, b.bottom + b.t}}),
            square(alone ? b.bottom - Vert(led) / 2.0 : b.middle + Vert(led) / 2.0)};
  }
  std::vector<QPolygonF> shapes{
      b.Horizontal(b.left, b.right, b.top),    b.Vertical(b.right, b.top, b.middle),
      b.Vertical(b.right, b.middle, b.bottom), b.Horizontal(b.left, b.right, b.bottom),
      b.Vertical(b.left, b.middle, b.bottom),  b.Vertical(b.left, b.top, b.middle),
  };
  if (cell == TLEDCell::Seven) {
    shapes.push_back(b.Horizontal(b.left, b.right, b.middle));
    return shapes;
  }
  shapes.push_back(b.Horizontal(b.left, b.mid, b.middle));
  shapes.push_back(b.Horizontal(b.mid, b.right, b.middle));
  shapes.push_back(b.Diagonal(b.left, b.mid, b.top, b.middle));
  shapes.push_back(b.Vertical(b.mid, b.top + b.t / 2, b.middle));
  shapes.push_back(b.Diagonal(b.right, b.mid, b.top, b.middle));
  shapes.push_back(b.Diagonal(b.mid, b.left, b.middle, b.bottom));
  shapes.push_back(b.Vertical(b.mid, b.middle, b.bottom - b.t / 2));
  shapes.push_back(b.Diagonal(b.mid, b.right, b.middle, b.bottom));
  return shapes;
}

namespace {
int Spacing(const TVRXLED& led) { return led.Thickness() + 1; }
}  // namespace

QSize LEDTextSize(const QString& text, const TVRXLED& led) {
  std::int64_t width = 0;
  for (QChar c : text) width += LEDCellSize(LEDGlyphOf(c).Cell, led).width() + Spacing(led);
  return {static_cast<int>(std::clamp<std::int64_t>(width - Spacing(led), 0, INT_MAX / 2)),
          LEDCellSize(TLEDCell::Seven, led).height() + (led.Thickness() + 1) / 2};
}

void DrawLEDText(TCanvas& canvas, QPoint at, const QString& text, const TVRXLED& led, bool lit) {
  QPainter& painter = canvas.Painter();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  std::vector<QPolygonF> shapes[3];
  qreal x = at.x();
  // Letters out of sight are only counted; slanted ones reach over their cells by less than their height.
  const qreal reach = LEDCellSize(TLEDCell::Seven, led).height() + led.Thickness();
  const bool clipped = painter.hasClipping();
  const QRectF sight = painter.clipBoundingRect().adjusted(-reach, 0, reach, 0);
  for (QChar c : text) {
    const TLEDGlyph glyph = LEDGlyphOf(c);
    const qreal width = LEDCellSize(glyph.Cell, led).width();
    if (clipped && x > sight.right()) break;
    if (clipped && x + width < sight.left()) {
      x += width + Spacing(led);
      continue;
    }
    auto& cell = shapes[static_cast<int>(glyph.Cell)];
    if (cell.empty()) cell = LEDSegmentShapes(glyph.Cell, led);
    for (std::size_t i = 0; i < cell.size(); ++i) {
      const bool on = (glyph.Lit >> i & 1) != 0;
      // Only the point on the base line has a dark form; a dark colon would look like one.
      if (cell[i].isEmpty() || (!on && glyph.Cell == TLEDCell::Point && i > 0)) continue;
      canvas.Polygon(cell[i].translated(x, at.y()), on && lit ? led.ActiveColor() : led.InActiveColor());
    }
    x += width + Spacing(led);
  }
  painter.restore();
}
