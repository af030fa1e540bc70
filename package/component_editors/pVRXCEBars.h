// Component editors of bars, panels of buttons and the key sender.
#pragma once
#include "library/components/SendKeys.h"
#include "library_design/VerbEditor.h"

VRX_VERB_EDITOR(TVRXSendKeyComponentEditor, TVRXSendKeys);
