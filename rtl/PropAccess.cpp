#include "rtl/PropAccess.h"

#include <limits>

#include "rtl/Exceptions.h"
#include "rtl/StreamedContent.h"

namespace {
QString Path(const TPersistent& instance, const TPropInfo& prop) {
  return QString::fromLatin1(instance.ClassType().ClassName() + "." + prop.Name);
}

template <class A>
const A& AccessAs(const TPersistent& instance, const TPropInfo& prop, const char* wanted) {
  if (const auto* access = dynamic_cast<const A*>(prop.Access.get())) return *access;
  throw EPropertyError(
      QStringLiteral("%1 is not %2 property but of type %3.")
          .arg(Path(instance, prop), QString::fromLatin1(wanted), QString::fromLatin1(prop.PropType->Name)));
}

// The hot kinds skip the dynamic_cast: the kind already says which accessor it is.
const TOrdAccess& OrdAccess(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.IsOrdinal()) return static_cast<const TOrdAccess&>(*prop.Access);
  return AccessAs<TOrdAccess>(instance, prop, "an ordinal");
}
const TStrAccess& StrAccess(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.Kind() == TTypeKind::tkString) return static_cast<const TStrAccess&>(*prop.Access);
  return AccessAs<TStrAccess>(instance, prop, "a string");
}
const TObjectAccess& ObjectAccess(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.Kind() == TTypeKind::tkClass) return static_cast<const TObjectAccess&>(*prop.Access);
  return AccessAs<TObjectAccess>(instance, prop, "an object");
}

long double FloatLimit(TFloatType type) {
  switch (type) {
    case TFloatType::ftSingle:
      return static_cast<long double>(std::numeric_limits<float>::max());
    case TFloatType::ftCurrency:
      return 922337203685477.5807L;
    default:
      return static_cast<long double>(std::numeric_limits<double>::max());
  }
}

void CheckWritable(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.ReadOnly) throw EPropertyError(QStringLiteral("%1 is read-only.").arg(Path(instance, prop)));
}
}  // namespace

std::int64_t GetOrdProp(const TPersistent& instance, const TPropInfo& prop) {
  return OrdAccess(instance, prop).Get(instance);
}

void SetOrdProp(TPersistent& instance, const TPropInfo& prop, std::int64_t value) {
  CheckWritable(instance, prop);
  const TTypeInfo& type = *prop.PropType;
  if (value < type.MinValue || value > type.MaxValue)
    throw EPropertyError(QStringLiteral("%1 cannot be %2: values from %3 to %4 are accepted.")
                             .arg(Path(instance, prop))
                             .arg(value)
                             .arg(type.MinValue)
                             .arg(type.MaxValue));
  instance.Changing();
  OrdAccess(instance, prop).Set(instance, value);
}

long double GetFloatProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<TFloatAccess>(instance, prop, "a floating-point").Get(instance);
}
void SetFloatProp(TPersistent& instance, const TPropInfo& prop, long double value) {
  CheckWritable(instance, prop);
  const auto& access = AccessAs<TFloatAccess>(instance, prop, "a floating-point");
  const long double limit = FloatLimit(prop.PropType->FloatType);
  if (!(value >= -limit && value <= limit))  // refuses what is not a number, too
    throw EPropertyError(QStringLiteral("%1 cannot be %2: values from -%3 to %3 are accepted.")
                             .arg(Path(instance, prop))
                             .arg(static_cast<double>(value))
                             .arg(static_cast<double>(limit)));
  instance.Changing();
  access.Set(instance, value);
}

QString GetStrProp(const TPersistent& instance, const TPropInfo& prop) {
  return StrAccess(instance, prop).Get(instance);
}
void SetStrProp(TPersistent& instance, const TPropInfo& prop, const QString& value) {
  CheckWritable(instance, prop);
  instance.Changing();
  StrAccess(instance, prop).Set(instance, value);
}

TPersistent* GetObjectProp(const TPersistent& instance, const TPropInfo& prop) {
  return ObjectAccess(instance, prop).Get(instance);
}
void SetObjectProp(TPersistent& instance, const TPropInfo& prop, TPersistent* value) {
  const auto& access = ObjectAccess(instance, prop);
  if (value && !value->InheritsFrom(prop.PropType->ClassType()))
    throw EPropertyError(QStringLiteral("%1 needs a %2, not a %3.")
                             .arg(Path(instance, prop), QString::fromLatin1(prop.PropType->Name),
                                  QString::fromLatin1(value->ClassType().ClassName())));
  if (IsComponentRef(prop)) {
    CheckWritable(instance, prop);
    instance.Changing();
    access.Set(instance, value);
  } else if (!prop.ReadOnly) {
    if (!value) throw EPropertyError(QStringLiteral("%1 cannot be nil.").arg(Path(instance, prop)));
    instance.Changing();
    access.Set(instance, value);
  } else if (TPersistent* own = access.Get(instance)) {
    own->Assign(value);
  }
}

