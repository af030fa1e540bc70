// Component editors of bars, panels of buttons and the key sender.
#pragma once
#include "dclstd/CollectionWindow.h"
#include "dclstd/StandardEditors.h"
#include "library/components/SendKeys.h"
#include "library/controls/ButtonBar.h"
#include "library/controls/DlgButtonPanel.h"
#include "library_design/VerbEditor.h"

VRX_VERB_EDITOR(TVRXSendKeyComponentEditor, TVRXSendKeys);

// What editors of panels have in common; their own verbs stand in front.
VRX_VERB_EDITOR(TVRXSimplePanelComponentEditor, TVRXSimplePanel);
VRX_VERB_EDITOR(TVRXDlgButtonComponentEditor, TVRXDlgButtonPanel, TVRXSimplePanelComponentEditor);

// The sections of a bar in a window of their own; a double click on the bar opens it.
class TVRXButtonBarCollectionEditor : public CollectionWindow {
  Q_OBJECT
 public:
  using CollectionWindow::CollectionWindow;

 protected:
  // New sections have names, as those that the bar adds.
  void MakeItem(TCollection& collection) override;
};
class TVRXButtonBarCollectionProperty : public TCollectionProperty {
 public:
  using TCollectionProperty::TCollectionProperty;
  void Edit() override;
};
class TVRXButtonBarComponentEditor : public TVerbEditor<TVRXButtonBar, TDefaultEditor> {
  VRX_VERB_TABLE(TVRXButtonBarComponentEditor)

 protected:
  bool EditProperty(const TPropertyEditor& property) const override;
};
