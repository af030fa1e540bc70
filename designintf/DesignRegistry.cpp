#include "designintf/DesignRegistry.h"

#include <QDialog>

#include "designintf/BasicEditors.h"
#include "designintf/ResourceStrings.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
// Those that are there, and on top of them those that registration calls go to just now.
std::vector<DesignRegistry*>& Registries() {
  static std::vector<DesignRegistry*> registries;
  return registries;
}

bool SameType(const TTypeInfo& a, const TTypeInfo& b) {
  return &a == &b || (a.Kind == b.Kind && a.Name == b.Name);
}

int Depth(const TClass* cls) {
  int depth = 0;
  for (; cls; cls = cls->ClassParent()) ++depth;
  return depth;
}

// How well a row fits: named properties before unnamed, nearer component classes before farther ones, nearer
// types before farther ones. Nothing when it does not fit at all.
struct Fit {
  bool named = false;
  int componentDepth = 0;
  int typeDepth = 0;
  auto operator<=>(const Fit&) const = default;
};

std::optional<Fit> FitOf(const TRegistration& row, const TClass& cls, const TPropInfo& prop) {
  if (row.Kind != TRegistrationKind::PropertyEditor) return {};
  const TTypeInfo& type = *prop.PropType;
  Fit fit;
  if (SameType(*row.PropertyType, type))
    fit.typeDepth = INT_MAX;
  else if (type.ClassType && row.PropertyType->ClassType &&
           type.ClassType().InheritsFrom(row.PropertyType->ClassType()))
    fit.typeDepth = Depth(&row.PropertyType->ClassType());
  else
    return {};
  if (row.ComponentClass) {
    if (!cls.InheritsFrom(*row.ComponentClass)) return {};
    fit.componentDepth = Depth(row.ComponentClass);
  }
  if (!row.PropertyName.isEmpty()) {
    if (row.PropertyName.compare(prop.Name, Qt::CaseInsensitive) != 0) return {};
    fit.named = true;
  }
  return fit;
}

TPropertyEditorClass EditorForKind(const TPropInfo& prop) {
  switch (prop.Kind()) {
    case TTypeKind::tkEnumeration:
      return prop.PropType == &TypeInfoOf<bool>::Get() ? VRX_PROPERTY_EDITOR(TBoolProperty)
                                                       : VRX_PROPERTY_EDITOR(TEnumProperty);
    case TTypeKind::tkSet:
      return VRX_PROPERTY_EDITOR(TSetProperty);
    case TTypeKind::tkFloat:
      return VRX_PROPERTY_EDITOR(TFloatProperty);
    case TTypeKind::tkString:
      return VRX_PROPERTY_EDITOR(TStringProperty);
    case TTypeKind::tkMethod:
      return VRX_PROPERTY_EDITOR(TMethodProperty);
    case TTypeKind::tkClass:
      return IsComponentRef(prop) ? VRX_PROPERTY_EDITOR(TComponentProperty)
                                  : VRX_PROPERTY_EDITOR(TClassProperty);
    default:
      return VRX_PROPERTY_EDITOR(TIntegerProperty);
  }
}
}  // namespace

DesignRegistry::DesignRegistry() {
  FindClass({});  // known classes outlive even a registry that lives as long as the process
  Registries().push_back(this);
}
DesignRegistry::~DesignRegistry() {
  std::erase(Registries(), this);
  for (const auto& [package, entry] : packages_) UnRegisterClasses(&entry);
}
DesignRegistry& DesignRegistry::Current() {
  if (Registries().empty()) throw Exception(QStringLiteral("There is no host to register with."));
  return *Registries().back();
}

RegistrationScope::RegistrationScope(DesignRegistry& registry, const void* package, QByteArray procedure)
    : registry_(registry),
      package_(std::exchange(registry.package_, package)),
      procedure_(std::exchange(registry.procedure_, std::move(procedure))) {
  Registries().push_back(&registry);
}
RegistrationScope::~RegistrationScope() {
  Registries().pop_back();
  registry_.package_ = package_;
  registry_.procedure_ = procedure_;
}

const void* DesignRegistry::OwnerOf(const void* package) { return package ? &packages_[package] : nullptr; }
QString DesignRegistry::PackageName(const void* package) const {
  const auto it = packages_.find(package);
  return it == packages_.end() ? QString() : it->second.name;
}

