// The form designer as editors and design windows see it.
#pragma once
#include <QRect>
#include <functional>
#include <vector>

#include "rtl/Component.h"

using TGetStrProc = std::function<void(const QString&)>;
using TDesignerSelections = std::vector<TPersistent*>;

class IDesigner {
 public:
  virtual ~IDesigner() = default;

  // Something on the form was changed. Closes the current command, so that it can be undone on its own.
  virtual void Modified() = 0;
  // Does something to the form as one step that can be undone under that text. What the action throws comes
  // out, after everything it did has been taken back.
  virtual void Perform(const QString& /*text*/, const std::function<void()>& action) {
    action();
    Modified();
  }
  virtual TComponent* GetRoot() const = 0;
  virtual QString GetRootClassName() const = 0;

  // A free name: the base without its leading "T", then a number.
  virtual QString UniqueName(const QString& baseName) const = 0;
  virtual TComponent* GetComponent(const QString& name) const = 0;
  virtual QString GetComponentName(const TComponent& component) const = 0;
  // Names of the form's components of the class or a descendant.
  virtual void GetComponentNames(const TClass& cls, const TGetStrProc& proc) const = 0;

  // Components, or items of collections, which the inspector shows in place of their component then.
  virtual void SelectComponent(TPersistent* instance) = 0;
  virtual void SetSelections(const TDesignerSelections& list) = 0;
  virtual TDesignerSelections GetSelections() const = 0;

  // A new component inside `parent`, which is a container or, of menu items and the like, what they stand in;
  // an empty rectangle means the class's own size at its origin.
  virtual TComponent* CreateComponent(const TClass& cls, TComponent* parent, const QRect& bounds) = 0;
  virtual void DeleteSelection() = 0;
  // The default action of the component's editor.
  virtual void Edit(TComponent& component) = 0;

  // Event handlers, known by name only.
  virtual bool MethodExists(const QString& name) const = 0;
  virtual void GetMethods(const TTypeInfo& eventType, const TGetStrProc& proc) const = 0;
  virtual void ShowMethod(const QString& name) = 0;
};
