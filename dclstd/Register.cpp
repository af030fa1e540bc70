#include "dclstd/StandardEditors.h"
#include "designintf/RegistrationTable.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Strings.h"
#include "vcl/Button.h"
#include "vcl/Form.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"
#include "vcl/Timer.h"

using namespace registration;

namespace {
// Types that only these properties have.
const TTypeInfo& FontNameType() { return *TFont::StaticClass().GetProp("Name").PropType; }
const TTypeInfo& ComponentNameType() { return *TComponent::StaticClass().GetProp("Name").PropType; }
const TTypeInfo& ModalResultType() { return *TButton::StaticClass().GetProp("ModalResult").PropType; }

const Row kRows[] = {
    Page("Standard", TellingClasses<TLabel, TButton, TPanel>()),
    Page("System", TellingClasses<TTimer>()),

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
  RegisterClass(TForm::StaticClass());
  PromiseTelling(TForm::StaticClass());
  const RegistrationScope scope(registry, nullptr, {});
  MakeCalls(kRows);
}
