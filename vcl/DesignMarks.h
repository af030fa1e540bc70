// What an empty control shows on a form that is being designed, so that it is found and told from others: an
// outline, and quiet words inside.
#pragma once
#include <QPainterPath>

#include "vcl/Control.h"

// In dashes that stand out from any ground.
void PaintDesignOutline(TCanvas& canvas, const QPainterPath& outline);
// Along the inner edge of the rectangle.
void PaintDesignFrame(TCanvas& canvas, const QRect& rect);
// In the middle of the place; nothing where there is no room for it.
void PaintDesignHint(TCanvas& canvas, const QRect& rect, const TFont& font, const QString& text);
// The name of the control, on one line, while its form is being designed.
void PaintDesignName(TCanvas& canvas, const QRect& rect, const TControl& control,
                     Qt::Alignment alignment = Qt::AlignCenter);
