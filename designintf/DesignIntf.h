// What packages call to make themselves known, and how the answers are looked up.
//
// Every call is recorded in order with the package and the unit whose Register made it; looking up gives the
// most specific row, the later of two equal ones. Unloading a package removes its rows.
#pragma once
#include <QStringList>

#include "designintf/BasicEditors.h"
#include "designintf/ComponentEditor.h"
#include "designintf/PackageCall.h"

enum class TRegistrationKind : std::uint8_t {
  Components,
  Actions,
  PropertyEditor,
  ComponentEditor,
  Category
};

struct TRegistration {
  TRegistrationKind Kind;
  QByteArray Procedure;  // the unit
  const void* Package = nullptr;
  QString PageOrCategory;
  std::vector<const TClass*> Classes;  // components or actions
  const TClass* ComponentClass = nullptr;
  const TTypeInfo* PropertyType = nullptr;
  QByteArray PropertyName;
  QStringList Properties;                              // of a category
  std::optional<TPropertyEditorClass> PropertyEditor;  // none: the property is hidden
  std::optional<TComponentEditorClass> ComponentEditor;
};

void RegisterComponents(const QString& page, const std::vector<const TClass*>& classes);
// The resource class is always null here: actions bring no images.
void RegisterActions(const QString& category, const std::vector<const TClass*>& classes,
                     const TClass* resource);
void RegisterComponentEditor(const TClass& componentClass, TComponentEditorClass editor);
// Null class and empty name: every property of the type. No editor: the property is hidden.
void RegisterPropertyEditor(const TTypeInfo& type, const TClass* componentClass,
                            const QByteArray& propertyName, std::optional<TPropertyEditorClass> editor);
void RegisterPropertiesInCategory(const QString& category, const TClass& componentClass,
                                  const QStringList& properties);

// The IDE's own texts.
enum class TResString { sLayoutCategoryName, sVisualCategoryName, sMiscCategoryName };
QString LoadResString(TResString id);

// Whose calls the next ones are. Nested scopes restore the outer one.
class RegistrationScope {
 public:
  RegistrationScope(const void* package, QByteArray procedure);
  ~RegistrationScope();

 private:
  const void* package_;
  QByteArray procedure_;
};

// What messages call a package; empty for the host.
void NamePackage(const void* package, const QString& name);
QString PackageName(const void* package);

// Whose code runs when a member of an editor is called: the package that registered the editor, or, where the
// editor is the host's, the package that the component's class came with.
TPackageCall CallOf(const TPropertyEditor& editor, const char* member);
TPackageCall CallOf(const TComponent& component, const char* member);
TPackageCall ConstructorOf(const TClass& cls);
// An editor may be a package's; whoever shows a row goes on with what can be said without it.
template <class T, class F>
T AskEditor(const TPropertyEditor& editor, const char* member, T otherwise, F&& f) {
  return AskPackage([&] { return CallOf(editor, member); }, std::move(otherwise), std::forward<F>(f));
}

const std::vector<TRegistration>& Registrations();
void UnregisterPackage(const void* package);
// Called after rows came or went.
void SetRegistrationsChanged(std::function<void()> listener);

struct TPalettePage {
  QString Name;
  std::vector<const TClass*> Classes;  // each once, in the order of its first registration
};
std::vector<TPalettePage> PalettePages();
std::vector<TPalettePage> ActionCategories();

// The editor for a property of an object; null when it is hidden. An editor that throws while it is made is
// told of (TellPackageProblem) and replaced by the host's; so is a component editor.
std::unique_ptr<TPropertyEditor> CreatePropertyEditor(IDesigner* designer, TInstProps props);
// Editors of the properties that all objects have in common and that may be edited together.
void GetComponentProperties(const TDesignerSelections& objects, IDesigner* designer,
                            const TGetPropProc& proc);
std::unique_ptr<TComponentEditor> GetComponentEditor(TComponent* component, IDesigner* designer);
// Categories of a property, in order of registration; "Miscellaneous" when there is none.
QStringList CategoriesOf(const TClass& cls, const QByteArray& property);
