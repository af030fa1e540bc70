#include "vcl/RepaintTimer.h"

#include "vcl/Control.h"

TRepaintTimer::TRepaintTimer(TControl& control) : timer_([&control] { control.Invalidate(); }) {}
