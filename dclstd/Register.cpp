#include "dclstd/CellsDialog.h"
#include "dclstd/DateTimeDialog.h"
#include "dclstd/DialogRegistration.h"
#include "dclstd/EditMaskDialog.h"
#include "dclstd/FilterDialog.h"
#include "dclstd/ImageListDialog.h"
#include "dclstd/ItemsDialog.h"
#include "dclstd/LinesDialog.h"
#include "dclstd/PageVerbs.h"
#include "dclstd/PictureEditor.h"
#include "dclstd/ShortCutDialog.h"
#include "dclstd/StandardEditors.h"
#include "dclstd/StandardVerbs.h"
#include "dclstd/ValueEditors.h"
#include "designintf/RegistrationTable.h"
#include "rtl/Collection.h"
#include "rtl/Strings.h"
#include "vcl/Action.h"
#include "vcl/ApplicationEvents.h"
#include "vcl/Button.h"
#include "vcl/ButtonPanel.h"
#include "vcl/Calendar.h"
#include "vcl/CheckBox.h"
#include "vcl/ColorBox.h"
#include "vcl/ComboBox.h"
#include "vcl/ControlBar.h"
#include "vcl/DateTimePicker.h"
#include "vcl/Dialogs.h"
#include "vcl/Edit.h"
#include "vcl/EditButton.h"
#include "vcl/FlowPanel.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/Grid.h"
#include "vcl/GridPanel.h"
#include "vcl/GroupBox.h"
#include "vcl/HeaderControl.h"
#include "vcl/Image.h"
#include "vcl/Label.h"
#include "vcl/LabeledEdit.h"
#include "vcl/LinkLabel.h"
#include "vcl/ListBox.h"
#include "vcl/ListView.h"
#include "vcl/Memo.h"
#include "vcl/Menu.h"
#include "vcl/PageControl.h"
#include "vcl/Panel.h"
#include "vcl/ProgressBar.h"
#include "vcl/RichEdit.h"
#include "vcl/ScrollBar.h"
#include "vcl/ScrollBox.h"
#include "vcl/Shape.h"
#include "vcl/SpinEdit.h"
#include "vcl/Splitter.h"
#include "vcl/StandardActions.h"
#include "vcl/StaticText.h"
#include "vcl/StatusBar.h"
#include "vcl/Timer.h"
#include "vcl/ToolBar.h"
#include "vcl/TrackBar.h"
#include "vcl/TreeView.h"
#include "vcl/UpDown.h"
#include "vcl/VirtualImageList.h"

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
         TellingClasses<TBitBtn, TSpeedButton, TMaskEdit, TStringGrid, TDrawGrid, TImage, TShape, TBevel,
                        TScrollBox, TCheckListBox, TSplitter, TStaticText, TControlBar, TLabeledEdit,
                        TValueListEditor, TColorBox, TColorListBox, TFlowPanel, TGridPanel, TLinkLabel,
                        TButtonPanel, TEditButton, TFileNameEdit, TDirectoryEdit, TApplicationEvents,
                        TApplicationProperties, TTrayIcon>()),
    Page("Common Controls",
         TellingClasses<TTabControl, TPageControl, TImageList, TImageCollection, TVirtualImageList, TRichEdit,
                        TTrackBar, TProgressBar, TUpDown, TDateTimePicker, TMonthCalendar, TTreeView,
                        TListView, THeaderControl, TStatusBar, TToolBar>()),
    Page("System", TellingClasses<TTimer, TPaintBox>()),
    Page("Dialogs", TellingClasses<TOpenDialog, TSaveDialog, TOpenPictureDialog, TSavePictureDialog,
                                   TFontDialog, TColorDialog, TPrintDialog, TPrinterSetupDialog,
                                   TPageSetupDialog, TFindDialog, TReplaceDialog>()),
    Page("Samples", TellingClasses<TSpinEdit, TFloatSpinEdit>()),
    Unplaced(TellingClasses<TForm, TMenuItem, TAction, TTabSheet, TToolButton>()),
    Unplaced({StandardActionClasses(), true}),

    Property<TColor, TColorProperty>(),
    Property<TCursor, TCursorProperty>(),
    Property<TFontCharset, TFontCharsetProperty>(),
    Property<TFont, TFontProperty>(),
    Property<TStrings, TStringListProperty>(),
    Property<TCollection, TCollectionProperty>(),
    Property<TPicture, TPictureProperty>(),
    Property<TShortCut, TShortCutProperty>(),
    Property<TDateTime, TDateTimeProperty>(),
    Property<DateType, TDateProperty>(),
    Property<TimeType, TTimeProperty>(),
    Property<TTreeNodes, TTreeNodesProperty>(),
    Property<TListItems, TListItemsProperty>(),
    Property<QString, TEditMaskProperty, TPersistent>("EditMask"),
    Property<QString, TFilterProperty, TComponent>("Filter"),
    Property<CaptionType, TCaptionProperty>(),
    Property<FontNameType, TFontNameProperty>(),
    Property<ComponentNameType, TComponentNameProperty>(),
    Property<ModalResultType, TModalResultProperty>(),

    Dialogs<LinesDialog, PictureEditorDialog, ImageListDialog, ShortCutDialog, FilterDialog, DateTimeDialog,
            TreeItemsDialog, ListItemsDialog, CellsDialog, EditMaskDialog>(),
    Component<TComponent, TStandardEditor>(),
    Component<TStringGrid, TStringGridEditor>(),
    Component<TPageControl, TPageControlEditor>(),
    Component<TTabSheet, TPageControlEditor>(),
    Component<TMenu, TMenuEditor>(),
    Component<TActionList, TActionListEditor>(),
    Component<TCustomImageList, TImageListEditor>(),

    Category<TControl>(TResString::sLayoutCategoryName,
                       {"Left", "Top", "Width", "Height", "Align", "Anchors", "AutoSize", "Alignment",
                        "Layout", "ClientWidth", "ClientHeight", "BorderWidth", "Position"}),
    Category<TControl>(
        TResString::sVisualCategoryName,
        {"Caption", "Color", "Font", "ParentColor", "ParentFont", "Visible", "Transparent", "Cursor",
         "BevelInner", "BevelOuter", "BevelWidth", "BorderStyle", "BorderIcons", "LED", "Enabled"}),
};

// What the list of actions offers, in the order of the table.
std::vector<Row> CategoriesOfActions() {
  std::vector<std::pair<const char*, ClassList>> categories;
  for (std::size_t i = 0; i < StandardActionRows().size(); ++i) {
    const char* const name = StandardActionRows()[i].Category;
    auto at = std::find_if(categories.begin(), categories.end(),
                           [&](const auto& c) { return std::string_view(c.first) == name; });
    if (at == categories.end()) at = categories.insert(at, {name, {{}, true}});
    at->second.classes.push_back(StandardActionClasses()[i]);
  }
  std::vector<Row> rows;
  for (const auto& [name, classes] : categories) rows.push_back(Actions(name, classes));
  return rows;
}
}  // namespace

void RegisterStandard(DesignRegistry& registry) {
  const RegistrationScope scope(registry, nullptr, {});
  MakeCalls(kRows);
  MakeCalls(CategoriesOfActions());
}
