// Components: ownership, names, free notification, the design point.
#include <random>
#include <set>

#include "tests/rtl/RtlTest.h"

using namespace rtltest;

namespace {
class TWatcher : public TComponent {
 public:
  using TComponent::TComponent;
  ~TWatcher() override {
    if (log) log->push_back(Name());
  }
  void Notification(TComponent* component, TOperation operation) override {
    if (operation == TOperation::opRemove) removed.push_back(component);
    TComponent::Notification(component, operation);
  }
  std::vector<TComponent*> removed;
  std::vector<QString>* log = nullptr;
};
}  // namespace

TEST(Component, OwnsItsComponentsAndFreesTheLastFirst) {
  std::vector<QString> log;
  {
    TComponent root(nullptr);
    for (const char* name : {"A", "B", "C"}) {
      auto* c = new TWatcher(&root);
      c->SetName(QLatin1StringView(name));
      c->log = &log;
    }
    EXPECT_EQ(root.Components().size(), 3u);
    EXPECT_EQ(root.Components()[1]->ComponentIndex(), 1);
    EXPECT_EQ(root.ComponentIndex(), -1);
    delete root.Components()[1];
    EXPECT_EQ(root.Components().size(), 2u);
    EXPECT_EQ(root.FindComponent(QStringLiteral("B")), nullptr);
  }
  EXPECT_EQ(log, (std::vector<QString>{QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("A")}));
}

TEST(Component, MovesToAnotherOwner) {
  TComponent first(nullptr), second(nullptr);
  auto* c = new TComponent(&first);
  c->SetName(QStringLiteral("C"));
  second.InsertComponent(c);
  EXPECT_EQ(c->Owner(), &second);
  EXPECT_TRUE(first.Components().empty());
  EXPECT_EQ(first.FindComponent(QStringLiteral("C")), nullptr);
  EXPECT_EQ(second.FindComponent(QStringLiteral("c")), c);
  second.RemoveComponent(c);
  EXPECT_EQ(c->Owner(), nullptr);
  delete c;
}

TEST(Component, IsNotTakenByAnOwnerThatHasItsName) {
  TComponent first(nullptr), second(nullptr);
  auto* a = new TComponent(&first);
  auto* b = new TComponent(&second);
  a->SetName(QStringLiteral("Same"));
  b->SetName(QStringLiteral("same"));
  EXPECT_THROW(second.InsertComponent(a), EComponentError);
  EXPECT_EQ(a->Owner(), &first);
  EXPECT_EQ(first.FindComponent(QStringLiteral("SAME")), a);
}

TEST(Component, NamesAreIdentifiers) {
  TComponent c(nullptr);
  for (const char* name : {"A", "_", "a1_B", "_9"}) {
    c.SetName(QLatin1StringView(name));
    EXPECT_EQ(c.Name(), QLatin1StringView(name));
  }
  for (const char* name : {"1a", "a b", "a.b", "a-b", "\xC3\xA4", " a"}) {
    EXPECT_THROW(c.SetName(QString::fromUtf8(name)), EComponentError) << name;
    EXPECT_EQ(c.Name(), QStringLiteral("_9"));
  }
  c.SetName(QString(255, u'n'));
  EXPECT_THROW(c.SetName(QString(256, u'n')), EComponentError);
  c.SetName({});
  EXPECT_TRUE(c.Name().isEmpty());
}

TEST(Component, AnOwnerAndItsComponentsHaveDifferentNames) {
  TComponent root(nullptr);
  auto* c = new TComponent(&root);
  root.SetName(QStringLiteral("Form1"));
  EXPECT_THROW(c->SetName(QStringLiteral("form1")), EComponentError);
  c->SetName(QStringLiteral("Button1"));
  EXPECT_THROW(root.SetName(QStringLiteral("BUTTON1")), EComponentError);
  EXPECT_EQ(root.Name(), QStringLiteral("Form1"));
}

