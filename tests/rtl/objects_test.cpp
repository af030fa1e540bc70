// Strings, data, events, references and value objects as properties, and what holds for every kind.
#include "tests/rtl/RtlTest.h"

using namespace rtltest;

TEST(StringProperty, IsReadWrittenResetAndDefaultWhenEmpty) {
  TEverything c(nullptr);
  const TPropInfo& p = Prop(c, "Text");
  EXPECT_FALSE(IsStoredProp(c, p));
  const QString value = QString::fromUtf8("a\n\xE2\x82\xAC");
  SetStrProp(c, p, value);
  EXPECT_EQ(GetStrProp(c, p), value);
  EXPECT_EQ(GetPropText(c, p), value);
  EXPECT_TRUE(IsStoredProp(c, p));
  SetPropText(c, p, QStringLiteral(" kept "));
  EXPECT_EQ(c.text, QStringLiteral(" kept "));
  ResetProp(c, p);
  EXPECT_TRUE(c.text.isEmpty());
}

TEST(BinaryProperty, IsStreamedButHasNoText) {
  TEverything c(nullptr);
  const TPropInfo& p = Prop(c, "Data");
  EXPECT_TRUE(p.Is<QByteArray>());
  EXPECT_EQ(p.Visibility, TPropVisibility::Streamed);
  EXPECT_FALSE(IsStoredProp(c, p));
  SetBinaryProp(c, p, QByteArray("\0\1", 2));
  EXPECT_EQ(GetBinaryProp(c, p), QByteArray("\0\1", 2));
  EXPECT_TRUE(IsStoredProp(c, p));
  EXPECT_EQ(GetPropText(c, p), QStringLiteral("(2 bytes)"));
  EXPECT_THROW(SetPropText(c, p, QStringLiteral("x")), EPropertyError);
  ResetProp(c, p);
  EXPECT_TRUE(c.data.isEmpty());
}

TEST(EventProperty, HoldsTheNameOfAHandler) {
  TEverything c(nullptr);
  const TPropInfo& click = Prop(c, "OnClick");
  const TPropInfo& key = Prop(c, "OnKey");
  EXPECT_TRUE(click.IsEvent());
  EXPECT_EQ(click.PropType->Name, "TNotifyEvent");
  EXPECT_EQ(key.PropType->Name, "TKeyEvent");
  EXPECT_FALSE(IsStoredProp(c, click));
  SetMethodProp(c, click, QStringLiteral("Clicked"));
  SetPropText(c, key, QStringLiteral("Keyed"));
  EXPECT_EQ(GetMethodProp(c, click), QStringLiteral("Clicked"));
  EXPECT_EQ(GetPropText(c, key), QStringLiteral("Keyed"));
  EXPECT_TRUE(IsStoredProp(c, click));
  for (const char* wrong : {"1st", "a b", "a.b", "\xC3\xA9"})
    EXPECT_THROW(SetPropText(c, click, QString::fromUtf8(wrong)), EConvertError) << wrong;
  SetPropText(c, key, {});
  EXPECT_EQ(GetMethodProp(c, key), QString());
  ResetProp(c, click);
  EXPECT_FALSE(IsStoredProp(c, click));
  EXPECT_THROW(SetMethodProp(c, Prop(c, "Int"), QStringLiteral("X")), EPropertyError);
}

TEST(ReferenceProperty, IsSetByPointerAndByName) {
  TComponent root(nullptr);
  auto* a = new TEverything(&root);
  auto* b = new TEverything(&root);
  a->SetName(QStringLiteral("A"));
  b->SetName(QStringLiteral("B"));
  const TPropInfo& p = Prop(*a, "Friend");
  EXPECT_TRUE(IsComponentRef(p));
  EXPECT_FALSE(IsStoredProp(*a, p));
  SetObjectProp(*a, p, b);
  EXPECT_EQ(GetObjectProp(*a, p), b);
  EXPECT_EQ(GetPropText(*a, p), QStringLiteral("B"));
  EXPECT_TRUE(IsStoredProp(*a, p));
  SetPropText(*a, p, {});
  EXPECT_EQ(a->Friend(), nullptr);
  SetPropText(*a, p, QStringLiteral("b"));
  EXPECT_EQ(a->Friend(), b);
  EXPECT_THROW(SetPropText(*a, p, QStringLiteral("C")), EConvertError);
  auto* other = new TComponent(&root);
  other->SetName(QStringLiteral("Other"));
  EXPECT_THROW(SetPropText(*a, p, QStringLiteral("Other")), EPropertyError);
  EXPECT_THROW(SetObjectProp(*a, p, other), EPropertyError);
  EXPECT_EQ(a->Friend(), b);
  ResetProp(*a, p);
  EXPECT_EQ(a->Friend(), nullptr);
}

