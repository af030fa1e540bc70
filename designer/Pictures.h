// Pictures of the designer at work, for the README and for machines without a display.
#pragma once
#include <QString>

class PackageManager;

// Walks through the main job on a form and writes a picture of every stage into the folder, in both themes.
// Returns the files written.
QStringList TakePictures(PackageManager& packages, const QString& form, const QString& folder);
