#include "designintf/BasicEditors.h"

#include "designintf/EditorSource.h"
#include "designintf/TextChoices.h"
#include "rtl/ClassRegistry.h"
#include "rtl/Exceptions.h"
#include "rtl/PropText.h"

using enum TPropertyAttribute;

bool TOrdinalProperty::AllEqual() const {
  const std::int64_t first = GetOrdValue();
  for (int i = 1; i < PropCount(); ++i)
    if (GetOrdValueAt(i) != first) return false;
  return true;
}

TPropertyAttributes TEnumProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList, paRevertable};
}
void TEnumProperty::GetValues(const TGetStrProc& proc) const {
  for (const QByteArray& element : GetPropType().Elements) proc(QString::fromLatin1(element));
}

TPropertyAttributes TStringProperty::GetAttributes() const {
  TPropertyAttributes attributes = TPropertyEditor::GetAttributes();
  if (!TextChoicesOf(*Props().front().Instance, GetPropInfo().Name).isEmpty())
    attributes.Include(paValueList);
  return attributes;
}
void TStringProperty::GetValues(const TGetStrProc& proc) const {
  for (const QString& text : TextChoicesOf(*Props().front().Instance, GetPropInfo().Name)) proc(text);
}

TPropertyAttributes TCaptionProperty::GetAttributes() const {
  return {paMultiSelect, paAutoUpdate, paRevertable};
}

void TComponentNameProperty::SetValue(const QString& value) {
  if (value.isEmpty()) throw EComponentError(QStringLiteral("%1 needs a name.").arg(GetStrValue()));
  TStringProperty::SetValue(value);
}

TPropertyAttributes TSetProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paReadOnly, paRevertable};
}
void TSetProperty::GetProperties(const TGetPropProc& proc) const {
  const int count = static_cast<int>(GetPropType().CompType->Elements.size());
  for (int i = 0; i < count; ++i) proc(std::make_unique<TSetElementProperty>(Designer(), Props(), i));
}

TPropertyAttributes TSetElementProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList};
}
QString TSetElementProperty::GetName() const {
  return QString::fromLatin1(GetPropType().CompType->Elements[element_]);
}
bool TSetElementProperty::Has(int index) const { return (GetOrdValueAt(index) >> element_ & 1) != 0; }
QString TSetElementProperty::GetValue() const {
  return Has(0) ? QStringLiteral("True") : QStringLiteral("False");
}
void TSetElementProperty::SetValue(const QString& value) {
  Set(TextToOrd(TypeInfoOf<bool>::Get(), value) != 0);
}
void TSetElementProperty::Set(bool on) {
  const std::int64_t bit = std::int64_t{1} << element_;
  ChangeAll([&](const TInstProp& p) {
    const std::int64_t bits = GetOrdProp(*p.Instance, *p.PropInfo);
    SetOrdProp(*p.Instance, *p.PropInfo, on ? bits | bit : bits & ~bit);
  });
}
void TSetElementProperty::GetValues(const TGetStrProc& proc) const {
  proc(QStringLiteral("False"));
  proc(QStringLiteral("True"));
}
bool TSetElementProperty::AllEqual() const {
  for (int i = 1; i < PropCount(); ++i)
    if (Has(i) != Has(0)) return false;
  return true;
}
bool TSetElementProperty::IsDefault() const {
  for (int i = 0; i < PropCount(); ++i) {
    const auto& p = Props()[static_cast<std::size_t>(i)];
    const auto def = DefaultOrdinal(*p.Instance, *p.PropInfo);
    if (!def || Has(i) != ((*def >> element_ & 1) != 0)) return false;
  }
  return true;
}
void TSetElementProperty::Revert() {
  if (const auto def = DefaultOrdinal(*Props()[0].Instance, GetPropInfo())) Set((*def >> element_ & 1) != 0);
}

TPropertyAttributes TClassProperty::GetAttributes() const {
  return {paMultiSelect, paSubProperties, paReadOnly};
}
QString TClassProperty::GetValue() const { return u'(' + QString::fromLatin1(GetPropType().Name) + u')'; }
void TClassProperty::SetValue(const QString&) {
  throw EPropertyError(QStringLiteral("%1 is edited through its parts or its dialog.").arg(GetName()));
}
void TClassProperty::GetProperties(const TGetPropProc& proc) const {
  if (!Source()) return;
  TDesignerSelections objects;
  for (int i = 0; i < PropCount(); ++i) {
    TPersistent* object = GetObjectValueAt(i);
    if (!object) return;
    objects.push_back(object);
  }
  Source()->GetComponentProperties(objects, Designer(), proc);
}

TPropertyAttributes TComponentProperty::GetAttributes() const {
  return {paMultiSelect, paValueList, paSortList, paRevertable};
}
void TComponentProperty::GetValues(const TGetStrProc& proc) const {
  if (Designer()) Designer()->GetComponentNames(GetPropType().ClassType(), proc);
}

TPropertyAttributes TMethodProperty::GetAttributes() const {
  return {paMultiSelect, paDialog, paValueList, paSortList, paRevertable};
}
void TMethodProperty::GetValues(const TGetStrProc& proc) const {
  if (Designer()) Designer()->GetMethods(GetPropType(), proc);
}
void TMethodProperty::Edit() {
  QString handler = GetMethodValue();
  if (handler.isEmpty()) {
    handler = GetFormMethodName();
    SetMethodValue(handler);
  }
  if (Designer()) Designer()->ShowMethod(handler);
}
QString TMethodProperty::GetFormMethodName() const {
  const auto* component = As<TComponent>(GetComponent(0));
  QString event = GetName();
  if (event.startsWith(QStringLiteral("On"))) event = event.mid(2);
  QString base = component ? component->Name() : QString();
  if (Designer() && component == Designer()->GetRoot()) base = QStringLiteral("Form");
  return base + event;
}
