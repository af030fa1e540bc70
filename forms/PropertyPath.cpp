#include "forms/PropertyPath.h"

#include <cstring>

#include "rtl/PropAccess.h"
#include "rtl/Strings.h"

namespace forms {

PropertyTarget FindTarget(TPersistent& root, QByteArrayView path) {
  TPersistent* instance = &root;
  const QByteArrayView whole = path;
  for (;;) {
    const auto* point =
        path.isEmpty() ? nullptr : std::memchr(path.data(), '.', static_cast<std::size_t>(path.size()));
    if (!point) {
      constexpr QByteArrayView content("Strings");
      if (path.size() == content.size() && path.compare(content, Qt::CaseInsensitive) == 0 &&
          As<TStrings>(instance))
        return {instance, nullptr, whole};
      const TPropInfo* prop = instance->ClassType().FindProp(path);
      return prop ? PropertyTarget{instance, prop, whole} : PropertyTarget{};
    }
    const qsizetype dot = static_cast<const char*>(point) - path.data();
    const TPropInfo* prop = instance->ClassType().FindProp(path.first(dot));
    if (!prop || !(prop->IsPart() || IsComponentRef(*prop))) return {};
    instance = GetObjectProp(*instance, *prop);
    if (!instance) return {};
    path = path.sliced(dot + 1).trimmed();
  }
}

QString NameOf(const PropertyTarget& t) {
  if (!t.path.isEmpty()) return QString::fromUtf8(t.path);
  return t.prop ? QString::fromLatin1(t.prop->Name) : QStringLiteral("Strings");
}

}  // namespace forms
