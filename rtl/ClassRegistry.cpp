#include "rtl/ClassRegistry.h"

#include <map>

#include "rtl/Exceptions.h"

namespace {
struct Entry {
  const TClass* cls;
  const void* owner;
};
std::map<QByteArray, Entry>& Classes() {
  static std::map<QByteArray, Entry> classes;
  return classes;
}
std::vector<std::pair<const TTypeInfo*, TIntegerConsts>>& Consts() {
  static std::vector<std::pair<const TTypeInfo*, TIntegerConsts>> consts;
  return consts;
}
}  // namespace

void RegisterClass(const TClass& cls, const void* owner) {
  const auto [it, isNew] = Classes().try_emplace(cls.ClassName().toLower(), Entry{&cls, owner});
  if (!isNew && it->second.cls != &cls)
    throw EComponentError(QStringLiteral("Another class named \"%1\" is registered already.")
                              .arg(QString::fromLatin1(cls.ClassName())));
}

void UnRegisterClasses(const void* owner) {
  std::erase_if(Classes(), [owner](const auto& e) { return e.second.owner == owner; });
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

void RegisterIntegerConsts(const TTypeInfo& type, TIntegerConsts consts) {
  if (!FindIntegerConsts(type)) Consts().emplace_back(&type, consts);
}

const TIntegerConsts* FindIntegerConsts(const TTypeInfo& type) {
  for (const auto& [t, consts] : Consts())
    if (t == &type) return &consts;
  return nullptr;
}
