#include "package/registration/VRX_RegMainEditors.h"

#include "dclstd/DialogRegistration.h"
#include "library/components/FileDialogs.h"
#include "library/components/PopupMenu.h"
#include "library/components/RegExpr.h"
#include "library/components/SpecialDates.h"
#include "library/components/TellingDialogs.h"
#include "library/components/TitleItems.h"
#include "library/controls/Assist.h"
#include "library/controls/Clock.h"
#include "library/controls/MMButton.h"
#include "library/controls/ValueListBox.h"
#include "library/values/ButtonFace.h"
#include "library/values/Caption.h"
#include "library/values/DateTimeFormat.h"
#include "library/values/PointList.h"
#include "library/values/RegionMask.h"
#include "library/values/ShapeType.h"
#include "library_design/pVRXPeCore.h"
#include "library_design/pVRXPeX.h"
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/dialogs/pVRXBmpRegionEditorDlg.h"
#include "package/dialogs/pVRXButtonBarEditorDlg.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/dialogs/pVRXControlFaceEditorDlg.h"
#include "package/dialogs/pVRXControlFaceEditorDlgAddState.h"
#include "package/dialogs/pVRXDateListEditorDlg.h"
#include "package/dialogs/pVRXDlgBtnEditorDlg.h"
#include "package/dialogs/pVRXFilterPropertyEditorDlg.h"
#include "package/dialogs/pVRXGraphicLabelEditorDlg.h"
#include "package/dialogs/pVRXLEDEditorDlg.h"
#include "package/dialogs/pVRXLightEditorDlg.h"
#include "package/dialogs/pVRXMMButtonFaceEditorDlg.h"
#include "package/dialogs/pVRXPointListEditorDlg.h"
#include "package/dialogs/pVRXSendKeyEditorDlg.h"
#include "package/dialogs/pVRXShadowEditorDlg.h"
#include "package/dialogs/pVRXShapeEditorDlg.h"
#include "package/dialogs/pVRXSimpleBevelEditorDlg.h"
#include "package/dialogs/pVRXTeethEditorDlg.h"
#include "package/dialogs/pVRXValueListDlg.h"
#include "package/dialogs/pVRXVldRegExpEditor.h"
#include "package/property_editors/pVRXPeMain.h"
#include "package/styles/pVRXStyleManProp.h"

using namespace registration;

namespace {
const Row kRows[] = {
    Category<TVRXButtonBar>(
        "Orlenvo-Kit", {"Sections", "FillSelectedItem", "FixedSectionLeftBorder", "FixedSectionRightBorder",
                        "FocusStyle", "IniSaveOptions", "IniSection", "IniKey", "LargeItemHeight",
                        "SmallItemHeight", "Orientation", "SaveAndRestore", "ScrollDelay", "ScrollStep",
                        "SectionBtnSize", "SingleSectionMode", "SoftScroll", "TransparentButtons"}),
    Category<TVRXButtonBar>(TResString::sLayoutCategoryName,
                            {"FixedSectionLeftBorder", "FixedSectionRightBorder", "LargeItemHeight",
                             "SmallItemHeight", "Orientation", "SectionBtnSize", "SingleSectionMode"}),
    Category<TVRXButtonBar>(TResString::sVisualCategoryName,
                            {"FillSelectedItem", "FixedSectionLeftBorder", "FixedSectionRightBorder",
                             "FocusStyle", "LargeItemHeight", "SmallItemHeight", "Orientation",
                             "SectionBtnSize", "SingleSectionMode", "TransparentButtons"}),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXBaseDialog>("ImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXMessageBoxDlg>("ImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXMessageBoxDlg>("CustomGlyphImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXCaptionButtons>("ImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXButtonBar>("LargeImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXButtonBar>("SmallImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXCustomMMButton>("ButtonFaceImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXCustomShapeButton>("ShapeFillImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXMMButtonFaceController>(
        "ButtonFaceImageList"),
    Property<TCustomImageList, TVRXCustomImageListProperty, TVRXPopupMenu>("ImageList"),
    Property<TVRXShadow, TVRXShadowProperty>(),
    Property<TVRXShapeFill, TVRXShapeFillProperty>(),
    Property<TVRXPointList, TVRXPointListProperty>(),
    Property<TVRXAssistPage, TVRXAssistPageProperty>(),
    Property<TVRXDateTimeFormat, TVRXDateTimeFormatProperty, TVRXClock>("CustomDateTimeFormat"),
    Property<TVRXCaption, TVRXCaptionProperty>(),
    Property<TVRXDateList, TVRXDateListProperty, TVRXSpecialDates>("Dates"),
    Property<QString, TVRXFilterProperty, TVRXFormOpenDialog>("Filter"),
    Property<QString, TVRXFilterProperty, TVRXFormSaveDialog>("Filter"),
    Property<TVRXRegionMask, TVRXRegionMaskProperty>(),
    Property<TVRXRegExString, TVRXVldRegExprProperty>("Expression"),
    Property<TVRXButtonFace, TVRXButtonFaceProperty>(),
    Property<TVRXSimpleBevel, TVRXSimpleBevelProperty>(),
    Property<TVRXShapeType, TVRXShapeProperty>(),
    Property<TVRXTeeth, TVRXTeethProperty>(),
    Property<TStrings, TVRXValueListProperty, TVRXValueListBox>("Items"),
    Property<TStrings, TVRXValueListProperty, TVRXValueListBox>("Values"),
    Property<QString, TVRXValueListValueProperty, TVRXValueListBox>("Value"),
    Property<TStrings, TVRXValueListProperty, TVRXValueComboBox>("Items"),
    Property<TStrings, TVRXValueListProperty, TVRXValueComboBox>("Values"),
    Property<QString, TVRXValueListValueProperty, TVRXValueComboBox>("Value"),

    Dialogs<TVRXLEDEditorDlg, TVRXShadowEditorDlg, TVRXSimpleBevelEditorDlg, TVRXTeethEditorDlg,
            TVRXCaptionEditorDlg, TVRXShapeEditorDlg, TVRXLightEditorDlg, TVRX3DEffectEditorDlg,
            TVRXfrmRegionFromBMPdlg, TVRXFilterPropsDlg, TfrmTVRXPointListEditor, TVRXDateListEditorDlg,
            TVRXValueListDlg, TVRXRegExprForm, TVRXSendKeyEditorDlg, TVRXDlgBtnEditorDlg,
            TVRXButtonBarEditorDlg, TVRXControlFaceEditorDlg, TVRXControlFaceEditorDlgAddState,
            TVRXButtonFaceDlg, TVRXGraphicLabelEditorDlg, TfrmVRXStyleManProp>(),
};
}  // namespace

void VRX_RegMainEditors::Register() { MakeCalls(kRows); }
