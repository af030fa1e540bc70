#include "rtl/Collection.h"

#include "rtl/Exceptions.h"

const TClass& TCollectionItem::StaticClass() {
  static const TClass cls(DescribeClass<TCollectionItem>("TCollectionItem", TPersistent::StaticClass()));
  return cls;
}

const TClass& TCollection::StaticClass() {
  static const TClass cls(DescribeClass<TCollection>("TCollection", TPersistent::StaticClass()));
  return cls;
}

TCollectionItem::TCollectionItem(TCollection* collection) : collection_(collection) {
  if (!collection) throw EComponentError(QStringLiteral("A collection item needs a collection."));
  collection->items_.emplace_back(this);
}

TPersistent* TCollectionItem::GetOwner() const { return collection_; }

int TCollectionItem::Index() const {
  for (int i = 0; i < collection_->Count(); ++i)
    if (collection_->Item(i) == this) return i;
  return -1;
}

QString TCollectionItem::DisplayName() const { return QString::fromLatin1(ClassType().ClassName()); }

void TCollectionItem::Assign(const TPersistent* source) {
  TKeeper::Assign(source);
  if (const auto* item = As<TCollectionItem>(source)) unread_ = item->unread_;
}

TCollection::TCollection(const TClass& itemClass, TPersistent* owner)
    : TOwnedPersistent(owner), itemClass_(itemClass) {}
TCollection::~TCollection() = default;

TCollectionItem* TCollection::Add() {
  Changing();
  auto* item = static_cast<TCollectionItem*>(itemClass_.NewItem(this));
  Changed();
  return item;
}

void TCollection::Delete(int index) {
  if (index < 0 || index >= Count())
    throw EComponentError(
        QStringLiteral("The collection has no item %1 (it has %2).").arg(index).arg(Count()));
  Changing();
  items_.erase(items_.begin() + index);
  Changed();
}

void TCollection::Clear() {
  if (items_.empty()) return;
  Changing();
  items_.clear();
  Changed();
}

void TCollection::Move(int from, int to) {
  if (from < 0 || from >= Count() || to < 0 || to >= Count())
    throw EComponentError(QStringLiteral("The collection cannot move item %1 to %2 (it has %3).")
                              .arg(from)
                              .arg(to)
                              .arg(Count()));
  if (from != to) Changing();
  const auto b = items_.begin();
  if (from < to)
    std::rotate(b + from, b + from + 1, b + to + 1);
  else
    std::rotate(b + to, b + from, b + from + 1);
  if (from != to) Changed();
}

void TCollection::Assign(const TPersistent* source) {
  const auto* other = As<TCollection>(source);
  if (!other) return TPersistent::Assign(source);
  if (other == this) return;
  if (!other->itemClass_.InheritsFrom(itemClass_) && !itemClass_.InheritsFrom(other->itemClass_))
    throw EConvertError(QStringLiteral("Cannot assign a collection of %1 to one of %2.")
                            .arg(QString::fromLatin1(other->itemClass_.ClassName()),
                                 QString::fromLatin1(itemClass_.ClassName())));
  const TUpdateLock lock(*this);
  Clear();
  for (int i = 0; i < other->Count(); ++i) Add()->Assign(other->Item(i));
}
