#include "forms/Binding.h"

#include <cstring>

#include "forms/TextWriter.h"
#include "rtl/Collection.h"
#include "rtl/IntegerConsts.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"

namespace forms {

PropertyTarget FindTarget(TPersistent& root, QByteArrayView path) {
  TPersistent* instance = &root;
  const QByteArrayView whole = path;
  for (;;) {
    const auto* point =
        path.isEmpty() ? nullptr : std::memchr(path.data(), '.', static_cast<std::size_t>(path.size()));
    if (!point) {
      constexpr QByteArrayView content("Strings");
      if (path.size() == content.size() && path.compare(content, Qt::CaseInsensitive) == 0 &&
          As<TStrings>(instance))
        return {instance, nullptr, whole};
      const TPropInfo* prop = instance->ClassType().FindProp(path);
      return prop ? PropertyTarget{instance, prop, whole} : PropertyTarget{};
    }
    const qsizetype dot = static_cast<const char*>(point) - path.data();
    const TPropInfo* prop = instance->ClassType().FindProp(path.first(dot));
    if (!prop || prop->Kind() != TTypeKind::tkClass) return {};
    instance = GetObjectProp(*instance, *prop);
    if (!instance) return {};
    path = path.sliced(dot + 1).trimmed();
  }
}

namespace {
QString NameOf(const PropertyTarget& t) {
  if (!t.path.isEmpty()) return QString::fromUtf8(t.path);
  return t.prop ? QString::fromLatin1(t.prop->Name) : QStringLiteral("Strings");
}

QString Refusal(const PropertyTarget& t, const Value& v, const QString& expected) {
  return QStringLiteral("%1 cannot be %2: %3.")
      .arg(NameOf(t), QString::fromUtf8(ValueToText(v)).left(60), expected);
}

[[noreturn]] void Refuse(const PropertyTarget& t, const Value& v, const QString& expected) {
  throw EPropertyError(Refusal(t, v, expected));
}

// What an enumeration has to offer, as far as a message can hold it.
QString OneOf(const TTypeInfo& type) {
  constexpr qsizetype Most = 16;
  QStringList names;
  for (const QByteArray& name : type.Elements.mid(0, Most)) names << QString::fromLatin1(name);
  if (type.Elements.size() > Most) names << QStringLiteral("...");
  return names.join(QStringLiteral(", "));
}

}  // namespace

std::int64_t OrdinalOf(const PropertyTarget& t, const Value& v) {
  const TTypeInfo& type = *t.prop->PropType;
  if (v.IsInteger()) return v.integer;
  switch (type.Kind) {
    case TTypeKind::tkSet: {
      if (v.type != ValueType::Set) Refuse(t, v, QStringLiteral("a set like [a, b] is expected"));
      std::int64_t bits = 0;
      for (const QByteArray& element : v.elements) {
        const int i = type.CompType->IndexOfElement(element);
        if (i < 0)
          throw EUnknownName(Refusal(t, v,
                                     QStringLiteral("%1 is no element of %2 (%3)")
                                         .arg(QString::fromUtf8(element), QString::fromLatin1(type.Name),
                                              OneOf(*type.CompType))),
                             type.CompType->Name, element);
        bits |= std::int64_t{1} << i;
      }
      return bits;
    }
    case TTypeKind::tkEnumeration: {
      const bool boolean = v.type == ValueType::True || v.type == ValueType::False;
      if (boolean && &type == &TypeInfoOf<bool>::Get()) return v.type == ValueType::True;
      const int i = v.type == ValueType::Ident ? type.IndexOfElement(v.bytes) : -1;
      if (i >= 0) return i;
      const QString expected =
          QStringLiteral("a %1 is expected (%2)").arg(QString::fromLatin1(type.Name), OneOf(type));
      if (v.type != ValueType::Ident) Refuse(t, v, expected);
      throw EUnknownName(Refusal(t, v, expected), type.Name, v.bytes);
    }
    default: {
      std::int64_t value = 0;
      const TIntegerConsts* consts = v.type == ValueType::Ident ? FindIntegerConsts(type) : nullptr;
      if (consts && consts->IdentToInt(v.bytes, value)) return value;
      const QString expected =
          QStringLiteral("a number or name of type %1 is expected").arg(QString::fromLatin1(type.Name));
      if (!consts) Refuse(t, v, expected);
      throw EUnknownName(Refusal(t, v, expected), type.Name, v.bytes);
    }
  }
}

namespace {
void ApplyCollection(const PropertyTarget& t, const Value& v, const Document& doc,
                     std::vector<PendingReference>& pending) {
  auto* collection = As<TCollection>(GetObjectProp(*t.instance, *t.prop));
  if (!collection || v.type != ValueType::Collection)
    Refuse(t, v,
           collection ? QStringLiteral("a collection <...> is expected")
                      : QStringLiteral("its parts are set one by one"));
  const TUpdateLock lock(*collection);
  collection->Clear();
  for (const CollectionItem& item : v.collection) {
    TCollectionItem* target = collection->Add();
    for (const NamedValue& p : item.properties) {
      const PropertyTarget inner = FindTarget(*target, p.path);
      if (!inner.Found())
        throw EPropertyError(
            QStringLiteral("%1 has no property %2.")
                .arg(QString::fromLatin1(target->ClassType().ClassName()), QString::fromUtf8(p.path)));
      ApplyValue(inner, p.value, doc, pending);
    }
  }
}

// The refusals of pictures and regions do not know whose they are.
void ApplyBinary(const PropertyTarget& t, const Value& v) {
  try {
    SetBinaryProp(*t.instance, *t.prop, QByteArray(v.bytes.constData(), v.bytes.size()));
  } catch (const Exception& e) {
    throw EPropertyError(
        QStringLiteral("%1 is refused. %2").arg(QString::fromLatin1(t.prop->Name), e.Message()));
  }
}
}  // namespace

void ApplyValue(const PropertyTarget& t, const Value& v, const Document& doc,
                std::vector<PendingReference>& pending) {
  if (!t.prop) {
    if (v.type != ValueType::List) Refuse(t, v, QStringLiteral("a list of strings (...) is expected"));
    QStringList lines;
    for (const Value& item : v.items) {
      if (!item.IsString()) Refuse(t, v, QStringLiteral("every element must be a string"));
      lines << doc.Decode(item);
    }
    static_cast<TStrings*>(t.instance)->SetLines(lines);
    return;
  }
  const TPropInfo& prop = *t.prop;
  switch (prop.Kind()) {
    case TTypeKind::tkString:
      if (!v.IsString()) Refuse(t, v, QStringLiteral("a string '...' is expected"));
      return SetStrProp(*t.instance, prop, doc.Decode(v));
    case TTypeKind::tkFloat:
      if (v.type == ValueType::Currency)
        return SetFloatProp(*t.instance, prop, static_cast<long double>(v.integer) / 10000.0L);
      if (v.IsReal()) return SetFloatProp(*t.instance, prop, v.real);
      if (v.IsInteger()) return SetFloatProp(*t.instance, prop, static_cast<long double>(v.integer));
      Refuse(t, v, QStringLiteral("a number is expected"));
    case TTypeKind::tkMethod:
      if (v.type != ValueType::Nil && v.type != ValueType::Ident)
        Refuse(t, v, QStringLiteral("the name of a handler is expected"));
      return SetMethodProp(*t.instance, prop,
                           v.type == ValueType::Nil ? QString() : QString::fromUtf8(v.bytes));
    case TTypeKind::tkClass:
      if (!IsComponentRef(prop)) return ApplyCollection(t, v, doc, pending);
      if (v.type == ValueType::Nil) return SetObjectProp(*t.instance, prop, nullptr);
      if (v.type != ValueType::Ident) Refuse(t, v, QStringLiteral("the name of a component is expected"));
      pending.push_back({nullptr, t.instance, &prop,
                         !pending.empty() && pending.back().target == v.bytes
                             ? pending.back().target
                             : QByteArray(v.bytes.constData(), v.bytes.size()),
                         nullptr, nullptr});
      return;
    case TTypeKind::tkUnknown:
      if (v.type != ValueType::Binary) Refuse(t, v, QStringLiteral("binary data {...} is expected"));
      return ApplyBinary(t, v);
    default:
      return SetOrdProp(*t.instance, prop, OrdinalOf(t, v));
  }
}

namespace {
TComponent* FindByPath(TComponent& scope, const QString& path) {
  if (!path.contains(u'.')) return scope.FindComponent(path);
  TComponent* at = &scope;
  for (const QString& name : path.split(u'.')) {
    at = at->FindComponent(name);
    if (!at) return nullptr;
  }
  return at;
}

// The nearest enclosing name space that knows the name: a frame before the form.
TComponent* FindReferenced(TComponent& root, const TPersistent& from, const QString& path) {
  for (const TPersistent* p = &from; p; p = p->GetOwner())
    if (auto* scope = As<TComponent>(const_cast<TPersistent*>(p)))
      if (TComponent* found = FindByPath(*scope, path)) return found;
  return root.Name().compare(path, Qt::CaseInsensitive) == 0 ? &root : nullptr;
}
}  // namespace

std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending) {
  // Many refer to the same one.
  QByteArray last;
  QString path;
  std::erase_if(pending, [&](PendingReference& p) {
    if (path.isNull() || p.target != last) path = QString::fromUtf8(last = p.target);
    TComponent* target = FindReferenced(root, *p.instance, path);
    if (!target || !target->InheritsFrom(p.prop->PropType->ClassType())) {
      p.unfit = target;
      return false;
    }
    SetObjectProp(*p.instance, *p.prop, target);
    return true;
  });
  return pending;
}

