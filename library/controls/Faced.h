// Controls that take their look from a face controller or from styles: each publishes the references and asks
// what applies to the state that it is in.
#pragma once
#include "library/components/FaceController.h"
#include "library/styles/StyleManager.h"
#include "vcl/Control.h"

inline constexpr TKept<TVRXFaceController*> VRXFaceControllerRef{"FaceController"};
inline constexpr TKept<TVRXStyleManager*> VRXStyleManagerRef{"StyleManager"};
inline constexpr TKept<QString> VRXStyleRef{"Style"};
// Adds the references to what the class publishes.
TClassBuilder VRXWithFace(TClassBuilder builder);
// Styles alone, of the class: for controls whose Style is something else.
TClassBuilder VRXWithStyles(TClassBuilder builder);

// The states that the control is in, as far as its published values tell them.
TVRXStateKinds VRXStatesOf(const TControl& control);
// What applies in these, and in those that the controller has for the designer. Styles lie over the face:
// that of the control (the one it names, else its class's), those of its states below it, then the ones that
// the face controller names for them.
TVRXFaceLook VRXFaceOf(const TControl& control);
