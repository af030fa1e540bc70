#include "forms/KeptValues.h"

namespace forms {

const KeptValues& KeptBy(const TCollectionItem& item) {
  static const KeptValues none;
  return item.Unread() ? *static_cast<const KeptValues*>(item.Unread().get()) : none;
}

bool SameName(QByteArrayView a, QByteArrayView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

void SetKept(TCollectionItem& item, KeptValues kept) {
  item.SetUnread(kept.empty() ? nullptr : std::make_shared<const KeptValues>(std::move(kept)));
}

std::vector<UnreadValue> UnreadValues(const PropertyTarget& target) {
  std::vector<UnreadValue> all;
  ForEachItem(target, [&](const TCollectionItem& item, const QByteArray& inside) {
    for (const KeptValue& kept : KeptBy(item)) all.push_back({inside + kept.property.path, kept.refused});
  });
  return all;
}

void ForgetReplaced(const PropertyTarget& target) {
  ForEachItem(target, [](TCollectionItem& item, const QByteArray&) {
    if (!item.Unread()) return;
    SetKept(item, KeptWithout(item, [&](const QByteArray& path) {
              const PropertyTarget inner = FindTarget(item, path);
              return inner.prop && IsStoredProp(*inner.instance, *inner.prop);
            }));
  });
}

}  // namespace forms
