#include "forms/PropertyValues.h"

#include "forms/KeptValues.h"
#include "forms/References.h"
#include "rtl/OrdinalNames.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/Strings.h"
#include "rtl/ValueList.h"

namespace forms {

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
