// Which desktop keys are sent to.
#pragma once
#include <functional>

#include "library/keys/Desktop.h"

// The desktop of this session. Without an X display it says so.
std::unique_ptr<IDesktop> OpenDesktop();
// Another one in its place, for tests; none brings the real one back.
using TDesktopMaker = std::function<std::unique_ptr<IDesktop>()>;
void SetDesktopMaker(TDesktopMaker maker);