TEST(Component, OnlyTheCaseOfANameMayChange) {
  TComponent root(nullptr);
  auto* c = new TComponent(&root);
  c->SetName(QStringLiteral("clock"));
  c->SetName(QStringLiteral("Clock"));
  EXPECT_EQ(c->Name(), QStringLiteral("Clock"));
  EXPECT_EQ(root.FindComponent(QStringLiteral("CLOCK")), c);
}

TEST(Component, FindingByNameAgreesWithALinearSearch) {
  std::mt19937 random(23);
  TComponent root(nullptr);
  for (int step = 0; step < 4000; ++step) {
    const QString name = QStringLiteral("%1%2").arg(QChar(random() % 2 ? u'n' : u'N')).arg(random() % 40);
    const auto& all = root.Components();
    switch (random() % 4) {
      case 0:
        new TComponent(&root);
        break;
      case 1:
        if (!all.empty()) delete all[random() % all.size()];
        break;
      default:
        if (all.empty()) break;
        TComponent* c = all[random() % all.size()];
        const bool taken = std::any_of(all.begin(), all.end(), [&](TComponent* o) {
          return o != c && o->Name().toLower() == name.toLower();
        });
        if (taken) {
          EXPECT_THROW(c->SetName(name), EComponentError);
        } else {
          c->SetName(random() % 8 ? name : QString());
        }
    }
    TComponent* slow = nullptr;
    for (TComponent* c : root.Components())
      if (c->Name().compare(name, Qt::CaseInsensitive) == 0) slow = c;
    ASSERT_EQ(root.FindComponent(name), slow) << step;
    ASSERT_EQ(root.FindComponent({}), nullptr);
  }
}

TEST(FreeNotification, TellsWhoAskedWhicheverGoesFirst) {
  auto* a = new TWatcher(nullptr);
  auto* b = new TWatcher(nullptr);
  a->FreeNotification(b);
  a->FreeNotification(b);
  const std::vector<TComponent*> told{a};
  delete a;
  EXPECT_EQ(b->removed, told);
  EXPECT_TRUE(b->FreeNotifies().empty());
  delete b;

  a = new TWatcher(nullptr);
  b = new TWatcher(nullptr);
  a->FreeNotification(b);
  delete b;
  EXPECT_TRUE(a->FreeNotifies().empty());
  delete a;
}

TEST(FreeNotification, IsToldWhileTheComponentIsStillOfItsClass) {
  struct TListener : TComponent {
    using TComponent::TComponent;
    void Notification(TComponent* component, TOperation operation) override {
      whole += dynamic_cast<TEverything*>(component) && component->IsDestroying();
      TComponent::Notification(component, operation);
    }
    int whole = 0;
  };
  TListener listener(nullptr);
  TComponent* component = new TEverything(nullptr);
  component->FreeNotification(&listener);
  delete component;
  EXPECT_EQ(listener.whole, 1);
  component = new TEverything(nullptr);
  component->FreeNotification(&listener);
  TPersistent* any = component;
  delete any;
  EXPECT_EQ(listener.whole, 2);
  {
    TComponent owner(nullptr);
    (new TEverything(&owner))->FreeNotification(&listener);
  }
  EXPECT_EQ(listener.whole, 3);
  EXPECT_TRUE(listener.FreeNotifies().empty());
}

TEST(FreeNotification, CanBeTakenBack) {
  auto* a = new TWatcher(nullptr);
  TWatcher b(nullptr);
  a->FreeNotification(&b);
  a->RemoveFreeNotification(&b);
  EXPECT_TRUE(b.FreeNotifies().empty());
  delete a;
  EXPECT_TRUE(b.removed.empty());
}

TEST(FreeNotification, AReferenceIsDroppedWhenItsTargetIsFreed) {
  TComponent first(nullptr), second(nullptr);
  auto* a = new TEverything(&first);
  auto* inside = new TEverything(&first);
  auto* outside = new TEverything(&second);
  for (TEverything* target : {inside, outside}) {
    a->SetFriend(target);
    delete target;
    EXPECT_EQ(a->Friend(), nullptr);
  }
}

