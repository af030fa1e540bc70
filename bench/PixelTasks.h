// The pixel routines, measured on one picture in one process.
#pragma once
#include <QString>

// `kind` is noise, blobs or text, `size` WIDTHxHEIGHT. Reports ratios against copying memory and, where it
// was built in, pixman.
void MeasurePixels(const QString& kind, const QString& size);
