// Icons of component classes: drawn, so that they are sharp at every size and follow the theme.
#pragma once
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <functional>

#include "rtl/Class.h"

class QPainter;

// What an icon is drawn with: two tones and the accent, readable on the current theme.
struct TIconInk {
  QColor Line;
  QColor Fill;
  QColor Accent;
};
// Draws on a field of 24 by 24.
using TIconPainter = std::function<void(QPainter&, const TIconInk&)>;

void RegisterComponentIcon(const TClass& cls, TIconPainter painter);
// The icon of the class or its nearest ancestor; a plain component symbol when nobody registered one.
QIcon ComponentIcon(const TClass& cls);
// The same as a picture of `pixels` by `pixels`, readable on what `palette` paints.
QPixmap ComponentPixmap(const TClass& cls, int pixels, qreal devicePixelRatio = 1,
                        const QPalette& palette = QGuiApplication::palette());
