// What painting a text that is bent into a form costs beside its outline alone.
#pragma once
#include <QString>

// Pairs of times: the label with fill, line and shadow, and its outline filled once; of the form that takes
// longest. Neither file is read.
void MeasureGraphicLabel(const QString&, const QString&);
