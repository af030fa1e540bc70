#include "ide/ClassDescription.h"

#include <map>

#include "designintf/Purposes.h"
#include "ide/FormSession.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "rtl/PropText.h"
#include "rtl/StoredRule.h"

namespace {
QString Text(const QByteArray& name) { return QString::fromLatin1(name); }

// What a person can get one of; others only give their properties to descendants.
bool IsOffered(const TClass& cls, const DesignRegistry& registry) {
  if (cls.IsAbstract()) return false;
  if (FindClass(cls.ClassName()) == &cls) return true;
  const auto categories = registry.ActionCategories();
  return std::any_of(categories.begin(), categories.end(), [&](const TPalettePage& category) {
    return std::find(category.Classes.begin(), category.Classes.end(), &cls) != category.Classes.end();
  });
}

// One of the class to ask: on a form when it is a component, else a value by itself; none of a class that
// nothing can be made of here.
class Sample {
 public:
  Sample(const TClass& cls, DesignRegistry& registry) {
    if (!cls.InheritsFrom(TComponent::StaticClass())) {
      if (!cls.IsAbstract()) try {
          value_ = cls.NewPersistent();
        } catch (const Exception&) {  // an item of a collection
        }
      return;
    }
    if (!IsOffered(cls, registry)) return;
    session_ = FormSession::NewForm(QStringLiteral("Form1"), registry);
    component_ = cls.InheritsFrom(TForm::StaticClass())
                     ? session_->GetRoot()
                     : session_->CreateComponent(cls, nullptr, QRect(8, 8, 0, 0));
  }
  TPersistent* Instance() const { return component_ ? component_ : value_.get(); }
  TComponent* Component() const { return component_; }
  IDesigner* Designer() const { return session_.get(); }

