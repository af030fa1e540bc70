// Segment letters: which segments a character lights, and where they are.
//
// Digits and plain signs are seven-segment cells, letters and the other signs fourteen-segment cells, points
// and colons narrow cells. A character's cell does not depend on its neighbours.
#pragma once
#include <QPolygonF>

#include "library/values/LED.h"
#include "vcl/Canvas.h"

enum class TLEDCell : std::uint8_t { Seven, Fourteen, Point };

struct TLEDGlyph {
  TLEDCell Cell = TLEDCell::Seven;
  std::uint16_t Lit = 0;  // bit n: segment n of the cell
};
// Small letters look like capitals. A character without a form of its own is a dark letter cell.
TLEDGlyph LEDGlyphOf(QChar c);

// Segment shapes of a cell in pixels from its top left corner, in bit order. Empty where there is no room.
std::vector<QPolygonF> LEDSegmentShapes(TLEDCell cell, const TVRXLED& led);
QSize LEDCellSize(TLEDCell cell, const TVRXLED& led);

// Size of a text in segment letters, and drawing it from a point. `lit` false: every segment is dark.
QSize LEDTextSize(const QString& text, const TVRXLED& led);
void DrawLEDText(TCanvas& canvas, QPoint at, const QString& text, const TVRXLED& led, bool lit);
