// Controls that take their look from a face controller: each publishes the reference and asks what applies to
// the state that it is in.
#pragma once
#include "library/components/FaceController.h"
#include "vcl/Control.h"

inline constexpr TKept<TVRXFaceController*> VRXFaceControllerRef{"FaceController"};
// Adds the reference to what the class publishes.
TClassBuilder VRXWithFace(TClassBuilder builder);

// The states that the control is in, as far as its published values tell them.
TVRXStateKinds VRXStatesOf(const TControl& control);
// What applies in these, and in those that the controller has for the designer.
TVRXFaceLook VRXFaceOf(const TControl& control);
