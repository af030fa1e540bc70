// "Form colours": the scheme that designed forms are shown in, remembered in the settings.
#pragma once
class QMenu;

// Shows forms as the settings say.
void RestoreFormColors();
// Adds the choices to the View menu.
void AddFormColorsMenu(QMenu& view);
