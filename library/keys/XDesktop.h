// The desktop of an X session, through libxdo.
#pragma once
#include "library/keys/Desktop.h"

// Throws ESendKeysError where there is no X display, or none that takes keys.
std::unique_ptr<IDesktop> OpenXDesktop();
