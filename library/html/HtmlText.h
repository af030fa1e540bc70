// A text with markup, ready to be drawn. What was taken apart and set is kept, by the text.
#pragma once
#include <optional>

#include "library/html/HtmlLayout.h"

namespace html {

class Text {
 public:
  explicit Text(const QString& markup) : document_(Parse(markup)) {}
  const html::Document& Document() const { return document_; }
  // The last one is kept, because a control as a rule draws as it drew before.
  const Layout& Laid(const Setup& setup) const;

 private:
  const html::Document document_;
  mutable std::optional<std::pair<Setup, Layout>> last_;
};

// From those that are kept, or made. For the thread that paints.
std::shared_ptr<const Text> TextOf(const QString& markup);
void ForgetTexts();

// Draws into the rectangle and nowhere else; `vertical` says where a text stands that is lower, and one that
// is higher starts at the top. `offset` moves nothing but what is seen.
void Draw(TCanvas& canvas, const QRect& rect, Qt::Alignment vertical, const QString& markup,
          const Setup& setup, const TCustomImageList* images);
// Where the link at a point of that rectangle leads; null when there is none.
QString LinkAt(const QRect& rect, Qt::Alignment vertical, const QString& markup, const Setup& setup,
               QPoint point);

}  // namespace html
