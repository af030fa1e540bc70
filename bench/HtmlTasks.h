// What drawing rows of markup costs beside the same rows in text documents.
#pragma once
#include <QString>

// Pairs of times, markup and documents: "cold" takes the texts apart, sets and draws them, "warm" draws those
// that were drawn before. Neither file is read.
void MeasureHtml(const QString&, const QString&);
