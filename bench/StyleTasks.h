// What styles cost: registering the classes of a form, and giving a style to many components.
#pragma once
#include <QString>

// Pairs of times: registering what the components of a form of 5,000 components of 60 classes publish, and
// walking their published properties once; applying a style of six values to 10,000 fields, and calling the
// setters; opening the style editor on 1,000
// styles of 20 values, and filling a tree of as many items. Neither file is read.
void MeasureStyles(const QString&, const QString&);
