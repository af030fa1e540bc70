// Markup in lines: where everything stands, drawing it, and what is at a point.
#pragma once
#include <QTextLayout>
#include <memory>

#include "library/html/Markup.h"
#include "vcl/Canvas.h"
#include "vcl/ImageList.h"

namespace html {

// How a text is set. Two that are equal give the same lines in the same colours.
struct Setup {
  QFont font;
  QColor color, link;
  // What it stands on, when that is another ground than its author had in mind: colours that cannot be read
  // there become `color`. Invalid: colours stay as they are.
  QColor ground{};
  // What takes its colours from the scheme of the forms (clHighlight) depends on it.
  QColor window{};
  int width = 0;
  bool wrap = true;
  bool plain = false;  // disabled: everything in `color`
  Qt::Alignment alignment = Qt::AlignLeft;
  QSize picture{16, 16};
  bool operator==(const Setup&) const = default;
};
// For a control's text of that width.
Setup SetupFor(const TFont& font, bool enabled, int width, const TCustomImageList* images);

// One line as it is seen, for whoever wants to know.
struct Line {
  QString text;
  QRectF place;
};

class Layout {
 public:
  Layout(const Document& document, const Setup& setup);
  Layout(Layout&&) noexcept;
  ~Layout();

  // Width of the longest line and height of all.
  QSize Size() const { return size_; }
  // At the painter's origin; what lies outside of `clip` costs nothing.
  void Draw(QPainter& painter, const QRectF& clip, const TCustomImageList* images) const;
  // Index of the link at a point; -1 when there is none.
  int LinkAt(QPointF point) const;
  std::vector<Line> Lines() const;

 private:
  struct Block;
  void Set(const Paragraph& paragraph, Block& block);
  void SetLines(const Paragraph& paragraph, Block& block, double left, double width);
  QTextLayout::FormatRange FormatOf(const Piece& piece, qsizetype start) const;
  QColor Readable(const QColor& color) const;
  void DrawPictures(QPainter& painter, const Block& block, const TCustomImageList* images) const;

  const Document& document_;
  Setup setup_;
  std::vector<Block> blocks_;
  QSize size_;
};

}  // namespace html
