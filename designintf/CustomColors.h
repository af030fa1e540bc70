// The custom colours of the IDE's colour dialogs, kept for the user. An entry is "ColorA=00BBGGRR" to
// "ColorP=...", sixteen at most, in that order.
#pragma once
#include <QStringList>

#include "vcl/Colors.h"

QStringList LoadIDECustomColors();
// Throws ERegistryException when they cannot be written; not again until that has become possible.
void SaveIDECustomColors(const QStringList& colors);

// The list and plain colours: entry i of the list is slot i of a colour dialog.
std::vector<TColor> CustomColorValues(const QStringList& colors);
QStringList CustomColorEntries(const std::vector<TColor>& colors);
constexpr int MaxCustomColors = 16;
