// Component editors of bars, panels of buttons and the key sender.
#pragma once
#include "library/components/SendKeys.h"
#include "library/controls/DlgButtonPanel.h"
#include "library_design/VerbEditor.h"

VRX_VERB_EDITOR(TVRXSendKeyComponentEditor, TVRXSendKeys);

// What editors of panels have in common; their own verbs stand in front.
VRX_VERB_EDITOR(TVRXSimplePanelComponentEditor, TVRXSimplePanel);
VRX_VERB_EDITOR(TVRXDlgButtonComponentEditor, TVRXDlgButtonPanel, TVRXSimplePanelComponentEditor);