void DesignRegistry::Add(TRegistration row) {
  if (row.Kind == TRegistrationKind::Components)
    for (const TClass* cls : row.Classes) RegisterClass(*cls, OwnerOf(package_));
  row.Procedure = procedure_;
  row.Package = package_;
  rows_.push_back(std::move(row));
}

void DesignRegistry::Add(TDialogRegistration dialog) {
  dialog.Package = package_;
  dialogs_.push_back(std::move(dialog));
}

std::unique_ptr<QDialog> DesignRegistry::Open(const TDialogRegistration& dialog) const {
  const auto where = [&] {
    return TPackageCall{PackageName(dialog.Package), QString::fromLatin1(dialog.Name + ".Create")};
  };
  return PackageCall(where, [&] { return dialog.Open(); });
}

void DesignRegistry::UnregisterPackage(const void* package) {
  const auto isOf = [package](const auto& row) { return row.Package == package; };
  std::erase_if(rows_, isOf);
  std::erase_if(dialogs_, isOf);
  UnRegisterClasses(OwnerOf(package));
}

const TRegistration* DesignRegistry::BestRow(const TClass& cls, const TPropInfo& prop) const {
  const TRegistration* best = nullptr;
  Fit bestFit;
  for (const TRegistration& row : rows_)
    if (const auto fit = FitOf(row, cls, prop); fit && (!best || *fit >= bestFit)) {
      best = &row;
      bestFit = *fit;
    }
  return best;
}

const TRegistration* DesignRegistry::BestRow(const TClass& cls) const {
  const TRegistration* best = nullptr;
  for (const TRegistration& row : rows_)
    if (row.Kind == TRegistrationKind::ComponentEditor && cls.InheritsFrom(*row.ComponentClass) &&
        (!best || Depth(row.ComponentClass) >= Depth(best->ComponentClass)))
      best = &row;
  return best;
}

QString DesignRegistry::PackageOf(const TClass& cls) const {
  for (const TClass* c = &cls; c; c = c->ClassParent())
    for (const TRegistration& row : rows_)
      if (row.Package && row.Kind == TRegistrationKind::Components &&
          std::find(row.Classes.begin(), row.Classes.end(), c) != row.Classes.end())
        return PackageName(row.Package);
  return {};
}

TPackageCall DesignRegistry::CallFrom(const TRegistration* row, const QByteArray& editor, const TClass& cls,
                                      const char* member) const {
  if (row && row->Package) return {PackageName(row->Package), QString::fromLatin1(editor + '.' + member)};
  return {PackageOf(cls), QString::fromLatin1(cls.ClassName() + '.' + member)};
}

std::vector<TPalettePage> DesignRegistry::Pages(TRegistrationKind kind) const {
  std::vector<TPalettePage> pages;
  // The unit of a package that registers most gives a page its place: one that only adds to another's page
  // does not move it, whichever is called first.
  QHash<std::pair<const void*, QByteArray>, int> calls;
  for (const TRegistration& row : rows_)
    if (row.Kind == kind) ++calls[{row.Package, row.Procedure}];
  const auto weight = [&](const TRegistration& row) { return calls[{row.Package, row.Procedure}]; };
  QHash<QString, const TRegistration*> main;
  for (const TRegistration& row : rows_) {
    if (row.Kind != kind) continue;
    const TRegistration*& first = main[row.PageOrCategory];
    if (!first || weight(*first) < weight(row)) first = &row;
  }
  for (const TRegistration& row : rows_)
    if (row.Kind == kind && main[row.PageOrCategory] == &row) pages.push_back({row.PageOrCategory, {}});
  for (const TRegistration& row : rows_) {
    if (row.Kind != kind) continue;
    const auto page =
        std::find_if(pages.begin(), pages.end(), [&](const auto& p) { return p.Name == row.PageOrCategory; });
    for (const TClass* cls : row.Classes)
      if (std::find(page->Classes.begin(), page->Classes.end(), cls) == page->Classes.end())
        page->Classes.push_back(cls);
  }
  return pages;
}

QString DesignRegistry::PageOf(const TClass& cls) {
  if (Registries().empty()) return {};
  for (const TRegistration& row : Current().rows_)
    if (row.Kind == TRegistrationKind::Components &&
        std::find(row.Classes.begin(), row.Classes.end(), &cls) != row.Classes.end())
      return row.PageOrCategory;
  return {};
}