 private:
  std::unique_ptr<FormSession> session_;
  TComponent* component_ = nullptr;
  std::unique_ptr<TPersistent> value_;
};

QString KindOf(const TPropInfo& prop) {
  if (prop.Is<QByteArray>()) return QStringLiteral("binary");
  switch (prop.Kind()) {
    case TTypeKind::tkInteger:
      return QStringLiteral("integer");
    case TTypeKind::tkInt64:
      return QStringLiteral("int64");
    case TTypeKind::tkChar:
      return QStringLiteral("char");
    case TTypeKind::tkEnumeration:
      return QStringLiteral("enumeration");
    case TTypeKind::tkSet:
      return QStringLiteral("set");
    case TTypeKind::tkFloat:
      return QStringLiteral("float");
    case TTypeKind::tkString:
      return QStringLiteral("string");
    case TTypeKind::tkMethod:
      return QStringLiteral("method");
    case TTypeKind::tkClass:
      return IsComponentRef(prop) ? QStringLiteral("reference") : QStringLiteral("class");
    default:
      return QStringLiteral("unknown");
  }
}

std::optional<QString> DefaultOf(const TPropInfo& prop) {
  if (prop.IsOrdinal()) {
    if (!prop.Default) return {};
    return OrdToText(*prop.PropType, *prop.Default);
  }
  if (prop.Is<QString>()) return QString();
  if (prop.Kind() == TTypeKind::tkFloat) return FloatToText(*prop.PropType, 0);
  return {};
}

QString StoredOf(const TPropInfo& prop) {
  if (IsNeverStored(prop)) return QStringLiteral("never");
  if (prop.Stored) return QStringLiteral("by rule");
  return prop.IsOrdinal() && !prop.Default ? QStringLiteral("always") : QStringLiteral("not default");
}

// Of references it would be the components of the form at hand.
QStringList ValuesOf(const TPropInfo& prop, const TPropertyEditor* editor) {
  QStringList values;
  const TTypeInfo& type = *prop.PropType;
  const TTypeInfo& elements = type.Kind == TTypeKind::tkSet ? *type.CompType : type;
  for (const QByteArray& element : elements.Elements) values << Text(element);
  if (!values.isEmpty() || !editor || prop.IsEvent() || IsComponentRef(prop)) return values;
  AskEditor(*editor, "GetValues", false, [&] {
    if (editor->GetAttributes().Contains(TPropertyAttribute::paValueList))
      editor->GetValues([&](const QString& value) { values << value; });
    return true;
  });
  return values;
}

QStringList AttributesOf(const TPropertyEditor& editor) {
  const auto attributes =
      AskEditor(editor, "GetAttributes", TPropertyAttributes(), [&] { return editor.GetAttributes(); });
  QStringList names;
  const auto& all = TypeInfoOf<TPropertyAttribute>::Get().Elements;
  for (qsizetype i = 0; i < all.size(); ++i)
    if (attributes.Contains(static_cast<TPropertyAttribute>(i))) names << Text(all[i]);
  return names;
}

PropertyDescription DescribeProperty(const TPropInfo& prop, const TClass& cls, const Sample& sample,
                                     const DesignRegistry& registry) {
  PropertyDescription result{Text(prop.Name),
                             Text(prop.PropType->Name),
                             KindOf(prop),
                             DefaultOf(prop),
                             StoredOf(prop),
                             PurposeOf(cls, prop),
                             {},
                             {},
                             {}};
  if (const auto editor = registry.PropertyEditorOf(cls, prop)) result.editor = Text(editor->Name);
  std::unique_ptr<TPropertyEditor> editor;
  if (sample.Instance())
    editor = registry.CreatePropertyEditor(sample.Designer(), {{sample.Instance(), &prop}});
  if (editor) result.attributes = AttributesOf(*editor);
  result.values = ValuesOf(prop, editor.get());
  return result;
}

QStringList VerbsOf(TComponent& component, IDesigner* designer, const DesignRegistry& registry) {
  const auto call = [&](const char* member) {
    return [&, member] { return registry.CallOf(component, member); };
  };
  return AskPackage(call("GetVerb"), QStringList(), [&] {
    QStringList verbs;
    const auto editor = registry.GetComponentEditor(&component, designer);
    for (int i = 0; i < editor->GetVerbCount(); ++i) verbs << editor->GetVerb(i);
    return verbs;
  });
}

using Found = std::map<QByteArray, const TClass*>;
void Find(const TClass& cls, Found& found) {
  if (!found.try_emplace(cls.ClassName().toLower(), &cls).second) return;
  if (cls.ClassParent()) Find(*cls.ClassParent(), found);
  for (const TPropInfo* prop : cls.Properties())
    if (prop->PropType->ClassType) Find(prop->PropType->ClassType(), found);
}
}  // namespace

std::vector<const TClass*> DescribedClasses(const DesignRegistry& registry) {
  Found found;
  for (const TClass* cls : RegisteredClasses()) Find(*cls, found);
  for (const TPalettePage& category : registry.ActionCategories())
    for (const TClass* cls : category.Classes) Find(*cls, found);
  std::vector<const TClass*> classes;
  for (const auto& [name, cls] : found) classes.push_back(cls);
  return classes;
}

ClassDescription Describe(const TClass& cls, DesignRegistry& registry) {
  ClassDescription result;
  result.name = Text(cls.ClassName());
  result.doc = PurposeOf(cls);
  for (const TClass* c = cls.ClassParent(); c; c = c->ClassParent()) result.ancestors << Text(c->ClassName());
  for (const TPalettePage& page : registry.PalettePages())
    if (result.page.isEmpty() &&
        std::find(page.Classes.begin(), page.Classes.end(), &cls) != page.Classes.end())
      result.page = page.Name;
  const Sample sample(cls, registry);
  if (cls.InheritsFrom(TComponent::StaticClass())) result.editor = Text(registry.ComponentEditorOf(cls));
  if (sample.Component()) result.verbs = VerbsOf(*sample.Component(), sample.Designer(), registry);
  for (const TPropInfo* prop : cls.Properties())
    if (prop->Visibility == TPropVisibility::Published)
      (prop->IsEvent() ? result.events : result.properties)
          .push_back(DescribeProperty(*prop, cls, sample, registry));
  return result;
}
