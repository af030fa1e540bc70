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
#include "rtl/PropWire.h"

class TComponent;
class TKeeper;
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

// A value that the object keeps by property (rtl/Kept.h).
template <class T, class K = TKeeper>
struct KeptAccess : TAccess<Wire<T>> {
  explicit KeptAccess(const TKept<T>& property) : kept(property) {}
  Wire<T> Get(const TPersistent& p) const override { return static_cast<const K&>(p).GetWire(kept); }
  void Set(TPersistent& p, typename TAccess<Wire<T>>::Arg v) const override {
    if constexpr (std::same_as<Wire<T>, TPart>)
      static_cast<K&>(p).Get(kept)->Assign(v.Object);
    else
      static_cast<K&>(p).Set(kept, FromWire<T>(v));
  }
  bool IsUntouched(const TPersistent& p) const override {
    return std::same_as<Wire<T>, TPart> && !static_cast<const K&>(p).IsKept(&kept);
  }
  const TKept<T>& kept;
};
// The same for what nothing but editors and form files ask for: the handlers of events, for one.
template <class T>
struct PassiveAccess final : private TKept<T>, public KeptAccess<T> {
  explicit PassiveAccess(const TKept<T>& property)
      : TKept<T>(property), KeptAccess<T>(static_cast<const TKept<T>&>(*this)) {}
};
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
  // The default of the last one on forms of the other family of frameworks.
  template <class T>
  TClassBuilder&& OtherDefault(T def) && {
    Last().OtherDefault = rtl_detail::ToWire<T>(def);
    return std::move(*this);
  }
  // Values that the object keeps.
  template <class T>
  TClassBuilder&& Published(const TKept<T>& property) && {
    AddKept(TPropVisibility::Published, property, std::make_shared<rtl_detail::KeptAccess<T>>(property));
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& Declared(const TKept<T>& property) && {
    AddKept(TPropVisibility::Declared, property, std::make_shared<rtl_detail::KeptAccess<T>>(property));
    return std::move(*this);
  }
  template <class... T>
  TClassBuilder&& PublishedAll(const TKept<T>&... properties) && {
    (static_cast<void>(std::move(*this).Published(properties)), ...);
    return std::move(*this);
  }
  template <class... T>
  TClassBuilder&& DeclaredAll(const TKept<T>&... properties) && {
    (static_cast<void>(std::move(*this).Declared(properties)), ...);
    return std::move(*this);
  }
  // What no code asks for: it is kept, shown, edited and written.
  template <class T>
  TClassBuilder&& Passive(const char* name, T def) && {
    AddPassive<T>(TPropVisibility::Published, {name, def});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& Passive(const char* name) && {
    AddPassive<T>(TPropVisibility::Published, {name});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& DeclaredPassive(const char* name, T def) && {
    AddPassive<T>(TPropVisibility::Declared, {name, def});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& DeclaredPassive(const char* name) && {
    AddPassive<T>(TPropVisibility::Declared, {name});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& StreamedPassive(const char* name, T def) && {
    AddPassive<T>(TPropVisibility::Streamed, {name, def});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& StreamedPassive(const char* name) && {
    AddPassive<T>(TPropVisibility::Streamed, {name});
    return std::move(*this);
  }
  template <class T>
  TClassBuilder&& Streamed(const TKept<T>& property) && {
    AddKept(TPropVisibility::Streamed, property, std::make_shared<rtl_detail::KeptAccess<T>>(property));
    return std::move(*this);
  }
  // What has been added so far in the order of the alphabet, events last.
  TClassBuilder&& Alphabetical() &&;
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
    if constexpr (std::is_base_of_v<TKeeper, C>)
      makeEvent_ = [](const char* name) -> std::shared_ptr<const TPropAccess> {
        using Access = rtl_detail::PassiveAccess<std::conditional_t<true, THandler, C>>;
        return std::make_shared<Access>(TKept<THandler>{name});
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
  template <class T>
  void AddKept(TPropVisibility visibility, const TKept<T>& property,
               std::shared_ptr<const TPropAccess> access) {
    using namespace rtl_detail;
    std::optional<std::int64_t> def;
    if constexpr (std::same_as<Wire<T>, std::int64_t>) def = ToWire<T>(property.Default);
    AddInfo(visibility, property.Name, TypeOf<T>(), std::move(access), std::same_as<Wire<T>, TPart>, def);
  }
  template <class T>
  void AddPassive(TPropVisibility visibility, TKept<T> property) {
    AddKept(visibility, property, std::make_shared<rtl_detail::PassiveAccess<T>>(property));
  }
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
  std::shared_ptr<const TPropAccess> (*makeEvent_)(const char*) = nullptr;
  std::vector<std::unique_ptr<TPropInfo>> own_;
};

template <class C>
TClassBuilder DescribeClass(const char* name, const TClass& parent) {
  TClassBuilder builder(name, &parent);
  builder.SetFactory<C>();
  return builder;
}
