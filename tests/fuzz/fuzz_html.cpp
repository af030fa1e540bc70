// Fuzz target: markup that stands in a form, taken apart.
#include "library/html/Markup.h"
#include "tests/fuzz/Target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QString markup = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const html::Document document = html::Parse(markup);
  qsizetype at = 0;
  std::size_t piece = 0;
  for (const html::Paragraph& p : document.paragraphs) {
    Require(p.start == at && p.firstPiece == piece, "paragraphs follow each other");
    for (std::size_t i = 0; i < p.pieces; ++i, ++piece) {
      const html::Piece& here = document.pieces[piece];
      Require(here.start == at && here.length > 0, "pieces cover the text");
      Require(here.look.link < document.links.size(), "links lead somewhere");
      Require(here.look.size >= 1 && here.look.size <= 7, "sizes are known ones");
      at += here.length;
    }
    Require(p.start + p.length == at, "a paragraph is as long as its pieces");
  }
  Require(at == document.text.size() && piece == document.pieces.size(), "nothing is left over");
  // What was read, written as text without tags, is read as the same words.
  const QString plain = document.PlainText();
  const QString again = plain.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
  Require(html::Parse(again).PlainText().simplified() == plain.simplified(), "words stay");
  return 0;
}
