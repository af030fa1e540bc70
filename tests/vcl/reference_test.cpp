#include "VclTest.h"
#include "rtl/Exceptions.h"
#include "rtl/PropAccess.h"
#include "vcl/Button.h"
#include "vcl/Form.h"
#include "vcl/Label.h"
#include "vcl/Timer.h"

namespace {
// Two references, which may name the same component.
class TPair : public TComponent {
  VRX_CLASS(TPair)
 public:
  using TComponent::TComponent;
  TComponent* First() const { return first_; }
  void SetFirst(TComponent* v) { SetReference(*this, first_, v); }
  TComponent* Second() const { return second_; }
  void SetSecond(TComponent* v) { SetReference(*this, second_, v); }

 private:
  TComponent* first_ = nullptr;
  TComponent* second_ = nullptr;
};
const TClass& TPair::StaticClass() {
  static const TClass cls(DescribeClass<TPair>("TPair", TComponent::StaticClass())
                              .Published("First", &TPair::First, &TPair::SetFirst)
                              .Published("Second", &TPair::Second, &TPair::SetSecond));
  return cls;
}
}  // namespace

TEST(Reference, IsClearedWhenTheTargetGoes) {
  TForm form(nullptr);
  auto* label = new TLabel(&form);
  auto* button = new TButton(&form);
  label->SetFocusControl(button);
  delete button;
  EXPECT_EQ(label->FocusControl(), nullptr);
}

TEST(Reference, TheHolderMayGoFirst) {
  TForm form(nullptr);
  auto* label = new TLabel(&form);
  auto* button = new TButton(&form);
  label->SetFocusControl(button);
  delete label;
  EXPECT_TRUE(button->FreeNotifies().empty());
  delete button;
}

TEST(Reference, ReachesAcrossForms) {
  TForm one(nullptr);
  TLabel label(&one);
  {
    TForm other(nullptr);
    label.SetFocusControl(new TButton(&other));
    EXPECT_NE(label.FocusControl(), nullptr);
  }
  EXPECT_EQ(label.FocusControl(), nullptr);
}

TEST(Reference, AnExchangedTargetIsForgotten) {
  TForm form(nullptr);
  auto* label = new TLabel(&form);
  auto* a = new TButton(&form);
  auto* b = new TButton(&form);
  label->SetFocusControl(a);
  label->SetFocusControl(b);
  EXPECT_TRUE(a->FreeNotifies().empty());
  delete a;
  EXPECT_EQ(label->FocusControl(), b);
  label->SetFocusControl(nullptr);
  EXPECT_TRUE(b->FreeNotifies().empty());
}

TEST(Reference, TwoToTheSameTargetAreBothCleared) {
  TPair pair(nullptr);
  auto* target = new TTimer(nullptr);
  pair.SetFirst(target);
  pair.SetSecond(target);
  delete target;
  EXPECT_EQ(pair.First(), nullptr);
  EXPECT_EQ(pair.Second(), nullptr);
}

TEST(Reference, OneOfTwoToTheSameTargetMayBeTakenAway) {
  TPair pair(nullptr);
  auto* target = new TTimer(nullptr);
  pair.SetFirst(target);
  pair.SetSecond(target);
  pair.SetFirst(nullptr);
  EXPECT_EQ(pair.Second(), target);
  delete target;
  EXPECT_EQ(pair.Second(), nullptr);
}

TEST(Reference, TwoComponentsMayReferToEachOther) {
  auto* a = new TPair(nullptr);
  auto* b = new TPair(nullptr);
  a->SetFirst(b);
  b->SetFirst(a);
  a->SetFirst(nullptr);
  delete a;
  EXPECT_EQ(b->First(), nullptr);
  delete b;
}

TEST(Reference, NeedsTheRightClass) {
  TForm form(nullptr);
  TLabel label(&form), other(&form);
  TButton button(&form);
  const TPropInfo& prop = TLabel::StaticClass().GetProp("FocusControl");
  SetObjectProp(label, prop, &button);
  EXPECT_THROW(SetObjectProp(label, prop, &other), EPropertyError);
  EXPECT_EQ(label.FocusControl(), &button);
}
