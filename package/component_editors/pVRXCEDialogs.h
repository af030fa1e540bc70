// Component editors of dialogs.
#pragma once
#include "library/components/TellingDialogs.h"
#include "library_design/VerbEditor.h"

// Shows the dialog as it would be; nothing that is entered is kept.
VRX_VERB_EDITOR(TVRXDlgEditor, TVRXBaseDialog);
using TVRXExtDlgEditorBase = TVerbEditor<TVRXBaseDialog, TVRXDlgEditor, TOwnVerbs::Last>;
class TVRXExtDlgEditor : public TVRXExtDlgEditorBase {
  VRX_VERB_TABLE(TVRXExtDlgEditor)
};
VRX_VERB_EDITOR(TVRXMessageBoxComponentEditor, TVRXMessageBoxDlg);
