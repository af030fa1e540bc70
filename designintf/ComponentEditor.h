// Editors of whole components: context-menu verbs and the action of a double-click.
#pragma once
#include "designintf/PropertyEditor.h"

class TComponentEditor {
 public:
  TComponentEditor(TComponent* component, IDesigner* designer) : component_(component), designer_(designer) {}
  TComponentEditor(const TComponentEditor&) = delete;
  TComponentEditor& operator=(const TComponentEditor&) = delete;
  virtual ~TComponentEditor() = default;

  // The double-click: the first verb, if there is one.
  virtual void Edit();
  virtual void ExecuteVerb(int index);
  // Empty for an index outside the table; "-" is a separator; "&" marks the accelerator.
  virtual QString GetVerb(int index) const;
  virtual int GetVerbCount() const { return 0; }
  // Why the verb cannot be run just now; empty when it can.
  virtual QString GetVerbProblem(int) const { return {}; }

  TComponent* GetComponent() const { return component_; }
  IDesigner* GetDesigner() const { return designer_; }
  // Who made it, and makes the editors that it opens; null for an editor that was made by hand.
  const IEditorSource* Source() const { return source_; }
  void SetSource(const IEditorSource* source) { source_ = source; }

 private:
  TComponent* component_;
  IDesigner* designer_;
  const IEditorSource* source_ = nullptr;
};

// Serves every class that has no editor of its own: a double-click edits the default property.
class TDefaultEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  void Edit() override;

 protected:
  // Whether this is the property to edit; the default picks OnCreate, OnChange or OnClick.
  virtual bool EditProperty(const TPropertyEditor& property) const;
};

struct TComponentEditorClass {
  QByteArray Name;
  std::unique_ptr<TComponentEditor> (*Create)(TComponent*, IDesigner*) = nullptr;
};
template <class T>
TComponentEditorClass ComponentEditorClass(const char* name) {
  return {name, [](TComponent* c, IDesigner* d) -> std::unique_ptr<TComponentEditor> {
            return std::make_unique<T>(c, d);
          }};
}
#define VRX_COMPONENT_EDITOR(Type) ComponentEditorClass<Type>(#Type)
