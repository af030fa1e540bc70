// The base of all property editors. An editor serves one property of all selected components at once; it
// reads the first and writes all.
#pragma once
#include <QFont>
#include <QIcon>
#include <memory>
#include <optional>

#include "designintf/Designer.h"
#include "designintf/PropertyAttributes.h"
#include "rtl/PropAccess.h"

class IEditorSource;
class TPropertyEditor;
using TGetPropProc = std::function<void(std::unique_ptr<TPropertyEditor>)>;

// One selected object and the property in question.
struct TInstProp {
  TPersistent* Instance = nullptr;
  const TPropInfo* PropInfo = nullptr;
};
using TInstProps = std::vector<TInstProp>;

class TPropertyEditor {
 public:
  TPropertyEditor(IDesigner* designer, TInstProps props) : designer_(designer), props_(std::move(props)) {}
  TPropertyEditor(const TPropertyEditor&) = delete;
  TPropertyEditor& operator=(const TPropertyEditor&) = delete;
  virtual ~TPropertyEditor() = default;

  virtual TPropertyAttributes GetAttributes() const;
  virtual QString GetName() const;
  virtual QString GetValue() const;
  // Throws with a message for the user when the text is refused; nothing is changed then.
  virtual void SetValue(const QString& value);
  // The values of a drop-down list.
  virtual void GetValues(const TGetStrProc& proc) const;
  // A picture in front of a value, in the list and in the row; null for none.
  virtual QIcon GetValueIcon(const QString&) const { return {}; }
  // The face to show a value in; nothing for the inspector's own.
  virtual std::optional<QFont> GetValueFont(const QString&) const { return {}; }
  // Opens the editor's dialog. May throw; the inspector rolls back what was changed.
  virtual void Edit();
  virtual void GetProperties(const TGetPropProc& proc) const;
  virtual int GetEditLimit() const { return 255; }
  // Whether all selected components have the same value.
  virtual bool AllEqual() const;
  virtual bool IsDefault() const;
  // Back to the default, in all selected components.
  virtual void Revert();

  IDesigner* Designer() const { return designer_; }
  // Who made it, and makes the editors of its parts; null for an editor that was made by hand.
  const IEditorSource* Source() const { return source_; }
  void SetSource(const IEditorSource* source) { source_ = source; }
  int PropCount() const { return static_cast<int>(props_.size()); }
  TPersistent* GetComponent(int index) const { return props_.at(static_cast<std::size_t>(index)).Instance; }
  const TPropInfo& GetPropInfo() const { return *props_.front().PropInfo; }
  const TTypeInfo& GetPropType() const { return *GetPropInfo().PropType; }

  std::int64_t GetOrdValue() const { return GetOrdValueAt(0); }
  std::int64_t GetOrdValueAt(int index) const;
  void SetOrdValue(std::int64_t value);
  // Object properties: the value objects themselves.
  TPersistent* GetObjectValue() const { return GetObjectValueAt(0); }
  TPersistent* GetObjectValueAt(int index) const;
  void SetOrdValue(TPersistent* value);
  long double GetFloatValueAt(int index) const;
  void SetFloatValue(long double value);
  QString GetStrValue() const { return GetStrValueAt(0); }
  QString GetStrValueAt(int index) const;
  void SetStrValue(const QString& value);
  QString GetMethodValue() const { return GetMethodValueAt(0); }
  QString GetMethodValueAt(int index) const;
  void SetMethodValue(const QString& handler);

 protected:
  void Modified() const;
  // Changes the property of every component: all of them, or, when one refuses, none.
  void ChangeAll(const std::function<void(const TInstProp&)>& change);
  const TInstProps& Props() const { return props_; }

 private:
  IDesigner* designer_;
  const IEditorSource* source_ = nullptr;
  TInstProps props_;
};

// A class of editors: its name and how to make one.
struct TPropertyEditorClass {
  QByteArray Name;
  std::unique_ptr<TPropertyEditor> (*Create)(IDesigner*, TInstProps) = nullptr;
};
template <class T>
TPropertyEditorClass PropertyEditorClass(const char* name) {
  return {name, [](IDesigner* d, TInstProps p) -> std::unique_ptr<TPropertyEditor> {
            return std::make_unique<T>(d, std::move(p));
          }};
}
#define VRX_PROPERTY_EDITOR(Type) PropertyEditorClass<Type>(#Type)
