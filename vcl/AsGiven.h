// When a control takes values as they are given.
#pragma once

class TControl;

// While the control is loaded, an edit is taken back, or it becomes a copy of another one: nothing is refused
// or limited then, and nothing follows.
bool TakesAsGiven(const TControl& control);
