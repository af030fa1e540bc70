// Class descriptions: name, parent, factory and properties in published order.
//
// A class describes itself once, in its .cpp:
//
//   const TClass& TVRXShadow::StaticClass() {
//     static const TClass cls(DescribeClass<TVRXShadow>("TVRXShadow", TPersistent::StaticClass())
//         .Published("Color", &TVRXShadow::GetColor, &TVRXShadow::SetColor, clBtnShadow)
//         .Published("Depth", &TVRXShadow::GetDepth, &TVRXShadow::SetDepth, 3));
//     return cls;
//   }
#pragma once
#include <concepts>
#include <vector>

#include "rtl/Persistent.h"
#include "rtl/PropInfo.h"

class TComponent;
class TCollection;
class TClassBuilder;

class TClass {
 public:
  explicit TClass(TClassBuilder&& builder);
  TClass(const TClass&) = delete;
  TClass& operator=(const TClass&) = delete;
  ~TClass();

  const QByteArray& ClassName() const { return name_; }
  const TClass* ClassParent() const { return parent_; }
  const QString& Description() const { return description_; }
  bool InheritsFrom(const TClass& other) const;

  // Published properties, ancestors' first, each class's in the order of its declaration; then the streamed
  // ones. This is the order of a form file.
  const std::vector<const TPropInfo*>& Properties() const { return published_; }
  // The property a form file or an editor means by the name (no regard to case); null when there is none.
  const TPropInfo* FindProp(QByteArrayView name) const;
  // The same, refusing with EPropertyError when there is none.
  const TPropInfo& GetProp(QByteArrayView name) const;

  // Whether its objects are components: properties refer to them, and do not have them as a part.
  bool IsComponent() const { return isComponent_; }
  bool IsAbstract() const { return !makeComponent_ && !makePersistent_ && !makeItem_; }
  // A new component owned by `owner`; with no owner, by the caller. Refuses abstract classes.
  TComponent* NewComponent(TComponent* owner) const;
  // A new value object owned by the caller. Refuses abstract classes and components.
  std::unique_ptr<TPersistent> NewPersistent() const;
  TPersistent* NewItem(TCollection* collection) const;

 private:
  friend class TClassBuilder;
  const TPropInfo* FindAny(QByteArrayView name) const;  // declared ones too
  void BuildTables();

  QByteArray name_;
  const TClass* parent_;
  QString description_;
  TComponent* (*makeComponent_)(TComponent*) = nullptr;
  TPersistent* (*makePersistent_)() = nullptr;
  TPersistent* (*makeItem_)(TCollection*) = nullptr;
  bool isComponent_ = false;
  std::vector<std::unique_ptr<TPropInfo>> own_;
  std::vector<const TPropInfo*> published_;
  std::vector<const TPropInfo*> hash_;  // open addressing, power-of-two size, names folded to lower case
};

