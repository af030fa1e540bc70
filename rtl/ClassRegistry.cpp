#include "rtl/ClassRegistry.h"

#include <QSet>
#include <map>
#include <set>

#include "rtl/Exceptions.h"

namespace {
struct Entry {
  const TClass* cls;
  std::set<const void*> owners;
};
struct Known {
  std::map<QByteArray, Entry> classes;
  QSet<const TClass*> telling;
};
Known& TheKnown() {
  static Known known;
  return known;
}
std::map<QByteArray, Entry>& Classes() { return TheKnown().classes; }
QSet<const TClass*>& Telling() { return TheKnown().telling; }
}  // namespace

void RegisterClass(const TClass& cls, const void* owner) {
  const auto [it, isNew] = Classes().try_emplace(cls.ClassName().toLower(), Entry{&cls, {}});
  if (!isNew && it->second.cls != &cls)
    throw EComponentError(QStringLiteral("Another class named \"%1\" is registered already.")
                              .arg(QString::fromLatin1(cls.ClassName())));
  it->second.owners.insert(owner);
}

void UnRegisterClasses(const void* owner) {
  for (auto it = Classes().begin(); it != Classes().end();) {
    auto& owners = it->second.owners;
    if (!owners.erase(owner) || !owners.empty()) {
      ++it;
      continue;
    }
    Telling().remove(it->second.cls);
    it = Classes().erase(it);
  }
}

const TClass* FindClass(QByteArrayView name) {
  const auto it = Classes().find(name.toByteArray().toLower());
  return it == Classes().end() ? nullptr : it->second.cls;
}

const TClass& GetClass(QByteArrayView name) {
  if (const TClass* cls = FindClass(name)) return *cls;
  throw EClassNotFound(QStringLiteral("Class %1 is not registered: load the package that contains it.")
                           .arg(QString::fromUtf8(name)));
}

std::vector<const TClass*> RegisteredClasses() {
  std::vector<const TClass*> result;
  for (const auto& [name, entry] : Classes()) result.push_back(entry.cls);
  return result;
}

void PromiseTelling(const TClass& cls) { Telling().insert(&cls); }
bool PromisesTelling(const TClass& cls) { return Telling().contains(&cls); }
