// Places that a form file leaves out because they follow from what the sides of a control are tied to
// (vcl/SideLayout.h). Only what is left out is worked out, and only for showing: coordinates that a file
// gives are right.
#pragma once

class TWinControl;

// To be called when everything inside is loaded. Nothing else moves.
void PlaceBySides(TWinControl& container);
