// Forms drawn as windows: title bar, borders and content.
#pragma once
#include "vcl/Form.h"

// Paints the whole form; the painter's origin is the frame's top left corner.
void PaintFormWindow(TForm& form, QPainter& painter, bool active);
// The form as a picture, enlarged by `scale`.
QImage RenderForm(TForm& form, double scale);
