// What painting a form of many standard controls costs beside the same picture by plain calls of the style.
#pragma once
#include <QString>

// Pairs of times: the form, and the plain calls. Neither file is read.
void MeasurePaint(const QString&, const QString&);
