// The ground on which pictures are shown: it tells where they are transparent, in every theme alike.
#pragma once
#include <QPainter>

void PaintCheckedGround(QPainter& painter, const QRect& place, int check);
