// Texts as the outlines of their letters.
#pragma once
#include <QFont>
#include <QPainterPath>
#include <vector>

// From the left to the right, line by line, in a box from (0, 0) that is as wide as the longest line and as
// high as all of them. Accents belong to their letters.
struct TVRXLetters {
  std::vector<QPainterPath> Outlines;
  std::vector<QPainterPath> Bars;  // under and through the lines
  QSizeF Box;
};
struct TVRXLetterStyle {
  QFont Font;
  int Tracing = 0;                // pixels between letters beyond their own distance
  int Alignment = Qt::AlignLeft;  // Qt::AlignmentFlag: where short lines stand
  bool Equal = false;             // as high as the highest letter, with the room of the widest
  bool operator==(const TVRXLetterStyle&) const = default;
};
TVRXLetters VRXLettersOf(const QString& text, const TVRXLetterStyle& style);
