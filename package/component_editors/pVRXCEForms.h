// Component editors of what changes forms, of clocks, of running texts and pictures.
#pragma once
#include "library/components/FormFill.h"
#include "library/components/FormShadow.h"
#include "library/components/FormShape.h"
#include "library/components/FormStyler.h"
#include "library/components/HideNonVC.h"
#include "library/components/ShapeHint.h"
#include "library/controls/AniCtrl.h"
#include "library/controls/Clock.h"
#include "library/controls/FillControl.h"
#include "library/controls/GraphicLabel.h"
#include "library/controls/LabelFill.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ScrollText.h"
#include "library_design/VerbEditor.h"

VRX_VERB_EDITOR(TVRXClockComponentEditor, TVRXClock);
VRX_VERB_EDITOR(TVRXFillComponentEditor, TVRXFill);
VRX_VERB_EDITOR(TVRXFormFillComponentEditor, TVRXCustomFormFill);
VRX_VERB_EDITOR(TVRXFormStylerComponentEditor, TVRXFormStyler);
VRX_VERB_EDITOR(TVRXGraphicLabelComponentEditor, TVRXGraphicLabel);
VRX_VERB_EDITOR(TVRXShapeHintComponentEditor, TVRXCustomShapeHint);
VRX_VERB_EDITOR(TVRXShadowComponentEditor, TVRXFormShadow);
VRX_VERB_EDITOR(TVRXFormShapeComponentEditor, TVRXFormShape);
VRX_VERB_EDITOR(TVRXScrollTextComponentEditor, TVRXScrollText);
VRX_VERB_EDITOR(TVRXPanelShapeComponentEditor, TVRXPanelShape);

// Opens the window that hides icons, whose entries have the menus of their own editors.
class TVRXHideNonVCEditor : public TVerbEditor<TVRXHideNonVC> {
  VRX_VERB_TABLE(TVRXHideNonVCEditor)
  void ExecuteVerb(int index) override;
};

class TVRXWndButtonShapeComponentEditor : public TVerbEditor<TVRXWndButtonShape, TDefaultEditor> {
  VRX_VERB_TABLE(TVRXWndButtonShapeComponentEditor)
  // The first verb is what the default editor does.
  void ExecuteVerb(int index) override { index == 0 ? Edit() : TVerbEditor::ExecuteVerb(index); }
};

// What editors of pictures and of labels have in common; their descendants' verbs stand behind.
VRX_VERB_EDITOR(TVRXCustomLImageComponentEditor, TVRXCustomLImage);
VRX_VERB_EDITOR(TVRXLabelComponentEditor, TVRXCustomLabel);
using TVRXLImageEditorBase = TVerbEditor<TVRXAniCtrl, TVRXCustomLImageComponentEditor, TOwnVerbs::Last>;
class TVRXAniCtrlComponentEditor : public TVRXLImageEditorBase {
  VRX_VERB_TABLE(TVRXAniCtrlComponentEditor)
};
// A label that is filled has its own verbs in the place of the base's last one.
class TVRXFilledLabelEditorBase : public TVRXLabelComponentEditor {
 public:
  using TVRXLabelComponentEditor::TVRXLabelComponentEditor;
  int GetVerbCount() const override { return TVRXLabelComponentEditor::GetVerbCount() - 1; }
};
using TVRXLabelEditorBase = TVerbEditor<TVRXCustomLabelFill, TVRXFilledLabelEditorBase, TOwnVerbs::Last>;
class TVRXLabelFillComponentEditor : public TVRXLabelEditorBase {
  VRX_VERB_TABLE(TVRXLabelFillComponentEditor)
};
