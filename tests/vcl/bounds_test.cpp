#include "VclTest.h"
#include "rtl/Exceptions.h"
#include "vcl/Form.h"
#include "vcl/Label.h"
#include "vcl/Panel.h"
#include "vcl/Timer.h"

using enum TAnchorKind;

TEST(Bounds, AreSetTogetherAndOneByOne) {
  TPanel p(nullptr);
  p.SetBounds(3, 4, 50, 60);
  EXPECT_EQ(p.BoundsRect(), QRect(3, 4, 50, 60));
  p.SetLeft(-7);
  p.SetTop(8);
  p.SetWidth(90);
  p.SetHeight(100);
  EXPECT_EQ(p.BoundsRect(), QRect(-7, 8, 90, 100));
  EXPECT_EQ(p.ClientRect(), QRect(0, 0, 90, 100));
}

TEST(Bounds, ASizeIsNeverNegative) {
  TPanel p(nullptr);
  p.SetBounds(1, 2, -5, -6);
  EXPECT_EQ(p.BoundsRect(), QRect(1, 2, 0, 0));
}

TEST(Bounds, TheHostHearsOfRealMovesOnly) {
  CountingHost host;
  TForm form(nullptr);
  TPanel panel(nullptr);
  panel.SetParent(&form);
  TLabel label(nullptr);
  label.SetParent(&panel);
  label.SetBounds(1, 2, 30, 40);
  form.SetHost(&host);
  EXPECT_EQ(label.FindHost(), &host);
  label.SetBounds(1, 2, 30, 40);
  EXPECT_EQ(host.changes, 0);
  label.SetBounds(5, 2, 30, 40);
  EXPECT_EQ(host.changes, 2) << "the place it left and the place it came to";
  ASSERT_EQ(host.leaving.size(), 1u);
  EXPECT_EQ(host.leaving[0], QRect(1, 2, 30, 40));
  EXPECT_EQ(host.last, &label);
  form.SetHost(nullptr);
  EXPECT_EQ(label.FindHost(), nullptr);
  label.SetLeft(9);
  EXPECT_EQ(host.changes, 2);
}

namespace {
QRect AfterResize(TAnchors anchors, int dx, int dy) {
  TPanel parent(nullptr);
  parent.SetBounds(0, 0, 200, 100);
  TPanel child(&parent);
  child.SetParent(&parent);
  child.SetBounds(20, 10, 60, 30);
  child.SetAnchors(anchors);
  parent.SetBounds(50, 60, 200 + dx, 100 + dy);
  return child.BoundsRect();
}
}  // namespace

TEST(Anchors, KeepTheDistanceFromEdges) {
  EXPECT_EQ(AfterResize({akLeft, akTop}, 40, 20), QRect(20, 10, 60, 30));
  EXPECT_EQ(AfterResize({akTop, akRight}, 40, 20), QRect(60, 10, 60, 30));
  EXPECT_EQ(AfterResize({akLeft, akBottom}, 40, 20), QRect(20, 30, 60, 30));
  EXPECT_EQ(AfterResize({akRight, akBottom}, 40, 20), QRect(60, 30, 60, 30));
  EXPECT_EQ(AfterResize({akLeft, akTop, akRight}, 40, 20), QRect(20, 10, 100, 30));
  EXPECT_EQ(AfterResize({akLeft, akTop, akBottom}, 40, 20), QRect(20, 10, 60, 50));
  EXPECT_EQ(AfterResize({akLeft, akTop, akRight, akBottom}, -40, -20), QRect(20, 10, 20, 10));
  EXPECT_EQ(AfterResize({akRight, akBottom}, -40, -20), QRect(-20, -10, 60, 30));
  EXPECT_EQ(AfterResize({akLeft, akTop, akRight, akBottom}, -100, -90), QRect(20, 10, 0, 0));
}

TEST(Anchors, MovingTheParentMovesNoChild) {
  EXPECT_EQ(AfterResize({akRight, akBottom}, 0, 0), QRect(20, 10, 60, 30));
}

TEST(Anchors, RestWhileTheFormIsLoading) {
  TForm form(nullptr);
  form.SetClientWidth(200);
  TPanel child(&form);
  child.SetParent(&form);
  child.SetBounds(10, 10, 20, 20);
  child.SetAnchors({akTop, akRight});
  form.BeginLoading();
  form.SetClientWidth(300);
  form.Loaded();
  EXPECT_EQ(child.Left(), 10);
  form.SetClientWidth(310);
  EXPECT_EQ(child.Left(), 20);
}

TEST(Order, ControlsAreBackToFront) {
  TPanel parent(nullptr);
  TPanel a(&parent), b(&parent), c(&parent);
  for (TPanel* p : {&a, &b, &c}) p->SetParent(&parent);
  using List = std::vector<TControl*>;
  EXPECT_EQ(parent.Controls(), (List{&a, &b, &c}));
  a.BringToFront();
  EXPECT_EQ(parent.Controls(), (List{&b, &c, &a}));
  c.SendToBack();
  EXPECT_EQ(parent.Controls(), (List{&c, &b, &a}));
  parent.SetControlIndex(&a, 1);
  EXPECT_EQ(parent.Controls(), (List{&c, &a, &b}));
  EXPECT_EQ(parent.ControlIndex(&b), 2);
  parent.SetControlIndex(&a, 3);
  parent.SetControlIndex(&a, -1);
  EXPECT_EQ(parent.Controls(), (List{&c, &a, &b})) << "an index outside changes nothing";
  a.SetParent(nullptr);
  EXPECT_EQ(parent.ControlIndex(&a), -1);
  a.BringToFront();
  EXPECT_EQ(parent.Controls(), (List{&c, &b}));
}

