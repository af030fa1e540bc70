// What the person has chosen for packages, remembered in the settings.
#pragma once
#include "designintf/EditorOptions.h"

// As the settings say; before packages are loaded.
void RestoreEditorOptions();
// Set and kept; packages that are loaded already follow when they are loaded again.
void ChooseEditorOption(TEditorOption option, bool on);
