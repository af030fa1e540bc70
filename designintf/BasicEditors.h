// Editors of the basic property kinds; what a package derives its own from.
#pragma once
#include "designintf/PropertyEditor.h"

class TOrdinalProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  bool AllEqual() const override;
};
class TIntegerProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
};
class TEnumProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
};
class TBoolProperty : public TEnumProperty {
 public:
  using TEnumProperty::TEnumProperty;
};
class TFloatProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
};
class TStringProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  // A list where the property suggests texts (designintf/TextChoices.h).
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
  int GetEditLimit() const override { return 32767; }
};
// Captions and the like: the form follows every keystroke.
class TCaptionProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
};
class TComponentNameProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override { return {TPropertyAttribute::paNotNestable}; }
  // A component on a form has a name.
  void SetValue(const QString& value) override;
};

// A set: its text, and one yes/no row for every element.
class TSetProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetProperties(const TGetPropProc& proc) const override;
};
class TSetElementProperty : public TPropertyEditor {
 public:
  TSetElementProperty(IDesigner* designer, TInstProps props, int element)
      : TPropertyEditor(designer, std::move(props)), element_(element) {}
  TPropertyAttributes GetAttributes() const override;
  QString GetName() const override;
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void GetValues(const TGetStrProc& proc) const override;
  bool AllEqual() const override;
  bool IsDefault() const override;
  void Revert() override;

 private:
  bool Has(int index) const;
  void Set(bool on);
  int element_;
};

// A value object: expands into its own properties.
class TClassProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void GetProperties(const TGetPropProc& proc) const override;
  bool AllEqual() const override { return true; }
};

// A reference to another component of the form.
class TComponentProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
};

// An event: the name of its handler.
class TMethodProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
  // Goes to the handler; without one, makes it under the name GetFormMethodName gives.
  void Edit() override;
  virtual QString GetFormMethodName() const;
};
