// Keeps chosen properties of a form's components from one run to the next, in a section of a settings file.
#pragma once
#include "rtl/Collection.h"
#include "rtl/NameFollower.h"

// One property of one component.
class TVRXPropertyStorageItem : public TCollectionItem {
  VRX_CLASS(TVRXPropertyStorageItem)
 public:
  using TCollectionItem::TCollectionItem;
  static constexpr TKept<QString> ComponentName{"ComponentName"};
  static constexpr TKept<QString> Name{"Name"};
  QString DisplayName() const override { return Get(ComponentName) + u'.' + Get(Name); }
};

class TVRXPropertyStorage : public TCollection {
  VRX_CLASS(TVRXPropertyStorage)
 public:
  explicit TVRXPropertyStorage(TPersistent* owner = nullptr)
      : TCollection(TVRXPropertyStorageItem::StaticClass(), owner) {}
  TVRXPropertyStorageItem* Items(int index) const {
    return static_cast<TVRXPropertyStorageItem*>(Item(index));
  }
  TVRXPropertyStorageItem* Add(const QString& component, const QString& property);
};

class TVRXObjectStorage : public TComponent, public INameFollower {
  VRX_CLASS(TVRXObjectStorage)
 public:
  explicit TVRXObjectStorage(TComponent* owner);
  static constexpr TKept<bool> Active{"Active", true};
  static constexpr TKept<QString> FileName{"FileName"};
  static constexpr TKept<QString> Section{"Section"};
  static constexpr TKept<TVRXPropertyStorage*> StoredPropsPart{"StoredProps"};
  TVRXPropertyStorage* StoredProps() const { return Get(StoredPropsPart); }

  // The file with its folder, and the section that are used where the properties leave them open.
  QString UsedFile() const;
  QString UsedSection() const;

  // Keep the chosen values, and bring them back; nothing while the storage is not active. One value that
  // cannot be kept or brought back does not stop the others: what was left out is returned, a sentence each.
  // Save throws Exception when the file cannot be written. In it, nothing is changed but these values.
  QStringList Save() const;
  QStringList Load();
  // What is kept of a component is kept of it under its new name.
  void ComponentRenamed(TComponent& component, const QString& oldName) override;

 private:
  TComponent* Find(const QString& component) const;
};
