#include "vcl/ShownText.h"

namespace {
// Two pixels a character and ten a line fill a form of 2000 x 2500.
constexpr qsizetype Most = 1 << 18;
}  // namespace

QString ShownText(const QString& text) {
  if (text.size() <= Most) return text;
  return text.left(text[Most - 1].isHighSurrogate() ? Most - 1 : Most);
}