namespace rtl_detail {
template <class T>
using Bare = std::remove_cvref_t<T>;

template <class T>
std::int64_t ToOrd(const T& v) {
  if constexpr (requires { v.Bits(); })
    return static_cast<std::int64_t>(v.Bits());
  else
    return static_cast<std::int64_t>(v);
}
template <class T>
T FromOrd(std::int64_t v) {
  if constexpr (requires { T::FromBits(0); })
    return T::FromBits(static_cast<std::uint64_t>(v));
  else
    return static_cast<T>(v);
}
inline long double ToFloat(double v) { return v; }
inline long double ToFloat(TCurrency v) { return static_cast<long double>(v.Scaled) / 10000.0L; }
inline long double ToFloat(TDateTime v) { return v.Days; }
template <class T>
T FromFloat(long double v) {
  if constexpr (std::same_as<T, TCurrency>)
    return TCurrency{static_cast<std::int64_t>(v < 0 ? v * 10000.0L - 0.5L : v * 10000.0L + 0.5L)};
  else if constexpr (std::same_as<T, TDateTime>)
    return TDateTime{static_cast<double>(v)};
  else
    return static_cast<T>(v);
}

// An accessor over a pair of members (functions or a field); the setter may be nullptr.
template <class Base, class C, class T, class G, class S>
struct Member;

#define VRX_MEMBER_ACCESS(Base, Wire, ToWire, FromWire)             \
  template <class C, class T, class G, class S>                     \
  struct Member<Base, C, T, G, S> : Base {                          \
    G getter;                                                       \
    S setter;                                                       \
    Member(G g, S s) : getter(g), setter(s) {}                      \
    Wire Get(const TPersistent& p) const override {                 \
      return ToWire(std::invoke(getter, static_cast<const C&>(p))); \
    }                                                               \
    void Set(TPersistent& p, SetArg<Wire> v) const override {       \
      if constexpr (std::is_member_object_pointer_v<S>)             \
        std::invoke(setter, static_cast<C&>(p)) = FromWire(v);      \
      else if constexpr (!std::same_as<S, std::nullptr_t>)          \
        std::invoke(setter, static_cast<C&>(p), FromWire(v));       \
    }                                                               \
  };

template <class Wire>
using SetArg = std::conditional_t<std::is_class_v<Wire>, const Wire&, Wire>;
VRX_MEMBER_ACCESS(TOrdAccess, std::int64_t, ToOrd, FromOrd<T>)
VRX_MEMBER_ACCESS(TFloatAccess, long double, ToFloat, FromFloat<T>)
VRX_MEMBER_ACCESS(TStrAccess, QString, QString, QString)
VRX_MEMBER_ACCESS(TObjectAccess, TPersistent*, static_cast<TPersistent*>, static_cast<T>)
VRX_MEMBER_ACCESS(TBinaryAccess, QByteArray, QByteArray, QByteArray)
#undef VRX_MEMBER_ACCESS

template <class T>
constexpr bool IsObject = std::is_pointer_v<T>&& std::derived_from<std::remove_pointer_t<T>, TPersistent>;
template <class T>
constexpr bool IsFloat =
    std::is_floating_point_v<T> || std::same_as<T, TCurrency> || std::same_as<T, TDateTime>;

template <class T>
const TTypeInfo& TypeOf() {
  if constexpr (IsObject<T>)
    return std::remove_pointer_t<T>::StaticTypeInfo();
  else
    return TypeInfoOf<T>::Get();
}
}  // namespace rtl_detail

class TClassBuilder {
 public:
  TClassBuilder(QByteArray name, const TClass* parent);
  TClassBuilder(TClassBuilder&&) noexcept;
  ~TClassBuilder();

  // A published property. `def` is the value that is not stored; without it an ordinal is always stored.
  template <class G, class S, class... D>
  TClassBuilder&& Published(const char* name, G getter, S setter, D... def) && {
    Add(TPropVisibility::Published, name, getter, setter, def...);
    return std::move(*this);
  }
  // A property that descendants may publish.
  template <class G, class S, class... D>
  TClassBuilder&& Declared(const char* name, G getter, S setter, D... def) && {
    Add(TPropVisibility::Declared, name, getter, setter, def...);
    return std::move(*this);
  }
  // A value that is in the form file but not in the inspector.
  template <class G, class S, class... D>
  TClassBuilder&& Streamed(const char* name, G getter, S setter, D... def) && {
    Add(TPropVisibility::Streamed, name, getter, setter, def...);
    return std::move(*this);
  }
  // An event: a handler name, held by the component, that needs no accessors.
  TClassBuilder&& Event(const char* name, const char* type = "TNotifyEvent") &&;
  TClassBuilder&& DeclaredEvent(const char* name, const char* type = "TNotifyEvent") &&;

  // Publishes what an ancestor declared or published, in this class's order when it was not published yet,
  // with this class's default when one is given.
  TClassBuilder&& Publish(const char* name) &&;
  template <class D>
  TClassBuilder&& Publish(const char* name, D def) && {
    RepublishWith(name, rtl_detail::ToOrd(def));
    return std::move(*this);
  }
  template <class... N>
  TClassBuilder&& PublishAll(N... names) && {
    (static_cast<void>(std::move(*this).Publish(names)), ...);
    return std::move(*this);
  }

