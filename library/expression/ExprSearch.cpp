#include "library/expression/ExprSearch.h"

#include <vector>

namespace expression {

// Knuth, Morris and Pratt: a text of a million equal letters is as quick as any other.
void Search(QStringView text, QStringView what, const std::function<bool(qsizetype)>& found) {
  if (what.isEmpty() || what.size() > text.size()) return;
  std::vector<qsizetype> back(static_cast<std::size_t>(what.size()), 0);
  const auto step = [&](qsizetype matched, QChar c) {
    while (matched > 0 && (matched == what.size() || what[matched] != c))
      matched = back[static_cast<std::size_t>(matched - 1)];
    return what[matched] == c ? matched + 1 : matched;
  };
  for (qsizetype i = 1; i < what.size(); ++i)
    back[static_cast<std::size_t>(i)] = step(back[static_cast<std::size_t>(i - 1)], what[i]);
  qsizetype matched = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    matched = step(matched, text[i]);
    if (matched < what.size()) continue;
    if (!found(i + 1 - matched)) return;
    matched = 0;
  }
}

qsizetype FirstPlace(QStringView text, QStringView what, qsizetype from) {
  if (what.isEmpty()) return from <= text.size() ? from : -1;
  qsizetype place = -1;
  if (from < text.size())
    Search(text.mid(from), what, [&](qsizetype at) {
      place = from + at;
      return false;
    });
  return place;
}

}  // namespace expression
