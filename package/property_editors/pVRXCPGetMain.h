// Launchers: each opens the dialog of one value type and writes the result into its argument only when the
// user confirms. True when that happened.
#pragma once
#include "library/components/FaceController.h"
#include "library/controls/Button3D.h"
#include "library/controls/GraphicLabel.h"
#include "library/values/Bevels.h"
#include "library/values/Caption.h"
#include "library/values/DateList.h"
#include "library/values/Fill.h"
#include "library/values/LED.h"
#include "library/values/LightColor.h"
#include "library/values/PointList.h"
#include "library/values/RegionMask.h"
#include "library/values/Shadow.h"
#include "library/values/ShapeType.h"
#include "library/values/Teeth.h"

// The button gets its three pictures, and their size. False also when no picture was chosen.
bool VRXCPGetButtonFace3D(TVRXCustom3DButton& button);
// Settings and states of a controller, which is assigned to when the user confirms.
bool VRXCPGetFaceController(TVRXFaceController& controller);
// `showMultiLine`: whether the dialog offers the "MultiLine" check box.
bool VRXCPGetVRXCaption(TVRXCaption& caption, bool showMultiLine);
// The list is rebuilt line by line. A line that is no date raises EConvertError; the list ends before it
// then.
bool VRXCPGetDateList(TVRXDateList& list);
// All of the label, by its own editor.
bool VRXCPGetGraphicLabel(TVRXGraphicLabel& label);
bool VRXCPGetLED(TVRXLED& led);
bool VRXCPGetPointList(TVRXPointList& list);
// `window`: for the shape of a window; else for that of a button with two states.
bool VRXCPGetRegionMask(TVRXRegionMask& mask, bool window);
bool VRXCPGetShadow(TVRXShadow& shadow);
// `images`: where the fill finds pictures by index, if anywhere.
bool VRXCPGetShapeFill(TVRXShapeFill& fill, TCustomImageList* images = nullptr);
bool VRXCPGetSimpleBevel(TVRXSimpleBevel& bevel);
bool VRXCPGetTeeth(TVRXTeeth& teeth);
// The chosen value, or the argument when the user does not confirm.
TVRXLightColor VRXCPGetLightColor(TVRXLightColor color);
TVRXShapeType VRXCPGetShape(TVRXShapeType shape);
