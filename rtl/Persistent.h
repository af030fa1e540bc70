// The root of everything that has published properties.
#pragma once
#include <memory>
#include <utility>

#include "rtl/PropInfo.h"

class TClass;

class TPersistent {
 public:
  TPersistent() = default;
  TPersistent(const TPersistent&) = delete;
  TPersistent& operator=(const TPersistent&) = delete;
  virtual ~TPersistent();

  static const TClass& StaticClass();
  static const TTypeInfo& StaticTypeInfo();
  virtual const TClass& ClassType() const { return StaticClass(); }
  bool InheritsFrom(const TClass& cls) const;

  // Copies every published property of `source`, which must be of this object's class, an ancestor or a
  // descendant of it; otherwise EConvertError, and nothing is changed. Null resets nothing and is refused.
  virtual void Assign(const TPersistent* source);

  // The object this one is a part of: the component of a value object, the collection of an item.
  virtual TPersistent* GetOwner() const { return nullptr; }

  // Two families of frameworks keep the same thing in different ways; what stands on a form is of the form's.
  // The other family is the one whose Width and Height of a form are the client area's.
  virtual bool IsOfOtherFamily() const { return GetOwner() && GetOwner()->IsOfOtherFamily(); }

  // Tells the owner that a value here is about to change, while the old one can still be read. Every setter
  // calls it first, as a rule through Change, and only when the value is another one.
  // Between BeginUpdate and EndUpdate the calls are collected into one: the first.
  void Changing() {
    if (quiet_ || (updateLock_ > 0 && std::exchange(changeTold_, true))) return;
    DoChanging();
  }
  // Tells the owner that a value here has changed. Setters call it after the value is in place; between
  // BeginUpdate and EndUpdate the calls are collected into one: at the end.
  void Changed();
  void BeginUpdate() { ++updateLock_; }
  void EndUpdate();

 protected:
  // Stores a value and reports it, before and after. A value that is there already is no change.
  template <class T, class U>
  void Change(T& member, U&& value) {
    if (member == value) return;
    Changing();
    member = std::forward<U>(value);
    Changed();
  }
  virtual void DoChanging();
  // While an object is loaded nobody needs to hear what is about to change; loading is all changes.
  void SetQuiet(bool quiet) { quiet_ = quiet; }
  // A part of this object is about to change.
  virtual void PartChanging(TPersistent& part);
  // Whether Assign copies the property; names of components are their own.
  virtual bool AssignsProperty(const TPropInfo&) const { return true; }
  // What a change means to this object itself; the default hands it to the owner.
  virtual void DoChanged();
  // A part of this object has changed.
  virtual void PartChanged(TPersistent& part);

 private:
  void Take(const TPropInfo& prop, const TPropValue& value);

  short updateLock_ = 0;
  bool changeTold_ = false;
  bool changePending_ = false;
  bool quiet_ = false;
};

// A value object: part of an owner that hears of its changes.
class TOwnedPersistent : public TPersistent {
 public:
  explicit TOwnedPersistent(TPersistent* owner = nullptr) : owner_(owner) {}
  TPersistent* GetOwner() const override { return owner_; }

 private:
  TPersistent* owner_;
};

#define VRX_CLASS(Type)                                                                                      \
 public:                                                                                                     \
  static const TClass& StaticClass();                                                                        \
  static const TTypeInfo& StaticTypeInfo() {                                                                 \
    static const TTypeInfo info{.Kind = TTypeKind::tkClass, .Name = #Type, .ClassType = &Type::StaticClass}; \
    return info;                                                                                             \
  }                                                                                                          \
  const TClass& ClassType() const override { return StaticClass(); }                                         \
                                                                                                             \
 private:

// Collects changes of an object into one report, however the block is left.
class TUpdateLock {
 public:
  explicit TUpdateLock(TPersistent& object) : object_(object) { object_.BeginUpdate(); }
  ~TUpdateLock() noexcept(false) { object_.EndUpdate(); }
  TUpdateLock(const TUpdateLock&) = delete;
  TUpdateLock& operator=(const TUpdateLock&) = delete;

 private:
  TPersistent& object_;
};

// dynamic_cast by another name, kept for reading like the sentence it is.
template <class T>
T* As(TPersistent* p) {
  return dynamic_cast<T*>(p);
}
template <class T>
const T* As(const TPersistent* p) {
  return dynamic_cast<const T*>(p);
}
