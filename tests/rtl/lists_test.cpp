// Collections and lists of texts.
#include "tests/rtl/RtlTest.h"

using namespace rtltest;

namespace {
class TOtherPart : public TCollectionItem {
  VRX_CLASS(TOtherPart)
 public:
  using TCollectionItem::TCollectionItem;
  int size = 0;
};
const TClass& TOtherPart::StaticClass() {
  static const TClass cls(DescribeClass<TOtherPart>("TOtherPart", TCollectionItem::StaticClass())
                              .Published("Size", &TOtherPart::size, &TOtherPart::size, 0));
  return cls;
}

void Fill(TCollection& parts, const QStringList& titles) {
  for (const QString& title : titles) static_cast<TPiece*>(parts.Add())->SetTitle(title);
}
QString Titles(const TCollection& parts) {
  QString all;
  for (int i = 0; i < parts.Count(); ++i) all += static_cast<TPiece*>(parts.Item(i))->Title();
  return all;
}
const QStringList Abcd{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d")};
}  // namespace

TEST(Collection, ItemsKnowTheirPlaceAndOwner) {
  TEverything c(nullptr);
  Fill(c.parts, Abcd);
  EXPECT_EQ(c.parts.Count(), 4);
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(c.parts.Item(i)->Index(), i);
    EXPECT_EQ(c.parts.Item(i)->GetOwner(), &c.parts);
    EXPECT_EQ(c.parts.Item(i)->Collection(), &c.parts);
  }
  EXPECT_EQ(c.parts.GetOwner(), &c);
  EXPECT_EQ(c.parts.Item(0)->DisplayName(), QStringLiteral("TPiece"));
  EXPECT_THROW(TPiece(nullptr), EComponentError);
}

TEST(Collection, DeletesAndClears) {
  TEverything c(nullptr);
  Fill(c.parts, Abcd);
  const int before = c.changes;
  c.parts.Delete(1);
  EXPECT_EQ(Titles(c.parts), QStringLiteral("acd"));
  for (const int wrong : {-1, 3}) EXPECT_THROW(c.parts.Delete(wrong), EComponentError);
  EXPECT_EQ(c.changes, before + 1);
  c.parts.Clear();
  c.parts.Clear();
  EXPECT_EQ(c.parts.Count(), 0);
  EXPECT_EQ(c.changes, before + 2);
  EXPECT_TRUE(c.parts.ContentEmpty());
}

TEST(Collection, MovingAnItemKeepsTheOrderOfTheOthers) {
  for (int from = 0; from < 4; ++from) {
    for (int to = 0; to < 4; ++to) {
      TEverything c(nullptr);
      Fill(c.parts, Abcd);
      const int before = c.changes;
      c.parts.Move(from, to);
      QString expected = QStringLiteral("abcd");
      expected.remove(from, 1).insert(to, Abcd[from]);
      EXPECT_EQ(Titles(c.parts), expected) << from << " to " << to;
      EXPECT_EQ(c.changes, before + (from == to ? 0 : 1));
    }
  }
  TCollection none(TPiece::StaticClass());
  EXPECT_THROW(none.Move(0, 0), EComponentError);
}

TEST(Collection, AssignReplacesTheItemsByCopies) {
  TEverything a(nullptr), b(nullptr);
  Fill(a.parts, Abcd);
  Fill(b.parts, {QStringLiteral("x")});
  b.changes = 0;
  b.parts.Assign(&a.parts);
  EXPECT_EQ(Titles(b.parts), QStringLiteral("abcd"));
  EXPECT_NE(a.parts.Item(0), b.parts.Item(0));
  EXPECT_EQ(b.changes, 1);
  b.parts.Assign(&b.parts);
  EXPECT_EQ(Titles(b.parts), QStringLiteral("abcd"));
}

TEST(Collection, AssignOfItemsOfAnotherClassIsRefusedAndChangesNothing) {
  TCollection parts(TPiece::StaticClass()), others(TOtherPart::StaticClass());
  Fill(parts, Abcd);
  others.Add();
  EXPECT_THROW(parts.Assign(&others), EConvertError);
  EXPECT_EQ(Titles(parts), QStringLiteral("abcd"));
  TPoint2 point;
  EXPECT_THROW(parts.Assign(&point), EConvertError);
}

TEST(Strings, SplitTextAtEveryKindOfLineEnd) {
  TStrings s;
  s.SetText(QStringLiteral("a\nb\r\nc\rd"));
  EXPECT_EQ(s.Lines(), Abcd);
  s.SetText(QStringLiteral("a\nb\n"));
  EXPECT_EQ(s.Count(), 2);
  s.SetText(QStringLiteral("a\n\n"));
  EXPECT_EQ(s.Lines(), (QStringList{QStringLiteral("a"), QString()}));
  s.SetText(QStringLiteral("\n\n"));
  EXPECT_EQ(s.Lines(), (QStringList{QString(), QString()}));
  s.SetText(QStringLiteral("\n"));
  EXPECT_EQ(s.Lines(), QStringList{QString()});
  s.SetText({});
  EXPECT_EQ(s.Count(), 0);
}

TEST(Strings, JoinTheirLines) {
  TStrings s;
  s.SetLines(Abcd);
  EXPECT_EQ(s.Text(), QStringLiteral("a\nb\nc\nd"));
  EXPECT_EQ(s.Add(QStringLiteral("e")), 4);
  EXPECT_EQ(s.Lines().last(), QStringLiteral("e"));
  s.Clear();
  EXPECT_TRUE(s.ContentEmpty());
}

TEST(Strings, AssignCopiesTheLinesAndReportsAChangeOnly) {
  TEverything c(nullptr);
  TStrings s;
  s.SetLines(Abcd);
  c.lines.Assign(&s);
  EXPECT_EQ(c.lines.Lines(), Abcd);
  c.lines.Assign(&s);
  EXPECT_EQ(c.changes, 1);
}
