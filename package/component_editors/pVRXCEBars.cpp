#include "package/component_editors/pVRXCEBars.h"

#include "dclstd/EditValue.h"
#include "package/dialogs/pVRXSendKeyEditorDlg.h"

const TVRXSendKeyComponentEditor::Verbs TVRXSendKeyComponentEditor::Table = {
    {"SendKeys Test-Editor",
     [](TVRXSendKeys& keys) {
       TVRXSendKeyEditorDlg dialog(ApplicationOwner());
       dialog.Compose(keys.Get(TVRXSendKeys::Keys), keys.Get(TVRXSendKeys::WindowCaption));
       dialog.ShowModal();
       return false;
     }},
};
