// Properties that need no members of their own: an object keeps what it is given by property, and what it is
// not given costs nothing.
//
//   static constexpr TKept<int> MaxLength{"MaxLength", 0};     // in the class
//   .Published(MaxLength)                                      // in its description
//   edit.Get(TCustomEdit::MaxLength); edit.Set(TCustomEdit::MaxLength, 80);
//
// The default is not kept. Of a component class a TKept<T*> is a reference, of any other class a part, which
// is made when somebody asks for it.
#pragma once
#include <memory>
#include <vector>

#include "rtl/Persistent.h"
#include "rtl/PropWire.h"

// What keeps values by property: components, items of collections, and parts of these (TKeptPart).
class TKeeper : public TPersistent {
 public:
  ~TKeeper() override;

  template <class T>
  T Get(const TKept<T>& property) const {
    return rtl_detail::FromWire<T>(GetWire(property));
  }
  // The value as it travels. A reference is told as it is kept, whatever is left of what it leads to: a
  // component that is being freed is no longer of its class.
  template <class T>
  rtl_detail::Wire<T> GetWire(const TKept<T>& property) const {
    using namespace rtl_detail;
    const TPropValue* value = Find(&property);
    if constexpr (std::same_as<Wire<T>, TPart>) {
      if (!value)
        value = &const_cast<TKeeper*>(this)->Insert(
            &property, TPart{new std::remove_pointer_t<T>(const_cast<TKeeper*>(this))});
    }
    if (value) return std::get<Wire<T>>(*value);
    if constexpr (requires { property.Default; })
      return ToWire<T>(property.Default);
    else
      return {};
  }
  template <class T>
  void Set(const TKept<T>& property, const std::type_identity_t<T>& value) {
    using namespace rtl_detail;
    static_assert(!std::same_as<Wire<T>, TPart>, "parts are changed in themselves");
    Wire<T> wire = ToWire<T>(value);
    if (GetWire(property) == wire) return;
    bool nothing = false;
    if constexpr (requires { property.Default; })
      nothing = value == property.Default;
    else
      nothing = value == T{};
    Keep(&property, std::move(wire), nothing);
  }
  // Whether anything but the default is kept, or the part has been made.
  bool IsKept(const void* property) const { return Find(property) != nullptr; }

 protected:
  // The value as it is kept, by the address of what declares the property; null when there is none.
  const TPropValue* Find(const void* property) const;
  // Changes it, and tells so. With `nothing` it is no longer kept.
  void Keep(const void* property, TPropValue value, bool nothing);
  // A reference of this object or of a part of it leads to another component.
  virtual void ReferenceChanged(TPersistent* before, TPersistent* after);

 private:
  const TPropValue& Insert(const void* property, TPropValue value);
  std::vector<std::pair<const void*, TPropValue>> kept_;
};

// A part that keeps its values by property.
class TKeptPart : public TKeeper {
 public:
  explicit TKeptPart(TPersistent* owner = nullptr) : owner_(owner) {}
  TPersistent* GetOwner() const override { return owner_; }

 private:
  TPersistent* owner_;
};
