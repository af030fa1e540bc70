#include "designintf/PropertyEditor.h"

#include "rtl/Exceptions.h"
#include "rtl/PropText.h"

TPropertyAttributes TPropertyEditor::GetAttributes() const {
  return {TPropertyAttribute::paMultiSelect, TPropertyAttribute::paRevertable};
}

QString TPropertyEditor::GetName() const { return QString::fromLatin1(GetPropInfo().Name); }
QString TPropertyEditor::GetValue() const { return GetPropText(*GetComponent(0), GetPropInfo()); }

void TPropertyEditor::SetValue(const QString& value) {
  ChangeAll([&](const TInstProp& p) { SetPropText(*p.Instance, *p.PropInfo, value); });
}

void TPropertyEditor::ChangeAll(const std::function<void(const TInstProp&)>& change) {
  std::vector<TPropValue> before;
  try {
    for (const TInstProp& p : props_) {
      TPropValue value = GetProp(*p.Instance, *p.PropInfo);
      change(p);
      before.push_back(std::move(value));
    }
  } catch (...) {
    // A value object is all of one type and refuses at once.
    for (std::size_t i = 0; i < before.size() && !GetPropInfo().IsPart(); ++i)
      SetProp(*props_[i].Instance, *props_[i].PropInfo, before[i]);
    throw;
  }
  Modified();
}

void TPropertyEditor::GetValues(const TGetStrProc&) const {}

void TPropertyEditor::Edit() {}

void TPropertyEditor::GetProperties(const TGetPropProc&) const {}

bool TPropertyEditor::AllEqual() const {
  const QString first = GetValue();
  return std::all_of(props_.begin() + 1, props_.end(),
                     [&](const TInstProp& p) { return GetPropText(*p.Instance, *p.PropInfo) == first; });
}

bool TPropertyEditor::IsDefault() const {
  // A place or size has no default that it could differ from.
  return std::none_of(props_.begin(), props_.end(), [](const TInstProp& p) {
    return (!p.PropInfo->IsOrdinal() || p.PropInfo->Default) && IsStoredProp(*p.Instance, *p.PropInfo);
  });
}

void TPropertyEditor::Revert() {
  for (const TInstProp& p : props_) ResetProp(*p.Instance, *p.PropInfo);
  Modified();
}

void TPropertyEditor::Modified() const {
  if (designer_) designer_->Modified();
}

namespace {
const TInstProp& At(const TInstProps& props, int index) { return props.at(static_cast<std::size_t>(index)); }
}  // namespace

std::int64_t TPropertyEditor::GetOrdValueAt(int i) const {
  return GetOrdProp(*At(props_, i).Instance, *At(props_, i).PropInfo);
}
TPersistent* TPropertyEditor::GetObjectValueAt(int i) const {
  return GetObjectProp(*At(props_, i).Instance, *At(props_, i).PropInfo);
}
long double TPropertyEditor::GetFloatValueAt(int i) const {
  return GetFloatProp(*At(props_, i).Instance, *At(props_, i).PropInfo);
}
QString TPropertyEditor::GetStrValueAt(int i) const {
  return GetStrProp(*At(props_, i).Instance, *At(props_, i).PropInfo);
}
QString TPropertyEditor::GetMethodValueAt(int i) const {
  return GetMethodProp(*At(props_, i).Instance, *At(props_, i).PropInfo);
}

void TPropertyEditor::SetOrdValue(std::int64_t value) {
  ChangeAll([&](const TInstProp& p) { SetOrdProp(*p.Instance, *p.PropInfo, value); });
}
void TPropertyEditor::SetOrdValue(TPersistent* value) {
  ChangeAll([&](const TInstProp& p) { SetObjectProp(*p.Instance, *p.PropInfo, value); });
}
void TPropertyEditor::SetFloatValue(long double value) {
  ChangeAll([&](const TInstProp& p) { SetFloatProp(*p.Instance, *p.PropInfo, value); });
}
void TPropertyEditor::SetStrValue(const QString& value) {
  ChangeAll([&](const TInstProp& p) { SetStrProp(*p.Instance, *p.PropInfo, value); });
}
void TPropertyEditor::SetMethodValue(const QString& handler) {
  ChangeAll([&](const TInstProp& p) { SetMethodProp(*p.Instance, *p.PropInfo, handler); });
}
