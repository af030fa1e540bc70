#include "rtl/NotifyList.h"

#include <algorithm>

qsizetype TNotifyList::PlaceOf(const TComponent* component) const {
  if (!places_.isEmpty()) return places_.value(component, -1);
  const auto it = std::find(items_.begin(), items_.end(), component);
  return it == items_.end() ? -1 : it - items_.begin();
}

bool TNotifyList::Insert(TComponent* component) {
  if (!places_.isEmpty()) {
    const qsizetype before = places_.size();
    qsizetype& place = places_[component];
    if (places_.size() == before) return false;
    place = std::ssize(items_);
    items_.push_back(component);
    return true;
  }
  if (Contains(component)) return false;
  items_.push_back(component);
  if (items_.size() > Few) {
    for (qsizetype i = 0; i < std::ssize(items_); ++i) places_.insert(items_[static_cast<std::size_t>(i)], i);
  }
  return true;
}

bool TNotifyList::Remove(const TComponent* component) {
  const qsizetype place = PlaceOf(component);
  if (place < 0) return false;
  items_[static_cast<std::size_t>(place)] = items_.back();
  items_.pop_back();
  if (places_.isEmpty()) return true;
  places_.remove(component);
  if (place < std::ssize(items_)) places_.insert(items_[static_cast<std::size_t>(place)], place);
  return true;
}
