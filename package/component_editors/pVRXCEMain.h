// Component editors of the library: context-menu verbs and the action of a double-click.
#pragma once
#include "library/controls/Button3D.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/Light.h"
#include "library/controls/MMButton.h"
#include "library/controls/ShapeControl.h"
#include "library/controls/Switch.h"
#include "library/controls/TechnicalLine.h"
#include "library_design/ValueDialogs.h"
#include "library_design/VerbEditor.h"

// LED labels: a double-click opens the look of the letters.
class TVRXLEDLabelComponentEditor : public TVerbEditor<TVRXLEDCustomLabel, TDefaultEditor> {
  VRX_VERB_TABLE(TVRXLEDLabelComponentEditor)

 protected:
  bool EditProperty(const TPropertyEditor& property) const override;
};

// What all graphic buttons can be asked for.
VRX_VERB_EDITOR(TVRXBaseGraphicButtonComponentEditor, TControl, TDefaultEditor);
// Graphic buttons: in front the editor of their pictures, which two families have, each its own.
VRX_VERB_EDITOR(TVRXExtGraphicButtonComponentEditor, TControl, TVRXBaseGraphicButtonComponentEditor);
VRX_VERB_EDITOR(TVRXButtonFaceControllerEditor, TVRXMMButtonFaceController);
VRX_VERB_EDITOR(TVRXFaceControllerEditor, TVRXFaceController);

VRX_VERB_EDITOR(TVRXCustomShapeComponentEditor, TVRXBaseShape);
VRX_VERB_EDITOR(TVRXSwitchComponentEditor, TVRXCustomSwitch);
VRX_VERB_EDITOR(TVRXLightComponentEditor, TVRXCustomLight);
VRX_VERB_EDITOR(TVRXTechnicalLineComponentEditor, TVRXTechnicalLine);

// What has filters: the verb and a double-click open their dialog.
class TVRXFilterComponentEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  int GetVerbCount() const override { return 1; }
  QString GetVerb(int index) const override;
  void ExecuteVerb(int index) override;

 protected:
  bool EditProperty(const TPropertyEditor& property) const override;
};

// A colour, with the IDE's custom colours, which are saved when one was chosen.
bool VRXCPGetColorCP(TColor& color);

// Asks for the text of a control.
template <class C>
VerbOf<C> CaptionVerb() {
  return {"Caption", [](C& control) {
            QString caption = control.Caption();
            if (!VRXCPGetCaption(caption)) return false;
            control.SetCaption(caption);
            return true;
          }};
}
