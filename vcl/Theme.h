// The two looks of the application.
#pragma once
#include <QPalette>

enum class TTheme { System, Light, Dark };

// Sets style and palette of the running QApplication; System keeps the platform's palette.
void ApplyTheme(TTheme theme);
// The palette of a theme, whichever the application has now; System is the application's.
QPalette ThemePalette(TTheme theme);
// Whether texts are lighter than their background.
bool IsDark(const QPalette& palette);
bool IsDarkTheme();
