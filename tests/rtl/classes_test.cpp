// Class descriptions: order of properties, republishing, look-up, creation, registration.
#include <random>

#include "rtl/IntegerConsts.h"
#include "tests/rtl/RtlTest.h"

using namespace rtltest;

namespace {
class TBase : public TComponent {
  VRX_CLASS(TBase)
 public:
  using TComponent::TComponent;
  int a = 0, b = 0, c = 0, d = 0;
};
const TClass& TBase::StaticClass() {
  static const TClass cls(DescribeClass<TBase>("TBase", TComponent::StaticClass())
                              .Published("A", &TBase::a, &TBase::a, 1)
                              .Declared("B", &TBase::b, &TBase::b, 2)
                              .Streamed("Raw", &TBase::d, &TBase::d, 0)
                              .Published("C", &TBase::c, &TBase::c)
                              .DeclaredEvent("OnHidden", "THidden")
                              .Doc(QStringLiteral("Told to nobody."))
                              .ClassDoc(QStringLiteral("A base.")));
  return cls;
}

class TDerived : public TBase {
  VRX_CLASS(TDerived)
 public:
  using TBase::TBase;
  int e = 0;
};
const TClass& TDerived::StaticClass() {
  static const TClass cls(DescribeClass<TDerived>("TDerived", TBase::StaticClass())
                              .Published("E", &TDerived::e, &TDerived::e, 0)
                              .Publish("b")
                              .Publish("A", 10)
                              .PublishAll("OnHidden", "Left"));
  return cls;
}

class TAbstract : public TComponent {
  VRX_CLASS(TAbstract)
 public:
  using TComponent::TComponent;
  virtual void Work() = 0;
};
const TClass& TAbstract::StaticClass() {
  static const TClass cls(DescribeClass<TAbstract>("TAbstract", TComponent::StaticClass()));
  return cls;
}
}  // namespace

TEST(Class, PropertiesComeAncestorsFirstAndStreamedOnesLast) {
  EXPECT_EQ(Names(TComponent::StaticClass()), (QByteArrayList{"Name", "Tag", "Left", "Top"}));
  EXPECT_EQ(Names(TBase::StaticClass()), (QByteArrayList{"Name", "Tag", "A", "C", "Left", "Top", "Raw"}));
}

TEST(Class, RepublishedPropertiesKeepTheirPlaceAndNewOnesTakeThatOfTheClass) {
  EXPECT_EQ(Names(TDerived::StaticClass()),
            (QByteArrayList{"Name", "Tag", "A", "C", "E", "B", "OnHidden", "Left", "Top", "Raw"}));
}

TEST(Class, DeclaredPropertiesAreUnknownUntilPublished) {
  EXPECT_EQ(TBase::StaticClass().FindProp("B"), nullptr);
  EXPECT_EQ(TBase::StaticClass().FindProp("OnHidden"), nullptr);
  const TPropInfo* b = TDerived::StaticClass().FindProp("B");
  ASSERT_NE(b, nullptr);
  EXPECT_EQ(b->Default, 2);
  EXPECT_EQ(b->Visibility, TPropVisibility::Published);
  EXPECT_EQ(TDerived::StaticClass().GetProp("OnHidden").PropType->Name, "THidden");
}

TEST(Class, ADescendantMayChangeTheDefaultForItself) {
  TBase base(nullptr);
  TDerived derived(nullptr);
  EXPECT_EQ(Prop(base, "A").Default, 1);
  EXPECT_EQ(Prop(derived, "A").Default, 10);
  base.a = derived.a = 10;
  EXPECT_TRUE(IsStoredProp(base, Prop(base, "A")));
  EXPECT_FALSE(IsStoredProp(derived, Prop(derived, "A")));
  ResetProp(base, Prop(base, "A"));
  EXPECT_EQ(base.a, 1);
}

TEST(Class, APublishedStreamedPropertyIsShown) {
  EXPECT_EQ(TBase::StaticClass().GetProp("Left").Visibility, TPropVisibility::Streamed);
  EXPECT_EQ(TDerived::StaticClass().GetProp("Left").Visibility, TPropVisibility::Published);
  EXPECT_EQ(TDerived::StaticClass().GetProp("Top").Visibility, TPropVisibility::Streamed);
}

TEST(Class, RepublishedEventsShareTheirHandler) {
  TDerived derived(nullptr);
  SetMethodProp(derived, Prop(derived, "OnHidden"), QStringLiteral("H"));
  EXPECT_EQ(GetMethodProp(derived, TDerived::StaticClass().GetProp("onhidden")), QStringLiteral("H"));
}

TEST(Class, LookUpHasNoRegardToCaseAndAgreesWithALinearSearch) {
  std::mt19937 random(3);
  for (const TClass* cls :
       {&TEverything::StaticClass(), &TDerived::StaticClass(), &TPersistent::StaticClass()}) {
    for (const TPropInfo* p : cls->Properties()) {
      EXPECT_EQ(cls->FindProp(p->Name), p);
      EXPECT_EQ(cls->FindProp(p->Name.toUpper()), p);
      EXPECT_EQ(cls->FindProp(p->Name.toLower()), p);
      EXPECT_EQ(cls->FindProp(p->Name + "x"), nullptr);
    }
    for (int i = 0; i < 3000; ++i) {
      QByteArray name;
      for (auto n = random() % 4; n > 0; --n) name += "abcelft@[`{n"[random() % 12];
      const TPropInfo* slow = nullptr;
      for (const TPropInfo* p : cls->Properties())
        if (p->Name.toLower() == name.toLower()) slow = p;
      EXPECT_EQ(cls->FindProp(name), slow) << name.constData();
    }
  }
}

