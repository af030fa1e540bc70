#include "vcl/SvgUses.h"

namespace {
// The same id stands in the list once for every element that is open with it.
template <class F>
void ForEachPart(const QStringList& open, F&& each) {
  each(QString());
  for (const QString& id : open)
    if (!id.isEmpty()) each(id);
}
}  // namespace

void SvgUses::Open(const QString& id) {
  open_ << id;
  ForEachPart(open_, [this](const QString& part) { ++parts_[part].elements; });
}

void SvgUses::Close() { open_.removeLast(); }

void SvgUses::Use(const QString& id) {
  ForEachPart(open_, [&](const QString& part) { parts_[part].uses << id; });
}

std::int64_t SvgUses::Of(const QString& id, std::int64_t limit, QHash<QString, std::int64_t>& known) const {
  if (const auto it = known.constFind(id); it != known.cend()) return *it;
  const auto part = parts_.constFind(id);
  if (part == parts_.cend()) return 0;
  known.insert(id, limit);  // met again before it is known, it draws itself
  std::int64_t sum = part->elements;
  for (const QString& used : part->uses) {
    if (sum >= limit) break;
    sum += Of(used, limit, known);
  }
  return known[id] = std::min(sum, limit);
}

std::int64_t SvgUses::Drawn(std::int64_t limit) const {
  QHash<QString, std::int64_t> known;
  return Of(QString(), limit, known);
}