TEST(FreeNotification, AnOldReferenceIsNoLongerWatched) {
  TComponent root(nullptr);
  auto* a = new TEverything(&root);
  auto* b = new TEverything(&root);
  auto* c = new TEverything(&root);
  a->SetFriend(b);
  a->SetFriend(c);
  EXPECT_TRUE(b->FreeNotifies().empty());
  delete b;
  EXPECT_EQ(a->Friend(), c);
}

TEST(FreeNotification, ComponentsThatReferToEachOtherAreFreedInAnyOrder) {
  std::mt19937 random(29);
  for (int round = 0; round < 200; ++round) {
    TComponent root(nullptr);
    std::vector<TEverything*> all;
    for (int i = 0; i < 6; ++i) all.push_back(new TEverything(&root));
    for (TEverything* c : all) c->SetFriend(all[random() % all.size()]);
    while (all.size() > 2) {
      const auto victim = all.begin() + static_cast<std::ptrdiff_t>(random() % all.size());
      TEverything* gone = *victim;
      all.erase(victim);
      delete gone;
      const std::set<TEverything*> alive(all.begin(), all.end());
      for (TEverything* c : all) EXPECT_TRUE(!c->Friend() || alive.contains(c->Friend()));
    }
  }
}

TEST(DesignPoint, PacksTwoSignedNumbersIntoAWord) {
  for (const int left : {-32768, -1, 0, 1, 32767}) {
    for (const int top : {-32768, -1, 0, 1, 32767}) {
      const TDesignPoint point{static_cast<std::int16_t>(left), static_cast<std::int16_t>(top)};
      const TDesignPoint back = DesignPointOf(DesignWordOf(point));
      EXPECT_EQ(back.Left, left);
      EXPECT_EQ(back.Top, top);
    }
  }
  EXPECT_EQ(DesignWordOf({1, 2}), 0x20001);
  EXPECT_EQ(DesignWordOf({-1, 0}), 0xFFFF);
  EXPECT_EQ(DesignWordOf({0, -1}), -65536);
}

TEST(DesignPoint, IsStreamedAsLeftAndTopOfOwnedComponents) {
  TComponent root(nullptr);
  auto* c = new TComponent(&root);
  SetOrdProp(*c, Prop(*c, "Left"), 100);
  SetOrdProp(*c, Prop(*c, "Top"), -20);
  EXPECT_EQ(c->DesignInfo(), DesignWordOf({100, -20}));
  EXPECT_TRUE(IsStoredProp(*c, Prop(*c, "Left")));
  c->SetDesignInfo(DesignWordOf({0, 7}));
  EXPECT_FALSE(IsStoredProp(*c, Prop(*c, "Left")));
  EXPECT_EQ(GetOrdProp(*c, Prop(*c, "Top")), 7);
  root.SetDesignInfo(DesignWordOf({5, 5}));
  EXPECT_FALSE(IsStoredProp(root, Prop(root, "Left")));
}

TEST(FreeNotification, WhoHasItFromAnOwnerHearsWhatComesThere) {
  struct TListener : TComponent {
    using TComponent::TComponent;
    void Notification(TComponent* component, TOperation operation) override {
      if (operation == TOperation::opInsert) came.push_back(component);
      TComponent::Notification(component, operation);
    }
    std::vector<TComponent*> came;
  };
  TComponent owner(nullptr);
  TListener listener(&owner), other(&owner);
  owner.FreeNotification(&listener);
  TComponent one(&owner), two(nullptr);
  owner.InsertComponent(&two);
  EXPECT_EQ(listener.came, (std::vector<TComponent*>{&one, &two}));
  EXPECT_TRUE(other.came.empty());
  owner.RemoveFreeNotification(&listener);
  TComponent three(&owner);
  EXPECT_EQ(listener.came.size(), 2u);
}
