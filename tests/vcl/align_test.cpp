// Alignment against a slow model that places one control after the other.
#include <cmath>
#include <random>

#include "VclTest.h"
#include "vcl/Form.h"
#include "vcl/Panel.h"

using enum TAlign;

namespace {
struct Item {
  TAlign align = alNone;
  TAnchors anchors = DefaultAnchors;
  bool visible = true;
  int x = 0, y = 0, w = 0, h = 0;
  QRect key;  // where it stands in the order: what only changed its size keeps its place
  void Remember() { key = QRect(x, y, w, h); }
};

struct Model {
  int width = 0, height = 0;
  std::vector<Item> items;  // back to front

  void Realign() {
    Place();
    for (Item& i : items) i.Remember();
  }
  void Place() {
    int left = 0, top = 0, right = width, bottom = height;
    const std::vector<Item> before = items;
    for (const TAlign pass : {alTop, alBottom, alLeft, alRight, alClient}) {
      std::vector<bool> done(items.size());
      for (;;) {
        // The nearest to the edge of those not placed yet; of equals the one further back.
        int next = -1;
        for (int i = 0; i < static_cast<int>(items.size()); ++i) {
          const Item& c = before[static_cast<std::size_t>(i)];
          if (c.align != pass || !c.visible || done[static_cast<std::size_t>(i)]) continue;
          if (next < 0 || Distance(c) < Distance(before[static_cast<std::size_t>(next)])) next = i;
        }
        if (next < 0) break;
        done[static_cast<std::size_t>(next)] = true;
        Item& c = items[static_cast<std::size_t>(next)];
        const int across = std::max(0, right - left), down = std::max(0, bottom - top);
        switch (pass) {
          case alTop:
            c.x = left;
            c.y = top;
            c.w = across;
            top += c.h;
            break;
          case alBottom:
            bottom -= c.h;
            c.x = left;
            c.y = bottom;
            c.w = across;
            break;
          case alLeft:
            c.x = left;
            c.y = top;
            c.h = down;
            left += c.w;
            break;
          case alRight:
            right -= c.w;
            c.x = right;
            c.y = top;
            c.h = down;
            break;
          default:
            c.x = left;
            c.y = top;
            c.w = across;
            c.h = down;
        }
      }
    }
  }
  static int Distance(const Item& c) {
    switch (c.align) {
      case alTop:
        return c.key.y();
      case alBottom:
        return -(c.key.y() + c.key.height());
      case alLeft:
        return c.key.x();
      case alRight:
        return -(c.key.x() + c.key.width());
      default:
        return 0;
    }
  }
  void Resize(int w, int h) {
    const int dx = w - width, dy = h - height;
    // The middle keeps its ratio, and nothing moves by more than the room has changed.
    const auto floated = [](int from, int size, int before, int after) {
      if (before <= 0) return from;
      const int to =
          static_cast<int>(std::lround((from + size / 2) * static_cast<double>(after) / before)) - size / 2;
      const int most = std::abs(after - before);
      return to > from + most ? from + most : to < from - most ? from - most : to;
    };
    const int oldWidth = width, oldHeight = height;
    width = w;
    height = h;
    for (Item& c : items) {
      if (c.align != alNone) continue;
      const bool l = c.anchors.Contains(TAnchorKind::akLeft), r = c.anchors.Contains(TAnchorKind::akRight);
      const bool t = c.anchors.Contains(TAnchorKind::akTop), b = c.anchors.Contains(TAnchorKind::akBottom);
      if (r && l) c.w = std::max(0, c.w + dx);
      if (r && !l) c.x += dx;
      if (!r && !l) c.x = floated(c.x, c.w, oldWidth, w);
      if (b && t) c.h = std::max(0, c.h + dy);
      if (b && !t) c.y += dy;
      if (!b && !t) c.y = floated(c.y, c.h, oldHeight, h);
    }
    Realign();
  }
};

class AlignCase : public testing::TestWithParam<int> {};
}  // namespace