QString GetMethodProp(const TPersistent& instance, const TPropInfo& prop) {
  return instance.MethodName(prop);
}
void SetMethodProp(TPersistent& instance, const TPropInfo& prop, const QString& handler) {
  if (!prop.IsEvent() || !instance.SetMethodName(prop, handler))
    throw EPropertyError(QStringLiteral("%1 is not an event.").arg(Path(instance, prop)));
}

QByteArray GetBinaryProp(const TPersistent& instance, const TPropInfo& prop) {
  return AccessAs<TBinaryAccess>(instance, prop, "a binary").Get(instance);
}
void SetBinaryProp(TPersistent& instance, const TPropInfo& prop, const QByteArray& value) {
  CheckWritable(instance, prop);
  const auto& access = AccessAs<TBinaryAccess>(instance, prop, "a binary");
  instance.Changing();
  access.Set(instance, value);
}

bool IsBinary(const TPropInfo& prop) { return prop.PropType->Kind == TTypeKind::tkUnknown; }

bool IsComponentRef(const TPropInfo& prop) {
  return prop.Kind() == TTypeKind::tkClass && prop.PropType->ClassType().IsComponent();
}

bool IsDefaultValue(const TPersistent& instance, const TPropInfo& prop) {
  switch (prop.Kind()) {
    case TTypeKind::tkFloat:
      return GetFloatProp(instance, prop) == 0;
    case TTypeKind::tkString:
      return GetStrProp(instance, prop).isEmpty();
    case TTypeKind::tkMethod:
      return GetMethodProp(instance, prop).isEmpty();
    case TTypeKind::tkClass: {
      const TPersistent* object = GetObjectProp(instance, prop);
      if (!object) return true;
      if (IsComponentRef(prop)) return false;
      if (const auto* custom = dynamic_cast<const IStreamedContent*>(object)) return custom->ContentEmpty();
      for (const TPropInfo* p : object->ClassType().Properties())
        if (IsStoredProp(*object, *p)) return false;
      return true;
    }
    case TTypeKind::tkUnknown:
      return GetBinaryProp(instance, prop).isEmpty();
    default:
      return prop.Default && GetOrdProp(instance, prop) == *prop.Default;
  }
}

bool IsStoredProp(const TPersistent& instance, const TPropInfo& prop) {
  if (prop.ReadOnly && prop.Kind() != TTypeKind::tkClass) return false;
  if (prop.Stored && !prop.Stored(instance)) return false;
  return !IsDefaultValue(instance, prop);
}

void ResetProp(TPersistent& instance, const TPropInfo& prop) {
  if (prop.ReadOnly && prop.Kind() != TTypeKind::tkClass) return;
  switch (prop.Kind()) {
    case TTypeKind::tkFloat:
      return SetFloatProp(instance, prop, 0);
    case TTypeKind::tkString:
      return SetStrProp(instance, prop, {});
    case TTypeKind::tkMethod:
      return SetMethodProp(instance, prop, {});
    case TTypeKind::tkUnknown:
      return SetBinaryProp(instance, prop, {});
    case TTypeKind::tkClass:
      if (IsComponentRef(prop)) return SetObjectProp(instance, prop, nullptr);
      if (TPersistent* object = GetObjectProp(instance, prop)) {
        const TUpdateLock lock(*object);
        if (auto* custom = dynamic_cast<IStreamedContent*>(object)) custom->ClearContent();
        for (const TPropInfo* p : object->ClassType().Properties()) ResetProp(*object, *p);
      }
      return;
    default:
      if (prop.Default) SetOrdProp(instance, prop, *prop.Default);
  }
}

void CopyProp(const TPersistent& source, const TPropInfo& sp, TPersistent& target, const TPropInfo& tp) {
  if (sp.Kind() != tp.Kind()) return;
  switch (sp.Kind()) {
    case TTypeKind::tkFloat:
      if (!tp.ReadOnly) SetFloatProp(target, tp, GetFloatProp(source, sp));
      return;
    case TTypeKind::tkString:
      if (!tp.ReadOnly) SetStrProp(target, tp, GetStrProp(source, sp));
      return;
    case TTypeKind::tkMethod:
      target.SetMethodName(tp, source.MethodName(sp));
      return;
    case TTypeKind::tkUnknown:
      if (!tp.ReadOnly) SetBinaryProp(target, tp, GetBinaryProp(source, sp));
      return;
    case TTypeKind::tkClass: {
      TPersistent* value = GetObjectProp(source, sp);
      if (IsComponentRef(sp) ? !tp.ReadOnly : value != nullptr) SetObjectProp(target, tp, value);
      return;
    }
    default:
      if (!tp.ReadOnly) SetOrdProp(target, tp, GetOrdProp(source, sp));
  }
}
