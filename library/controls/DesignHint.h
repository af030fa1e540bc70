// What an empty control says on a form that is being designed.
#pragma once
#include "vcl/Control.h"

// Quietly, in the middle of the place; nothing where there is no room for it.
void PaintDesignHint(TCanvas& canvas, const QRect& rect, const TFont& font, const QString& text);
