// When buttons and menu items of one of the two families of forms show their pictures.
#pragma once
#include "rtl/TypeInfo.h"

enum class TGlyphShowMode : std::uint8_t { gsmAlways, gsmNever, gsmApplication, gsmSystem };
VRX_ENUM(TGlyphShowMode, {"gsmAlways", "gsmNever", "gsmApplication", "gsmSystem"})
