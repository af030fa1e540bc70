// What the library's design-time packages share.
#pragma once

class QWidget;

// Editor options, set before packages are loaded. Bit 0: the labeled variants of edits and combo boxes are
// registered, too.
enum class TVRXEditorOption : unsigned char { LabeledVariants = 0 };
extern unsigned char ORLENVOKITEDITOROPTIONS;
bool VRXEditorOption(TVRXEditorOption option);

// Mode 1: the dialog and what is on it take part in theming. The mode is kept with the window.
void VRXSetThemeMode(QWidget& dialog, int mode);
int VRXThemeMode(const QWidget& dialog);
