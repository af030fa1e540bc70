// Stack, queue and list against plain lists, with every kind of limit.
#include "library/components/Containers.h"

#include <gtest/gtest.h>

#include <random>

#include "rtl/Exceptions.h"

namespace {
using Limit = std::pair<int, TVRXOverflow>;
class Containers : public testing::TestWithParam<unsigned> {
 protected:
  // As it is said: what is there after one more would come in. Nothing when it is refused.
  std::optional<QStringList> WithRoom(QStringList lines) const {
    if (most_ > 0 && lines.size() >= most_) {
      if (overflow_ == TVRXOverflow::ovRaise || overflow_ == TVRXOverflow::ovIgnore) return {};
      while (lines.size() >= most_) lines.removeFirst();
    }
    return lines;
  }
  void Limit(TVRXContainerComponent& c) {
    most_ = static_cast<int>(random_() % 6) - 1;
    overflow_ = static_cast<TVRXOverflow>(random_() % 3);
    c.Set(TVRXContainerComponent::MaxCount, most_);
    c.Set(TVRXContainerComponent::Overflow, overflow_);
  }
  QString Text() {
    static const char* const texts[] = {"a", "A", "b", "B", "", "ab", "Ab"};
    return QLatin1StringView(texts[random_() % std::size(texts)]);
  }
  // What came of it, or -2 for a refusal that is told.
  template <class F>
  static int Tried(F&& f) {
    try {
      return static_cast<int>(f());
    } catch (const EComponentError&) {
      return -2;
    }
  }
  static QStringList LinesOf(const TVRXContainerComponent& c) {
    return c.Get(TVRXContainerComponent::Items)->Lines();
  }
  std::mt19937 random_{GetParam()};
  int most_ = 0;
  TVRXOverflow overflow_ = TVRXOverflow::ovRaise;
};
}  // namespace

TEST_P(Containers, AStackGivesTheNewestFirstAndAQueueTheOldest) {
  TVRXStackComponent stack(nullptr);
  TVRXQueueComponent queue(nullptr);
  QStringList stacked, queued;
  for (int step = 0; step < 200; ++step) {
    if (step % 40 == 0) {
      Limit(stack);
      queue.Set(TVRXContainerComponent::MaxCount, most_);
      queue.Set(TVRXContainerComponent::Overflow, overflow_);
    }
    const QString text = Text();
    const int refused = overflow_ == TVRXOverflow::ovRaise ? -2 : 0;
    if (random_() % 3) {
      const auto s = WithRoom(stacked), q = WithRoom(queued);
      EXPECT_EQ(Tried([&] { return stack.Push(text); }), s ? 1 : refused);
      EXPECT_EQ(Tried([&] { return queue.Enqueue(text); }), q ? 1 : refused);
      if (s) stacked = *s + QStringList{text};
      if (q) queued = *q + QStringList{text};
    } else if (stacked.isEmpty()) {
      EXPECT_THROW(stack.Pop(), EComponentError);
      EXPECT_THROW(stack.Peek(), EComponentError);
    } else {
      EXPECT_EQ(stack.Peek(), stacked.last());
      EXPECT_EQ(stack.Pop(), stacked.takeLast());
      if (!queued.isEmpty()) {
        EXPECT_EQ(queue.Peek(), queued.first());
        EXPECT_EQ(queue.Dequeue(), queued.takeFirst());
      }
    }
    ASSERT_EQ(LinesOf(stack), stacked);
    ASSERT_EQ(LinesOf(queue), queued);
    ASSERT_EQ(stack.Count(), stacked.size());
    ASSERT_EQ(queue.IsEmpty(), queued.isEmpty());
  }
}

TEST_P(Containers, AListKeepsItsOrderItsLimitAndItsDuplicates) {
  TVRXListComponent list(nullptr);
  QStringList lines;
  for (int step = 0; step < 300; ++step) {
    if (step % 30 == 0) {
      Limit(list);
      list.Set(TVRXListComponent::CaseSensitive, random_() % 2);
      list.Set(TVRXListComponent::Sorted, random_() % 2);
      list.Set(TVRXListComponent::Duplicates, static_cast<TVRXDuplicates>(random_() % 3));
      if (list.Get(TVRXListComponent::Sorted)) list.Sort();
      lines = LinesOf(list);
    }
    const bool sorted = list.Get(TVRXListComponent::Sorted);
    const auto sensitive =
        list.Get(TVRXListComponent::CaseSensitive) ? Qt::CaseSensitive : Qt::CaseInsensitive;
    const TVRXDuplicates duplicates = list.Get(TVRXListComponent::Duplicates);
    const QString text = Text();
    ASSERT_EQ(list.IndexOf(text) >= 0, lines.contains(text, sensitive));
    if (lines.contains(text, sensitive)) {
      ASSERT_EQ(lines[list.IndexOf(text)].compare(text, sensitive), 0);
      for (int i = 0; i < list.IndexOf(text); ++i) ASSERT_NE(lines[i].compare(text, sensitive), 0);
    }
    if (random_() % 4 == 0 && !lines.isEmpty()) {
      const int at = static_cast<int>(random_() % static_cast<std::size_t>(lines.size()));
      list.Delete(at);
      lines.removeAt(at);
    } else {
      int at = static_cast<int>(random_() % static_cast<std::size_t>(lines.size() + 1));
      const bool twice = duplicates != TVRXDuplicates::dpAccept && lines.contains(text, sensitive);
      const auto room = WithRoom(lines);
      const int came = Tried([&] { return list.Insert(at, text); });
      if (twice) {
        ASSERT_EQ(came, duplicates == TVRXDuplicates::dpRaise ? -2 : -1);
      } else if (!room) {
        ASSERT_EQ(came, overflow_ == TVRXOverflow::ovRaise ? -2 : -1);
      } else {
        at = std::max(0, at - static_cast<int>(lines.size() - room->size()));
        lines = *room;
        if (sorted)
          for (at = 0; at < lines.size() && lines[at].compare(text, sensitive) <= 0;) ++at;
        lines.insert(at, text);
        ASSERT_EQ(came, at);
      }
    }
    ASSERT_EQ(LinesOf(list), lines) << step;
  }
}
INSTANTIATE_TEST_SUITE_P(Seeds, Containers, testing::Range(1u, 11u));

TEST(ContainerErrors, SayWhichComponentAndHowMany) {
  TVRXListComponent list(nullptr);
  list.SetName(QStringLiteral("Names"));
  const auto told = [&](auto action) {
    try {
      action();
    } catch (const Exception& e) {
      return e.Message().toStdString();
    }
    return std::string();
  };
  EXPECT_EQ(told([&] { list.Item(0); }), "Names is empty.");
  list.Add(QStringLiteral("x"));
  EXPECT_EQ(told([&] { list.Item(1); }), "Names has no text 1: it holds 1.");
  EXPECT_EQ(told([&] { list.Insert(3, {}); }), "Names has no place 3: it holds 1.");
  list.Set(TVRXContainerComponent::MaxCount, 1);
  EXPECT_EQ(told([&] { list.Add(QStringLiteral("y")); }),
            "Names holds 1 texts already, as many as it takes.");
  list.Set(TVRXListComponent::Duplicates, TVRXDuplicates::dpRaise);
  EXPECT_EQ(told([&] { list.Add(QStringLiteral("X")); }), "Names holds \"X\" already.");
  list.Clear();
  EXPECT_TRUE(list.IsEmpty());
}
