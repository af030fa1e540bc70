// "Form colours": the scheme that designed forms are shown in, remembered in the settings.
#pragma once
#include "vcl/Theme.h"

class QMenu;

// Shows forms as the settings say.
void RestoreFormColors();
// The designer's own theme, remembered like the form's colours.
void ChooseTheme(TTheme theme);
void RestoreTheme();
// Adds the choices to the View menu.
void AddFormColorsMenu(QMenu& view);
