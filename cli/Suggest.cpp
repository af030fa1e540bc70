#include "cli/Suggest.h"

#include <algorithm>
#include <vector>

#include "rtl/Printable.h"

namespace {
constexpr qsizetype Most = 3;
constexpr qsizetype LongestName = 80;

// How many letters are to be changed, put in or left out, in whatever case.
int Distance(const QString& a, const QString& b) {
  std::vector<int> row(static_cast<std::size_t>(b.size()) + 1);
  for (std::size_t i = 0; i < row.size(); ++i) row[i] = static_cast<int>(i);
  for (qsizetype i = 0; i < a.size(); ++i) {
    int diagonal = std::exchange(row[0], static_cast<int>(i) + 1);
    for (std::size_t j = 1; j < row.size(); ++j) {
      const bool same = a[i] == b[static_cast<qsizetype>(j) - 1];
      const int best = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (same ? 0 : 1)});
      diagonal = std::exchange(row[j], best);
    }
  }
  return row.back();
}
}  // namespace

QString DidYouMean(const QString& wanted, const QStringList& names) {
  const QString key = wanted.left(LongestName).toLower();
  std::vector<std::pair<int, QString>> ranked;
  // Further away it is another name.
  const int far = std::max(2, static_cast<int>(key.size()) / 3);
  for (const QString& name : names)
    if (const int distance = Distance(key, name.left(LongestName).toLower());
        distance <= far && !name.isEmpty())
      ranked.emplace_back(distance, name);
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  QStringList nearest;
  for (const auto& [distance, name] : ranked)
    if (nearest.size() < Most && !nearest.contains(name)) nearest << Printable(name);
  if (nearest.isEmpty()) return {};
  const QString last = nearest.takeLast();
  const QString list =
      nearest.isEmpty() ? last : nearest.join(QStringLiteral(", ")) + QStringLiteral(" or ") + last;
  return QStringLiteral(" Did you mean %1?").arg(list);
}
