// Pictures written down as text, a character a pixel.
#pragma once
#include <stdexcept>
#include <string>
#include <vector>

#include "OracleButton3D.h"

// The colours of the characters.
inline TColor ColorOf(char c) {
  switch (c) {
    case '.':
      return clFuchsia;
    case '#':
      return TColor(0x203040);
    case 'L':
      return TColor(0x0000A1);
    case 'S':
      return TColor(0x00B200);
    case 'D':
      return TColor(0xC30000);
    case 'K':
      return clLime;
    case 'P':
      return TColor(0xABCDEF);
    case 'B':
      return clBlack;
    case 'W':
      return clWhite;
    case 'G':
      return clGray;
    default:
      throw std::invalid_argument("no colour has this character");
  }
}

inline OraclePicture Drawn(const std::vector<std::string>& rows) {
  OraclePicture picture(rows.empty() ? 0 : static_cast<int>(rows[0].size()), static_cast<int>(rows.size()),
                        clBlack);
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      picture.Set(x, y, ColorOf(rows[static_cast<std::size_t>(y)].at(static_cast<std::size_t>(x))));
  return picture;
}

// A run with the colours of the characters.
inline ButtonRun DrawnRun(int width, bool semi = false) {
  return {.Colors = {.T = ColorOf('.'),
                     .L = ColorOf('L'),
                     .S = ColorOf('S'),
                     .DC = ColorOf('D'),
                     .P = ColorOf('P'),
                     .K = ColorOf('K'),
                     .BC = ColorOf('B')},
          .Semi = semi,
          .Width = width};
}
