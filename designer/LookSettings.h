// The designer's theme and the scheme that designed forms are shown in, remembered in the settings.
#pragma once
#include "vcl/FormColors.h"
#include "vcl/Theme.h"

// As the settings say; they may say nothing.
void RestoreTheme();
void RestoreFormColors();
void ChooseTheme(TTheme theme);
void ChooseFormColors(TFormColors colors);
