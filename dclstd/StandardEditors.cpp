#include "dclstd/StandardEditors.h"

#include <QApplication>
#include <QFontDatabase>

#include "dclstd/CollectionWindow.h"
#include "dclstd/ColorDialog.h"
#include "dclstd/FontDialog.h"
#include "dclstd/LinesDialog.h"
#include "dclstd/PictureEditor.h"
#include "designintf/ComponentIcons.h"
#include "designintf/CustomColors.h"
#include "rtl/Collection.h"
#include "rtl/IntegerConsts.h"
#include "rtl/Registry.h"
#include "rtl/Strings.h"
#include "vcl/ColorSwatch.h"
#include "vcl/Control.h"
#include "vcl/Prompts.h"

using enum TPropertyAttribute;

TPropertyAttributes TColorProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paValueList, paRevertable, paValueEditable};
}
QString TColorProperty::GetValue() const {
  return ColorToString(TColor(static_cast<std::uint32_t>(GetOrdValue())));
}
void TColorProperty::SetValue(const QString& value) {
  SetOrdValue(static_cast<std::int64_t>(StringToColor(value)));
}
void TColorProperty::GetValues(const TGetStrProc& proc) const {
  for (const TColorEntry& e : NamedColors()) proc(QString::fromLatin1(e.Name));
}
QIcon TColorProperty::GetValueIcon(const QString& value) const {
  try {
    return ColorSwatch(StringToColor(value));
  } catch (const std::exception&) {
    return {};
  }
}
void TColorProperty::Edit() {
  TColor color = TColor(static_cast<std::uint32_t>(GetOrdValue()));
  QStringList custom = LoadIDECustomColors();
  const std::int64_t before = GetOrdValue();
  const bool chosen = ChooseColor(QApplication::activeWindow(), color, custom);
  try {
    SaveIDECustomColors(custom);
  } catch (const ERegistryException& error) {
    Prompts().Warn(QApplication::activeWindow(), QObject::tr("Color"), error.Message());
  }
  if (chosen && color != TColor(static_cast<std::uint32_t>(before)))
    SetOrdValue(static_cast<std::int64_t>(color));
}

TPropertyAttributes TNamedIntegerProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paRevertable, paValueEditable};
}

namespace {
// Every value of a small range that has a name.
void NamesOf(const TTypeInfo& type, std::int64_t from, std::int64_t to, const TGetStrProc& proc) {
  const TIntegerConsts* consts = FindIntegerConsts(type);
  QByteArray ident;
  for (std::int64_t v = from; consts && v <= to; ++v)
    if (consts->IntToIdent(v, ident)) proc(QString::fromLatin1(ident));
}
const QStringList& ModalResultNames() {
  static const QStringList names{
      QStringLiteral("mrNone"),  QStringLiteral("mrOk"),       QStringLiteral("mrCancel"),
      QStringLiteral("mrAbort"), QStringLiteral("mrRetry"),    QStringLiteral("mrIgnore"),
      QStringLiteral("mrYes"),   QStringLiteral("mrNo"),       QStringLiteral("mrClose"),
      QStringLiteral("mrHelp"),  QStringLiteral("mrTryAgain"), QStringLiteral("mrContinue")};
  return names;
}
}  // namespace

