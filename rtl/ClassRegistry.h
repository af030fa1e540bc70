// Classes by name, for readers and editors.
#pragma once
#include "rtl/Class.h"

// Makes the class known under its name. Registering the same class again is harmless; another class under
// the same name is refused with EComponentError. `owner` names the package; null is the program itself. A
// class stays known until none of its owners is left.
void RegisterClass(const TClass& cls, const void* owner = nullptr);
void UnRegisterClasses(const void* owner);
// Null when no such class is registered. Names are compared without regard to case.
const TClass* FindClass(QByteArrayView name);
const TClass& GetClass(QByteArrayView name);  // refuses with EClassNotFound
// All registered classes in order of name.
std::vector<const TClass*> RegisteredClasses();

// Every setter of the class tells before it changes anything (TPersistent::Changing). Where a class does not
// promise that, an open form compares each of its components whenever an editor says that something changed.
// The promise is the class's own: descendants give theirs. It ends when the class is no longer known.
void PromiseTelling(const TClass& cls);
bool PromisesTelling(const TClass& cls);
