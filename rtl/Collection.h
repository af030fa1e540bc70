// Collections: an ordered list of value objects of one class, owned by the collection.
#pragma once
#include "rtl/Component.h"
#include "rtl/StreamedContent.h"

class TCollectionItem : public TKeeper {
  VRX_CLASS(TCollectionItem)
 public:
  // Appends itself to the collection, which owns it from then on.
  explicit TCollectionItem(TCollection* collection);
  TPersistent* GetOwner() const override;
  TCollection* Collection() const { return collection_; }
  int Index() const;
  // A short text that tells the item from its neighbours in editors.
  virtual QString DisplayName() const;

  void Assign(const TPersistent* source) override;
  // What a file says about the item and no property of it takes. Whoever read it knows what it is and writes
  // it again; null for nothing.
  const std::shared_ptr<const void>& Unread() const { return unread_; }
  void SetUnread(std::shared_ptr<const void> unread) { unread_ = std::move(unread); }

 private:
  friend class TCollection;
  TCollection* collection_;
  std::shared_ptr<const void> unread_;
};

class TCollection : public TOwnedPersistent, public IStreamedContent {
  VRX_CLASS(TCollection)
 public:
  explicit TCollection(const TClass& itemClass, TPersistent* owner = nullptr);
  ~TCollection() override;

  int Count() const { return static_cast<int>(items_.size()); }
  TCollectionItem* Item(int index) const { return items_.at(static_cast<std::size_t>(index)).get(); }
  TCollectionItem* Add();
  void Delete(int index);
  void Clear();
  // Moves an item; both indexes must exist.
  void Move(int from, int to);

  // Items are replaced by copies of the source's.
  void Assign(const TPersistent* source) override;
  bool ContentEmpty() const override { return items_.empty(); }
  void ClearContent() override { Clear(); }
  TPersistent* ContentPart(int index) const override { return index < Count() ? Item(index) : nullptr; }

 private:
  friend class TCollectionItem;
  const TClass& itemClass_;
  std::vector<std::unique_ptr<TCollectionItem>> items_;
};
