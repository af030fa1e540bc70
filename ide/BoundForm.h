// A form file's document and the components made from it. What comes, goes or moves in one does so in the
// other; objects of the document are the identities that outlive components.
#pragma once
#include <QScopedValueRollback>

#include "designintf/DesignRegistry.h"
#include "ide/Ancestors.h"
#include "ide/Command.h"
#include "ide/Fingerprints.h"
#include "vcl/Form.h"

// Whoever wants to know which components the document's objects have.
class IFormWatcher {
 public:
  virtual ~IFormWatcher() = default;
  virtual void Came(TComponent& component) = 0;
  virtual void Going(TComponent& component) = 0;
};

class BoundForm {
 public:
  // The registry and the watcher outlive the form. What it inherits is looked for beside the file.
  BoundForm(forms::Document document, const QString& fileName, DesignRegistry& registry,
            IFormWatcher& watcher);
  ~BoundForm();

  // All components, made anew. Throws EFormError before anything is made when pictures would take too much;
  // `edited`: the document holds more than its source.
  void Make(bool edited);

  DesignRegistry& Registry() const { return registry_; }
  IFormWatcher& Watcher() const { return watcher_; }
  forms::Document& Document() { return document_; }
  const forms::Document& Document() const { return document_; }
  TForm& Root() const { return *root_; }
  TForm* RootOrNull() const { return root_.get(); }
  const std::vector<forms::Finding>& Findings() const { return findings_; }
  // Finds them anew, by reading what the document is now.
  void FindAgain();
  // Values that a command has changed are no longer what was found.
  void DropFindings(const Command& command);
  forms::Object* ObjectOf(const TComponent& component) const { return map_.ObjectOf(component); }
  TComponent* ComponentOf(const forms::Object& object) const { return map_.ComponentOf(object); }
  std::vector<forms::Object*> ObjectsOf(const std::vector<TComponent*>& components) const;
  std::vector<TComponent*> ComponentsOf(const std::vector<forms::Object*>& objects) const;
  // In the order of the file, the root first.
  std::vector<TComponent*> AllComponents() const;
  TComponent* FindComponent(const QString& name) const;
  QString UniqueName(const QString& baseName) const;
  TComponent* NewComponent(const TClass& cls);

  // Undo, redo and readers know every place themselves: nobody lays out, nobody takes note.
  bool IsFrozen() const { return frozen_; }
  [[nodiscard]] QScopedValueRollback<bool> Freeze() { return QScopedValueRollback<bool>(frozen_, true); }
  // The components that come and go meanwhile are the form's own doing.
  bool IsBuilding() const { return building_; }
  [[nodiscard]] QScopedValueRollback<bool> Build() { return QScopedValueRollback<bool>(building_, true); }

  // Where a new child stands.
  int NewChildIndex(const forms::Object& parent, bool control) const;
  // The component has this object from now on.
  void Bind(TComponent& component, forms::Object& object) { map_.Add(component, object); }
  void Unbind(TComponent& component) { map_.Remove(component); }
  // The object has come from elsewhere: what its frames hold comes with it.
  void Complete(forms::Object& object) { ancestors_.Complete(document_, object); }
  // The files that are inherited from and hold something else now than was read.
  QStringList ChangedAncestors() const { return ancestors_.Changed(); }
  // Makes the components of an object that stands in the document already.
  TComponent* MakeComponents(const StructureChange& change);
  // Frees the component of the object, and everything inside.
  void RemoveObject(forms::Object& object);
  // Takes the object out of the document and frees its components.
  void TakeObject(StructureChange& change);
  // Renames; the class of a form named after it follows.
  void SetName(ComponentChange& change, bool redo);
  // Gives references and bounds once more, when everything else is in place.
  void Settle(forms::Object& object);
  // References that the file had all the time find what has come with that name.
  void Reconnect();
  // Does the command again or takes it back.
  void Apply(Command& command, bool redo);

  // Components that may change without telling.
  void TakeFingerprint(const TComponent& component, const forms::Object& object);
  bool ChangedSilently(const TComponent& component, const forms::Object& object) const;
  std::vector<const forms::Object*> SilentlyChanged() { return prints_.Differing(map_, document_); }
  // What these components are according to the document.
  struct Described {
    const forms::Object* object;
    QString name;
    forms::Snapshot values;
  };
  std::vector<Described> AsDocumented(const std::vector<const forms::Object*>& objects);
  // What these would be if the form said nothing of them. Those without an origin are left out.
  void LearnInherited(const std::vector<const forms::Object*>& objects);
  // As learned; null for others.
  const forms::Snapshot* InheritedValues(const forms::Object& object) const;

 private:
  forms::FormReader MakeReader(forms::Document& document, forms::ObjectMap& map);
  // The document as it would be read again, its objects in pairs with their copies.
  forms::Document Copied(std::vector<forms::Finding>& missing) const;
  using Pairs = std::vector<std::pair<forms::Object*, const forms::Object*>>;
  static void Pair(forms::Object& copy, const forms::Object& object, Pairs& pairs);
  // `own`: with what the document itself says of them.
  std::vector<Described> ReadAgain(const std::vector<const forms::Object*>& objects, bool own);
  void NoteDangling(const std::vector<forms::Finding>& findings);
  int PlaceAmong(const forms::Object& parent, int index, const TClass& family) const;
  // Among its siblings where its object stands.
  void PutInPlace(TComponent& component, const forms::Object& parent, int index) const;
  void RemoveWithChildren(TComponent& component);
  void InsertObject(StructureChange& change);
  void MoveObject(StructureChange& change, bool redo);
  void ApplyStructure(StructureChange& change, bool redo);
  void ApplyValues(ComponentChange& change, bool redo);
  void TakeFingerprints(const forms::Object& object);

  DesignRegistry& registry_;
  IFormWatcher& watcher_;
  mutable Ancestors ancestors_;  // outlive the document that stands on them
  forms::Document document_;
  forms::ObjectMap map_;
  Fingerprints prints_;
  // What edited components inherit, by their origins: the same whoever inherits it.
  QHash<const forms::Object*, forms::Snapshot> inherited_;
  std::unique_ptr<TForm> root_;
  std::vector<forms::Finding> findings_;
  bool frozen_ = false;
  bool building_ = false;
  bool silent_ = false;    // a component may change without telling
  bool dangling_ = false;  // a reference in the file names something that was not there
};
