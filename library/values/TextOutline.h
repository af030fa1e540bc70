// Outlines under maps of the plane.
#pragma once
#include <QPainterPath>
#include <functional>

using TPlaneMap = std::function<QPointF(QPointF)>;

// Every point of the outline, of its lines and of its curves, is taken to where the map takes it. There are
// as many contours as before, and each is closed where it was. `close`: by how much it may miss the map.
QPainterPath MappedOutline(const QPainterPath& path, const TPlaneMap& map, double close);
