// What the person has chosen for packages, a bit each. Packages ask when they register; whoever changes an
// option later has them loaded again (PackageManager::LoadAgain).
#pragma once

enum class TEditorOption : unsigned char {
  LabeledVariants  // edits and combo boxes with a label of their own are registered, too
};

// At first what the environment says (ORLENVOKITEDITOROPTIONS).
unsigned char& EditorOptions();
bool EditorOption(TEditorOption option);
void SetEditorOption(TEditorOption option, bool on);
