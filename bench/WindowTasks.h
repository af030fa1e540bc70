// What an edit costs through the real window, until it is painted.
#pragma once
#include <QString>

// Times of an edit, of undoing one, of selecting, of moving by an arrow key, and of placing a button.
void MeasureWindow(const QString& file, const QString& warmUp);
