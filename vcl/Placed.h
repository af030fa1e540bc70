// What the layout of a container wants for what stands in it now.
#pragma once
#include "vcl/Layout.h"

class TWinControl;

Placements Placed(const TWinControl& container, const Placements* before);
