#include "rtl/Kept.h"

#include <algorithm>

TKeeper::~TKeeper() {
  for (const auto& [property, value] : kept_)
    if (const auto* part = std::get_if<TPart>(&value)) delete part->Object;
}

const TPropValue* TKeeper::Find(const void* property) const {
  for (const auto& [key, value] : kept_)
    if (key == property) return &value;
  return nullptr;
}

const TPropValue& TKeeper::Insert(const void* property, TPropValue value) {
  return kept_.emplace_back(property, std::move(value)).second;
}

void TKeeper::Keep(const void* property, TPropValue value, bool nothing) {
  Changing();
  const auto it =
      std::find_if(kept_.begin(), kept_.end(), [&](const auto& k) { return k.first == property; });
  TPersistent* before = nullptr;
  if (it != kept_.end())
    if (const auto* reference = std::get_if<TReference>(&it->second)) before = reference->Object;
  const auto* reference = std::get_if<TReference>(&value);
  TPersistent* const after = reference ? reference->Object : nullptr;
  if (nothing) {
    if (it != kept_.end()) kept_.erase(it);
  } else if (it != kept_.end()) {
    it->second = std::move(value);
  } else {
    Insert(property, std::move(value));
  }
  if (before || after) ReferenceChanged(before, after);
  Changed();
}

// What is part of a component refers in its name.
void TKeeper::ReferenceChanged(TPersistent* before, TPersistent* after) {
  for (TPersistent* p = GetOwner(); p; p = p->GetOwner())
    if (auto* keeper = As<TKeeper>(p)) return keeper->ReferenceChanged(before, after);
}
