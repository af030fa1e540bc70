// A small picture of a colour, for lists.
#pragma once
#include <QIcon>

#include "vcl/Colors.h"

QIcon ColorSwatch(TColor color, const QSize& size = QSize(28, 14));