QString WhyUnresolved(const PendingReference& p) {
  const QString target = QString::fromUtf8(p.target);
  if (!p.unfit) return QStringLiteral("%1, which is not on this form").arg(target);
  return QStringLiteral("%1, which is a %2 and no %3")
      .arg(target, QString::fromUtf8(p.unfit->StreamClassName()),
           QString::fromLatin1(p.prop->PropType->Name));
}

void ApplyNow(TComponent& root, const PropertyTarget& target, const Value& value, const Document& document) {
  std::vector<PendingReference> pending;
  ApplyValue(target, value, document, pending);
  const auto unresolved = ResolveReferences(root, std::move(pending));
  if (!unresolved.empty())
    throw EPropertyError(
        QStringLiteral("%1 cannot refer to %2.").arg(NameOf(target), WhyUnresolved(unresolved[0])));
}

namespace {
Value OrdinalValue(const TTypeInfo& type, std::int64_t v) {
  switch (type.Kind) {
    case TTypeKind::tkEnumeration:
      if (&type == &TypeInfoOf<bool>::Get()) return Value::Boolean(v != 0);
      if (v >= 0 && v < type.Elements.size()) return Value::Identifier(type.Elements[v]);
      break;
    case TTypeKind::tkSet: {
      QByteArrayList elements;
      for (int i = 0; i < type.CompType->Elements.size(); ++i)
        if (v >> i & 1) elements << type.CompType->Elements[i];
      return Value::SetOf(elements);
    }
    default: {
      QByteArray ident;
      if (const TIntegerConsts* consts = FindIntegerConsts(type); consts && consts->IntToIdent(v, ident))
        return Value::Identifier(ident);
      // 32-bit properties are signed in form files, whatever they are in memory.
      if (type.MinValue == INT32_MIN && v > INT32_MAX)
        v = static_cast<std::int32_t>(static_cast<std::uint32_t>(v));
    }
  }
  return Value::Integer(v);
}

Value CollectionValue(const TCollection& collection, const Document& doc) {
  Value v;
  v.type = ValueType::Collection;
  for (int i = 0; i < collection.Count(); ++i) {
    CollectionItem item;
    for (StoredValue& p : PropertyValues(*collection.Item(i), doc, false))
      item.properties.push_back({p.path, std::move(p.value)});
    v.collection.push_back(std::move(item));
  }
  return v;
}

void Collect(const TPersistent& instance, const Document& doc, bool all, bool ownerStored,
             const QByteArray& prefix, std::vector<StoredValue>& out) {
  if (const auto* strings = As<TStrings>(&instance)) {
    const bool stored = ownerStored && !strings->ContentEmpty();
    if (all || stored) {
      Value list;
      list.type = ValueType::List;
      for (const QString& line : strings->Lines()) list.items.push_back(doc.MakeText(line));
      out.push_back({prefix + "Strings", std::move(list), stored});
    }
  }
  for (const TPropInfo* prop : instance.ClassType().Properties()) {
    const bool object = prop->Kind() == TTypeKind::tkClass && !IsComponentRef(*prop);
    const bool stored = ownerStored && IsStoredProp(instance, *prop);
    if (!stored && !all) continue;
    if (object) {
      TPersistent* value = GetObjectProp(instance, *prop);
      if (!value) continue;
      if (const auto* collection = As<TCollection>(value))
        out.push_back({prefix + prop->Name, CollectionValue(*collection, doc), stored});
      else
        Collect(*value, doc, all, stored, prefix + prop->Name + '.', out);
      continue;
    }
    if (prop->ReadOnly) continue;
    if (prop->Name == "Name" && As<TComponent>(&instance))
      continue;  // stands in the header; a font keeps its name
    if (std::optional<Value> value = ValueOf(instance, *prop, doc))
      out.push_back({prefix + prop->Name, std::move(*value), stored});
  }
}
}  // namespace