TEST(ControlAt, FindsTheTopmost) {
  TPanel parent(nullptr);
  parent.SetBounds(0, 0, 100, 100);
  TPanel a(&parent), b(&parent);
  a.SetParent(&parent);
  b.SetParent(&parent);
  a.SetBounds(10, 10, 40, 40);
  b.SetBounds(30, 30, 40, 40);
  EXPECT_EQ(parent.ControlAt({15, 15}), &a);
  EXPECT_EQ(parent.ControlAt({35, 35}), &b);
  a.BringToFront();
  EXPECT_EQ(parent.ControlAt({35, 35}), &a);
  EXPECT_EQ(parent.ControlAt({10, 10}), &a);
  EXPECT_EQ(parent.ControlAt({9, 10}), nullptr);
  EXPECT_EQ(parent.ControlAt({50, 20}), nullptr) << "the right edge is outside";
  EXPECT_EQ(parent.ControlAt({69, 69}), &b);
  EXPECT_EQ(parent.ControlAt({70, 70}), nullptr);
}

TEST(ControlAt, WindowedControlsLieAboveGraphicOnes) {
  TPanel parent(nullptr);
  TPanel window(&parent);
  TLabel label(&parent);
  window.SetParent(&parent);
  label.SetParent(&parent);
  label.SetAutoSize(false);
  label.SetBounds(0, 0, 50, 50);
  window.SetBounds(0, 0, 50, 50);
  EXPECT_EQ(parent.ControlAt({5, 5}), &window);
  window.SetLeft(100);
  EXPECT_EQ(parent.ControlAt({5, 5}), &label);
}

TEST(ControlAt, InvisibleControlsAreOnlyThereWhileDesigning) {
  TPanel parent(nullptr);
  TPanel below(&parent), above(&parent);
  below.SetParent(&parent);
  above.SetParent(&parent);
  below.SetBounds(0, 0, 50, 50);
  above.SetBounds(0, 0, 50, 50);
  above.SetVisible(false);
  EXPECT_EQ(parent.ControlAt({5, 5}), &below);
  above.SetDesigning(true);
  EXPECT_EQ(parent.ControlAt({5, 5}), &above);
}

TEST(Parent, IsRefusedInsideTheControlItself) {
  TPanel outer(nullptr);
  TPanel middle(&outer), inner(&outer);
  middle.SetParent(&outer);
  inner.SetParent(&middle);
  EXPECT_THROW(outer.SetParent(&outer), EComponentError);
  EXPECT_THROW(outer.SetParent(&inner), EComponentError);
  EXPECT_THROW(middle.SetParent(&inner), EComponentError);
  EXPECT_EQ(outer.Parent(), nullptr);
  EXPECT_EQ(middle.Parent(), &outer);
  EXPECT_EQ(inner.Parent(), &middle);
  EXPECT_EQ(outer.Controls().size(), 1u);
}

TEST(Parent, ChangesHands) {
  TPanel a(nullptr), b(nullptr);
  TLabel label(nullptr);
  EXPECT_FALSE(label.HasParent());
  label.SetParent(&a);
  EXPECT_TRUE(label.HasParent());
  EXPECT_EQ(label.GetParentComponent(), &a);
  label.SetParent(&b);
  EXPECT_TRUE(a.Controls().empty());
  EXPECT_EQ(b.Controls(), std::vector<TControl*>{&label});
  TTimer timer(nullptr);
  label.SetParentComponent(&timer);
  EXPECT_EQ(label.Parent(), &b) << "a timer holds no controls";
}

TEST(Parent, MayGoBeforeItsChildren) {
  TForm owner(nullptr);
  auto* parent = new TPanel(&owner);
  auto* child = new TPanel(&owner);
  auto* grandchild = new TLabel(&owner);
  child->SetParent(parent);
  grandchild->SetParent(child);
  delete parent;
  EXPECT_EQ(child->Parent(), nullptr);
  EXPECT_EQ(grandchild->Parent(), child);
  child->SetBounds(1, 2, 3, 4);
  EXPECT_EQ(child->BoundsRect(), QRect(1, 2, 3, 4));
  delete child;
  EXPECT_EQ(grandchild->Parent(), nullptr);
  EXPECT_EQ(owner.Components(), std::vector<TComponent*>{grandchild});
}

TEST(Parent, ForgetsAChildThatIsFreed) {
  TPanel parent(nullptr);
  auto* child = new TPanel(nullptr);
  child->SetParent(&parent);
  delete child;
  EXPECT_TRUE(parent.Controls().empty());
}