TEST(Align, EveryOrderOfTheFiveGivesTheSamePicture) {
  std::vector<TAlign> order{alTop, alBottom, alLeft, alRight, alClient};
  int orders = 0;
  do {
    ++orders;
    TPanel parent(nullptr);
    parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
    parent.SetBounds(0, 0, 200, 100);
    std::map<TAlign, TPanel*> panels;
    for (const TAlign a : order) {
      auto* p = new TPanel(&parent);
      p->SetBounds(50, 50, 20, 10);
      p->SetParent(&parent);
      p->SetAlign(a);
      panels[a] = p;
    }
    EXPECT_EQ(panels[alTop]->BoundsRect(), QRect(0, 0, 200, 10));
    EXPECT_EQ(panels[alBottom]->BoundsRect().bottom(), 99);
    EXPECT_EQ(panels[alBottom]->Width(), 200);
    EXPECT_EQ(panels[alLeft]->Left(), 0);
    EXPECT_EQ(panels[alRight]->BoundsRect().right(), 199);
    // Together they cover the parent without overlap.
    int area = 0;
    for (const auto& [a, p] : panels) {
      area += p->Width() * p->Height();
      for (const auto& [b, q] : panels) EXPECT_TRUE(a == b || !p->BoundsRect().intersects(q->BoundsRect()));
    }
    EXPECT_EQ(area, 200 * 100);
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_EQ(orders, 120);
}

TEST(Align, WhoIsNearerToTheEdgeStaysNearer) {
  TPanel parent(nullptr);
  parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  parent.SetBounds(0, 0, 200, 200);
  TPanel a(&parent), b(&parent);
  for (TPanel* p : {&a, &b}) {
    p->SetParent(&parent);
    p->SetAlign(alTop);
    p->SetHeight(30);
  }
  EXPECT_EQ(a.Top(), 0);
  EXPECT_EQ(b.Top(), 30);
  b.SetTop(-1);
  EXPECT_EQ(b.Top(), 0);
  EXPECT_EQ(a.Top(), 30);
}

TEST(Align, AnInvisibleControlTakesNoRoomUnlessDesigning) {
  for (const bool designing : {false, true}) {
    TForm form(nullptr);
    form.SetDesigning(designing);
    form.SetClientWidth(200);
    form.SetClientHeight(100);
    TPanel top(&form), client(&form);
    top.SetParent(&form);
    client.SetParent(&form);
    top.SetHeight(20);
    top.SetAlign(alTop);
    client.SetAlign(alClient);
    EXPECT_EQ(client.BoundsRect(), QRect(0, 20, 200, 80));
    top.SetVisible(false);
    EXPECT_EQ(client.BoundsRect(), designing ? QRect(0, 20, 200, 80) : QRect(0, 0, 200, 100));
    top.SetVisible(true);
    EXPECT_EQ(client.BoundsRect(), QRect(0, 20, 200, 80));
  }
}

TEST(Align, FreeingAndMovingAwayGiveTheRoomBack) {
  TPanel parent(nullptr);
  parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  parent.SetBounds(0, 0, 200, 100);
  auto* top = new TPanel(&parent);
  auto* left = new TPanel(&parent);
  TPanel client(&parent);
  for (TPanel* p : {top, left, &client}) p->SetParent(&parent);
  top->SetHeight(10);
  top->SetAlign(alTop);
  left->SetWidth(50);
  left->SetAlign(alLeft);
  client.SetAlign(alClient);
  EXPECT_EQ(client.BoundsRect(), QRect(50, 10, 150, 90));
  delete top;
  EXPECT_EQ(client.BoundsRect(), QRect(50, 0, 150, 100));
  left->SetAlign(alNone);
  EXPECT_EQ(client.BoundsRect(), QRect(0, 0, 200, 100));
}

TEST_P(AlignCase, MatchesTheModel) {
  std::mt19937 random(static_cast<unsigned>(GetParam()));
  const auto roll = [&](int from, int to) { return std::uniform_int_distribution(from, to)(random); };
  TPanel parent(nullptr);
  parent.Set(TPanel::BevelOuter, TBevelCut::bvNone);
  Model model;
  model.width = roll(0, 400);
  model.height = roll(0, 300);
  parent.SetBounds(0, 0, model.width, model.height);
  std::vector<TPanel*> panels;
  for (int i = roll(1, 9); i > 0; --i) {
    Item item;
    item.x = roll(-50, 400), item.y = roll(-50, 300), item.w = roll(1, 150), item.h = roll(1, 120);
    item.anchors = TAnchors::FromBits(static_cast<unsigned>(roll(0, 15)));
    auto* p = new TPanel(&parent);
    p->SetBounds(item.x, item.y, item.w, item.h);
    p->SetAnchors(item.anchors);
    p->SetParent(&parent);
    panels.push_back(p);
    item.Remember();
    model.items.push_back(item);
  }
  for (int step = 0; step < 40; ++step) {
    const auto i = static_cast<std::size_t>(roll(0, static_cast<int>(panels.size()) - 1));
    Item& item = model.items[i];
    switch (roll(0, 4)) {
      case 0:
      case 1:
        item.align = static_cast<TAlign>(roll(0, 6));
        panels[i]->SetAlign(item.align);
        model.Realign();
        break;
      case 2:
        item.x = roll(-50, 400), item.y = roll(-50, 300), item.w = roll(1, 150), item.h = roll(1, 120);
        panels[i]->SetBounds(item.x, item.y, item.w, item.h);
        if (item.key.size() == QSize(item.w, item.h)) item.Remember();
        model.Realign();
        break;
      case 3:
        item.visible = !item.visible;
        panels[i]->SetVisible(item.visible);
        model.Realign();
        break;
      default: {
        const int w = roll(0, 400), h = roll(0, 300);
        parent.SetBounds(roll(-9, 9), 0, w, h);
        model.Resize(w, h);
      }
    }
    // Which of two at the same place comes first is settled by a size of nothing in neither.
    if (std::any_of(model.items.begin(), model.items.end(),
                    [](const Item& c) { return c.align != alNone && (c.w == 0 || c.h == 0); }))
      return;
    for (std::size_t k = 0; k < panels.size(); ++k) {
      const Item& want = model.items[k];
      ASSERT_EQ(panels[k]->BoundsRect(), QRect(want.x, want.y, want.w, want.h))
          << "step " << step << " control " << k << " changed " << i << " aligned "
          << static_cast<int>(want.align) << " anchors " << want.anchors.Bits() << " visible "
          << want.visible;
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Seeds, AlignCase, testing::Range(0, 60));
