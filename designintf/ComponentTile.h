// What is not visible stands on the form as a tile with its name under it.
#pragma once
#include "rtl/Component.h"

class QPainter;
class QPoint;

constexpr int ComponentTileSize = 28;

// In the forms' colours; `ratio` is the number of device pixels for one of the painter's.
void PaintComponentTile(QPainter& painter, const TComponent& component, const QPoint& topLeft, qreal ratio);
