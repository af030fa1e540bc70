// Component editors of the library: context-menu verbs and the action of a double-click.
#pragma once
#include "designintf/ComponentEditor.h"

// LED labels: a double-click opens the look of the letters.
class TVRXLEDLabelComponentEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  void ExecuteVerb(int index) override;
  QString GetVerb(int index) const override;
  int GetVerbCount() const override { return 1; }

 protected:
  bool EditProperty(const TPropertyEditor& property) const override;
};

// Graphic buttons: 3D buttons have the editor of their pictures.
class TVRXExtGraphicButtonComponentEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  void ExecuteVerb(int index) override;
  QString GetVerb(int index) const override;
  int GetVerbCount() const override;
};