TEST(ObjectProperty, IsStoredWhenAnythingInItIs) {
  TEverything c(nullptr);
  for (const char* name : {"Point", "Lines", "Parts"}) {
    EXPECT_FALSE(IsComponentRef(Prop(c, name)));
    EXPECT_FALSE(IsStoredProp(c, Prop(c, name))) << name;
  }
  EXPECT_EQ(GetPropText(c, Prop(c, "Point")), QStringLiteral("(TPoint2)"));
  EXPECT_THROW(SetPropText(c, Prop(c, "Point"), QStringLiteral("x")), EPropertyError);
  c.point.SetY(6);
  c.lines.Add(QString());
  c.parts.Add();
  for (const char* name : {"Point", "Lines", "Parts"}) {
    EXPECT_TRUE(IsStoredProp(c, Prop(c, name))) << name;
    ResetProp(c, Prop(c, name));
    EXPECT_FALSE(IsStoredProp(c, Prop(c, name))) << name;
  }
  EXPECT_EQ(c.point.Y(), 5);
}

TEST(ObjectProperty, SettingItCopiesTheValue) {
  TEverything c(nullptr);
  TPoint2 other;
  other.SetX(8);
  SetObjectProp(c, Prop(c, "Point"), &other);
  EXPECT_EQ(c.point.X(), 8);
  EXPECT_EQ(GetObjectProp(c, Prop(c, "Point")), &c.point);
  EXPECT_THROW(SetObjectProp(c, Prop(c, "Point"), &c.lines), EPropertyError);
  EXPECT_ANY_THROW(SetObjectProp(c, Prop(c, "Point"), nullptr));
  EXPECT_EQ(c.point.X(), 8);
}

TEST(Property, ReadOnlyOnesAreNeitherWrittenNorStored) {
  TEverything c(nullptr);
  const TPropInfo& p = Prop(c, "ReadOnly");
  EXPECT_EQ(GetOrdProp(c, p), 7);
  EXPECT_THROW(SetOrdProp(c, p, 1), EPropertyError);
  EXPECT_THROW(SetPropText(c, p, QStringLiteral("1")), EPropertyError);
  EXPECT_FALSE(IsStoredProp(c, p));
  ResetProp(c, p);
  EXPECT_EQ(c.readOnly, 7);
}

TEST(Property, AStoredRuleCanKeepItOutOfTheFile) {
  TEverything c(nullptr);
  c.conditional = 1;
  EXPECT_TRUE(IsStoredProp(c, Prop(c, "Conditional")));
  c.keep = false;
  EXPECT_FALSE(IsStoredProp(c, Prop(c, "Conditional")));
  EXPECT_FALSE(IsDefaultValue(c, Prop(c, "Conditional")));
  c.always = 1;
  EXPECT_FALSE(IsStoredProp(c, Prop(c, "Never")));
}

TEST(Property, AccessOfTheWrongKindIsRefused) {
  TEverything c(nullptr);
  for (const TPropInfo* p : c.ClassType().Properties()) {
    if (!p->IsOrdinal()) {
      EXPECT_THROW(GetOrdProp(c, *p), EPropertyError) << p->Name.constData();
    }
    if (!p->IsOrdinal()) {
      EXPECT_THROW(SetOrdProp(c, *p, 0), EPropertyError) << p->Name.constData();
    }
    if (p->Kind() != TTypeKind::tkFloat) {
      EXPECT_THROW(GetFloatProp(c, *p), EPropertyError) << p->Name.constData();
    }
    if (p->Kind() != TTypeKind::tkString) {
      EXPECT_THROW(GetStrProp(c, *p), EPropertyError) << p->Name.constData();
    }
    if (p->Kind() != TTypeKind::tkClass) {
      EXPECT_THROW(GetObjectProp(c, *p), EPropertyError) << p->Name.constData();
    }
    if (!p->Is<QByteArray>()) {
      EXPECT_THROW(GetBinaryProp(c, *p), EPropertyError) << p->Name.constData();
    }
  }
}

