// What painting a form of many standard controls costs beside the same picture by plain calls of the style.
#pragma once
#include <QString>

// Pairs of times: the form, and the plain calls. Neither file is read.
void MeasurePaint(const QString&, const QString&);
// Pairs of times of opening a section of a button bar and painting it: one of 200 sections of 200 items, and
// one of 10 of 10.
void MeasureBars(const QString&, const QString&);
