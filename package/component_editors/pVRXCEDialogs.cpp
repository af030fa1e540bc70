#include "package/component_editors/pVRXCEDialogs.h"

#include "library_design/ImageListDialogs.h"

const TVRXDlgEditor::Verbs TVRXDlgEditor::Table = {
    {"Preview...",
     [](TVRXBaseDialog& dialog) {
       dialog.Preview();
       return false;
     }},
};
const TVRXExtDlgEditor::Verbs TVRXExtDlgEditor::Table = {
    {"ImageList", [](TVRXBaseDialog& dialog,
                     IDesigner& designer) { return VRXCPGetImageListOf(dialog, "ImageList", designer); }},
};
const TVRXMessageBoxComponentEditor::Verbs TVRXMessageBoxComponentEditor::Table = {
    {"Demo",
     [](TVRXMessageBoxDlg& box) {
       box.Execute(QStringLiteral("Test - Message"));
       return false;
     }},
};
