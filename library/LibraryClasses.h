// The component classes that the library has, by name.
#pragma once
#include "rtl/Class.h"

// Null for a class that the library does not have.
const TClass* FindLibraryClass(const QByteArray& name);
