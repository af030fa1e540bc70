#include "package/registration/VRX_RegMain.h"

#include "designintf/RegistrationTable.h"
#include "library/components/Alarm.h"
#include "library/components/ButtonBarPopupMenu.h"
#include "library/components/ClipboardMonitor.h"
#include "library/components/ColorFontDialogs.h"
#include "library/components/Containers.h"
#include "library/components/EditActions.h"
#include "library/components/EditControlPrintTask.h"
#include "library/components/EntryDialogs.h"
#include "library/components/ExpressionEval.h"
#include "library/components/FileDialogs.h"
#include "library/components/FlyoutController.h"
#include "library/components/FormComponent.h"
#include "library/components/GlobalHotKey.h"
#include "library/components/HiTimer.h"
#include "library/components/HideNonVC.h"
#include "library/components/IconDialog.h"
#include "library/components/ObjectDialog.h"
#include "library/components/PickDialogs.h"
#include "library/components/PopupMenu.h"
#include "library/components/PrinterDialogs.h"
#include "library/components/RegExpr.h"
#include "library/components/SendKeys.h"
#include "library/components/TellingDialogs.h"
#include "library/components/TitleItems.h"
#include "library/components/TxtPrinter.h"
#include "library/controls/Assist.h"
#include "library/controls/Button3D.h"
#include "library/controls/Calculator.h"
#include "library/controls/Calendar.h"
#include "library/controls/CaptionPanel.h"
#include "library/controls/DlgButtonPanel.h"
#include "library/controls/GraphicLabel.h"
#include "library/controls/HTMLComboBox.h"
#include "library/controls/HTMLHeaderControl.h"
#include "library/controls/HTMLListBox.h"
#include "library/controls/HeaderPanel.h"
#include "library/controls/LEDLabel.h"
#include "library/controls/LabeledBoxes.h"
#include "library/controls/Light.h"
#include "library/controls/MMButton.h"
#include "library/controls/NoteBook.h"
#include "library/controls/RegionControl.h"
#include "library/controls/ShapeControl.h"
#include "library/controls/Switch.h"
#include "library/controls/TechnicalLine.h"
#include "library/controls/TextBoxes.h"
#include "library/controls/ValueListBox.h"
#include "library_design/pVRXCommon.h"
#include "package/component_editors/pVRXCEBars.h"
#include "package/component_editors/pVRXCEDialogs.h"
#include "package/component_editors/pVRXCEForms.h"
#include "package/component_editors/pVRXCEMain.h"
#include "package/component_editors/pVRXCEPages.h"
#include "package/property_editors/pVRXPeMain.h"
#include "package/styles/pVRXCstMain.h"

using namespace registration;

