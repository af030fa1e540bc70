// Whose turn it is when the Tab key goes through the controls of a container.
#pragma once
class TWinControl;

// Behind all others in its parent. Those that say nothing of their turn have that of their place.
void GiveLastTabOrder(TWinControl& control);
