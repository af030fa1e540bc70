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
#include <span>
#include <vector>

#include "rtl/PropInfo.h"

class TComponent;
class TCollection;
class TClassBuilder;

// Names of properties that many classes publish together.
using TPropGroup = std::span<const char* const>;

class TClass {
 public:
  explicit TClass(TClassBuilder&& builder);
  TClass(const TClass&) = delete;
  TClass& operator=(const TClass&) = delete;
  ~TClass();

  const QByteArray& ClassName() const { return name_; }
  const TClass* ClassParent() const { return parent_; }
  const QString& Description() const { return description_; }
  // The class's own drawing or its nearest ancestor's; empty when there is none.
  QByteArrayView Icon() const;
  bool InheritsFrom(const TClass& other) const;

  // Published properties, ancestors' first, each class's in the order of its declaration; then the streamed
  // ones. This is the order of a form file.
  const std::vector<const TPropInfo*>& Properties() const { return published_; }
  // The property a form file or an editor means by the name (no regard to case); null when there is none.
  const TPropInfo* FindProp(QByteArrayView name) const;
  // The same, refusing with EPropertyError when there is none.
  const TPropInfo& GetProp(QByteArrayView name) const;

  bool IsAbstract() const { return !makeComponent_ && !makePersistent_ && !makeItem_; }
  // A new component owned by `owner`; with no owner, by the caller. Refuses abstract classes.
  TComponent* NewComponent(TComponent* owner) const;
  // A new value object, with everything as it begins. Refuses abstract classes and components.
  // (A template, because here nothing is known of what it makes.)
  template <class P = TPersistent>
  std::unique_ptr<P> NewPersistent() const {
    if (!makePersistent_) RefuseToMake();
    return makePersistent_();
  }
  TPersistent* NewItem(TCollection* collection) const;

 private:
  friend class TClassBuilder;
  [[noreturn]] void RefuseToMake() const;
  const TPropInfo* FindAny(QByteArrayView name) const;  // declared ones too
  void BuildTables();

  QByteArray name_;
  const TClass* parent_;
  QString description_;
  const char* icon_ = nullptr;
  TComponent* (*makeComponent_)(TComponent*) = nullptr;
  std::unique_ptr<TPersistent> (*makePersistent_)() = nullptr;
  TPersistent* (*makeItem_)(TCollection*) = nullptr;
  std::vector<std::unique_ptr<TPropInfo>> own_;
  std::vector<const TPropInfo*> published_;
  std::vector<const TPropInfo*> hash_;  // open addressing, power-of-two size, names folded to lower case
};

namespace rtl_detail {
template <class T>
using Bare = std::remove_cvref_t<T>;

template <class T>
constexpr bool IsObject = std::is_pointer_v<T>&& std::derived_from<std::remove_pointer_t<T>, TPersistent>;

// The alternative of TPropValue that a C++ type travels as.
template <class T>
constexpr auto Alternative() {
  if constexpr (IsObject<T>)
    return std::conditional_t<std::is_base_of_v<TComponent, std::remove_pointer_t<T>>, TReference, TPart>();
  else if constexpr (std::same_as<T, QString> || std::same_as<T, QByteArray>)
    return T();
  else if constexpr (std::is_floating_point_v<T> || std::same_as<T, TCurrency> || std::same_as<T, TDateTime>)
    return 0.0L;
  else
    return std::int64_t{0};
}
template <class T>
using Wire = decltype(Alternative<T>());

template <class T>
Wire<T> ToWire(const T& v) {
  if constexpr (std::same_as<T, TCurrency>)
    return static_cast<long double>(v.Scaled) / 10000.0L;
  else if constexpr (std::same_as<T, TDateTime>)
    return v.Days;
  else if constexpr (IsObject<T>)
    return {v};
  else if constexpr (requires { v.Bits(); })
    return static_cast<std::int64_t>(v.Bits());
  else
    return static_cast<Wire<T>>(v);
}
template <class T>
decltype(auto) FromWire(const Wire<T>& v) {
  if constexpr (std::same_as<T, TCurrency>)
    return TCurrency{static_cast<std::int64_t>(v < 0 ? v * 10000.0L - 0.5L : v * 10000.0L + 0.5L)};
  else if constexpr (std::same_as<T, TDateTime>)
    return TDateTime{static_cast<double>(v)};
  else if constexpr (IsObject<T>)
    return static_cast<T>(v.Object);
  else if constexpr (requires { T::FromBits(0); })
    return T::FromBits(static_cast<std::uint64_t>(v));
  else if constexpr (std::same_as<T, Wire<T>>)
    return (v);
  else
    return static_cast<T>(v);
}

// An accessor over a pair of members (functions or a field); the setter may be nullptr.
template <class C, class T, class G, class S>
struct Member final : TAccess<Wire<T>> {
  G getter;
  S setter;
  Member(G g, S s) : getter(g), setter(s) {}
  Wire<T> Get(const TPersistent& p) const override {
    return ToWire<T>(std::invoke(getter, static_cast<const C&>(p)));
  }
  void Set(TPersistent& p, typename TAccess<Wire<T>>::Arg v) const override {
    if constexpr (std::is_member_object_pointer_v<S>)
      std::invoke(setter, static_cast<C&>(p)) = FromWire<T>(v);
    else if constexpr (!std::same_as<S, std::nullptr_t>)
      std::invoke(setter, static_cast<C&>(p), FromWire<T>(v));
    else if constexpr (std::same_as<Wire<T>, TPart>) {  // a part that is always there takes the content over
      if (T own = std::invoke(getter, static_cast<C&>(p))) own->Assign(v.Object);
    }
  }
};

// Handlers live in the component, keyed by this object.
template <class C>
struct EventAccess final : TAccess<THandler> {
  THandler Get(const TPersistent& p) const override { return {static_cast<const C&>(p).MethodName(*this)}; }
  void Set(TPersistent& p, const THandler& v) const override {
    static_cast<C&>(p).SetMethodName(*this, v.Name);
  }
};

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
  // An event of a component: a handler name that needs no accessors.
  TClassBuilder&& Event(const char* name, const char* type = "TNotifyEvent") &&;
  TClassBuilder&& DeclaredEvent(const char* name, const char* type = "TNotifyEvent") &&;

