// The component editor of style managers.
#pragma once
#include "designintf/ComponentEditor.h"
#include "library/styles/StyleManager.h"

class TVRXStyleManEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  QString GetVerb(int index) const override;
  void ExecuteVerb(int index) override;
};

// Shows the style editor on a copy of the manager's styles and writes them back when it is confirmed; true
// when it was. The unit of the dialog sets it.
using TVRXEditStyles = bool (*)(TVRXStyleManager& manager);
extern TVRXEditStyles VRXEditStyles;
