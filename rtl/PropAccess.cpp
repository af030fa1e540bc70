#include "rtl/PropAccess.h"

#include <array>
#include <limits>

#include "rtl/Exceptions.h"
#include "rtl/StreamedContent.h"

namespace {
QString Path(const TPersistent& instance, const TPropInfo& prop) {
  return QString::fromLatin1(instance.ClassType().ClassName() + "." + prop.Name);
}

[[noreturn]] void RefuseKind(const TPersistent& instance, const TPropInfo& prop, std::size_t wanted) {
  static constexpr std::array<const char*, std::variant_size_v<TPropValue>> kinds{
      "an ordinal", "a floating-point", "a string", "an event", "an object", "an object", "a binary"};
  throw EPropertyError(QStringLiteral("%1 is not %2 property but of type %3.")
                           .arg(Path(instance, prop), QString::fromLatin1(kinds[wanted]),
                                QString::fromLatin1(prop.PropType->Name)));
}

template <class T>
const TAccess<T>& AccessAs(const TPersistent& instance, const TPropInfo& prop) {
  if (!prop.Is<T>()) RefuseKind(instance, prop, AlternativeOf<T>);
  return static_cast<const TAccess<T>&>(*prop.Access);
}

long double FloatLimit(TFloatType type) {
  if (type == TFloatType::ftCurrency) return 922337203685477.5807L;
  if (type == TFloatType::ftSingle) return static_cast<long double>(std::numeric_limits<float>::max());
  return static_cast<long double>(std::numeric_limits<double>::max());
}

void Check(const TPersistent& instance, const TPropInfo& prop, std::int64_t value) {
  const TTypeInfo& type = *prop.PropType;
  if (value < type.MinValue || value > type.MaxValue)
    throw EPropertyError(QStringLiteral("%1 cannot be %2: values from %3 to %4 are accepted.")
                             .arg(Path(instance, prop))
                             .arg(value)
                             .arg(type.MinValue)
                             .arg(type.MaxValue));
}
void Check(const TPersistent& instance, const TPropInfo& prop, long double value) {
  const long double limit = FloatLimit(prop.PropType->FloatType);
  if (!(value >= -limit && value <= limit))  // refuses what is not a number, too
    throw EPropertyError(QStringLiteral("%1 cannot be %2: values from -%3 to %3 are accepted.")
                             .arg(Path(instance, prop))
                             .arg(static_cast<double>(value))
                             .arg(static_cast<double>(limit)));
}
void CheckClass(const TPersistent& instance, const TPropInfo& prop, const TPersistent* value) {
  if (value && !value->InheritsFrom(prop.PropType->ClassType()))
    throw EPropertyError(QStringLiteral("%1 needs a %2, not a %3.")
                             .arg(Path(instance, prop), QString::fromLatin1(prop.PropType->Name),
                                  QString::fromLatin1(value->ClassType().ClassName())));
}
void Check(const TPersistent& instance, const TPropInfo& prop, const TReference& value) {
  CheckClass(instance, prop, value.Object);
}
void Check(const TPersistent& instance, const TPropInfo& prop, const TPart& value) {
  if (!value.Object) throw EPropertyError(QStringLiteral("%1 cannot be nil.").arg(Path(instance, prop)));
  CheckClass(instance, prop, value.Object);
}
template <class T>
void Check(const TPersistent&, const TPropInfo&, const T&) {}

template <class T>
void Store(TPersistent& instance, const TPropInfo& prop, const T& value) {
  const TAccess<T>& access = AccessAs<T>(instance, prop);
  if (!prop.IsWritable()) throw EPropertyError(QStringLiteral("%1 is read-only.").arg(Path(instance, prop)));
  Check(instance, prop, value);
  // A setter that says nothing of a change is spoken for here; parts speak for themselves.
  if constexpr (!std::is_same_v<T, TPart>)
    if (access.Get(instance) != value) instance.Changing();
  access.Set(instance, value);
}
}  // namespace

TPropValue GetProp(const TPersistent& instance, const TPropInfo& prop) { return prop.Access->Read(instance); }

void SetProp(TPersistent& instance, const TPropInfo& prop, const TPropValue& value) {
  std::visit([&](const auto& v) { Store(instance, prop, v); }, value);
}

std::int64_t GetOrdProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<std::int64_t>(instance, prop).Get(instance);
}
void SetOrdProp(TPersistent& instance, const TPropInfo& prop, std::int64_t value) {
  Store(instance, prop, value);
}