  // Publishes what an ancestor declared or published, in this class's order when it was not published yet,
  // with this class's default when one is given.
  TClassBuilder&& Publish(const char* name) &&;
  template <class D>
  TClassBuilder&& Publish(const char* name, D def) && {
    RepublishWith(name, rtl_detail::ToWire<D>(def));
    return std::move(*this);
  }
  // Names and named groups of names.
  template <class... N>
  TClassBuilder&& PublishAll(const N&... names) && {
    (PublishEach(names), ...);
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

  // What the class is for, in one sentence, and its icon as a drawing (designintf/ComponentIcons.h); without
  // one it has its ancestor's.
  TClassBuilder&& ClassDoc(QString sentence, const char* icon = nullptr) &&;
  TClassBuilder&& Icon(const char* drawing) &&;

  template <class C>
  void SetFactory() {
    if constexpr (std::is_base_of_v<TComponent, C>)
      makeEvent_ = []() -> std::shared_ptr<const TPropAccess> {
        return std::make_shared<rtl_detail::EventAccess<C>>();
      };
    if constexpr (std::is_abstract_v<C>) {
    } else if constexpr (std::is_base_of_v<TComponent, C>) {
      makeComponent_ = [](TComponent* o) -> TComponent* { return new C(o); };
    } else if constexpr (requires(TCollection * o) {
                           requires !std::is_default_constructible_v<C>;
                           new C(o);
                         }) {
      makeItem_ = [](TCollection* o) -> TPersistent* { return new C(o); };
    } else if constexpr (std::is_default_constructible_v<C>) {
      makePersistent_ = []() -> std::unique_ptr<TPersistent> { return std::make_unique<C>(); };
    }
  }

 private:
  friend class TClass;
  TPropInfo& Last() { return *own_.back(); }
  void AddInfo(TPropVisibility visibility, const char* name, const TTypeInfo& type,
               std::shared_ptr<const TPropAccess> access, bool readOnly, std::optional<std::int64_t> def);
  void AddEvent(TPropVisibility visibility, const char* name, const char* type);
  void RepublishWith(const char* name, std::optional<std::int64_t> def);
  void PublishEach(const char* name) { RepublishWith(name, {}); }
  void PublishEach(TPropGroup group) {
    for (const char* name : group) RepublishWith(name, {});
  }

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
    using T = typename GetterClass<G>::Result;
    using Access = Member<typename GetterClass<G>::Class, T, G, S>;
    static_assert(sizeof...(D) == 0 || std::same_as<Wire<T>, std::int64_t>, "only ordinals have defaults");
    std::optional<std::int64_t> d;
    if constexpr (sizeof...(D) == 1) ((d = ToWire<T>(static_cast<T>(def))), ...);
    AddInfo(visibility, name, TypeOf<T>(), std::make_shared<Access>(getter, setter),
            std::same_as<S, std::nullptr_t>, d);
  }

  QByteArray name_;
  const TClass* parent_;
  QString description_;
  const char* icon_ = nullptr;
  TComponent* (*makeComponent_)(TComponent*) = nullptr;
  std::unique_ptr<TPersistent> (*makePersistent_)() = nullptr;
  TPersistent* (*makeItem_)(TCollection*) = nullptr;
  std::shared_ptr<const TPropAccess> (*makeEvent_)() = nullptr;
  std::vector<std::unique_ptr<TPropInfo>> own_;
};

template <class C>
TClassBuilder DescribeClass(const char* name, const TClass& parent) {
  TClassBuilder builder(name, &parent);
  builder.SetFactory<C>();
  return builder;
}
