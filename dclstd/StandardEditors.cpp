#include "dclstd/StandardEditors.h"

#include <QApplication>
#include <QFontDatabase>

#include "dclstd/ColorDialog.h"
#include "dclstd/FontDialog.h"
#include "dclstd/LinesDialog.h"
#include "designintf/CustomColors.h"
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
