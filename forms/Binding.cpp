#include "forms/Binding.h"

#include <cstring>

#include "forms/TextWriter.h"
#include "rtl/Collection.h"
#include "rtl/IntegerConsts.h"
#include "rtl/OrdinalNames.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"
#include "rtl/ValueList.h"

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
    if (!prop || !(prop->IsPart() || IsComponentRef(*prop))) return {};
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

namespace {
std::int64_t SetBitsOf(const PropertyTarget& t, const Value& v) {
  const TTypeInfo& type = *t.prop->PropType;
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
}  // namespace

std::int64_t OrdinalOf(const PropertyTarget& t, const Value& v) {
  const TTypeInfo& type = *t.prop->PropType;
  if (v.IsInteger()) return v.integer;
  if (type.CompType) return SetBitsOf(t, v);
  if (type.Kind == TTypeKind::tkChar && v.IsString())
    if (const QString text = v.wide.isEmpty() ? QString::fromUtf8(v.bytes) : v.wide; text.size() == 1)
      return text[0].unicode();
  if ((v.type == ValueType::True || v.type == ValueType::False) && &type == &TypeInfoOf<bool>::Get())
    return v.type == ValueType::True;
  const bool word = v.type == ValueType::Ident;
  if (const auto named = word ? OrdinalOfName(type, v.bytes) : std::nullopt) return *named;
  const bool enumeration = !type.Elements.isEmpty();
  const QString name = QString::fromLatin1(type.Name);
  const QString expected = enumeration ? QStringLiteral("a %1 is expected (%2)").arg(name, OneOf(type))
                                       : QStringLiteral("a number or name of type %1 is expected").arg(name);
  if (!word || !(enumeration || FindIntegerConsts(type))) Refuse(t, v, expected);
  throw EUnknownName(Refusal(t, v, expected), type.Name, v.bytes);
}

namespace {
void ApplyList(const PropertyTarget& t, TValueList& list, const Value& v, const Document& doc) {
  if (v.type != ValueType::List) Refuse(t, v, QStringLiteral("a list (...) is expected"));
  std::vector<TValueList::TItem> items;
  items.reserve(v.items.size());
  for (const Value& item : v.items) {
    if (!item.IsInteger() && !item.IsString())
      Refuse(t, v, QStringLiteral("every element must be a number or a string"));
    items.push_back(item.IsInteger() ? TValueList::TItem(item.integer) : TValueList::TItem(doc.Decode(item)));
  }
  list.SetItems(std::move(items));
}

struct KeptValue {
  std::size_t index;  // its place among the item's properties
  NamedValue property;
  std::exception_ptr refused;
};
using KeptValues = std::vector<KeptValue>;

const KeptValues& KeptBy(const TCollectionItem& item) {
  static const KeptValues none;
  return item.Unread() ? *static_cast<const KeptValues*>(item.Unread().get()) : none;
}

bool SameName(QByteArrayView a, QByteArrayView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

void SetKept(TCollectionItem& item, KeptValues kept) {
  item.SetUnread(kept.empty() ? nullptr : std::make_shared<const KeptValues>(std::move(kept)));
}

// Without what the item keeps of these properties.
template <class F>
KeptValues KeptWithout(const TCollectionItem& item, F gone) {
  KeptValues kept = KeptBy(item);
  std::erase_if(kept, [&](const KeptValue& k) { return gone(k.property.path); });
  return kept;
}

// The reference leads to nothing here: the item keeps it as the file has it.
void KeepReference(const PendingReference& p) {
  KeptValues kept = KeptWithout(*p.item, [&](const QByteArray& path) { return SameName(path, p.path); });
  const auto why = std::make_exception_ptr(EPropertyError(
      QStringLiteral("%1 cannot refer to %2.").arg(QString::fromUtf8(p.path), WhyUnresolved(p))));
  const auto at =
      std::find_if(kept.begin(), kept.end(), [&](const KeptValue& k) { return k.index > p.index; });
  kept.insert(at, {p.index, {p.path, Value::Identifier(p.target)}, why});
  SetKept(*p.item, std::move(kept));
}

bool IsInside(const TCollectionItem* item, const TCollection& collection) {
  for (const TPersistent* at = item; at; at = at->GetOwner())
    if (at == &collection) return true;
  return false;
}

// What the item does not take stays with it: nothing of a file is lost because something in it is unknown.
void ApplyItem(TCollectionItem& target, const CollectionItem& item, const Document& doc,
               std::vector<PendingReference>& pending) {
  KeptValues kept;
  for (std::size_t i = 0; i < item.properties.size(); ++i) {
    const NamedValue& p = item.properties[i];
    const PropertyTarget inner = FindTarget(target, p.path);
    std::exception_ptr refused;
    try {
      if (inner.Found()) ApplyValue(inner, p.value, doc, pending);
    } catch (const Exception&) {
      refused = std::current_exception();
    }
    for (auto r = pending.rbegin(); r != pending.rend() && !r->item && !r->holder; ++r) {
      r->item = &target;
      r->index = i;
      r->path = p.path;
    }
    if (!inner.Found() || refused) kept.push_back({i, p, refused});
  }
  SetKept(target, std::move(kept));
}

void ApplyPart(const PropertyTarget& t, const Value& v, const Document& doc,
               std::vector<PendingReference>& pending) {
  TPersistent* const part = GetObjectProp(*t.instance, *t.prop);
  if (auto* list = As<TValueList>(part)) return ApplyList(t, *list, v, doc);
  auto* collection = As<TCollection>(part);
  if (!collection || v.type != ValueType::Collection)
    Refuse(t, v,
           collection ? QStringLiteral("a collection <...> is expected")
                      : QStringLiteral("its parts are set one by one"));
  const TUpdateLock lock(*collection);
  // What an ancestor says is replaced before its references are looked up.
  if (collection->Count() > 0)
    std::erase_if(pending, [&](const PendingReference& p) { return IsInside(p.item, *collection); });
  collection->Clear();
  for (const CollectionItem& item : v.collection) ApplyItem(*collection->Add(), item, doc, pending);
}

// The items, and those of the collections inside of them, with what their properties are called.
template <class F>
void ForEachItem(const TCollection& collection, const QByteArray& path, F visit) {
  for (int i = 0; i < collection.Count(); ++i) {
    TCollectionItem& item = *collection.Item(i);
    const QByteArray inside = path + '[' + QByteArray::number(i) + "].";
    visit(item, inside);
    for (const TPropInfo* prop : item.ClassType().Properties())
      if (prop->IsPart() && !prop->Access->IsUntouched(item))
        if (const auto* inner = As<TCollection>(GetObjectProp(item, *prop)))
          ForEachItem(*inner, inside + prop->Name, visit);
  }
}
template <class F>
void ForEachItem(const PropertyTarget& target, F visit) {
  const TPersistent* part =
      target.prop && target.prop->IsPart() ? GetObjectProp(*target.instance, *target.prop) : nullptr;
  if (const auto* collection = As<TCollection>(part))
    ForEachItem(*collection, target.path.isEmpty() ? target.prop->Name : target.path.toByteArray(), visit);
}

long double NumberOf(const PropertyTarget& t, const Value& v) {
  if (v.type == ValueType::Currency) return static_cast<long double>(v.integer) / 10000.0L;
  if (v.IsReal()) return v.real;
  if (!v.IsInteger()) Refuse(t, v, QStringLiteral("a number is expected"));
  return static_cast<long double>(v.integer);
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
  const auto apply = ForEach{
      [&](std::int64_t) { SetOrdProp(*t.instance, prop, OrdinalOf(t, v)); },
      [&](long double) { SetFloatProp(*t.instance, prop, NumberOf(t, v)); },
      [&](const QString&) {
        if (!v.IsString()) Refuse(t, v, QStringLiteral("a string '...' is expected"));
        SetStrProp(*t.instance, prop, doc.Decode(v));
      },
      [&](const THandler&) {
        if (v.type != ValueType::Nil && v.type != ValueType::Ident)
          Refuse(t, v, QStringLiteral("the name of a handler is expected"));
        SetMethodProp(*t.instance, prop, v.type == ValueType::Nil ? QString() : QString::fromUtf8(v.bytes));
      },
      [&](TReference) {
        if (v.type == ValueType::Nil) return SetObjectProp(*t.instance, prop, nullptr);
        if (v.type != ValueType::Ident) Refuse(t, v, QStringLiteral("the name of a component is expected"));
        AddReference(pending, t, v.bytes);
      },
      [&](TPart) { ApplyPart(t, v, doc, pending); },
      [&](const QByteArray&) {
        if (v.type != ValueType::Binary) Refuse(t, v, QStringLiteral("binary data {...} is expected"));
        ApplyBinary(t, v);
      }};
  std::visit(apply, prop.Access->Nothing());
}

std::vector<UnreadValue> UnreadValues(const PropertyTarget& target) {
  std::vector<UnreadValue> all;
  ForEachItem(target, [&](const TCollectionItem& item, const QByteArray& inside) {
    for (const KeptValue& kept : KeptBy(item)) all.push_back({inside + kept.property.path, kept.refused});
  });
  return all;
}

namespace {
// How form files call the root that a component stands on, whatever its name is.
constexpr char RootWord[] = "Owner";

TComponent* FindByPath(const TComponent& scope, const QString& path) {
  if (!path.contains(u'.')) return scope.FindComponent(path);
  TComponent* at = nullptr;
  for (const QString& name : path.split(u'.')) {
    at = (at ? *at : scope).FindComponent(name);
    if (!at) return nullptr;
  }
  return at;
}

// The nearest around it that owns something, and so knows names.
const TComponent* NameSpaceOf(const TPersistent* p) {
  for (; p; p = p->GetOwner()) {
    if (!p->InheritsFrom(TComponent::StaticClass())) continue;
    const auto* component = static_cast<const TComponent*>(p);
    if (!component->Components().empty()) return component;
  }
  return nullptr;
}

// The nearest enclosing name space that knows the name: a frame before the form.
TComponent* FindReferenced(TComponent& root, const TComponent* from, const QString& path) {
  for (; from; from = NameSpaceOf(from->GetOwner()))
    if (TComponent* found = FindByPath(*from, path)) return found;
  return root.Name().compare(path, Qt::CaseInsensitive) == 0 ||
                 path.compare(QLatin1String(RootWord), Qt::CaseInsensitive) == 0
             ? &root
             : nullptr;
}
}  // namespace

void AddReference(std::vector<PendingReference>& pending, const PropertyTarget& target, QByteArrayView name) {
  const bool same = !pending.empty() && pending.back().target == name;
  pending.push_back({.instance = target.instance,
                     .prop = target.prop,
                     .target = same ? pending.back().target : name.toByteArray()});
}

std::vector<PendingReference> ResolveReferences(TComponent& root, std::vector<PendingReference> pending) {
  // Many refer to the same one from the same place.
  QByteArray path;
  const TComponent* from = nullptr;
  TComponent* target = nullptr;
  std::erase_if(pending, [&](PendingReference& p) {
    const TComponent* space = NameSpaceOf(p.instance);
    if (path.isNull() || p.target != path || space != from)
      target = FindReferenced(root, from = space, QString::fromUtf8(path = p.target));
    if (!target || !target->InheritsFrom(p.prop->PropType->ClassType())) {
      p.unfit = target;
      if (p.item) KeepReference(p);
      return false;
    }
    SetObjectProp(*p.instance, *p.prop, target);
    return true;
  });
  return pending;
}

void ResolveKept(TComponent& root, const PropertyTarget& target) {
  std::vector<PendingReference> pending;
  ForEachItem(target, [&](TCollectionItem& item, const QByteArray&) {
    for (const KeptValue& kept : KeptBy(item)) {
      const PropertyTarget inner = FindTarget(item, kept.property.path);
      if (!inner.prop || !IsComponentRef(*inner.prop) || kept.property.value.type != ValueType::Ident)
        continue;
      AddReference(pending, inner, kept.property.value.bytes);
      PendingReference& p = pending.back();
      p.item = &item;
      p.index = kept.index;
      p.path = kept.property.path;
    }
  });
  ResolveReferences(root, std::move(pending));
  ForgetReplaced(target);
}

void ForgetReplaced(const PropertyTarget& target) {
  ForEachItem(target, [](TCollectionItem& item, const QByteArray&) {
    if (!item.Unread()) return;
    SetKept(item, KeptWithout(item, [&](const QByteArray& path) {
              const PropertyTarget inner = FindTarget(item, path);
              return inner.prop && IsStoredProp(*inner.instance, *inner.prop);
            }));
  });
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
  for (const PendingReference& p : ResolveReferences(root, std::move(pending)))
    if (!p.item)
      throw EPropertyError(QStringLiteral("%1 cannot refer to %2.").arg(NameOf(target), WhyUnresolved(p)));
}

namespace {
Value OrdinalValue(const TTypeInfo& type, std::int64_t v) {
  if (type.CompType) return Value::SetOf(ElementsOf(type, v));
  if (&type == &TypeInfoOf<bool>::Get()) return Value::Boolean(v != 0);
  if (const QByteArray name = NameOfOrdinal(type, v); !name.isEmpty()) return Value::Identifier(name);
  // 32-bit properties are signed in form files, whatever they are in memory.
  if (type.MinValue == INT32_MIN && v > INT32_MAX)
    v = static_cast<std::int32_t>(static_cast<std::uint32_t>(v));
  return Value::Integer(v);
}

Value CollectionValue(const TCollection& collection, const Document& doc) {
  Value v;
  v.type = ValueType::Collection;
  for (int i = 0; i < collection.Count(); ++i) {
    CollectionItem item;
    for (StoredValue& p : PropertyValues(*collection.Item(i), doc, false))
      item.properties.push_back({p.path, std::move(p.value)});
    const auto written = [&, own = item.properties.size()](const KeptValue& kept) {
      return std::any_of(item.properties.begin(), item.properties.begin() + static_cast<std::ptrdiff_t>(own),
                         [&](const NamedValue& p) { return SameName(p.path, kept.property.path); });
    };
    KeptValues all = KeptBy(*collection.Item(i));
    std::erase_if(all, written);
    for (const KeptValue& kept : all) {
      const auto index = std::min(kept.index, item.properties.size());
      item.properties.insert(item.properties.begin() + static_cast<std::ptrdiff_t>(index), kept.property);
    }
    v.collection.push_back(std::move(item));
  }
  return v;
}

Value ListValue(const TValueList& list, const Document& doc) {
  Value v;
  v.type = ValueType::List;
  for (const TValueList::TItem& item : list.Items())
    v.items.push_back(std::visit(ForEach{[](std::int64_t number) { return Value::Integer(number); },
                                         [&](const QString& text) { return doc.MakeText(text); }},
                                 item));
  return v;
}

// A part that is one value; others are a value for each property.
std::optional<Value> PartValue(const TPersistent* part, const Document& doc) {
  if (const auto* collection = As<TCollection>(part)) return CollectionValue(*collection, doc);
  if (const auto* list = As<TValueList>(part)) return ListValue(*list, doc);
  return {};
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
    const bool stored = ownerStored && IsStoredProp(instance, *prop);
    if (!stored && !all) continue;
    if (prop->IsPart()) {
      TPersistent* value = GetObjectProp(instance, *prop);
      if (!value) continue;
      if (std::optional<Value> whole = PartValue(value, doc))
        out.push_back({prefix + prop->Name, std::move(*whole), stored});
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

namespace {
Value CurrencyValue(long double v) {
  Value c;
  c.type = ValueType::Currency;
  c.integer = static_cast<std::int64_t>(v * 10000.0L + (v < 0 ? -0.5L : 0.5L));
  return c;
}

// Nothing for a component of another form.
std::optional<Value> ReferenceValue(const TPersistent& instance, const TPersistent* target) {
  if (!target) return Value{};
  const auto* component = static_cast<const TComponent*>(target);
  const TComponent* root = LookupRoot(instance);
  if (component == root) return Value::Identifier(RootWord);
  QByteArray path = component->Name().toUtf8();
  for (const TComponent* scope = component->Owner(); component != root && scope != root;
       scope = scope->Owner()) {
    if (!scope) return {};
    path.prepend(scope->Name().toUtf8() + '.');
  }
  return Value::Identifier(path);
}
}  // namespace

std::optional<Value> ValueOf(const TPersistent& instance, const TPropInfo& prop, const Document& doc) {
  using Result = std::optional<Value>;
  const TTypeInfo& type = *prop.PropType;
  return std::visit(ForEach{[&](std::int64_t v) -> Result {
                              if (type.Kind == TTypeKind::tkChar)
                                return doc.MakeText(QString(QChar(static_cast<char16_t>(v))));
                              return OrdinalValue(type, v);
                            },
                            [&](long double v) -> Result {
                              return type.FloatType == TFloatType::ftCurrency ? CurrencyValue(v)
                                                                              : Value::Real(v);
                            },
                            [&](const QString& v) -> Result { return doc.MakeText(v); },
                            [](const THandler& v) -> Result {
                              return v.Name.isEmpty() ? Value{} : Value::Identifier(v.Name.toUtf8());
                            },
                            [&](TReference v) -> Result { return ReferenceValue(instance, v.Object); },
                            [&](TPart v) -> Result { return PartValue(v.Object, doc); },
                            [](const QByteArray& v) -> Result { return Value::Data(v); }},
                    GetProp(instance, prop));
}

std::vector<StoredValue> PropertyValues(const TPersistent& instance, const Document& document, bool all) {
  std::vector<StoredValue> out;
  Collect(instance, document, all, true, {}, out);
  return out;
}

}  // namespace forms