void TCursorProperty::GetValues(const TGetStrProc& proc) const { NamesOf(GetPropType(), -32, 0, proc); }
namespace {
struct CursorPicture {
  const char* name;
  const char* drawing;
};
constexpr auto Pointer = "pen line 1.5 brush fill shape 6 3 6 18 10 14.5 13 20.5 15.5 19.5 12.5 13.5 18 13.5";
constexpr auto Wait = "pen line 1.5 brush fill shape 7 3 17 3 12 12 shape 12 12 17 21 7 21";
constexpr auto Hand =
    "pen line 1.5 brush fill shape 9 13 9 4 11.5 4 11.5 10 18 12 18 17 16 21 10 21 6 15 7 13";
constexpr auto AllWays =
    "pen line 1.5 path 12 3 12 21 path 3 12 21 12 path 9.5 5.5 12 3 14.5 5.5 path 9.5 18.5 12 21 14.5 18.5 "
    "path 5.5 9.5 3 12 5.5 14.5 path 18.5 9.5 21 12 18.5 14.5";
constexpr auto UpDown =
    "pen line 1.5 path 12 3 12 21 path 8.5 6.5 12 3 15.5 6.5 path 8.5 17.5 12 21 15.5 17.5";
constexpr auto LeftRight =
    "pen line 1.5 path 3 12 21 12 path 6.5 8.5 3 12 6.5 15.5 path 17.5 8.5 21 12 17.5 15.5";
constexpr auto Dragged =
    "pen line 1.5 brush fill shape 4 2 4 14 7 11.5 9.5 16.5 11.5 15.5 9 10.5 13 10.5 pen accent 1.5 box 12 "
    "15 9 6 0";
constexpr CursorPicture CursorPictures[] = {
    {"crDefault", Pointer},
    {"crArrow", Pointer},
    {"crCross", "pen line 1.5 path 12 3 12 21 path 3 12 21 12"},
    {"crIBeam", "pen line 1.5 path 9 3 12 4 15 3 path 12 4 12 20 path 9 21 12 20 15 21"},
    {"crSizeNESW", "pen line 1.5 path 5 19 19 5 path 5 13.5 5 19 10.5 19 path 13.5 5 19 5 19 10.5"},
    {"crSizeNWSE", "pen line 1.5 path 5 5 19 19 path 5 10.5 5 5 10.5 5 path 13.5 19 19 19 19 13.5"},
    {"crSizeNS", UpDown},
    {"crSizeWE", LeftRight},
    {"crSize", AllWays},
    {"crSizeAll", AllWays},
    {"crUpArrow", "pen line 1.5 path 12 3 12 21 path 7.5 7.5 12 3 16.5 7.5"},
    {"crHourGlass", Wait},
    {"crAppStart", Wait},
    {"crDrag", Dragged},
    {"crMultiDrag", Dragged},
    {"crSQLWait", Wait},
    {"crNo", "pen line 1.5 oval 4 4 16 16 path 6.5 6.5 17.5 17.5"},
    {"crNoDrop", "pen line 1.5 oval 4 4 16 16 path 6.5 6.5 17.5 17.5"},
    {"crHSplit",
     "pen line 1.5 path 10.5 4 10.5 20 path 13.5 4 13.5 20 path 7 9 4 12 7 15 path 17 9 20 12 17 15"},
    {"crVSplit",
     "pen line 1.5 path 4 10.5 20 10.5 path 4 13.5 20 13.5 path 9 7 12 4 15 7 path 9 17 12 20 15 17"},
    {"crHandPoint", Hand},
    {"crHelp",
     "pen line 1.5 brush fill shape 4 3 4 16 7 13 9.5 18 11.5 17 9 12 13 12 pen accent 1 text 17.5 10 12 ?"}};
}  // namespace
QIcon TCursorProperty::GetValueIcon(const QString& value) const {
  for (const auto& [name, drawing] : CursorPictures)
    if (value == QLatin1StringView(name)) return DrawnIcon(drawing);
  return {};
}
void TFontCharsetProperty::GetValues(const TGetStrProc& proc) const { NamesOf(GetPropType(), 0, 255, proc); }

void TModalResultProperty::GetValues(const TGetStrProc& proc) const {
  for (const QString& name : ModalResultNames()) proc(name);
}
QString TModalResultProperty::GetValue() const {
  return ModalResultNames().value(GetOrdValue(), QString::number(GetOrdValue()));
}

TPropertyAttributes TFontNameProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList, paRevertable, paValueEditable};
}
void TFontNameProperty::GetValues(const TGetStrProc& proc) const {
  for (const QString& family : QFontDatabase::families()) proc(family);
}
std::optional<QFont> TFontNameProperty::GetValueFont(const QString& value) const { return QFont(value); }

TPropertyAttributes TFontProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paDialog, paReadOnly};
}
void TFontProperty::Edit() {
  TFont copy;
  copy.Assign(GetObjectValue());
  // Confirmed as it was, the first one's font is not given to the others either.
  if (EditFont(copy) && !SameValues(copy, *GetObjectValue())) SetOrdValue(&copy);
}

TPropertyAttributes TStringListProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paReadOnly};
}
void TStringListProperty::Edit() {
  TStrings copy;
  copy.Assign(GetObjectValue());
  if (EditLines(copy)) SetOrdValue(&copy);
}

TPropertyAttributes TCollectionProperty::GetAttributes() const { return {paDialog, paReadOnly}; }
void TCollectionProperty::Edit() {
  auto* collection = As<TCollection>(GetObjectValue());
  if (Designer() && collection) EditCollection(*Designer(), *collection);
}

namespace {
const TPicture& PictureAt(const TPropertyEditor& editor, int index) {
  return *As<TPicture>(editor.GetObjectValueAt(index));
}
}  // namespace
TPropertyAttributes TPictureProperty::GetAttributes() const { return {paMultiSelect, paDialog, paReadOnly}; }
QString TPictureProperty::GetValue() const {
  const TPicture& picture = PictureAt(*this, 0);
  return picture.Empty() ? QStringLiteral("(None)")
                         : u'(' + QString::fromLatin1(picture.GraphicClass()) + u')';
}
bool TPictureProperty::AllEqual() const {
  for (int i = 1; i < PropCount(); ++i)
    if (PictureAt(*this, i).Data() != PictureAt(*this, 0).Data()) return false;
  return true;
}
void TPictureProperty::Edit() {
  const TPicture& first = PictureAt(*this, 0);
  const std::unique_ptr<TPicture> copy =
      As<TGlyph>(&first) ? std::make_unique<TGlyph>() : std::make_unique<TPicture>();
  copy->Assign(&first);
  if (EditPicture(*copy)) SetOrdValue(copy.get());
}
