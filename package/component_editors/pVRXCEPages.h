// Component editors of wizards, notebooks and panels that fold, and of what stands in them.
#pragma once
#include "library/controls/Assist.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/NoteBook.h"
#include "library_design/VerbEditor.h"

// Of a wizard and of its pages.
VRX_VERB_EDITOR(TVRXAssistComponentEditor, TWinControl);
// Of what has sheets and of these.
VRX_VERB_EDITOR(TVRXNoteBookComponentEditor, TWinControl);
// Of a group of panels, of those that stand in one, and of those that do not.
VRX_VERB_EDITOR(TVRXCaptionPanelGroupEditor, TWinControl);
