// Value objects: their changes reach the owner; Assign copies them.
#include "tests/rtl/RtlTest.h"

using namespace rtltest;

TEST(Changes, ReachTheComponentThatOwnsTheValue) {
  TEverything c(nullptr);
  c.point.SetX(1);
  EXPECT_EQ(c.changes, 1);
  c.point.SetX(1);
  EXPECT_EQ(c.changes, 1) << "the same value is no change";
  c.lines.Add(QStringLiteral("x"));
  EXPECT_EQ(c.changes, 2);
  c.parts.Add();
  EXPECT_EQ(c.changes, 3);
  TPoint2 alone;
  alone.SetX(1);
  EXPECT_EQ(alone.X(), 1);
}

TEST(Changes, AreCollectedBetweenBeginAndEndUpdate) {
  TEverything c(nullptr);
  c.point.BeginUpdate();
  c.point.BeginUpdate();
  c.point.SetX(1);
  c.point.SetY(1);
  c.point.EndUpdate();
  EXPECT_EQ(c.changes, 0);
  c.point.EndUpdate();
  EXPECT_EQ(c.changes, 1);
  c.point.BeginUpdate();
  c.point.EndUpdate();
  EXPECT_EQ(c.changes, 1) << "nothing was changed in between";
  c.BeginUpdate();
  c.point.SetX(2);
  c.lines.Add(QString());
  EXPECT_EQ(c.changes, 1);
  c.EndUpdate();
  EXPECT_EQ(c.changes, 2);
}

TEST(Changes, AssignAndResetReportOnce) {
  TEverything c(nullptr);
  TPoint2 other;
  other.SetX(3);
  other.SetY(4);
  c.point.Assign(&other);
  EXPECT_EQ(c.changes, 1);
  ResetProp(c, Prop(c, "Point"));
  EXPECT_EQ(c.changes, 2);
}

TEST(Assign, CopiesBetweenRelatedClassesAndRefusesOthers) {
  TPoint2 a, b;
  a.SetX(1);
  b.Assign(&a);
  EXPECT_EQ(b.X(), 1);
  b.Assign(&b);
  EXPECT_EQ(b.X(), 1);
  TStrings lines;
  EXPECT_THROW(b.Assign(&lines), EConvertError);
  EXPECT_THROW(b.Assign(nullptr), EConvertError);
  EXPECT_THROW(lines.Assign(&a), EConvertError);
  EXPECT_EQ(b.X(), 1);
}

TEST(Assign, CopiesBetweenAnAncestorAndADescendantWhatBothHave) {
  TComponent base(nullptr);
  TEverything derived(nullptr);
  base.SetTag(5);
  derived.integer = 44;
  derived.Assign(&base);
  EXPECT_EQ(derived.Tag(), 5);
  EXPECT_EQ(derived.integer, 44);
  derived.SetTag(6);
  base.Assign(&derived);
  EXPECT_EQ(base.Tag(), 6);
}
