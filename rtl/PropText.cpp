#include "rtl/PropText.h"

#include <cctype>

#include "rtl/Component.h"
#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "rtl/PropAccess.h"

namespace {
QString Latin(const QByteArray& text) { return QString::fromLatin1(text); }

[[noreturn]] void Refuse(const TTypeInfo& type, const QString& text, const QString& expected) {
  throw EConvertError(QStringLiteral("\"%1\" is not a valid %2: %3.").arg(text, Latin(type.Name), expected));
}

QString ExpectedElements(const TTypeInfo& type) {
  QByteArrayList names = type.Elements.mid(0, 12);
  if (type.Elements.size() > names.size()) names.append("...");
  return QStringLiteral("use one of ") + Latin(names.join(", "));
}

std::int64_t SetFromText(const TTypeInfo& type, const QString& text) {
  QString body = text.trimmed();
  if (body.startsWith(u'[') && body.endsWith(u']')) body = body.mid(1, body.size() - 2);
  std::int64_t bits = 0;
  for (const QString& part : body.split(u',', Qt::SkipEmptyParts)) {
    const int index = type.CompType->IndexOfElement(part.trimmed().toUtf8());
    if (index < 0) Refuse(type, part.trimmed(), ExpectedElements(*type.CompType));
    bits |= std::int64_t{1} << index;
  }
  return bits;
}

std::int64_t IntegerFromText(const TTypeInfo& type, const QString& text) {
  std::int64_t value = 0;
  if (const TIntegerConsts* consts = FindIntegerConsts(type);
      consts && consts->IdentToInt(text.toUtf8(), value))
    return value;
  bool ok = false;
  if (!text.startsWith(u'$'))
    value = text.toLongLong(&ok, 10);
  else if (text.size() > 1 && isxdigit(text[1].toLatin1()))  // no sign, no blank
    value = text.mid(1).toLongLong(&ok, 16);
  if (!ok) Refuse(type, text, QStringLiteral("a whole number is expected"));
  if (type.MinValue == INT32_MIN && value > INT32_MAX && value <= UINT32_MAX && text.startsWith(u'$'))
    value = static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
  if (value < type.MinValue || value > type.MaxValue)
    Refuse(type, text,
           QStringLiteral("values from %1 to %2 are accepted").arg(type.MinValue).arg(type.MaxValue));
  return value;
}
}  // namespace

QString OrdToText(const TTypeInfo& type, std::int64_t value) {
  switch (type.Kind) {
    case TTypeKind::tkEnumeration:
      if (value >= 0 && value < type.Elements.size()) return Latin(type.Elements[value]);
      break;
    case TTypeKind::tkSet: {
      QStringList names;
      for (int i = 0; i < type.CompType->Elements.size(); ++i)
        if (value >> i & 1) names << Latin(type.CompType->Elements[i]);
      return u'[' + names.join(u',') + u']';
    }
    default: {
      QByteArray ident;
      if (const TIntegerConsts* consts = FindIntegerConsts(type); consts && consts->IntToIdent(value, ident))
        return Latin(ident);
    }
  }
  return QString::number(value);
}

std::int64_t TextToOrd(const TTypeInfo& type, const QString& input) {
  const QString text = input.trimmed();
  if (type.Kind == TTypeKind::tkSet) return SetFromText(type, text);
  if (type.Kind != TTypeKind::tkEnumeration) return IntegerFromText(type, text);
  const int index = type.IndexOfElement(text.toUtf8());
  if (index < 0) Refuse(type, text, ExpectedElements(type));
  return index;
}

QString FloatToText(const TTypeInfo& type, long double value) {
  return QString::number(static_cast<double>(value), 'g', type.FloatType == TFloatType::ftSingle ? 7 : 15);
}

long double TextToFloat(const TTypeInfo& type, const QString& text) {
  bool ok = false;
  const double value = text.trimmed().toDouble(&ok);
  if (!ok) Refuse(type, text, QStringLiteral("a number is expected"));
  return value;
}

TComponent* LookupRoot(const TPersistent& instance) {
  TPersistent* at = const_cast<TPersistent*>(&instance);
  TComponent* root = nullptr;
  for (; at; at = at->GetOwner())
    if (auto* component = As<TComponent>(at)) root = component;
  return root;
}

QString GetPropText(const TPersistent& instance, const TPropInfo& prop) {
  switch (prop.Kind()) {
    case TTypeKind::tkString:
      return GetStrProp(instance, prop);
    case TTypeKind::tkFloat:
      return FloatToText(*prop.PropType, GetFloatProp(instance, prop));
    case TTypeKind::tkMethod:
      return GetMethodProp(instance, prop);
    case TTypeKind::tkClass: {
      TPersistent* object = GetObjectProp(instance, prop);
      if (IsComponentRef(prop)) return object ? static_cast<TComponent*>(object)->Name() : QString();
      return u'(' + Latin(prop.PropType->Name) + u')';
    }
    case TTypeKind::tkUnknown:
      return QStringLiteral("(%1 bytes)").arg(GetBinaryProp(instance, prop).size());
    default:
      return OrdToText(*prop.PropType, GetOrdProp(instance, prop));
  }
}

void SetPropText(TPersistent& instance, const TPropInfo& prop, const QString& text) {
  switch (prop.Kind()) {
    case TTypeKind::tkString:
      return SetStrProp(instance, prop, text);
    case TTypeKind::tkFloat:
      return SetFloatProp(instance, prop, TextToFloat(*prop.PropType, text));
    case TTypeKind::tkMethod:
      if (!text.isEmpty() && !IsValidIdent(text))
        Refuse(*prop.PropType, text, QStringLiteral("a handler's name is an identifier"));
      return SetMethodProp(instance, prop, text);
    case TTypeKind::tkClass: {
      if (!IsComponentRef(prop)) break;
      TComponent* root = LookupRoot(instance);
      TComponent* target = nullptr;
      if (!text.isEmpty()) {
        target = root->Name().compare(text, Qt::CaseInsensitive) == 0 ? root : root->FindComponent(text);
        if (!target) Refuse(*prop.PropType, text, QStringLiteral("no component of the form has this name"));
      }
      return SetObjectProp(instance, prop, target);
    }
    case TTypeKind::tkUnknown:
      break;
    default:
      return SetOrdProp(instance, prop, TextToOrd(*prop.PropType, text));
  }
  throw EPropertyError(QStringLiteral("%1.%2 cannot be given as text.")
                           .arg(Latin(instance.ClassType().ClassName()), Latin(prop.Name)));
}
