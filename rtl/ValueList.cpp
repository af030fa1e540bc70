#include "rtl/ValueList.h"

#include "rtl/Class.h"

const TClass& TValueList::StaticClass() {
  static const TClass cls(DescribeClass<TValueList>("TValueList", TPersistent::StaticClass()));
  return cls;
}

void TValueList::Add(TItem item) {
  Changing();
  items_.push_back(std::move(item));
  Changed();
}

int TValueList::NumberAt(std::size_t index, int otherwise) const {
  const auto* number = index < items_.size() ? std::get_if<std::int64_t>(&items_[index]) : nullptr;
  return number && *number >= INT32_MIN && *number <= INT32_MAX ? static_cast<int>(*number) : otherwise;
}

QString TValueList::TextAt(std::size_t index) const {
  const auto* text = index < items_.size() ? std::get_if<QString>(&items_[index]) : nullptr;
  return text ? *text : QString();
}

void TValueList::Assign(const TPersistent* source) {
  if (const auto* other = As<TValueList>(source))
    SetItems(other->items_);
  else
    TPersistent::Assign(source);
}
