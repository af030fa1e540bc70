// Classes by name, and names of integer values (colours, cursors), for readers and editors.
#pragma once
#include "rtl/Class.h"

// Makes the class known under its name. Registering the same class again is harmless; another class under
// the same name is refused with EComponentError. `owner` names the package; null is the host itself.
void RegisterClass(const TClass& cls, const void* owner = nullptr);
void UnRegisterClasses(const void* owner);
// Null when no such class is registered. Names are compared without regard to case.
const TClass* FindClass(QByteArrayView name);
const TClass& GetClass(QByteArrayView name);  // refuses with EClassNotFound
// All registered classes in order of name.
std::vector<const TClass*> RegisteredClasses();

// Identifiers that stand for values of an integer type in form files and editors.
struct TIntegerConsts {
  bool (*IdentToInt)(QByteArrayView ident, std::int64_t& value);
  bool (*IntToIdent)(std::int64_t value, QByteArray& ident);
};
void RegisterIntegerConsts(const TTypeInfo& type, TIntegerConsts consts);
const TIntegerConsts* FindIntegerConsts(const TTypeInfo& type);
