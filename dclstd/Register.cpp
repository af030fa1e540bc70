#include "dclstd/Icons.h"
#include "dclstd/StandardEditors.h"
#include "designintf/DesignIntf.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Strings.h"
#include "vcl/ExtCtrls.h"
#include "vcl/Form.h"
#include "vcl/StdCtrls.h"

namespace {
const TTypeInfo& TypeOfProp(const TClass& cls, const char* name) { return *cls.GetProp(name).PropType; }

void Category(TResString category, const TClass& cls, const QStringList& names) {
  RegisterPropertiesInCategory(LoadResString(category), cls, names);
}
}  // namespace

void RegisterStandard() {
  RegisterStandardIcons();
  RegisterClass(TForm::StaticClass());
  RegisterComponents(QStringLiteral("Standard"),
                     {&TLabel::StaticClass(), &TButton::StaticClass(), &TPanel::StaticClass()});
  RegisterComponents(QStringLiteral("System"), {&TTimer::StaticClass()});

  RegisterPropertyEditor(TypeInfoOf<TColor>::Get(), nullptr, {}, VRX_PROPERTY_EDITOR(TColorProperty));
  RegisterPropertyEditor(TypeInfoOf<TCursor>::Get(), nullptr, {}, VRX_PROPERTY_EDITOR(TCursorProperty));
  RegisterPropertyEditor(TypeInfoOf<TFontCharset>::Get(), nullptr, {},
                         VRX_PROPERTY_EDITOR(TFontCharsetProperty));
  RegisterPropertyEditor(TFont::StaticTypeInfo(), nullptr, {}, VRX_PROPERTY_EDITOR(TFontProperty));
  RegisterPropertyEditor(TStrings::StaticTypeInfo(), nullptr, {}, VRX_PROPERTY_EDITOR(TStringListProperty));
  RegisterPropertyEditor(CaptionType(), nullptr, {}, VRX_PROPERTY_EDITOR(TCaptionProperty));
  RegisterPropertyEditor(TypeOfProp(TFont::StaticClass(), "Name"), nullptr, {},
                         VRX_PROPERTY_EDITOR(TFontNameProperty));
  RegisterPropertyEditor(TypeOfProp(TComponent::StaticClass(), "Name"), nullptr, {},
                         VRX_PROPERTY_EDITOR(TComponentNameProperty));
  RegisterPropertyEditor(TypeOfProp(TButton::StaticClass(), "ModalResult"), nullptr, {},
                         VRX_PROPERTY_EDITOR(TModalResultProperty));

  const auto names = [](std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* name : list) result << QString::fromLatin1(name);
    return result;
  };
  Category(TResString::sLayoutCategoryName, TControl::StaticClass(),
           names({"Left", "Top", "Width", "Height", "Align", "Anchors", "AutoSize", "Alignment", "Layout",
                  "ClientWidth", "ClientHeight", "BorderWidth", "Position"}));
  Category(TResString::sVisualCategoryName, TControl::StaticClass(),
           names({"Caption", "Color", "Font", "ParentColor", "ParentFont", "Visible", "Transparent", "Cursor",
                  "BevelInner", "BevelOuter", "BevelWidth", "BorderStyle", "BorderIcons", "LED", "Enabled"}));
}
