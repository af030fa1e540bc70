#include "rtl/OrdinalNames.h"

#include "rtl/IntegerConsts.h"

std::optional<std::int64_t> OrdinalOfName(const TTypeInfo& type, QByteArrayView name) {
  if (const int index = type.IndexOfElement(name); index >= 0) return index;
  std::int64_t value = 0;
  const TIntegerConsts* consts = FindIntegerConsts(type);
  return consts && consts->IdentToInt(name, value) ? std::optional(value) : std::nullopt;
}

QByteArray NameOfOrdinal(const TTypeInfo& type, std::int64_t value) {
  if (value >= 0 && value < type.Elements.size()) return type.Elements[value];
  QByteArray ident;
  if (const TIntegerConsts* consts = FindIntegerConsts(type); consts && !consts->IntToIdent(value, ident))
    ident.clear();
  return ident;
}

QByteArrayList ElementsOf(const TTypeInfo& set, std::int64_t bits) {
  QByteArrayList names;
  for (int i = 0; i < set.CompType->Elements.size(); ++i)
    if (bits >> i & 1) names << set.CompType->Elements[i];
  return names;
}
