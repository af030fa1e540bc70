// The framework's colour dialog: a field of shades.
#pragma once
#include <QStringList>

#include "vcl/Colors.h"

class QWidget;

// True when a colour was chosen. Custom colours ("ColorA=00BBGGRR" ...) made in the dialog stay in the list,
// whatever the answer. A system colour starts as the shade it has now, and stays one unless another is
// chosen.
bool ChooseColor(QWidget* parent, TColor& color, QStringList& customColors);
