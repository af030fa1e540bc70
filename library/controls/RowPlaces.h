// Containers that stand their controls in a row, by difference.
#pragma once
#include "vcl/Layout.h"

// What a file stands beside its computed place, closer together perhaps than the container would, is a matter
// of the place in the row and not of who stands there: whoever comes to another place stands as the one did
// who had it, and nobody is moved out of the container.
void StandAsBefore(const std::vector<Placement*>& row, const std::vector<const Placement*>& before,
                   bool down);
