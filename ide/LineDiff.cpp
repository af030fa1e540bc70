#include "ide/LineDiff.h"

#include <QHash>
#include <QObject>
#include <QStringDecoder>

#include "forms/FormFile.h"

namespace {
using Kind = DiffRow::Kind;

// Lines as numbers: equal lines, equal numbers.
std::vector<int> Numbers(const QStringList& lines, QHash<QString, int>& known) {
  std::vector<int> numbers;
  numbers.reserve(static_cast<std::size_t>(lines.size()));
  for (const QString& line : lines) {
    const auto at = known.constFind(line);
    numbers.push_back(at != known.cend() ? *at : *known.insert(line, static_cast<int>(known.size())));
  }
  return numbers;
}

// Which lines stay, as runs of common lines in ascending order: the shortest edit script, found by following
// the furthest way on every diagonal. Gives up at so many changed lines that nobody would read them.
struct Run {
  int left, right, length;
};
constexpr int MaxChanges = 2000;

std::vector<Run> CommonRuns(const int* a, int n, const int* b, int m) {
  std::vector<std::vector<int>> steps;  // furthest `x` per diagonal, for every number of changes
  const auto at = [](const std::vector<int>& v, int k) {
    return v[static_cast<std::size_t>(k + static_cast<int>(v.size()) / 2)];
  };
  const int most = std::min(n + m, MaxChanges);
  int changes = 0;
  for (bool found = false; !found; ++changes) {
    if (changes > most) return {};
    std::vector<int> now(static_cast<std::size_t>(2 * changes + 3), -1);
    const int middle = changes + 1;
    for (int k = -changes; k <= changes; k += 2) {
      int x = 0;
      if (changes > 0) {
        const std::vector<int>& before = steps.back();
        const bool down = k == -changes || (k != changes && at(before, k - 1) < at(before, k + 1));
        x = down ? at(before, k + 1) : at(before, k - 1) + 1;
      }
      while (x < n && x - k < m && x - k >= 0 && a[x] == b[x - k]) ++x;
      now[static_cast<std::size_t>(k + middle)] = x;
      if (x >= n && x - k >= m) {
        found = true;
        break;
      }
    }
    steps.push_back(std::move(now));
  }
  std::vector<Run> runs;
  int x = n, y = m;
  for (int d = changes - 1; d >= 0; --d) {
    const int k = x - y;
    int startX = 0;
    int nextX = 0, nextY = 0;
    if (d > 0) {
      const std::vector<int>& before = steps[static_cast<std::size_t>(d - 1)];
      const bool down = k == -d || (k != d && at(before, k - 1) < at(before, k + 1));
      nextX = down ? at(before, k + 1) : at(before, k - 1);
      nextY = nextX - (down ? k + 1 : k - 1);
      startX = down ? nextX : nextX + 1;
    }
    if (x > startX) runs.push_back({startX, startX - k, x - startX});
    x = nextX;
    y = nextY;
  }
  std::reverse(runs.begin(), runs.end());
  return runs;
}
}  // namespace

std::vector<DiffRow> CompareLines(const QStringList& left, const QStringList& right) {
  QHash<QString, int> known;
  const std::vector<int> a = Numbers(left, known), b = Numbers(right, known);
  const int n = static_cast<int>(a.size()), m = static_cast<int>(b.size());
  int head = 0, tail = 0;
  while (head < std::min(n, m) && a[static_cast<std::size_t>(head)] == b[static_cast<std::size_t>(head)])
    ++head;
  while (tail < std::min(n, m) - head &&
         a[static_cast<std::size_t>(n - 1 - tail)] == b[static_cast<std::size_t>(m - 1 - tail)])
    ++tail;

  std::vector<DiffRow> rows;
  int x = 0, y = 0;
  const auto same = [&](int count) {
    for (int i = 0; i < count; ++i) rows.push_back({Kind::Same, x++, y++});
  };
  const auto different = [&](int toX, int toY) {
    while (x < toX && y < toY) rows.push_back({Kind::Changed, x++, y++});
    while (x < toX) rows.push_back({Kind::Removed, x++, -1});
    while (y < toY) rows.push_back({Kind::Added, -1, y++});
  };
  same(head);
  for (const Run& run : CommonRuns(a.data() + head, n - head - tail, b.data() + head, m - head - tail)) {
    different(head + run.left, head + run.right);
    same(run.length);
  }
  different(n - tail, m - tail);
  same(tail);
  return rows;
}

std::vector<DiffRow> FoldSameLines(const std::vector<DiffRow>& rows, int context) {
  std::vector<DiffRow> folded;
  for (std::size_t i = 0; i < rows.size();) {
    std::size_t end = i;
    while (end < rows.size() && rows[end].kind == Kind::Same) ++end;
    if (end == i) {
      folded.push_back(rows[i++]);
      continue;
    }
    const std::size_t before = i == 0 ? 0 : static_cast<std::size_t>(context);
    const std::size_t after = end == rows.size() ? 0 : static_cast<std::size_t>(context);
    // A gap of one line would save nothing.
    if (end - i <= before + after + 1) {
      folded.insert(folded.end(), rows.begin() + static_cast<std::ptrdiff_t>(i),
                    rows.begin() + static_cast<std::ptrdiff_t>(end));
    } else {
      const auto first = rows.begin() + static_cast<std::ptrdiff_t>(i);
      const auto last = rows.begin() + static_cast<std::ptrdiff_t>(end);
      folded.insert(folded.end(), first, first + static_cast<std::ptrdiff_t>(before));
      const DiffRow& hidden = rows[i + before];
      folded.push_back({Kind::Gap, hidden.left, hidden.right, static_cast<int>(end - i - before - after)});
      folded.insert(folded.end(), last - static_cast<std::ptrdiff_t>(after), last);
    }
    i = end;
  }
  return folded;
}

QStringList LinesToRead(const QByteArray& bytes, const QString& fileName) {
  QByteArray text = bytes;
  if (forms::Document::Detect(bytes) != forms::Format::Text) try {
      text = forms::Document::Parse(bytes, forms::DialectOfName(fileName)).WriteAs(forms::Format::Text);
    } catch (const Exception&) {
      return {QObject::tr("(%1 bytes that are not a form)").arg(bytes.size())};
    }
  QStringDecoder utf8(QStringDecoder::Utf8);
  QString decoded = utf8(text);
  if (utf8.hasError()) decoded = QString::fromLatin1(text);
  QStringList lines = decoded.split(u'\n');
  if (lines.last().isEmpty()) lines.removeLast();
  for (QString& line : lines)
    if (line.endsWith(u'\r')) line.chop(1);
  return lines;
}
