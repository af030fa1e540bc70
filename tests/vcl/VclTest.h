// What the control tests share: pictures of controls and a theme for the length of a test.
#pragma once
#include <QApplication>
#include <QImage>
#include <QPainter>

#include "vcl/Control.h"
#include "vcl/Theme.h"

// The control and its children on a background that no control uses.
inline QImage Draw(TControl& control, QColor background = QColor(1, 254, 3)) {
  QImage image(std::max(1, control.Width()), std::max(1, control.Height()),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(background);
  QPainter painter(&image);
  PaintControl(control, painter);
  return image;
}

class ThemeScope {
 public:
  explicit ThemeScope(TTheme theme) : before_(QApplication::palette()) { ApplyTheme(theme); }
  ~ThemeScope() { QApplication::setPalette(before_); }
  ThemeScope(const ThemeScope&) = delete;
  ThemeScope& operator=(const ThemeScope&) = delete;

 private:
  QPalette before_;
};

inline int CountPixels(const QImage& image, QColor color) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) n += image.pixelColor(x, y) == color;
  return n;
}

// Counts what a control tells its host.
class CountingHost : public IControlHost {
 public:
  void ControlChanged(TControl& control) override {
    ++changes;
    last = &control;
  }
  void BoundsChanging(TControl& control) override { leaving.push_back(control.BoundsRect()); }
  int changes = 0;
  TControl* last = nullptr;
  std::vector<QRect> leaving;
};
