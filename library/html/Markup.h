// Text with markup, taken apart: what it says, in paragraphs and in pieces of one look. docs/html-subset.md
// lists what is known; tags that are not known are text.
//
// Whatever the markup is, taking it apart takes time by its length. Tags that cross each other or are never
// closed are no errors: each kind is counted for itself.
#pragma once
#include <QString>
#include <vector>

#include "vcl/Colors.h"

namespace html {

struct Look {
  TColor color = clDefault;  // clDefault: that of the text around
  QString face{};            // empty: that of the text around
  int size = 3;              // 1 to 7, and 3 is that of the text around
  int script = 0;            // below 0 a subscript, above 0 a superscript
  int link = -1;             // index in Document::links
  bool bold = false, italic = false, underline = false, strikeOut = false;
  bool operator==(const Look&) const = default;
};

// A run of characters; a picture is a run of one.
struct Piece {
  qsizetype start = 0, length = 0;  // in Document::text
  Look look{};
  int image = -1;  // index of the picture
};

struct Paragraph {
  qsizetype start = 0, length = 0;
  std::size_t firstPiece = 0, pieces = 0;
  Qt::Alignment alignment{};  // none: that of whoever draws
  int indent = 0;             // lists that it stands in
  QString mark{};             // of a list's item: a bullet or a number
  bool rule = false;          // a line across, and no text
  bool apart = false;         // with a gap above
};

struct Document {
  QString text;
  std::vector<Piece> pieces;
  std::vector<Paragraph> paragraphs;
  QStringList links;  // where they lead
  // All that can be read, line by line, without marks and pictures.
  QString PlainText() const;
};

// What stands for a picture in the text. A line may end before and behind it.
constexpr QChar PictureCharacter = u'\u00A0', PictureEdge = u'\u200B';

Document Parse(const QString& markup);

}  // namespace html
