// Moving rows: by the mouse, and what becomes of several that move at once.
#include "dclstd/RowDrag.h"

#include <QListWidget>
#include <random>

#include "tests/designintf/DesignTest.h"

namespace {
std::vector<int> Numbers(int count) {
  std::vector<int> all(static_cast<std::size_t>(count));
  std::iota(all.begin(), all.end(), 0);
  return all;
}
std::vector<int> After(const RowMoves& moves, std::vector<int> all) {
  for (const RowMove& move : moves) {
    const int row = all[static_cast<std::size_t>(move.from)];
    all.erase(all.begin() + move.from);
    all.insert(all.begin() + move.to, row);
  }
  return all;
}

// A list whose rows are dragged; what is dropped is told as "row spot".
class DraggedRows : public testing::Test {
 protected:
  void Show(bool icons) {
    for (const char* name : {"one", "two", "three", "four"}) view.addItem(QString::fromLatin1(name));
    if (icons) {
      view.setViewMode(QListView::IconMode);
      view.setGridSize(QSize(60, 40));
      view.resize(300, 200);
    }
    new RowDrag(view, [this](const RowDrag::Target& target) {
      drops << QStringLiteral("%1 %2").arg(target.index.row()).arg(static_cast<int>(target.spot));
    });
    view.show();
    QCoreApplication::processEvents();
  }
  QRect Rect(int row) { return view.visualItemRect(view.item(row)); }
  void Drag(QPoint from, QPoint to) {
    QWidget* area = view.viewport();
    QTest::mousePress(area, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, area->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(area, &move);
    QTest::mouseRelease(area, Qt::LeftButton, {}, to);
  }
  static QString Told(int row, RowDrag::Spot spot) {
    return QStringLiteral("%1 %2").arg(row).arg(static_cast<int>(spot));
  }
  QListWidget view;
  QStringList drops;
};
}  // namespace

// Taken out, and put together where the place was.
TEST(RowMoves, ToAPlaceKeepTheirOrderAndEverybodyElses) {
  std::mt19937 random(77);
  for (int round = 0; round < 500; ++round) {
    const int count = 1 + static_cast<int>(random() % 9);
    std::vector<int> rows;
    for (int row = 0; row < count; ++row)
      if (random() % 2) rows.push_back(row);
    const int before = static_cast<int>(random() % static_cast<unsigned>(count + 1));
    std::vector<int> expected;
    const auto chosen = [&](int row) { return std::find(rows.begin(), rows.end(), row) != rows.end(); };
    for (int row = 0; row < before; ++row)
      if (!chosen(row)) expected.push_back(row);
    const auto landed = static_cast<int>(expected.size());
    expected.insert(expected.end(), rows.begin(), rows.end());
    for (int row = before; row < count; ++row)
      if (!chosen(row)) expected.push_back(row);
    const RowMoves moves = MovesTo(rows, before);
    ASSERT_EQ(After(moves, Numbers(count)), expected) << round;
    std::vector<int> places = Numbers(static_cast<int>(rows.size()));
    for (int& place : places) place += landed;
    ASSERT_EQ(Landed(moves), places) << round;
  }
}

TEST(RowMoves, ByOneStopAtTheEndAndAtEachOther) {
  EXPECT_EQ(After(MovesBy({1, 2}, -1, 5), Numbers(5)), (std::vector{1, 2, 0, 3, 4}));
  EXPECT_EQ(After(MovesBy({0, 2}, -1, 5), Numbers(5)), (std::vector{0, 2, 1, 3, 4}));
  EXPECT_EQ(After(MovesBy({0, 1, 3}, -1, 5), Numbers(5)), (std::vector{0, 1, 3, 2, 4}));
  EXPECT_EQ(After(MovesBy({2, 4}, 1, 5), Numbers(5)), (std::vector{0, 1, 3, 2, 4}));
  EXPECT_FALSE(MovesAny(MovesBy({3, 4}, 1, 5)));
  EXPECT_TRUE(MovesAny(MovesBy({2, 4}, 1, 5)));
}

TEST_F(DraggedRows, GoInFrontOfTheUpperHalfAndBehindTheLowerOne) {
  Show(false);
  Drag(Rect(0).center(), Rect(2).topLeft() + QPoint(5, 1));
  Drag(Rect(0).center(), Rect(2).bottomLeft() + QPoint(5, -1));
  EXPECT_EQ(drops, QStringList({Told(2, RowDrag::Spot::Before), Told(2, RowDrag::Spot::Behind)}));
}

TEST_F(DraggedRows, AHandThatTremblesDragsNothing) {
  Show(false);
  Drag(Rect(1).center(), Rect(1).center() + QPoint(QApplication::startDragDistance() - 1, 0));
  EXPECT_TRUE(drops.isEmpty());
  Drag(Rect(1).center(), Rect(1).center() + QPoint(QApplication::startDragDistance(), 0));
  EXPECT_EQ(drops.size(), 1);
}

TEST_F(DraggedRows, BetweenPicturesTheNearestOneCounts) {
  Show(true);
  const QRect second = Rect(1);
  Drag(Rect(3).center(), QPoint(second.center().x() - 2, 150));
  EXPECT_EQ(drops, QStringList{Told(1, RowDrag::Spot::Before)});
}