TPackageCall DesignRegistry::CallOf(const TPropertyEditor& editor, const char* member) const {
  const TClass& cls = editor.GetComponent(0)->ClassType();
  const TRegistration* row = BestRow(cls, editor.GetPropInfo());
  return CallFrom(row, row && row->PropertyEditor ? row->PropertyEditor->Name : QByteArray(), cls, member);
}
TPackageCall DesignRegistry::CallOf(const TComponent& component, const char* member) const {
  const TRegistration* row = BestRow(component.ClassType());
  return CallFrom(row, row ? row->ComponentEditor->Name : QByteArray(), component.ClassType(), member);
}
TPackageCall DesignRegistry::ConstructorOf(const TClass& cls) const {
  return {PackageOf(cls), QString::fromLatin1(cls.ClassName() + ".constructor")};
}

std::optional<TPropertyEditorClass> DesignRegistry::PropertyEditorOf(const TClass& cls,
                                                                     const TPropInfo& prop) const {
  const TRegistration* row = BestRow(cls, prop);
  return row ? row->PropertyEditor : EditorForKind(prop);
}
QByteArray DesignRegistry::ComponentEditorOf(const TClass& cls) const {
  const TRegistration* row = BestRow(cls);
  return row ? row->ComponentEditor->Name : QByteArray("TDefaultEditor");
}

std::unique_ptr<TPropertyEditor> DesignRegistry::CreatePropertyEditor(IDesigner* designer,
                                                                      TInstProps props) const {
  const TInstProp& first = props.front();
  const TRegistration* row = BestRow(first.Instance->ClassType(), *first.PropInfo);
  if (row && !row->PropertyEditor) return nullptr;
  const TPropertyEditorClass usual = EditorForKind(*first.PropInfo);
  std::unique_ptr<TPropertyEditor> made;
  if (row) {
    const TPropertyEditorClass editor = *row->PropertyEditor;
    made = AskPackage([&] { return CallFrom(row, editor.Name, first.Instance->ClassType(), "constructor"); },
                      std::unique_ptr<TPropertyEditor>(), [&] { return editor.Create(designer, props); });
  }
  if (!made) made = usual.Create(designer, std::move(props));
  made->SetSource(this);
  return made;
}

void DesignRegistry::GetComponentProperties(const TDesignerSelections& objects, IDesigner* designer,
                                            const TGetPropProc& proc) const {
  if (objects.empty()) return;
  for (const TPropInfo* prop : objects.front()->ClassType().Properties()) {
    if (prop->Visibility != TPropVisibility::Published) continue;
    TInstProps props{{objects.front(), prop}};
    for (std::size_t i = 1; i < objects.size() && props.size() == i; ++i) {
      const TPropInfo* other = objects[i]->ClassType().FindProp(prop->Name);
      if (other && other->Visibility == TPropVisibility::Published &&
          SameType(*other->PropType, *prop->PropType))
        props.push_back({objects[i], other});
    }
    if (props.size() != objects.size()) continue;
    auto editor = CreatePropertyEditor(designer, std::move(props));
    if (!editor) continue;
    const auto together = [&] { return editor->GetAttributes().Contains(TPropertyAttribute::paMultiSelect); };
    if (objects.size() > 1 && !AskPackage([&] { return CallOf(*editor, "GetAttributes"); }, false, together))
      continue;
    proc(std::move(editor));
  }
}

std::unique_ptr<TComponentEditor> DesignRegistry::GetComponentEditor(TComponent* component,
                                                                     IDesigner* designer) const {
  std::unique_ptr<TComponentEditor> made;
  if (const TRegistration* row = BestRow(component->ClassType())) {
    const TComponentEditorClass editor = *row->ComponentEditor;
    made =
        AskPackage([&] { return CallFrom(row, editor.Name, component->ClassType(), "constructor"); },
                   std::unique_ptr<TComponentEditor>(), [&] { return editor.Create(component, designer); });
  }
  if (!made) made = std::make_unique<TDefaultEditor>(component, designer);
  made->SetSource(this);
  return made;
}

QStringList DesignRegistry::CategoriesOf(const TClass& cls, const QByteArray& property) const {
  QStringList result;
  for (const TRegistration& row : rows_)
    if (row.Kind == TRegistrationKind::Category && cls.InheritsFrom(*row.ComponentClass) &&
        row.Properties.contains(QString::fromLatin1(property), Qt::CaseInsensitive) &&
        !result.contains(row.PageOrCategory))
      result << row.PageOrCategory;
  if (result.isEmpty()) result << LoadResString(TResString::sMiscCategoryName);
  return result;
}
