// Rows of a list or a tree that are moved: one further, or dragged to another place with the mouse.
#pragma once
#include <QObject>
#include <QPersistentModelIndex>
#include <functional>
#include <vector>

class QAbstractItemView;
class QMouseEvent;
class QRubberBand;

// Done one after the other.
struct RowMove {
  int from, to;
};
using RowMoves = std::vector<RowMove>;
// Each of the rows, which are sorted, one towards the first (-1) or the last (1). Those at the end already
// stay there; the others close up.
RowMoves MovesBy(std::vector<int> rows, int by, int count);
// All of them to one place, in front of the row that stands there.
RowMoves MovesTo(const std::vector<int>& rows, int before);
bool MovesAny(const RowMoves& moves);
// Where they are afterwards, sorted.
std::vector<int> Landed(const RowMoves& moves);

// Marks the place while the mouse is dragged; what happens there is up to the owner. Escape ends it. The view
// owns it.
class RowDrag : public QObject {
 public:
  enum class Spot { Before, Into, Behind };
  struct Target {
    QModelIndex index{};  // not valid below the last row
    Spot spot = Spot::Behind;
    // In front of which row that is, of a list with so many.
    int Row(int count) const { return index.isValid() ? index.row() + (spot == Spot::Behind) : count; }
  };
  // Rows that `takes` is true for can be dropped into.
  RowDrag(QAbstractItemView& view, std::function<void(const Target&)> drop,
          std::function<bool(const QModelIndex&)> takes = {});

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Moved(const QMouseEvent& event);
  bool Released(const QMouseEvent& event);
  Target TargetAt(QPoint point) const;
  void Mark(const Target& target);
  bool Across() const;

  QAbstractItemView& view_;
  std::function<void(const Target&)> drop_;
  std::function<bool(const QModelIndex&)> takes_;
  QRubberBand* mark_;
  QPersistentModelIndex pressed_;
  QPoint from_;
  bool dragging_ = false;
};
