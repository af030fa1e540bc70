// Frames of one pixel.
#pragma once
#include <QRectF>

// What the line is drawn along so that all of it lies inside of the rectangle, however the painter scales: one
// along the edge itself would be half outside, where it may be clipped away.
inline QRectF LineRect(const QRect& rect) { return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5); }
