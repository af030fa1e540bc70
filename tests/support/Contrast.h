// How well something can be told from its ground.
#pragma once
#include <QColor>
#include <QHash>
#include <QImage>
#include <algorithm>
#include <cmath>

// Contrast of two colours as accessibility guidelines reckon it: 1 for none, 21 for black on white.
inline double Contrast(const QColor& a, const QColor& b) {
  const auto light = [](const QColor& c) {
    const auto part = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(c.redF()) + 0.7152 * part(c.greenF()) + 0.0722 * part(c.blueF());
  };
  const double x = light(a) + 0.05, y = light(b) + 0.05;
  return std::max(x, y) / std::min(x, y);
}

// The strongest contrast of anything in a picture with what most of it is.
inline double Contrast(const QImage& picture) {
  QHash<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  QRgb ground = 0;
  for (auto it = counts.cbegin(); it != counts.cend(); ++it)
    if (it.value() > counts.value(ground)) ground = it.key();
  double most = 1;
  for (auto it = counts.cbegin(); it != counts.cend(); ++it)
    most = std::max(most, Contrast(QColor(it.key()), QColor(ground)));
  return most;
}
