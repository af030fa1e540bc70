#include "dclstd/StandardEditors.h"
#include "designintf/RegistrationTable.h"
#include "rtl/Strings.h"
#include "vcl/Action.h"
#include "vcl/Button.h"
#include "vcl/Calendar.h"
#include "vcl/CheckBox.h"
#include "vcl/ComboBox.h"
#include "vcl/ControlBar.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Edit.h"
#include "vcl/FlowPanel.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/GridPanel.h"
#include "vcl/GroupBox.h"
#include "vcl/HeaderControl.h"
#include "vcl/Image.h"
#include "vcl/Label.h"
#include "vcl/LabeledEdit.h"
#include "vcl/ListBox.h"
#include "vcl/Memo.h"
#include "vcl/Menu.h"
#include "vcl/PageControl.h"
#include "vcl/Panel.h"
#include "vcl/ProgressBar.h"
#include "vcl/ScrollBar.h"
#include "vcl/ScrollBox.h"
#include "vcl/Shape.h"
#include "vcl/SpinEdit.h"
#include "vcl/Splitter.h"
#include "vcl/StaticText.h"
#include "vcl/StatusBar.h"
#include "vcl/Timer.h"
#include "vcl/ToolBar.h"
#include "vcl/TrackBar.h"
#include "vcl/UpDown.h"

using namespace registration;

namespace {
// Types that only these properties have.
const TTypeInfo& FontNameType() { return *TFont::StaticClass().GetProp("Name").PropType; }
const TTypeInfo& ComponentNameType() { return *TComponent::StaticClass().GetProp("Name").PropType; }
const TTypeInfo& ModalResultType() { return *TButton::StaticClass().GetProp("ModalResult").PropType; }

const Row kRows[] = {
    Page("Standard",
         TellingClasses<TMainMenu, TPopupMenu, TLabel, TEdit, TMemo, TButton, TCheckBox, TRadioButton,
                        TListBox, TComboBox, TScrollBar, TGroupBox, TRadioGroup, TPanel, TActionList>()),
    Page("Additional",
         TellingClasses<TBitBtn, TSpeedButton, TImage, TShape, TBevel, TScrollBox, TCheckListBox, TSplitter,
                        TStaticText, TControlBar, TLabeledEdit, TFlowPanel, TGridPanel>()),
    Page("Common Controls",
         TellingClasses<TTabControl, TPageControl, TImageList, TTrackBar, TProgressBar, TUpDown,
                        TDateTimePicker, TMonthCalendar, THeaderControl, TStatusBar, TToolBar>()),
    Page("System", TellingClasses<TTimer, TPaintBox>()),
    Page("Samples", TellingClasses<TSpinEdit, TFloatSpinEdit>()),
    Unplaced(TellingClasses<TForm, TMenuItem, TAction, TTabSheet, TToolButton>()),

    Property<TColor, TColorProperty>(),
    Property<TCursor, TCursorProperty>(),
    Property<TFontCharset, TFontCharsetProperty>(),
    Property<TFont, TFontProperty>(),
    Property<TStrings, TStringListProperty>(),
    Property<CaptionType, TCaptionProperty>(),
    Property<FontNameType, TFontNameProperty>(),
    Property<ComponentNameType, TComponentNameProperty>(),
    Property<ModalResultType, TModalResultProperty>(),

    Category<TControl>(TResString::sLayoutCategoryName,
                       {"Left", "Top", "Width", "Height", "Align", "Anchors", "AutoSize", "Alignment",
                        "Layout", "ClientWidth", "ClientHeight", "BorderWidth", "Position"}),
    Category<TControl>(
        TResString::sVisualCategoryName,
        {"Caption", "Color", "Font", "ParentColor", "ParentFont", "Visible", "Transparent", "Cursor",
         "BevelInner", "BevelOuter", "BevelWidth", "BorderStyle", "BorderIcons", "LED", "Enabled"}),
};
}  // namespace

void RegisterStandard(DesignRegistry& registry) {
  const RegistrationScope scope(registry, nullptr, {});
  MakeCalls(kRows);
}
