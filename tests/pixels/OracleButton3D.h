// The button drawing pixel by pixel and rule by rule, as it is described, with no thought of speed.
#pragma once
#include "OraclePicture.h"
#include "library/pixels/Button3D.h"

struct ButtonColors {
  TColor T = clFuchsia, L = clWhite, S = clGray, DC = clWhite, P = clNone, K = clNone, BC = clBlack;
};

struct ButtonRun {
  ButtonColors Colors;
  bool Semi = false;
  int Width = 2;
};

struct OracleButtonResult {
  bool Done = false;  // the pictures hold something only then
  OraclePicture Up, Down, Disabled;
};

OraclePicture OracleSemiTransparent(const OraclePicture& picture, TColor colorOdd, TColor keyColor,
                                    TColor colorEven);
OracleButtonResult OracleButton3D(const OraclePicture& source, const ButtonRun& run, IVRXProgress* progress);