std::optional<Value> ValueOf(const TPersistent& instance, const TPropInfo& prop, const Document& doc) {
  switch (prop.Kind()) {
    case TTypeKind::tkString:
      return doc.MakeText(GetStrProp(instance, prop));
    case TTypeKind::tkFloat: {
      const long double v = GetFloatProp(instance, prop);
      switch (prop.PropType->FloatType) {
        case TFloatType::ftCurrency: {
          Value c;
          c.type = ValueType::Currency;
          c.integer = static_cast<std::int64_t>(v * 10000.0L + (v < 0 ? -0.5L : 0.5L));
          return c;
        }
        default:
          return Value::Real(v);
      }
    }
    case TTypeKind::tkMethod: {
      const QString handler = GetMethodProp(instance, prop);
      return handler.isEmpty() ? Value{} : Value::Identifier(handler.toUtf8());
    }
    case TTypeKind::tkClass: {
      TPersistent* object = GetObjectProp(instance, prop);
      if (!IsComponentRef(prop)) {
        const auto* collection = As<TCollection>(object);
        return collection ? std::optional(CollectionValue(*collection, doc)) : std::nullopt;
      }
      if (!object) return Value{};
      const auto* component = static_cast<TComponent*>(object);
      const TComponent* root = LookupRoot(instance);
      QByteArray path = component->Name().toUtf8();
      for (const TComponent* scope = component->Owner(); component != root && scope != root;
           scope = scope->Owner()) {
        if (!scope) return {};  // on another form
        path.prepend(scope->Name().toUtf8() + '.');
      }
      return Value::Identifier(path);
    }
    case TTypeKind::tkUnknown:
      return Value::Data(GetBinaryProp(instance, prop));
    default:
      return OrdinalValue(*prop.PropType, GetOrdProp(instance, prop));
  }
}

std::vector<StoredValue> PropertyValues(const TPersistent& instance, const Document& document, bool all) {
  std::vector<StoredValue> out;
  Collect(instance, document, all, true, {}, out);
  return out;
}

}  // namespace forms
