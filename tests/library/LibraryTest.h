// What the tests of the LED letters share.
#pragma once
#include <QImage>
#include <QPainter>

#include "library/controls/LEDLabel.h"
#include "library/values/LEDSegments.h"

inline QImage Draw(TControl& control, QColor background) {
  QImage image(std::max(1, control.Width()), std::max(1, control.Height()),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(background);
  QPainter painter(&image);
  PaintControl(control, painter);
  return image;
}

inline int CountPixels(const QImage& image, QColor color) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) n += image.pixelColor(x, y) == color;
  return n;
}

// The smallest rectangle with everything that is not background.
inline QRect Inked(const QImage& image, QColor background) {
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixelColor(x, y) != background) box |= QRect(x, y, 1, 1);
  return box;
}
