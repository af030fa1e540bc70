#include "forms/References.h"

#include "forms/KeptValues.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"

namespace forms {

namespace {
TComponent* FindByPath(const TComponent& scope, const QString& path) {
  if (!path.contains(u'.')) return scope.FindComponent(path);
  TComponent* at = nullptr;
  for (const QString& name : path.split(u'.')) {
    at = (at ? *at : scope).FindComponent(name);
    if (!at) return nullptr;
  }
  return at;
}

// The nearest around it that owns something, and so knows names.
const TComponent* NameSpaceOf(const TPersistent* p) {
  for (; p; p = p->GetOwner()) {
    if (!p->InheritsFrom(TComponent::StaticClass())) continue;
    const auto* component = static_cast<const TComponent*>(p);
    if (!component->Components().empty()) return component;
  }
  return nullptr;
}

// The nearest enclosing name space that knows the name: a frame before the form.
TComponent* FindReferenced(TComponent& root, const TComponent* from, const QString& path) {
  for (; from; from = NameSpaceOf(from->GetOwner()))
    if (TComponent* found = FindByPath(*from, path)) return found;
  return root.Name().compare(path, Qt::CaseInsensitive) == 0 ||
                 path.compare(QLatin1String(RootWord), Qt::CaseInsensitive) == 0
             ? &root
             : nullptr;
}

// The reference leads to nothing here: the item keeps it as the file has it.
void KeepReference(const PendingReference& p) {
  KeptValues kept = KeptWithout(*p.item, [&](const QByteArray& path) { return SameName(path, p.path); });
  const auto why = std::make_exception_ptr(EPropertyError(
      QStringLiteral("%1 cannot refer to %2.").arg(QString::fromUtf8(p.path), WhyUnresolved(p))));
  const auto at =
      std::find_if(kept.begin(), kept.end(), [&](const KeptValue& k) { return k.index > p.index; });
  kept.insert(at, {p.index, {p.path, Value::Identifier(p.target)}, why});
  SetKept(*p.item, std::move(kept));
}
}  // namespace

void AddReference(std::vector<PendingReference>& pending, const PropertyTarget& target, QByteArrayView name) {
  const bool same = !pending.empty() && pending.back().target == name;
  pending.push_back({.instance = target.instance,
                     .prop = target.prop,
                     .target = same ? pending.back().target : name.toByteArray()});
}

std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending) {
  // Many refer to the same one from the same place.
  QByteArray path;
  const TComponent* from = nullptr;
  TComponent* target = nullptr;
  std::erase_if(pending, [&](PendingReference& p) {
    const TComponent* space = NameSpaceOf(p.instance);
    if (path.isNull() || p.target != path || space != from)
      target = FindReferenced(root, from = space, QString::fromUtf8(path = p.target));
    if (!target || !target->InheritsFrom(p.prop->PropType->ClassType())) {
      p.unfit = target;
      if (p.item) KeepReference(p);
      return false;
    }
    SetObjectProp(*p.instance, *p.prop, target);
    return true;
  });
  return pending;
}

void ResolveKept(TComponent& root, const PropertyTarget& target) {
  std::vector<PendingReference> pending;
  ForEachItem(target, [&](TCollectionItem& item, const QByteArray&) {
    for (const KeptValue& kept : KeptBy(item)) {
      const PropertyTarget inner = FindTarget(item, kept.property.path);
      if (!inner.prop || !IsComponentRef(*inner.prop) || kept.property.value.type != ValueType::Ident)
        continue;
      AddReference(pending, inner, kept.property.value.bytes);
      PendingReference& p = pending.back();
      p.item = &item;
      p.index = kept.index;
      p.path = kept.property.path;
    }
  });
  ResolveReferences(root, std::move(pending));
  ForgetReplaced(target);
}

QString WhyUnresolved(const PendingReference& p) {
  const QString target = QString::fromUtf8(p.target);
  if (!p.unfit) return QStringLiteral("%1, which is not on this form").arg(target);
  return QStringLiteral("%1, which is a %2 and no %3")
      .arg(target, QString::fromUtf8(p.unfit->StreamClassName()),
           QString::fromLatin1(p.prop->PropType->Name));
}

}  // namespace forms
