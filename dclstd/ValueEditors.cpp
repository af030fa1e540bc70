#include "dclstd/ValueEditors.h"

#include "dclstd/EditMaskDialog.h"
#include "dclstd/FilterDialog.h"
#include "dclstd/ItemsDialog.h"
#include "dclstd/ShortCutDialog.h"
#include "rtl/Exceptions.h"

using enum TPropertyAttribute;

namespace {
const QString& NoKey() {
  static const QString text = QStringLiteral("(None)");
  return text;
}
}  // namespace

TPropertyAttributes TShortCutProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paRevertable, paDialog, paValueEditable};
}
QString TShortCutProperty::GetValue() const {
  const auto keys = static_cast<TShortCut>(GetOrdValue());
  if (keys == TShortCut{}) return NoKey();
  const QString text = ShortCutToText(keys);
  return text.isEmpty() ? QString::number(GetOrdValue()) : text;
}
void TShortCutProperty::SetValue(const QString& value) {
  const QString text = value.trimmed();
  if (text.isEmpty() || text.compare(NoKey(), Qt::CaseInsensitive) == 0) return SetOrdValue(std::int64_t{0});
  if (const TShortCut keys = TextToShortCut(text); keys != TShortCut{})
    return SetOrdValue(static_cast<std::int64_t>(keys));
  bool number = false;
  const uint code = text.toUInt(&number);
  if (!number || code > UINT16_MAX)
    throw EPropertyError(
        QStringLiteral("%1 is no shortcut. Write the keys as in Ctrl+Shift+F4, or %2.").arg(value, NoKey()));
  SetOrdValue(std::int64_t{code});
}
void TShortCutProperty::GetValues(const TGetStrProc& proc) const {
  proc(NoKey());
  for (const QString& text : ShortCutTexts()) proc(text);
}
void TShortCutProperty::Edit() {
  auto keys = static_cast<TShortCut>(GetOrdValue());
  if (EditShortCut(keys) && static_cast<std::int64_t>(keys) != GetOrdValue())
    SetOrdValue(static_cast<std::int64_t>(keys));
}

TPropertyAttributes TDateTimeProperty::GetAttributes() const {
  return {paMultiSelect, paRevertable, paDialog};
}
QString TDateTimeProperty::GetValue() const {
  return DateTimeToText({static_cast<double>(GetFloatValueAt(0))});
}
void TDateTimeProperty::SetValue(const QString& value) {
  // The text is shorter than the value may be.
  if (value == GetValue() && AllEqual()) return;
  const auto date = TextToDateTime(value);
  if (!date)
    throw EPropertyError(
        QStringLiteral("%1 is neither date nor time. Write it as in 2024-03-09 13:05:00.").arg(value));
  SetFloatValue(static_cast<long double>(date->Days));
}
void TDateTimeProperty::Edit() {
  TDateTime date{static_cast<double>(GetFloatValueAt(0))};
  if (EditDateTime(date)) SetFloatValue(static_cast<long double>(date.Days));
}

TPropertyAttributes TDatePartProperty::GetAttributes() const {
  return {paMultiSelect, paRevertable, paDialog};
}
QString TDatePartProperty::TextAt(int index) const {
  return DateTimeToText({static_cast<double>(GetFloatValueAt(index))}, part_);
}
QString TDatePartProperty::GetValue() const { return TextAt(0); }
bool TDatePartProperty::AllEqual() const {
  for (int i = 1; i < PropCount(); ++i)
    if (TextAt(i) != TextAt(0)) return false;
  return true;
}
void TDatePartProperty::Take(TDateTime value) {
  ChangeAll([&](const TInstProp& p) {
    const TDateTime before{static_cast<double>(GetFloatProp(*p.Instance, *p.PropInfo))};
    SetFloatProp(*p.Instance, *p.PropInfo, static_cast<long double>(WithPart(before, value, part_).Days));
  });
}
void TDatePartProperty::SetValue(const QString& value) {
  if (value == GetValue() && AllEqual()) return;
  const auto date = TextToDateTime(value);
  if (!date || WithPart({}, *date, part_).Days != date->Days)
    throw EPropertyError((part_ == TMomentPart::Date
                              ? QStringLiteral("%1 is no date. Write it as in 2024-03-09.")
                              : QStringLiteral("%1 is no time of day. Write it as in 13:05:00."))
                             .arg(value));
  Take(*date);
}
void TDatePartProperty::Edit() {
  TDateTime date{static_cast<double>(GetFloatValueAt(0))};
  if (EditDateTime(date, part_)) Take(date);
}

namespace {
// What cannot be read is not written over.
template <class Items>
const Items& Readable(TPersistent* value) {
  const auto& items = *As<Items>(value);
  if (!items.Problem().isEmpty()) throw EPropertyError(items.Problem());
  return items;
}
}  // namespace

TPropertyAttributes TTreeNodesProperty::GetAttributes() const { return {paDialog, paReadOnly}; }
void TTreeNodesProperty::Edit() {
  TTreeNodeList nodes = Readable<TTreeNodes>(GetObjectValue()).Nodes();
  if (!EditTreeNodes(nodes)) return;
  ChangeAll([&](const TInstProp&) { As<TTreeNodes>(GetObjectValue())->SetNodes(nodes); });
}

TPropertyAttributes TListItemsProperty::GetAttributes() const { return {paDialog, paReadOnly}; }
void TListItemsProperty::Edit() {
  QList<TListViewItem> items = Readable<TListItems>(GetObjectValue()).Items();
  if (!EditListItems(items)) return;
  ChangeAll([&](const TInstProp&) { As<TListItems>(GetObjectValue())->SetItems(items); });
}

TPropertyAttributes TEditMaskProperty::GetAttributes() const {
  return {paMultiSelect, paRevertable, paDialog};
}
void TEditMaskProperty::Edit() {
  QString mask = GetStrValue();
  if (EditEditMask(mask)) SetStrValue(mask);
}

// What filters records or views has no list of filters to choose from.
TPropertyAttributes TFilterProperty::GetAttributes() const {
  const bool ofFiles = GetComponent(0)->ClassType().FindProp("FilterIndex") != nullptr;
  return ofFiles ? TPropertyAttributes{paMultiSelect, paRevertable, paDialog}
                 : TPropertyAttributes{paMultiSelect, paRevertable};
}
void TFilterProperty::Edit() {
  QString filter = GetStrValue();
  if (EditFilter(filter)) SetStrValue(filter);
}
