// Property editors of the library's common value types.
#pragma once
#include "designintf/BasicEditors.h"

// A format of dates and times; what is none is refused with its reason.
class TVRXDateTimeFormatProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void SetValue(const QString& value) override;
  void Edit() override;
};
