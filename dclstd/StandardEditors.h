// Editors of the framework's own property types.
#pragma once
#include "designintf/BasicEditors.h"
#include "designintf/DesignRegistry.h"

// Colours: names with swatches, numbers, and the colour dialog.
class TColorProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  TPropertyAttributes GetAttributes() const override;
  // A name, or the value as "$00BBGGRR".
  QString GetValue() const override;
  void SetValue(const QString& value) override;
  void GetValues(const TGetStrProc& proc) const override;
  QIcon GetValueIcon(const QString& value) const override;
  void Edit() override;
};

// Integers that have names: cursors, charsets, modal results.
class TNamedIntegerProperty : public TIntegerProperty {
 public:
  using TIntegerProperty::TIntegerProperty;
  TPropertyAttributes GetAttributes() const override;
};
class TCursorProperty : public TNamedIntegerProperty {
 public:
  using TNamedIntegerProperty::TNamedIntegerProperty;
  void GetValues(const TGetStrProc& proc) const override;
  QIcon GetValueIcon(const QString& value) const override;
};
class TFontCharsetProperty : public TNamedIntegerProperty {
 public:
  using TNamedIntegerProperty::TNamedIntegerProperty;
  void GetValues(const TGetStrProc& proc) const override;
};
class TModalResultProperty : public TNamedIntegerProperty {
 public:
  using TNamedIntegerProperty::TNamedIntegerProperty;
  void GetValues(const TGetStrProc& proc) const override;
  QString GetValue() const override;
};

class TFontNameProperty : public TStringProperty {
 public:
  using TStringProperty::TStringProperty;
  TPropertyAttributes GetAttributes() const override;
  void GetValues(const TGetStrProc& proc) const override;
  std::optional<QFont> GetValueFont(const QString& value) const override;
};

class TFontProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// Lines of text in a dialog.
class TStringListProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

// The items in a window of their own.
class TCollectionProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  void Edit() override;
};

class TPictureProperty : public TClassProperty {
 public:
  using TClassProperty::TClassProperty;
  TPropertyAttributes GetAttributes() const override;
  // "(TBitmap)", or "(None)".
  QString GetValue() const override;
  bool AllEqual() const override;
  void Edit() override;
};

// The Register procedure of the framework's own design-time part: standard components and these editors.
void RegisterStandard(DesignRegistry& registry = DesignRegistry::Current());
