// What the design-interface tests share: a designer that remembers what it is told, classes with every kind
// of property, and registrations that are taken back at the end of a test.
#pragma once
#include "designintf/DesignIntf.h"
#include "designintf/DesignRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/PropText.h"

class FakeDesigner : public IDesigner {
 public:
  explicit FakeDesigner(TComponent* form = nullptr) : root(form) {}

  void Modified() override { ++modified; }
  TComponent* GetRoot() const override { return root; }
  QString GetRootClassName() const override { return QStringLiteral("TFake"); }
  QString UniqueName(const QString& base) const override { return base + u'1'; }
  TComponent* GetComponent(const QString& name) const override {
    return root ? root->FindComponent(name) : nullptr;
  }
  QString GetComponentName(const TComponent& c) const override { return c.Name(); }
  void GetComponentNames(const TClass& cls, const TGetStrProc& proc) const override {
    for (const TComponent* c : root->Components())
      if (c->InheritsFrom(cls)) proc(c->Name());
  }
  void SelectComponent(TPersistent*) override {}
  void SetSelections(const TDesignerSelections&) override {}
  TDesignerSelections GetSelections() const override { return {}; }
  TComponent* CreateComponent(const TClass&, TComponent*, const QRect&) override { return nullptr; }
  void DeleteSelection() override {}
  void Edit(TComponent&) override {}
  bool MethodExists(const QString& name) const override { return methods.contains(name); }
  void GetMethods(const TTypeInfo& type, const TGetStrProc& proc) const override {
    askedFor = type.Name;
    for (const QString& m : methods) proc(m);
  }
  void ShowMethod(const QString& name) override { shown << name; }

  TComponent* root;
  int modified = 0;
  QStringList methods, shown;
  mutable QByteArray askedFor;
};

enum class TFlavour : std::uint8_t { flSweet, flSour, flBitter };
enum class TTopping : std::uint8_t { tpNuts, tpCream, tpFruit };
using TToppings = TSet<TTopping>;
VRX_ENUM(TFlavour, {"flSweet", "flSour", "flBitter"})
VRX_ENUM(TTopping, {"tpNuts", "tpCream", "tpFruit"})
VRX_SET(TToppings, TTopping)

class TCone : public TOwnedPersistent {
  VRX_CLASS(TCone)
 public:
  explicit TCone(TPersistent* owner = nullptr) : TOwnedPersistent(owner) {}
  int Depth() const { return depth_; }
  void SetDepth(int v) { Change(depth_, v); }
  const QString& Paper() const { return paper_; }
  void SetPaper(const QString& v) { Change(paper_, v); }

 private:
  int depth_ = 3;
  QString paper_;
};

// One property of every kind. `limit` makes an instance refuse what others accept.
class TIce : public TComponent {
  VRX_CLASS(TIce)
 public:
  explicit TIce(TComponent* owner) : TComponent(owner), cone(this) {}
  int Scoops() const { return scoops; }
  void SetScoops(int v) {
    if (v > limit) throw EPropertyError(QStringLiteral("Only %1 scoops fit.").arg(limit));
    scoops = v;
  }
  TToppings Toppings() const { return toppings; }
  void SetToppings(TToppings v) {
    if (static_cast<int>(v.Bits()) > limit) throw EPropertyError(QStringLiteral("Too many toppings."));
    toppings = v;
  }
  TFlavour Flavour() const { return flavour; }
  void SetFlavour(TFlavour v) { flavour = v; }
  bool Melted() const { return melted; }
  void SetMelted(bool v) { melted = v; }
  const QString& Label() const { return label; }
  void SetLabel(const QString& v) {
    if (v.size() > limit) throw EPropertyError(QStringLiteral("The label is too long."));
    label = v;
  }
  double Weight() const { return weight; }
  void SetWeight(double v) {
    if (v > limit) throw EPropertyError(QStringLiteral("Too heavy."));
    weight = v;
  }
  TCone* Cone() const { return const_cast<TCone*>(&cone); }
  void SetCone(const TCone* v) { cone.Assign(v); }
  TComponent* Spoon() const { return spoon; }
  void SetSpoon(TComponent* v) { SetReference(*this, spoon, v); }

  int limit = 1000;
  int scoops = 1;
  TFlavour flavour = TFlavour::flSweet;
  TToppings toppings{TTopping::tpCream};
  bool melted = false;
  double weight = 0;
  QString label;
  TCone cone;
  TComponent* spoon = nullptr;
};

class TBigIce : public TIce {
  VRX_CLASS(TBigIce)
 public:
  using TIce::TIce;
};

// What a test registers goes to a registry of its own.
class Scope {
 public:
  explicit Scope(const char* procedure = "Test") : scope_(registry, this, procedure) {}
  Scope(const Scope&) = delete;
  Scope& operator=(const Scope&) = delete;

  DesignRegistry registry;

 private:
  RegistrationScope scope_;
};

// For tests that register nothing.
inline DesignRegistry EmptyRegistry;

// The editor of one property for some components.
inline std::unique_ptr<TPropertyEditor> EditorOf(const std::vector<TPersistent*>& instances, const char* name,
                                                 IDesigner* designer = nullptr) {
  TInstProps props;
  for (TPersistent* p : instances) props.push_back({p, &p->ClassType().GetProp(name)});
  return DesignRegistry::Current().CreatePropertyEditor(designer, std::move(props));
}

inline QStringList ValuesOf(const TPropertyEditor& editor) {
  QStringList values;
  editor.GetValues([&](const QString& v) { values << v; });
  return values;
}

inline std::vector<std::unique_ptr<TPropertyEditor>> PartsOf(const TPropertyEditor& editor) {
  std::vector<std::unique_ptr<TPropertyEditor>> parts;
  editor.GetProperties([&](std::unique_ptr<TPropertyEditor> e) { parts.push_back(std::move(e)); });
  return parts;
}
