#include "forms/Binding.h"

#include "forms/KeptValues.h"
#include "forms/TextWriter.h"
#include "rtl/IntegerConsts.h"
#include "rtl/OrdinalNames.h"
#include "rtl/PropAccess.h"
#include "rtl/Strings.h"
#include "rtl/ValueList.h"

namespace forms {

namespace {
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

void ApplyNow(TComponent& root, const PropertyTarget& target, const Value& value, const Document& document) {
  std::vector<PendingReference> pending;
  ApplyValue(target, value, document, pending);
  for (const PendingReference& p : ResolveReferences(root, std::move(pending)))
    if (!p.item)
      throw EPropertyError(QStringLiteral("%1 cannot refer to %2.").arg(NameOf(target), WhyUnresolved(p)));
}

}  // namespace forms
