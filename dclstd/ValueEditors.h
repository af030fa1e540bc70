// Editors of values that are written in a way of their own: keys, dates, filters.
#pragma once
#include "dclstd/DateTimeDialog.h"
#include "designintf/BasicEditors.h"

class TShortCutProperty : public TOrdinalProperty {
 public:
  using TOrdinalProperty::TOrdinalProperty;
  TPropertyAttributes GetAttributes() const override;
  // "Ctrl+C", or "(None)".
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void GetValues(const TGetStrProc& proc) const override;
  void Edit() override;
};

class TDateTimeProperty : public TFloatProperty {
 public:
  using TFloatProperty::TFloatProperty;
  TPropertyAttributes GetAttributes() const override;
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void Edit() override;
};
// One part of such a value; the other part stays as it is.
class TDatePartProperty : public TFloatProperty {
 public:
  TDatePartProperty(TMomentPart part, IDesigner* designer, TInstProps props)
      : TFloatProperty(designer, std::move(props)), part_(part) {}
  TPropertyAttributes GetAttributes() const override;
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void Edit() override;
  bool AllEqual() const override;

 private:
  QString TextAt(int index) const;
  void Take(TDateTime value);
  TMomentPart part_;
};
class TDateProperty : public TDatePartProperty {
 public:
  TDateProperty(IDesigner* designer, TInstProps props)
      : TDatePartProperty(TMomentPart::Date, designer, std::move(props)) {}
};
class TTimeProperty : public TDatePartProperty {
 public:
  TTimeProperty(IDesigner* designer, TInstProps props)
      : TDatePartProperty(TMomentPart::Time, designer, std::move(props)) {}
};

// The items of a tree view and of a list view in a dialog.
class TTreeNodesProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
class TListItemsProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// What a masked field takes.
class TEditMaskProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// The filter of a file dialog.
class TFilterProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
