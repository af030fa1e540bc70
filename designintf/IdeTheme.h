// The look of the IDE for the dialogs and windows of packages.
#pragma once
#include <functional>

class QWidget;

// Gives the IDE's colours to the window and to every widget inside for which `needTheme` is true. A widget
// that is left out keeps its own, with everything inside it. Without a filter everything is themed.
void ApplyIDETheme(QWidget& window, const std::function<bool(const QWidget&)>& needTheme = {});
// Whether the widget took part in the last theming of its window.
bool IsIDEThemed(const QWidget& widget);
