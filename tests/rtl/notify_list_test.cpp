#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <set>

#include "rtl/Component.h"

TEST(NotifyList, HoldsWhatASetHolds) {
  std::vector<std::unique_ptr<TComponent>> all;
  for (int i = 0; i < 40; ++i) all.push_back(std::make_unique<TComponent>(nullptr));
  for (quint32 seed = 1; seed <= 50; ++seed) {
    QRandomGenerator random(seed);
    TNotifyList list;
    std::set<TComponent*> oracle;
    for (int step = 0; step < 300; ++step) {
      TComponent* c = all[static_cast<std::size_t>(random.bounded(step < 150 ? 40 : 12))].get();
      if (random.bounded(3) > 0)
        EXPECT_EQ(list.Insert(c), oracle.insert(c).second);
      else
        EXPECT_EQ(list.Remove(c), oracle.erase(c) == 1);
      EXPECT_EQ(std::set<TComponent*>(list.begin(), list.end()), oracle);
      EXPECT_EQ(list.end() - list.begin(), std::ssize(oracle));
      for (const auto& each : all) EXPECT_EQ(list.Contains(each.get()), oracle.contains(each.get()));
    }
  }
}
