#include "rtl/TypeInfo.h"

int TTypeInfo::IndexOfElement(QByteArrayView name) const {
  for (qsizetype i = 0; i < Elements.size(); ++i)
    if (Elements[i].size() == name.size() && Elements[i].compare(name, Qt::CaseInsensitive) == 0)
      return static_cast<int>(i);
  return -1;
}

TTypeInfo OrdinalType(QByteArray name, std::int64_t min, std::int64_t max) {
  return {.Kind = TTypeKind::tkInteger, .Name = std::move(name), .MinValue = min, .MaxValue = max};
}

TTypeInfo EnumType(QByteArray name, QByteArrayList elements) {
  const auto last = static_cast<std::int64_t>(elements.size()) - 1;
  return {.Kind = TTypeKind::tkEnumeration,
          .Name = std::move(name),
          .MinValue = 0,
          .MaxValue = last,
          .Elements = std::move(elements)};
}

TTypeInfo SetType(QByteArray name, const TTypeInfo& elements) {
  const auto bits = (std::uint64_t{1} << (elements.MaxValue + 1)) - 1;
  return {.Kind = TTypeKind::tkSet,
          .Name = std::move(name),
          .MinValue = 0,
          .MaxValue = static_cast<std::int64_t>(bits),
          .CompType = &elements};
}

TTypeInfo FloatTypeInfo(QByteArray name, TFloatType type) {
  return {.Kind = TTypeKind::tkFloat, .Name = std::move(name), .FloatType = type};
}

TTypeInfo StringType(QByteArray name) { return {.Kind = TTypeKind::tkString, .Name = std::move(name)}; }
TTypeInfo MethodType(QByteArray name) { return {.Kind = TTypeKind::tkMethod, .Name = std::move(name)}; }

const TTypeInfo& TypeInfoOf<std::int64_t>::Get() {
  static const TTypeInfo info{
      .Kind = TTypeKind::tkInt64, .Name = "Int64", .MinValue = INT64_MIN, .MaxValue = INT64_MAX};
  return info;
}
