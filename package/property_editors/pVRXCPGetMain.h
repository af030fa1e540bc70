// Launchers: each opens the dialog of one value type and writes the result into its argument only when the
// user confirms. True when that happened.
#pragma once
#include "library/values/LED.h"

bool VRXCPGetLED(TVRXLED& led);
