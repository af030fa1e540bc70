#include "designintf/DesignIntf.h"

#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"

namespace {
struct State {
  std::vector<TRegistration> rows;
  const void* package = nullptr;
  QByteArray procedure;
  std::function<void()> changed;
  QHash<const void*, QString> names;
};
State& Design() {
  static State state;
  return state;
}

TRegistration& Record(TRegistrationKind kind) {
  State& s = Design();
  TRegistration row{};
  row.Kind = kind;
  row.Procedure = s.procedure;
  row.Package = s.package;
  s.rows.push_back(std::move(row));
  return s.rows.back();
}

void Changed() {
  if (Design().changed) Design().changed();
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

std::optional<Fit> FitOf(const TRegistration& row, const TPersistent& instance, const TPropInfo& prop) {
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
    if (!instance.InheritsFrom(*row.ComponentClass)) return {};
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

const TRegistration* BestRow(const TPersistent& instance, const TPropInfo& prop) {
  const TRegistration* best = nullptr;
  Fit bestFit;
  for (const TRegistration& row : Design().rows)
    if (const auto fit = FitOf(row, instance, prop); fit && (!best || *fit >= bestFit)) {
      best = &row;
      bestFit = *fit;
    }
  return best;
}

const TRegistration* BestRow(const TComponent& component) {
  const TRegistration* best = nullptr;
  for (const TRegistration& row : Design().rows)
    if (row.Kind == TRegistrationKind::ComponentEditor && component.InheritsFrom(*row.ComponentClass) &&
        (!best || Depth(row.ComponentClass) >= Depth(best->ComponentClass)))
      best = &row;
  return best;
}

QString PackageOf(const TClass& cls) {
  for (const TClass* c = &cls; c; c = c->ClassParent())
    for (const TRegistration& row : Design().rows)
      if (row.Package && row.Kind == TRegistrationKind::Components &&
          std::find(row.Classes.begin(), row.Classes.end(), c) != row.Classes.end())
        return PackageName(row.Package);
  return {};
}

TPackageCall CallFrom(const TRegistration* row, const QByteArray& editor, const TClass& cls,
                      const char* member) {
  if (row && row->Package) return {PackageName(row->Package), QString::fromLatin1(editor + '.' + member)};
  return {PackageOf(cls), QString::fromLatin1(cls.ClassName() + '.' + member)};
}

std::vector<TPalettePage> Pages(TRegistrationKind kind) {
  std::vector<TPalettePage> pages;
  for (const TRegistration& row : Design().rows) {
    if (row.Kind != kind) continue;
    auto page =
        std::find_if(pages.begin(), pages.end(), [&](const auto& p) { return p.Name == row.PageOrCategory; });
    if (page == pages.end()) page = pages.insert(pages.end(), TPalettePage{row.PageOrCategory, {}});
    for (const TClass* cls : row.Classes)
      if (std::find(page->Classes.begin(), page->Classes.end(), cls) == page->Classes.end())
        page->Classes.push_back(cls);
  }
  return pages;
}
}  // namespace

RegistrationScope::RegistrationScope(const void* package, QByteArray procedure)
    : package_(std::exchange(Design().package, package)),
      procedure_(std::exchange(Design().procedure, std::move(procedure))) {}
RegistrationScope::~RegistrationScope() {
  Design().package = package_;
  Design().procedure = procedure_;
}

void NamePackage(const void* package, const QString& name) { Design().names.insert(package, name); }
QString PackageName(const void* package) { return Design().names.value(package); }

TPackageCall CallOf(const TPropertyEditor& editor, const char* member) {
  const TPersistent& instance = *editor.GetComponent(0);
  const TRegistration* row = BestRow(instance, editor.GetPropInfo());
  return CallFrom(row, row && row->PropertyEditor ? row->PropertyEditor->Name : QByteArray(),
                  instance.ClassType(), member);
}
TPackageCall CallOf(const TComponent& component, const char* member) {
  const TRegistration* row = BestRow(component);
  return CallFrom(row, row ? row->ComponentEditor->Name : QByteArray(), component.ClassType(), member);
}
TPackageCall ConstructorOf(const TClass& cls) {
  return {PackageOf(cls), QString::fromLatin1(cls.ClassName() + ".constructor")};
}

const std::vector<TRegistration>& Registrations() { return Design().rows; }
void SetRegistrationsChanged(std::function<void()> listener) { Design().changed = std::move(listener); }

void UnregisterPackage(const void* package) {
  std::erase_if(Design().rows, [package](const TRegistration& r) { return r.Package == package; });
  UnRegisterClasses(package);
  Changed();
}

void RegisterComponents(const QString& page, const std::vector<const TClass*>& classes) {
  for (const TClass* cls : classes) RegisterClass(*cls, Design().package);
  TRegistration& row = Record(TRegistrationKind::Components);
  row.PageOrCategory = page;
  row.Classes = classes;
  Changed();
}

void RegisterActions(const QString& category, const std::vector<const TClass*>& classes, const TClass*) {
  TRegistration& row = Record(TRegistrationKind::Actions);
  row.PageOrCategory = category;
  row.Classes = classes;
  Changed();
}

void RegisterComponentEditor(const TClass& componentClass, TComponentEditorClass editor) {
  TRegistration& row = Record(TRegistrationKind::ComponentEditor);
  row.ComponentClass = &componentClass;
  row.ComponentEditor = std::move(editor);
  Changed();
}

void RegisterPropertyEditor(const TTypeInfo& type, const TClass* componentClass,
                            const QByteArray& propertyName, std::optional<TPropertyEditorClass> editor) {
  TRegistration& row = Record(TRegistrationKind::PropertyEditor);
  row.PropertyType = &type;
  row.ComponentClass = componentClass;
  row.PropertyName = propertyName;
  row.PropertyEditor = std::move(editor);
  Changed();
}

void RegisterPropertiesInCategory(const QString& category, const TClass& componentClass,
                                  const QStringList& properties) {
  TRegistration& row = Record(TRegistrationKind::Category);
  row.PageOrCategory = category;
  row.ComponentClass = &componentClass;
  row.Properties = properties;
  Changed();
}

QString LoadResString(TResString id) {
  switch (id) {
    case TResString::sLayoutCategoryName:
      return QStringLiteral("Layout");
    case TResString::sVisualCategoryName:
      return QStringLiteral("Visual");
    case TResString::sMiscCategoryName:
      return QStringLiteral("Miscellaneous");
  }
  return {};
}

std::vector<TPalettePage> PalettePages() { return Pages(TRegistrationKind::Components); }
std::vector<TPalettePage> ActionCategories() { return Pages(TRegistrationKind::Actions); }

std::unique_ptr<TPropertyEditor> CreatePropertyEditor(IDesigner* designer, TInstProps props) {
  const TInstProp& first = props.front();
  const TRegistration* row = BestRow(*first.Instance, *first.PropInfo);
  if (row && !row->PropertyEditor) return nullptr;
  const TPropertyEditorClass usual = EditorForKind(*first.PropInfo);
  if (!row) return usual.Create(designer, std::move(props));
  const TPropertyEditorClass editor = *row->PropertyEditor;
  auto made =
      AskPackage([&] { return CallFrom(row, editor.Name, first.Instance->ClassType(), "constructor"); },
                 std::unique_ptr<TPropertyEditor>(), [&] { return editor.Create(designer, props); });
  return made ? std::move(made) : usual.Create(designer, std::move(props));
}

void GetComponentProperties(const TDesignerSelections& objects, IDesigner* designer,
                            const TGetPropProc& proc) {
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

std::unique_ptr<TComponentEditor> GetComponentEditor(TComponent* component, IDesigner* designer) {
  if (const TRegistration* row = BestRow(*component)) {
    const TComponentEditorClass editor = *row->ComponentEditor;
    auto made =
        AskPackage([&] { return CallFrom(row, editor.Name, component->ClassType(), "constructor"); },
                   std::unique_ptr<TComponentEditor>(), [&] { return editor.Create(component, designer); });
    if (made) return made;
  }
  return std::make_unique<TDefaultEditor>(component, designer);
}

QStringList CategoriesOf(const TClass& cls, const QByteArray& property) {
  QStringList result;
  for (const TRegistration& row : Design().rows)
    if (row.Kind == TRegistrationKind::Category && cls.InheritsFrom(*row.ComponentClass) &&
        row.Properties.contains(QString::fromLatin1(property), Qt::CaseInsensitive) &&
        !result.contains(row.PageOrCategory))
      result << row.PageOrCategory;
  if (result.isEmpty()) result << LoadResString(TResString::sMiscCategoryName);
  return result;
}
