#include "designer/CommandSearch.h"

#include <QStringList>

namespace {
constexpr int InsideWord = 100, Scattered = 1000;

std::optional<int> ScatteredIn(const QString& title, const QString& letters) {
  qsizetype at = -1;
  int gaps = 0;
  for (const QChar letter : letters) {
    const qsizetype next = title.indexOf(letter, at + 1);
    if (next < 0) return {};
    gaps += static_cast<int>(next - at - 1);
    at = next;
  }
  return Scattered + gaps;
}

std::optional<int> MisfitOfWord(const QString& title, const QString& word) {
  int number = 0;
  for (qsizetype i = 0; i < title.size(); ++i) {
    if (!title[i].isLetterOrNumber() || (i > 0 && title[i - 1].isLetterOrNumber())) continue;
    if (QStringView(title).sliced(i).startsWith(word)) return number;
    ++number;
  }
  if (const qsizetype at = title.indexOf(word); at >= 0) return InsideWord + static_cast<int>(at);
  return ScatteredIn(title, word);
}
}  // namespace

std::optional<int> Misfit(const QString& title, const QString& typed) {
  int misfit = 0;
  for (const QString& word : typed.toLower().split(u' ', Qt::SkipEmptyParts)) {
    const std::optional<int> each = MisfitOfWord(title.toLower(), word);
    if (!each) return {};
    misfit += *each;
  }
  return misfit;
}
