// Who is to be told when a component goes. A few are a list; of many each is found at once all the same.
#pragma once
#include <QHash>
#include <vector>

class TComponent;

class TNotifyList {
 public:
  bool Contains(const TComponent* component) const { return PlaceOf(component) >= 0; }
  // False when it was there already, or was not there.
  bool Insert(TComponent* component);
  bool Remove(const TComponent* component);

  bool empty() const { return items_.empty(); }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  static constexpr std::size_t Few = 8;
  qsizetype PlaceOf(const TComponent* component) const;

  std::vector<TComponent*> items_;              // removing one changes the order
  QHash<const TComponent*, qsizetype> places_;  // empty while there are few
};
