#include "rtl/PropText.h"

#include <cctype>

#include "rtl/Component.h"
#include "rtl/Exceptions.h"
#include "rtl/OrdinalNames.h"
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
  if (type.CompType) return u'[' + Latin(ElementsOf(type, value).join(',')) + u']';
  const QByteArray name = NameOfOrdinal(type, value);
  return name.isEmpty() ? QString::number(value) : Latin(name);
}

std::int64_t TextToOrd(const TTypeInfo& type, const QString& input) {
  const QString text = input.trimmed();
  if (type.CompType) return SetFromText(type, text);
  if (const auto named = OrdinalOfName(type, text.toUtf8())) return *named;
  if (!type.Elements.isEmpty()) Refuse(type, text, ExpectedElements(type));
  return IntegerFromText(type, text);
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
  const TTypeInfo& type = *prop.PropType;
  return std::visit(
      ForEach{[&](std::int64_t v) { return OrdToText(type, v); },
              [&](long double v) { return FloatToText(type, v); }, [](const QString& v) { return v; },
              [](const THandler& v) { return v.Name; },
              [](TReference v) { return v.Object ? static_cast<TComponent*>(v.Object)->Name() : QString(); },
              [&](TPart) -> QString { return u'(' + Latin(type.Name) + u')'; },
              [](const QByteArray& v) { return QStringLiteral("(%1 bytes)").arg(v.size()); }},
      GetProp(instance, prop));
}

namespace {
TReference ReferenceFromText(const TPersistent& instance, const TTypeInfo& type, const QString& text) {
  if (text.isEmpty()) return {};
  TComponent* root = LookupRoot(instance);
  TComponent* target = nullptr;
  if (root) target = root->Name().compare(text, Qt::CaseInsensitive) == 0 ? root : root->FindComponent(text);
  if (!target) Refuse(type, text, QStringLiteral("no component of the form has this name"));
  return {target};
}

[[noreturn]] void RefuseText(const TPersistent& instance, const TPropInfo& prop) {
  throw EPropertyError(QStringLiteral("%1.%2 cannot be given as text.")
                           .arg(Latin(instance.ClassType().ClassName()), Latin(prop.Name)));
}
}  // namespace

void SetPropText(TPersistent& instance, const TPropInfo& prop, const QString& text) {
  const TTypeInfo& type = *prop.PropType;
  const auto value =
      ForEach{[&](std::int64_t) -> TPropValue { return TextToOrd(type, text); },
              [&](long double) -> TPropValue { return TextToFloat(type, text); },
              [&](const QString&) -> TPropValue { return text; },
              [&](const THandler&) -> TPropValue {
                if (!text.isEmpty() && !IsValidIdent(text))
                  Refuse(type, text, QStringLiteral("a handler's name is an identifier"));
                return THandler{text};
              },
              [&](TReference) -> TPropValue { return ReferenceFromText(instance, type, text); },
              [&](const auto&) -> TPropValue { RefuseText(instance, prop); }};
  SetProp(instance, prop, std::visit(value, prop.Access->Nothing()));
}