TEST(Property, EveryKindIsCopied) {
  TComponent root(nullptr);
  auto* a = new TEverything(&root);
  auto* b = new TEverything(&root);
  for (const TPropInfo* p : a->ClassType().Properties()) {
    if (p->IsOrdinal() && !p->ReadOnly)
      SetOrdProp(*a, *p, GetOrdProp(*a, *p) == p->PropType->MaxValue ? p->PropType->MinValue : 1);
    if (p->Kind() == TTypeKind::tkFloat) SetFloatProp(*a, *p, 1.5L);
  }
  a->flavour = TFlavour::fvBitter;
  a->text = QStringLiteral("t");
  a->data = "d";
  a->point.SetX(9);
  a->lines.SetText(QStringLiteral("1\n2"));
  static_cast<TPiece*>(a->parts.Add())->SetTitle(QStringLiteral("p"));
  a->SetFriend(b);
  SetMethodProp(*a, Prop(*a, "OnClick"), QStringLiteral("H"));
  b->Assign(a);
  EXPECT_TRUE(b->Name().isEmpty()) << "a name is a component's own";
  for (const TPropInfo* p : a->ClassType().Properties())
    EXPECT_EQ(GetPropText(*a, *p), GetPropText(*b, *p)) << p->Name.constData();
  EXPECT_EQ(b->point.X(), 9);
  EXPECT_EQ(b->lines.Lines(), a->lines.Lines());
  ASSERT_EQ(b->parts.Count(), 1);
  EXPECT_EQ(static_cast<TPiece*>(b->parts.Item(0))->Title(), QStringLiteral("p"));
  EXPECT_EQ(b->Friend(), b);
  EXPECT_EQ(b->data, "d");
}

TEST(Property, TakesAnyValueOfItsKindAndRefusesOthers) {
  TEverything a(nullptr), b(nullptr);
  a.integer = 99;
  a.money.Scaled = -12345;
  a.text = QStringLiteral("t");
  a.data = "d";
  for (const TPropInfo* p : a.ClassType().Properties()) {
    if (p->ReadOnly || p->Name == "Name") continue;
    SetProp(b, *p, GetProp(a, *p));
    EXPECT_EQ(GetProp(b, *p), GetProp(a, *p)) << p->Name.constData();
    for (const char* other : {"Int", "Real", "Text", "OnClick", "Friend", "Data"}) {
      const TPropInfo& q = Prop(a, other);
      if (q.Access->Alternative() == p->Access->Alternative()) continue;
      EXPECT_THROW(SetProp(b, *p, GetProp(a, q)), EPropertyError) << p->Name.constData() << " " << other;
    }
  }
  EXPECT_EQ(b.integer, 99);
  EXPECT_EQ(b.money.Scaled, -12345);
  EXPECT_THROW(SetProp(b, Prop(b, "ReadOnly"), std::int64_t{1}), EPropertyError);
  EXPECT_EQ(b.readOnly, 7);
  EXPECT_THROW(SetProp(b, Prop(b, "Byte"), std::int64_t{256}), EPropertyError);
}

TEST(Values, AreTheSameWhenEveryPropertyIsAndThoseOfParts) {
  TEverything a(nullptr), b(nullptr);
  EXPECT_TRUE(SameValues(a, b));
  a.point.SetX(1);
  EXPECT_FALSE(SameValues(a, b));
  b.point.SetX(1);
  EXPECT_TRUE(SameValues(a, b));
  b.text = QStringLiteral("t");
  EXPECT_FALSE(SameValues(a, b));
  a.text = b.text;
  SetMethodProp(a, Prop(a, "OnClick"), QStringLiteral("H"));
  EXPECT_FALSE(SameValues(a, b));
}

TEST(ReferenceProperty, TakesTheFormItselfAndRefusesAnotherClass) {
  TEverything form(nullptr);
  form.SetName(QStringLiteral("Form1"));
  auto* a = new TEverything(&form);
  auto* plain = new TComponent(&form);
  plain->SetName(QStringLiteral("Plain"));
  const TPropInfo& p = Prop(*a, "Friend");
  SetPropText(*a, p, QStringLiteral("FORM1"));
  EXPECT_EQ(a->Friend(), &form);
  EXPECT_THROW(SetPropText(*a, p, QStringLiteral("Plain")), EPropertyError);
  EXPECT_THROW(SetObjectProp(*a, p, plain), EPropertyError);
  EXPECT_THROW(SetProp(*a, p, TReference{plain}), EPropertyError);
  EXPECT_EQ(a->Friend(), &form) << "unchanged by a refusal";
}
