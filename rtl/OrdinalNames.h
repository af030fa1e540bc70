// The names that ordinals are written with: elements of enumerations and sets, identifiers of constants.
#pragma once
#include <optional>

#include "rtl/TypeInfo.h"

// The element or constant of that name (no regard to case); nothing when the type has none.
std::optional<std::int64_t> OrdinalOfName(const TTypeInfo& type, QByteArrayView name);
// Empty when the value has no name.
QByteArray NameOfOrdinal(const TTypeInfo& type, std::int64_t value);
// The names of what is in a set.
QByteArrayList ElementsOf(const TTypeInfo& set, std::int64_t bits);
