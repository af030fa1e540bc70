// What packages have registered with one host, and who answers for what.
//
// Every call is recorded in order with the package and the unit whose Register made it; looking up gives the
// most specific row, the later of two equal ones. A host owns its registry and outlives what is made from it.
// Where nobody says which registry is meant, it is the one made last that is still there.
#pragma once
#include <QStringList>
#include <map>

#include "designintf/ComponentEditor.h"
#include "designintf/EditorSource.h"

class QDialog;

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

// A dialog that can be looked at without being shown.
struct TDialogRegistration {
  QByteArray Name;  // its class
  std::unique_ptr<QDialog> (*Open)();
  const void* Package = nullptr;
};

struct TPalettePage {
  QString Name;
  std::vector<const TClass*> Classes;  // each once, in the order of its first registration
};

class DesignRegistry : public IEditorSource {
 public:
  DesignRegistry();
  // Classes that only its packages brought are no longer known.
  ~DesignRegistry() override;
  DesignRegistry(const DesignRegistry&) = delete;
  DesignRegistry& operator=(const DesignRegistry&) = delete;
  // Throws Exception when there is none.
  static DesignRegistry& Current();

  const std::vector<TRegistration>& Rows() const { return rows_; }
  // A new row of the package whose calls these are. Classes of pages become known.
  void Add(TRegistration row);
  // Dialogs are no registrations of the IDE's: they come and go with their package, too.
  const std::vector<TDialogRegistration>& Dialogs() const { return dialogs_; }
  void Add(TDialogRegistration dialog);
  // Throws EPackageError when it cannot be opened.
  std::unique_ptr<QDialog> Open(const TDialogRegistration& dialog) const;
  void UnregisterPackage(const void* package);

  // What messages call a package; empty for the host.
  void NamePackage(const void* package, const QString& name) { packages_[package].name = name; }
  QString PackageName(const void* package) const;
  // Whose code runs when a member of an editor is called: the package that registered the editor, or, where
  // the editor is the host's, the package that the component's class came with.
  TPackageCall CallOf(const TPropertyEditor& editor, const char* member) const override;
  TPackageCall CallOf(const TComponent& component, const char* member) const;
  TPackageCall ConstructorOf(const TClass& cls) const;

  std::vector<TPalettePage> PalettePages() const { return Pages(TRegistrationKind::Components); }
  // The first page that the class is on, of the registry that is current; empty when it is on none.
  static QString PageOf(const TClass& cls);
  std::vector<TPalettePage> ActionCategories() const { return Pages(TRegistrationKind::Actions); }
  // Categories of a property, in order of registration; "Miscellaneous" when there is none.
  QStringList CategoriesOf(const TClass& cls, const QByteArray& property) const;

  // The class of editors that serves a property of a class: a registered one, or the host's for the kind;
  // none when the property is hidden.
  std::optional<TPropertyEditorClass> PropertyEditorOf(const TClass& cls, const TPropInfo& prop) const;
  // The name of the component editor that serves a class.
  QByteArray ComponentEditorOf(const TClass& cls) const;

  // The editor for a property of an object; null when it is hidden. An editor that throws while it is made is
  // told of (TellPackageProblem) and replaced by the host's; so is a component editor.
  std::unique_ptr<TPropertyEditor> CreatePropertyEditor(IDesigner* designer, TInstProps props) const;
  void GetComponentProperties(const TDesignerSelections& objects, IDesigner* designer,
                              const TGetPropProc& proc) const override;
  std::unique_ptr<TComponentEditor> GetComponentEditor(TComponent* component, IDesigner* designer) const;

 private:
  friend class RegistrationScope;
  // Its address stands for this package of this registry where classes are known.
  struct Package {
    QString name;
  };
  const void* OwnerOf(const void* package);
  const TRegistration* BestRow(const TClass& cls, const TPropInfo& prop) const;
  const TRegistration* BestRow(const TClass& cls) const;
  QString PackageOf(const TClass& cls) const;
  TPackageCall CallFrom(const TRegistration* row, const QByteArray& editor, const TClass& cls,
                        const char* member) const;
  std::vector<TPalettePage> Pages(TRegistrationKind kind) const;

  std::vector<TRegistration> rows_;
  std::vector<TDialogRegistration> dialogs_;
  std::map<const void*, Package> packages_;
  const void* package_ = nullptr;  // whose calls the next ones are
  QByteArray procedure_;
};

// While it lives, registration calls go to the registry and are those of this package's unit. Scopes inside
// of each other restore the outer one.
class RegistrationScope {
 public:
  RegistrationScope(DesignRegistry& registry, const void* package, QByteArray procedure);
  RegistrationScope(const void* package, QByteArray procedure)
      : RegistrationScope(DesignRegistry::Current(), package, std::move(procedure)) {}
  ~RegistrationScope();
  RegistrationScope(const RegistrationScope&) = delete;
  RegistrationScope& operator=(const RegistrationScope&) = delete;

 private:
  DesignRegistry& registry_;
  const void* package_;
  QByteArray procedure_;
};
