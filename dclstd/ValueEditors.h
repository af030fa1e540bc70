// Editors of values that are written in a way of their own: keys, dates, filters.
#pragma once
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

// The filter of a file dialog.
class TFilterProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};
