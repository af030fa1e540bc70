// Pictures to measure the pixel routines on, from fixed seeds: half noise, soft blobs and text, each on
// clFuchsia.
#pragma once
#include "vcl/Bitmap.h"

enum class PictureKind { Noise, Blobs, Text };
TBitmap MakePicture(PictureKind kind, int width, int height);
