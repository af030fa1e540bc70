#include "package/component_editors/pVRXCEBars.h"

#include "dclstd/EditValue.h"
#include "library_design/LookDialogs.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/dialogs/pVRXDlgBtnEditorDlg.h"
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

const TVRXSimplePanelComponentEditor::Verbs TVRXSimplePanelComponentEditor::Table = {
    {"Bevel", Launch(&TVRXSimplePanel::Bevel, VRXCPGetBevel)},
    {"Color",
     [](TVRXSimplePanel& panel) {
       TColor color = panel.Color();
       if (!VRXCPGetColorCP(color)) return false;
       panel.SetColor(color);
       return true;
     }},
    Flag("Transparent"),
};

namespace {
using ButtonsVerb = VerbOf<TVRXDlgButtonPanel>;
ButtonsVerb EditButtons(const char* caption, bool order) {
  return {caption, [order](TVRXDlgButtonPanel& panel, IDesigner& designer) {
            TVRXDlgBtnEditorDlg dialog(ApplicationOwner());
            dialog.SetPanel(panel, designer);
            dialog.GetIniSettings();
            if (order) dialog.ShowOrder();
            if (dialog.ShowModal() != mrOk) return false;
            dialog.SetIniSettings();
            dialog.Execute();
            return true;
          }};
}
}  // namespace
const TVRXDlgButtonComponentEditor::Verbs TVRXDlgButtonComponentEditor::Table = {
    EditButtons("Add Buttons...", false),
    EditButtons("Change Button Order...", true),
    "-",
};
