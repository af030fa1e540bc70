// Comparing two texts line by line.
#include "ide/LineDiff.h"

#include <gtest/gtest.h>

#include <random>

#include "forms/Document.h"

using Kind = DiffRow::Kind;

namespace {
QStringList Lines(const char* text) { return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts); }

// "=a -b +c" and "~b/c" for a changed line.
std::string Shown(const QStringList& left, const QStringList& right) {
  QStringList out;
  for (const DiffRow& row : CompareLines(left, right)) switch (row.kind) {
      case Kind::Same:
        out << u'=' + left[row.left];
        EXPECT_EQ(left[row.left], right[row.right]);
        break;
      case Kind::Changed:
        out << u'~' + left[row.left] + u'/' + right[row.right];
        break;
      case Kind::Removed:
        out << u'-' + left[row.left];
        break;
      case Kind::Added:
        out << u'+' + right[row.right];
        break;
      case Kind::Gap:
        out << QStringLiteral("gap");
    }
  return out.join(u' ').toStdString();
}
std::string Shown(const char* left, const char* right) { return Shown(Lines(left), Lines(right)); }

// The longest common subsequence the slow and obvious way.
int CommonLength(const QStringList& a, const QStringList& b) {
  std::vector<std::vector<int>> table(static_cast<std::size_t>(a.size() + 1),
                                      std::vector<int>(static_cast<std::size_t>(b.size() + 1)));
  for (std::size_t i = 1; i < table.size(); ++i)
    for (std::size_t j = 1; j < table[0].size(); ++j)
      table[i][j] = a[static_cast<qsizetype>(i - 1)] == b[static_cast<qsizetype>(j - 1)]
                        ? table[i - 1][j - 1] + 1
                        : std::max(table[i - 1][j], table[i][j - 1]);
  return table.back().back();
}
}  // namespace

TEST(LineDiff, ShowsWhatChanged) {
  EXPECT_EQ(Shown("a b c", "a b c"), "=a =b =c");
  EXPECT_EQ(Shown("a b c", "a x c"), "=a ~b/x =c");
  EXPECT_EQ(Shown("a c", "a b c"), "=a +b =c");
  EXPECT_EQ(Shown("a b c", "a c"), "=a -b =c");
  EXPECT_EQ(Shown("", "a b"), "+a +b");
  EXPECT_EQ(Shown("a b", ""), "-a -b");
  EXPECT_EQ(Shown("", ""), "");
  EXPECT_EQ(Shown("a b c d e", "a c x d e f"), "=a -b =c +x =d =e +f");
}

TEST(LineDiff, EveryLineIsThereOnceAndAsManyAsPossibleAreTheSame) {
  std::mt19937 random(5);
  for (int round = 0; round < 2000; ++round) {
    QStringList left, right;
    const auto letters = 1 + random() % 5;
    for (auto i = random() % 20; i > 0; --i) left << QString::number(random() % letters);
    for (auto i = random() % 20; i > 0; --i) right << QString::number(random() % letters);
    int nextLeft = 0, nextRight = 0, same = 0;
    for (const DiffRow& row : CompareLines(left, right)) {
      if (row.left >= 0) {
        ASSERT_EQ(row.left, nextLeft++);
      }
      if (row.right >= 0) {
        ASSERT_EQ(row.right, nextRight++);
      }
      if (row.kind != Kind::Same) continue;
      ASSERT_EQ(left[row.left], right[row.right]);
      ++same;
    }
    ASSERT_EQ(nextLeft, left.size());
    ASSERT_EQ(nextRight, right.size());
    ASSERT_EQ(same, CommonLength(left, right))
        << left.join(u' ').toStdString() << " | " << right.join(u' ').toStdString();
  }
}

TEST(LineDiff, TextsWithLittleInCommonAreOneBlock) {
  QStringList left, right;
  for (int i = 0; i < 5000; ++i) {
    left << QStringLiteral("left %1").arg(i);
    right << QStringLiteral("right %1").arg(i);
  }
  left << QStringLiteral("end");
  right << QStringLiteral("end");
  const auto rows = CompareLines(left, right);
  ASSERT_EQ(rows.size(), 5001u);
  EXPECT_EQ(rows.front(), (DiffRow{Kind::Changed, 0, 0}));
  EXPECT_EQ(rows.back(), (DiffRow{Kind::Same, 5000, 5000}));
}

TEST(LineDiff, LongRunsOfEqualLinesAreFolded) {
  QStringList left, right;
  for (int i = 0; i < 40; ++i) left << QString::number(i);
  right = left;
  right[20] = QStringLiteral("other");
  const auto rows = FoldSameLines(CompareLines(left, right), 3);
  ASSERT_EQ(rows.size(), 9u);
  EXPECT_EQ(rows.front(), (DiffRow{Kind::Gap, 0, 0, 17}));
  EXPECT_EQ(rows[1], (DiffRow{Kind::Same, 17, 17}));
  EXPECT_EQ(rows[4], (DiffRow{Kind::Changed, 20, 20}));
  EXPECT_EQ(rows[7], (DiffRow{Kind::Same, 23, 23}));
  EXPECT_EQ(rows.back(), (DiffRow{Kind::Gap, 24, 24, 16}));
}

TEST(LineDiff, AGapStandsForMoreThanOneLine) {
  const QStringList left = Lines("0 1 2 3 4 5"), right = Lines("x 1 2 3 4 y");
  for (const DiffRow& row : FoldSameLines(CompareLines(left, right), 2)) EXPECT_NE(row.kind, Kind::Gap);
  const auto rows = FoldSameLines(CompareLines(left, right), 1);
  EXPECT_EQ(std::count_if(rows.begin(), rows.end(), [](const DiffRow& r) { return r.kind == Kind::Gap; }), 1);
}

TEST(LineDiff, ABinaryFormIsReadAsText) {
  const QByteArray text = "object A: TA\r\n  Caption = 'x'\r\nend\r\n";
  const QStringList lines{QStringLiteral("object A: TA"), QStringLiteral("  Caption = 'x'"),
                          QStringLiteral("end")};
  EXPECT_EQ(LinesToRead(text, QStringLiteral("a.dfm")), lines);
  for (const forms::Format format : {forms::Format::Binary, forms::Format::Resource})
    EXPECT_EQ(LinesToRead(forms::Document::Parse(text).WriteAs(format), QStringLiteral("a.dfm")), lines);
  EXPECT_EQ(LinesToRead("TPF0 no form", QStringLiteral("a.dfm")).size(), 1);
  EXPECT_EQ(LinesToRead("caf\xE9\n", QStringLiteral("a.dfm")), QStringList{QStringLiteral("café")});
}
