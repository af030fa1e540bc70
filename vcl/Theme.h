// The two looks of the application.
#pragma once
#include <QString>

enum class TTheme { System, Light, Dark };

// Sets style and palette of the running QApplication; System keeps the platform's palette.
void ApplyTheme(TTheme theme);
// Whether texts are lighter than their background now.
bool IsDarkTheme();