  // The next calls refine the property added last.
  template <class C>
  TClassBuilder&& StoredIf(bool (C::*rule)() const) && {
    Last().Stored = [rule](const TPersistent& p) { return (static_cast<const C&>(p).*rule)(); };
    return std::move(*this);
  }
  TClassBuilder&& NeverStored() &&;
  TClassBuilder&& Type(const TTypeInfo& type) &&;  // another name for the same kind: TCaption for string
  TClassBuilder&& Doc(QString sentence) &&;

  TClassBuilder&& ClassDoc(QString sentence) &&;

  template <class C>
  void SetFactory() {
    isComponent_ = std::is_base_of_v<TComponent, C>;
    if constexpr (std::is_abstract_v<C>) {
    } else if constexpr (std::is_base_of_v<TComponent, C>) {
      makeComponent_ = [](TComponent* o) -> TComponent* { return new C(o); };
    } else if constexpr (requires(TCollection * o) {
                           requires !std::is_default_constructible_v<C>;
                           new C(o);
                         }) {
      makeItem_ = [](TCollection* o) -> TPersistent* { return new C(o); };
    } else if constexpr (std::is_default_constructible_v<C>) {
      makePersistent_ = []() -> TPersistent* { return new C(); };
    }
  }

 private:
  friend class TClass;
  TPropInfo& Last() { return *own_.back(); }
  void AddInfo(TPropVisibility visibility, const char* name, const TTypeInfo& type,
               std::shared_ptr<const TPropAccess> access, bool readOnly, std::optional<std::int64_t> def);
  void RepublishWith(const char* name, std::optional<std::int64_t> def);

  template <class G>
  struct GetterClass;
  template <class R, class C>
  struct GetterClass<R (C::*)() const> {
    using Class = C;
    using Result = rtl_detail::Bare<R>;
  };
  template <class R, class C>
  requires(!std::is_function_v<R>) struct GetterClass<R C::*> {
    using Class = C;
    using Result = rtl_detail::Bare<R>;
  };

  template <class G, class S, class... D>
  void Add(TPropVisibility visibility, const char* name, G getter, S setter, D... def) {
    using namespace rtl_detail;
    using C = typename GetterClass<G>::Class;
    using T = typename GetterClass<G>::Result;
    constexpr bool readOnly = std::same_as<S, std::nullptr_t>;
    std::optional<std::int64_t> d;
    std::shared_ptr<const TPropAccess> access;
    if constexpr (std::same_as<T, QByteArray>) {
      access = std::make_shared<Member<TBinaryAccess, C, T, G, S>>(getter, setter);
      AddInfo(visibility, name, BinaryType(), std::move(access), readOnly, d);
      return;
    } else if constexpr (IsObject<T>) {
      access = std::make_shared<Member<TObjectAccess, C, T, G, S>>(getter, setter);
    } else if constexpr (std::same_as<T, QString>) {
      access = std::make_shared<Member<TStrAccess, C, T, G, S>>(getter, setter);
    } else if constexpr (IsFloat<T>) {
      access = std::make_shared<Member<TFloatAccess, C, T, G, S>>(getter, setter);
    } else {
      access = std::make_shared<Member<TOrdAccess, C, T, G, S>>(getter, setter);
      if constexpr (sizeof...(D) == 1) ((d = ToOrd(static_cast<T>(def))), ...);
    }
    if constexpr (!std::same_as<T, QByteArray>)
      AddInfo(visibility, name, TypeOf<T>(), std::move(access), readOnly, d);
  }
  static const TTypeInfo& BinaryType();

  QByteArray name_;
  const TClass* parent_;
  QString description_;
  TComponent* (*makeComponent_)(TComponent*) = nullptr;
  TPersistent* (*makePersistent_)() = nullptr;
  TPersistent* (*makeItem_)(TCollection*) = nullptr;
  bool isComponent_ = false;
  std::vector<std::unique_ptr<TPropInfo>> own_;
};

template <class C>
TClassBuilder DescribeClass(const char* name, const TClass& parent) {
  TClassBuilder builder(name, &parent);
  builder.SetFactory<C>();
  return builder;
}
