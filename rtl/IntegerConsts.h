// Names of integer values: colours, cursors, modal results.
#pragma once
#include "rtl/TypeInfo.h"

// Identifiers that stand for values of an integer type in form files and editors.
struct TIntegerConsts {
  bool (*IdentToInt)(QByteArrayView ident, std::int64_t& value);
  bool (*IntToIdent)(std::int64_t value, QByteArray& ident);
};
void RegisterIntegerConsts(const TTypeInfo& type, TIntegerConsts consts);
const TIntegerConsts* FindIntegerConsts(const TTypeInfo& type);
