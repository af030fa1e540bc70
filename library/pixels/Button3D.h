// Turns a picture into the state pictures of a three-dimensional button.
//
// The bevel grows outward from everything that is not of the transparent colour, ring by ring: the light and
// shadow rings, then one ring of the bevel's own colour.
#pragma once
#include "library/pixels/Progress.h"
#include "vcl/Bitmap.h"

// Shared between VRXDrawButton3D and whoever runs it: cleared before a run, set to end it early. Read only
// when a progress control is given.
extern bool VRX3DEffectAbort;

// Pixels of the key colour become `colorOdd` where x + y is odd and `colorEven` elsewhere. Always true.
bool VRXMakeBmpSemiTransparent(TBitmap& bitmap, TColor colorOdd, TColor keyColor, TColor colorEven);

// Throws EInvalidPicture when the results would be larger than pictures may be; `what` names one of them at
// the start of the sentence.
void RequireButton3DSize(const QString& what, const TBitmap& source, int bevelWidth);

// Draws the three pictures, each `bevelWidth` pixels larger than the source on every side; the content of
// `down` is moved by one pixel right and down. With `semiTransparent`, pixels of `semiKey` become a checker
// of the transparent colour and `semiSecond` first. A bevel width of 0 leaves only the ring of the bevel
// colour; -1 crops the picture by one pixel on each side; below that nothing happens. The results change only
// when the run is complete. `progress` may be null.
void VRXDrawButton3D(const TBitmap& source, TBitmap& up, TBitmap& down, TBitmap& disabled, TColor transparent,
                     TColor light, TColor shadow, TColor disabledColor, TColor semiSecond, TColor semiKey,
                     TColor bevel, bool semiTransparent, int bevelWidth, IVRXProgress* progress);