TEST(Class, AskingForAMissingPropertyNamesClassAndProperty) {
  try {
    TBase::StaticClass().GetProp("Missing");
    FAIL();
  } catch (const EPropertyError& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("TBase")));
    EXPECT_TRUE(e.Message().contains(QStringLiteral("Missing")));
  }
}

TEST(Class, InheritanceIsKnownByDescription) {
  EXPECT_TRUE(TDerived::StaticClass().InheritsFrom(TComponent::StaticClass()));
  EXPECT_TRUE(TDerived::StaticClass().InheritsFrom(TDerived::StaticClass()));
  EXPECT_FALSE(TComponent::StaticClass().InheritsFrom(TDerived::StaticClass()));
  EXPECT_EQ(TDerived::StaticClass().ClassParent(), &TBase::StaticClass());
  EXPECT_EQ(TBase::StaticClass().Description(), QStringLiteral("A base."));
}

TEST(Class, CreatesComponentsValuesAndItemsOfItsKindOnly) {
  TComponent root(nullptr);
  TComponent* made = TDerived::StaticClass().NewComponent(&root);
  EXPECT_EQ(&made->ClassType(), &TDerived::StaticClass());
  EXPECT_EQ(made->Owner(), &root);
  EXPECT_EQ(&TPoint2::StaticClass().NewPersistent()->ClassType(), &TPoint2::StaticClass());
  TCollection parts(TPiece::StaticClass());
  const TPersistent* item = TPiece::StaticClass().NewItem(&parts);
  EXPECT_EQ(item, parts.Item(0));
  EXPECT_TRUE(TAbstract::StaticClass().IsAbstract());
  EXPECT_FALSE(TDerived::StaticClass().IsAbstract());
  EXPECT_THROW(TAbstract::StaticClass().NewComponent(&root), EComponentError);
  EXPECT_THROW(TPoint2::StaticClass().NewComponent(&root), EComponentError);
  EXPECT_THROW(TDerived::StaticClass().NewPersistent(), EComponentError);
  EXPECT_THROW(TDerived::StaticClass().NewItem(&parts), EComponentError);
  EXPECT_EQ(root.Components().size(), 1u);
  EXPECT_EQ(parts.Count(), 1);
}

namespace {
class ClassRegistry : public testing::Test {
 protected:
  void TearDown() override { UnRegisterClasses(this); }
};
const TClass& Impostor() {
  static const TClass cls(DescribeClass<TBase>("TBASE", TComponent::StaticClass()));
  return cls;
}
}  // namespace

TEST_F(ClassRegistry, FindsClassesWithoutRegardToCase) {
  EXPECT_EQ(FindClass("TBase"), nullptr);
  RegisterClass(TBase::StaticClass(), this);
  EXPECT_EQ(FindClass("tbASE"), &TBase::StaticClass());
  EXPECT_EQ(&GetClass("TBase"), &TBase::StaticClass());
  EXPECT_THROW(GetClass("TBas"), EClassNotFound);
}

TEST_F(ClassRegistry, RefusesAnotherClassOfTheSameName) {
  RegisterClass(TBase::StaticClass(), this);
  RegisterClass(TBase::StaticClass(), this);
  EXPECT_THROW(RegisterClass(Impostor(), this), EComponentError);
  EXPECT_EQ(FindClass("TBase"), &TBase::StaticClass());
}

TEST_F(ClassRegistry, ForgetsTheClassesOfAPackageOnly) {
  const int package = 0;
  RegisterClass(TBase::StaticClass(), this);
  RegisterClass(TDerived::StaticClass(), &package);
  UnRegisterClasses(&package);
  EXPECT_EQ(FindClass("TDerived"), nullptr);
  EXPECT_NE(FindClass("TBase"), nullptr);
}

TEST_F(ClassRegistry, ListsClassesInOrderOfName) {
  RegisterClass(TDerived::StaticClass(), this);
  RegisterClass(TBase::StaticClass(), this);
  RegisterClass(TAbstract::StaticClass(), this);
  EXPECT_EQ(RegisteredClasses(), (std::vector<const TClass*>{&TAbstract::StaticClass(), &TBase::StaticClass(),
                                                             &TDerived::StaticClass()}));
}

TEST(IntegerConsts, StandForValuesInTextBothWays) {
  static const TTypeInfo type = OrdinalType("TShade", 0, 1000);
  RegisterIntegerConsts(type, {[](QByteArrayView ident, std::int64_t& value) {
                                 if (ident.compare("shDark", Qt::CaseInsensitive) != 0) return false;
                                 value = 700;
                                 return true;
                               },
                               [](std::int64_t value, QByteArray& ident) {
                                 if (value != 700) return false;
                                 ident = "shDark";
                                 return true;
                               }});
  EXPECT_EQ(OrdToText(type, 700), QStringLiteral("shDark"));
  EXPECT_EQ(OrdToText(type, 701), QStringLiteral("701"));
  EXPECT_EQ(TextToOrd(type, QStringLiteral("SHDARK")), 700);
  EXPECT_EQ(TextToOrd(type, QStringLiteral("12")), 12);
  EXPECT_THROW(TextToOrd(type, QStringLiteral("shLight")), EConvertError);
  EXPECT_THROW(TextToOrd(type, QStringLiteral("1001")), EConvertError);
}
