// What lists, trees and grids paint alike.
#pragma once
#include <QImage>

#include "vcl/Painters.h"

// Frame and ground of a list; returns all that the frame leaves.
QRect PaintListFrame(TCanvas& canvas, const QRect& rect, TPartStates states);
// A text on one line, as it is: "&" marks nothing, and what does not fit ends with an ellipsis.
void PaintPlainText(TCanvas& canvas, const QRect& rect, int alignment, const QString& text, const TFont& font,
                    bool enabled);
// In the middle of the height, at the left edge; returns what is right of it.
QRect PaintItemImage(TCanvas& canvas, const QRect& rect, const QImage& image, QSize size, bool enabled);
// Bars for what the content is too large for; returns what they leave.
QRect PaintItemBars(TCanvas& canvas, const QRect& rect, TPartStates states, QSize content);