namespace {
bool WithLabels() { return EditorOption(TEditorOption::LabeledVariants); }

// Each page, and then the editors of what is on it.
const Row kRows[] = {
    Page("VRX Std", TellingClasses<TVRXFaceController, TVRXStaticText, TVRXStyleManager>()),
    Component<TVRXStyleManager, TVRXStyleManEditor>(),
    Component<TVRXFaceController, TVRXFaceControllerEditor>(),

    Page("VRX Ext",
         TellingClasses<TVRXAssist, TVRXClock, TVRXButtonBar, TVRXButtonBarPopupMenu, TVRXDlgButtonPanel,
                        TVRXNoteBook, TVRXCalendar, TVRXCalculator, TVRXCaptionPanelGroup, TVRXCaptionPanel,
                        TVRXHeaderPanel, TVRXHeaderPanelButton, TVRXHeader, TVRXTechnicalLine, TVRXClock,
                        TVRXLEDLabel, TVRXSwitch, TVRXWSwitch, TVRXLight, TVRXFlyoutController>()),
    Component<TVRXAssist, TVRXAssistComponentEditor>(),
    Component<TVRXAssistPage, TVRXAssistComponentEditor>(),
    Property<TVRXLED, TVRXLEDProperty>(),
    Component<TVRXLEDCustomLabel, TVRXLEDLabelComponentEditor>(),
    Component<TVRXClock, TVRXClockComponentEditor>(),
    Component<TVRXTechnicalLine, TVRXTechnicalLineComponentEditor>(),
    Property<TCollection, TVRXButtonBarCollectionProperty, TVRXButtonBar>("Sections"),
    Component<TVRXButtonBar, TVRXButtonBarComponentEditor>(),
    Component<TVRXDlgButtonPanel, TVRXDlgButtonComponentEditor>(),
    Property<TVRXNoteBookPage, TVRXNoteBookPageProperty>(),
    Component<TVRXNoteBook, TVRXNoteBookComponentEditor>(),
    Component<TVRXNoteBookPage, TVRXNoteBookComponentEditor>(),
    Component<TVRXCustomSwitch, TVRXSwitchComponentEditor>(),
    Property<TVRXLightColor, TVRXLightColorProperty>(),
    Component<TVRXCustomLight, TVRXLightComponentEditor>(),
    Component<TVRXFill, TVRXFillComponentEditor>(),
    Property<TVRXPanelCaptionObject, TVRXPanelCaptionProperty, TVRXCaptionPanel>(),
    Component<TVRXCaptionPanelGroup, TVRXCaptionPanelGroupEditor>(),
    Component<TVRXCaptionPanel, TVRXCaptionPanelGroupEditor>(),
    Hidden<bool, TVRXCaptionPanel>("AutoSize"),

    Page("VRX Cont", TellingClasses<TVRXStackComponent, TVRXQueueComponent, TVRXListComponent,
                                    TVRXMMButtonFaceController>()),
    Component<TVRXMMButtonFaceController, TVRXButtonFaceControllerEditor>(),

    Page("VRX Dlg",
         TellingClasses<TVRXAboutDlg, TVRXDirDlg, TVRXTipDlg, TVRXWindowListDlg, TVRXMessageBoxDlg,
                        TVRXInputDlg, TVRXCheckListDlg, TVRXCalendarDlg, TVRXCalculatorDlg, TVRXTextEditDlg,
                        TVRXFormOpenDialog, TVRXFormSaveDialog, TVRXFormColorDialog, TVRXFormFontDialog,
                        TVRXFormPageSetupDialog, TVRXFormPrinterSetupDialog, TVRXFormPrintCommDialog,
                        TVRXFormFolderDialog, TVRXFormChangeIconDialog, TVRXFormInsertObjectDialog>()),
    Component<TVRXMessageBoxDlg, TVRXMessageBoxComponentEditor>(),
    Component<TVRXBaseDialog, TVRXExtDlgEditor>(),

    Page("VRX Edit", TellingClasses<TVRXCalendarEdit, TVRXCalculatorEdit, TVRXEditAutoComplete, TVRXTagEditor,
                                    TVRXEditControlPrintTask, TVRXDateTimePicker, TVRXFormComboBox>()),
    Page("VRX Labeled", TellingClasses<TVRXLabeledCalendarEdit, TVRXLabeledCalculatorEdit>())
        .OnlyIf(WithLabels),
    Actions("VRXEdit",
            TellingClasses<TVRXEditCut, TVRXEditCopy, TVRXEditPaste, TVRXEditSelectAll, TVRXEditUndo,
                           TVRXEditRedo, TVRXEditDelete, TVRXEditFind, TVRXEditReplace>()),
    Page("VRX List",
         TellingClasses<TVRXDriveComboBox, TVRXListComboBox, TVRXTreeComboBox, TVRXHeaderListComboBox,
                        TVRXCheckListComboBox, TVRXCalculatorComboBox, TVRXCalendarComboBox,
                        TVRXTrackBarComboBox, TVRXValueListBox, TVRXValueComboBox>()),
    Page("VRX Labeled", TellingClasses<TVRXLabeledListComboBox, TVRXLabeledDriveComboBox,
                                       TVRXLabeledCalculatorComboBox, TVRXLabeledTrackBarComboBox,
                                       TVRXLabeledCalendarComboBox, TVRXLabeledHeaderListComboBox,
                                       TVRXLabeledCheckListComboBox, TVRXLabeledTreeComboBox>())
        .OnlyIf(WithLabels),

    Page("VRX Form", TellingClasses<TVRXForm, TVRXBack, TVRXFormFill, TVRXFormStyler, TVRXFormShadow,
                                    TVRXFormShape, TVRXSysMenu, TVRXCaptionButtons>()),
    Component<TVRXFormStyler, TVRXFormStylerComponentEditor>(),
    Component<TVRXCustomFormFill, TVRXFormFillComponentEditor>(),
    Component<TVRXFormShadow, TVRXShadowComponentEditor>(),
    Component<TVRXFormShape, TVRXFormShapeComponentEditor>(),

    Page("VRX MM", TellingClasses<TVRXLabelFill, TVRXGraphicLabel, TVRXScrollText, TVRXMMButton,
                                  TVRXShapeButton, TVRX3DEffectButton, TVRXHiTimer, TVRXShapeControl,
                                  TVRXRepeatedShape, TVRXAniCtrl, TVRXPanelShape, TVRXWndButtonShape>()),
    Component<TVRXAniCtrl, TVRXAniCtrlComponentEditor>(),
    Component<TVRXCustomLabelFill, TVRXLabelFillComponentEditor>(),
    Component<TVRXGraphicLabel, TVRXGraphicLabelComponentEditor>(),
    Component<TVRXBaseShape, TVRXCustomShapeComponentEditor>(),
    Component<TVRXWndButtonShape, TVRXWndButtonShapeComponentEditor>(),
    Component<TVRXPanelShape, TVRXPanelShapeComponentEditor>(),
    Component<TVRXScrollText, TVRXScrollTextComponentEditor>(),
    Component<TVRXCustom3DButton, TVRXExtGraphicButtonComponentEditor>(),
    Component<TVRXCustomMMButton, TVRXExtGraphicButtonComponentEditor>(),

    Page("VRX Sys",
         TellingClasses<TVRXHideNonVC, TVRXAlarmComponent, TVRXSendKeys, TVRXGlobalHotKey, TVRXTxtPrinter,
                        TVRXPopupMenu, TVRXRegExpr, TVRXExpressionEval, TVRXClipboardMonitor>()),
    Component<TVRXHideNonVC, TVRXHideNonVCEditor>(),
    Component<TVRXCustomShapeHint, TVRXShapeHintComponentEditor>(),
    Component<TVRXSendKeys, TVRXSendKeyComponentEditor>(),

    Page("VRX HTML", TellingClasses<TVRXHTMLExtListBox, TVRXHTMLComboBox, TVRXHTMLListBox, TVRXHTMLListBoxExt,
                                    TVRXHTMLHeaderControl>()),
};
}  // namespace

void VRX_RegMain::Register() { MakeCalls(kRows); }
