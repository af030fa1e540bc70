// Asks for a picture file.
#pragma once
#include "vcl/Bitmap.h"

class QWidget;

// False when nothing was chosen or the file is no picture, which is told; the picture is unchanged then.
bool VRXCPGetPicture(QWidget* parent, TBitmap& picture);
