// What opening a dialog with a long list costs.
#pragma once
#include <QString>

// Pairs of times: the list of 100,000 dates opened until it is painted, and a standard item model filled with
// the same texts. Neither file is read.
void MeasureDates(const QString&, const QString&);
