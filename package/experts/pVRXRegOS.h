// The storage component and its editors.
#pragma once
#include "designintf/ComponentEditor.h"
#include "package/experts/ExcludedProperties.h"

namespace pVRXRegOS {
void Initialization();
void Finalization();
void Register();
}  // namespace pVRXRegOS

class TVRXPropertiesProperty : public TPropertyEditor {
 public:
  using TPropertyEditor::TPropertyEditor;
  TPropertyAttributes GetAttributes() const override;
  QString GetValue() const override;
  void Edit() override;
};

class TVRXOSComponentEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  QString GetVerb(int index) const override { return index == 0 ? QStringLiteral("Editor") : QString(); }
  void ExecuteVerb(int index) override;
};
