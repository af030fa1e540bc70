// Figures as closed outlines of points, and what runs along the inside of them.
#pragma once
#include <QPainterPath>

// Parallel to the outline, so many pixels inside of it. It may run either way round and need not be convex.
QPolygonF InsetOutline(const QPolygonF& outline, double pixels);

// The strip along the inside of an outline, in two parts: the sides that face the light, which comes from
// the top left, and the others. Where the figure is narrower than the strip it reaches beyond.
struct TEdgeStrip {
  QPainterPath Lit, Shaded;
};
TEdgeStrip StripInside(const QPolygonF& outline, double pixels);

QPainterPath PathOf(const QPolygonF& outline);
