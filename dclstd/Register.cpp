#include "dclstd/DateTimeDialog.h"
#include "dclstd/DialogRegistration.h"
#include "dclstd/FilterDialog.h"
#include "dclstd/ImageListDialog.h"
#include "dclstd/LinesDialog.h"
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
#include "vcl/CheckBox.h"
#include "vcl/ColorBox.h"
#include "vcl/ComboBox.h"
#include "vcl/Dialogs.h"
#include "vcl/Edit.h"
#include "vcl/EditButton.h"
#include "vcl/Form.h"
#include "vcl/GlyphButton.h"
#include "vcl/Grid.h"
#include "vcl/GroupBox.h"
#include "vcl/Image.h"
#include "vcl/Label.h"
#include "vcl/LinkLabel.h"
#include "vcl/ListBox.h"
#include "vcl/ListView.h"
#include "vcl/Memo.h"
#include "vcl/Menu.h"
#include "vcl/Panel.h"
#include "vcl/RichEdit.h"
#include "vcl/Shape.h"
#include "vcl/StandardActions.h"
#include "vcl/StaticText.h"
#include "vcl/Timer.h"
#include "vcl/TreeView.h"
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
                        TListBox, TComboBox, TGroupBox, TRadioGroup, TPanel, TActionList>()),
    Page("Additional", TellingClasses<TBitBtn, TSpeedButton, TImage, TShape, TBevel, TCheckListBox,
                                      TStaticText, TMaskEdit, TStringGrid, TDrawGrid, TValueListEditor,
                                      TColorBox, TColorListBox, TApplicationEvents, TApplicationProperties,
                                      TTrayIcon, TEditButton, TFileNameEdit, TDirectoryEdit, TLinkLabel>()),
    Page("Common Controls",
         TellingClasses<TImageList, TImageCollection, TVirtualImageList, TListView, TTreeView, TRichEdit>()),
    Page("System", TellingClasses<TTimer, TPaintBox>()),
    Page("Dialogs", TellingClasses<TOpenDialog, TSaveDialog, TOpenPictureDialog, TSavePictureDialog,
                                   TFontDialog, TColorDialog, TPrintDialog, TPrinterSetupDialog,
                                   TPageSetupDialog, TFindDialog, TReplaceDialog>()),
    Unplaced(TellingClasses<TForm, TMenuItem, TAction>()),
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
    Property<QString, TFilterProperty, TComponent>("Filter"),
    Property<CaptionType, TCaptionProperty>(),
    Property<FontNameType, TFontNameProperty>(),
    Property<ComponentNameType, TComponentNameProperty>(),
    Property<ModalResultType, TModalResultProperty>(),

    Dialogs<LinesDialog, PictureEditorDialog, ImageListDialog, ShortCutDialog, FilterDialog,
            DateTimeDialog>(),
    Component<TComponent, TStandardEditor>(),
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
}  // namespace

void RegisterStandard(DesignRegistry& registry) {
  const RegistrationScope scope(registry, nullptr, {});
  MakeCalls(kRows);
}