long double GetFloatProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<long double>(instance, prop).Get(instance);
}
void SetFloatProp(TPersistent& instance, const TPropInfo& prop, long double value) {
  Store(instance, prop, value);
}

QString GetStrProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<QString>(instance, prop).Get(instance);
}
void SetStrProp(TPersistent& instance, const TPropInfo& prop, const QString& value) {
  Store(instance, prop, value);
}

TPersistent* GetObjectProp(const TPersistent& instance, const TPropInfo& prop) {
  return prop.IsPart() ? AccessAs<TPart>(instance, prop).Get(instance).Object
                       : AccessAs<TReference>(instance, prop).Get(instance).Object;
}
void SetObjectProp(TPersistent& instance, const TPropInfo& prop, TPersistent* value) {
  return prop.IsPart() ? Store(instance, prop, TPart{value}) : Store(instance, prop, TReference{value});
}

QString GetMethodProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<THandler>(instance, prop).Get(instance).Name;
}
void SetMethodProp(TPersistent& instance, const TPropInfo& prop, const QString& handler) {
  Store(instance, prop, THandler{handler});
}

QByteArray GetBinaryProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<QByteArray>(instance, prop).Get(instance);
}
void SetBinaryProp(TPersistent& instance, const TPropInfo& prop, const QByteArray& value) {
  Store(instance, prop, value);
}

std::optional<std::int64_t> DefaultOrdinal(const TPersistent& instance, const TPropInfo& prop) {
  return prop.OtherDefault && instance.IsOfOtherFamily() ? prop.OtherDefault : prop.Default;
}

void TakeFamilyDefaults(TPersistent& instance) {
  for (const TPropInfo* prop : instance.ClassType().Properties())
    if (prop->OtherDefault && instance.IsOfOtherFamily()) SetOrdProp(instance, *prop, *prop->OtherDefault);
}

namespace {
// What the property has when nothing is said about it; nothing for ordinals that are always said.
std::optional<TPropValue> DefaultOf(const TPersistent& instance, const TPropInfo& prop) {
  if (!prop.IsOrdinal()) return prop.Access->Nothing();
  const auto ordinal = DefaultOrdinal(instance, prop);
  return ordinal ? std::optional<TPropValue>(*ordinal) : std::nullopt;
}

bool PartAtDefault(const TPersistent& part) {
  if (const auto* content = As<IStreamedContent>(&part)) return content->ContentEmpty();
  const auto& all = part.ClassType().Properties();
  return std::none_of(all.begin(), all.end(), [&](const TPropInfo* p) { return IsStoredProp(part, *p); });
}
}  // namespace

bool IsDefaultValue(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.IsOrdinal()) {
    const auto ordinal = DefaultOrdinal(instance, prop);
    return ordinal && GetOrdProp(instance, prop) == *ordinal;
  }
  if (!prop.IsPart()) return GetProp(instance, prop) == prop.Access->Nothing();
  if (prop.Access->IsUntouched(instance)) return true;
  const TPersistent* part = GetObjectProp(instance, prop);
  return !part || PartAtDefault(*part);
}

bool IsStoredProp(const TPersistent& instance, const TPropInfo& prop) {
  if (!prop.IsWritable()) return false;
  if (prop.Stored && !prop.Stored(instance)) return false;
  return !IsDefaultValue(instance, prop);
}

void ResetProp(TPersistent& instance, const TPropInfo& prop) {
  if (!prop.IsWritable()) return;
  if (!prop.IsPart()) {
    if (const auto value = DefaultOf(instance, prop)) SetProp(instance, prop, *value);
  } else if (TPersistent* part =
                 prop.Access->IsUntouched(instance) ? nullptr : GetObjectProp(instance, prop)) {
    const TUpdateLock lock(*part);
    if (auto* content = As<IStreamedContent>(part)) content->ClearContent();
    for (const TPropInfo* p : part->ClassType().Properties()) ResetProp(*part, *p);
  }
}

bool SameValues(const TPersistent& a, const TPersistent& b) {
  const auto& all = a.ClassType().Properties();
  return std::all_of(all.begin(), all.end(), [&](const TPropInfo* prop) {
    if (!prop->IsPart()) return GetProp(a, *prop) == GetProp(b, *prop);
    if (prop->Access->IsUntouched(a) && prop->Access->IsUntouched(b)) return true;
    const TPersistent *first = GetObjectProp(a, *prop), *second = GetObjectProp(b, *prop);
    return first == second || (first && second && SameValues(*first, *second));
  });
}
