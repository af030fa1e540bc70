#include "dclstd/RowDrag.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QMouseEvent>
#include <QRubberBand>

RowMoves MovesBy(std::vector<int> rows, int by, int count) {
  if (by > 0) std::reverse(rows.begin(), rows.end());
  int limit = by < 0 ? 0 : count - 1;
  RowMoves moves;
  for (const int row : rows) {
    moves.push_back({row, row == limit ? row : row + by});
    limit = moves.back().to - by;
  }
  return moves;
}

// Those in front of the place from the last to the first, so that none moves another one that is still to go.
RowMoves MovesTo(const std::vector<int>& rows, int before) {
  RowMoves moves;
  const auto middle = std::lower_bound(rows.begin(), rows.end(), before);
  int to = before;
  for (auto row = middle; row != rows.begin();) moves.push_back({*--row, --to});
  to = before;
  for (auto row = middle; row != rows.end(); ++row) moves.push_back({*row, to++});
  return moves;
}

bool MovesAny(const RowMoves& moves) {
  return std::any_of(moves.begin(), moves.end(), [](const RowMove& move) { return move.from != move.to; });
}

std::vector<int> Landed(const RowMoves& moves) {
  std::vector<int> rows;
  for (const RowMove& move : moves) rows.push_back(move.to);
  std::sort(rows.begin(), rows.end());
  return rows;
}

RowDrag::RowDrag(QAbstractItemView& view, std::function<void(const Target&)> drop,
                 std::function<bool(const QModelIndex&)> takes)
    : QObject(&view),
      view_(view),
      drop_(std::move(drop)),
      takes_(std::move(takes)),
      mark_(new QRubberBand(QRubberBand::Rectangle, view.viewport())) {
  view.viewport()->installEventFilter(this);
  view.installEventFilter(this);
}

bool RowDrag::Across() const {
  const auto* list = qobject_cast<const QListView*>(&view_);
  return list && list->viewMode() == QListView::IconMode;
}

RowDrag::Target RowDrag::TargetAt(QPoint point) const {
  QModelIndex index = view_.indexAt(point);
  if (!index.isValid() && Across()) {
    // Between the pictures the nearest one counts.
    int nearest = INT_MAX;
    for (int row = 0; row < view_.model()->rowCount(); ++row) {
      const QModelIndex other = view_.model()->index(row, 0);
      const int distance = (view_.visualRect(other).center() - point).manhattanLength();
      if (distance < nearest) index = other;
      nearest = std::min(nearest, distance);
    }
  }
  if (!index.isValid()) return {};
  const QRect rect = view_.visualRect(index);
  const int size = Across() ? rect.width() : rect.height();
  const int at = Across() ? point.x() - rect.left() : point.y() - rect.top();
  if (takes_ && takes_(index) && at >= size / 4 && at < size - size / 4) return {index, Spot::Into};
  return {index, at < size / 2 ? Spot::Before : Spot::Behind};
}

void RowDrag::Mark(const Target& target) {
  constexpr int Line = 3;
  QRect r = view_.visualRect(target.index);
  if (!target.index.isValid()) {
    QModelIndex last = view_.model()->index(view_.model()->rowCount() - 1, 0);
    while (view_.visualRect(last.model()->index(last.model()->rowCount(last) - 1, 0, last)).isValid())
      last = last.model()->index(last.model()->rowCount(last) - 1, 0, last);
    r = view_.visualRect(last);
  }
  if (target.spot != Spot::Into) {
    const bool behind = target.spot == Spot::Behind;
    if (Across()) {
      r.setLeft((behind ? r.right() + 1 : r.left()) - Line / 2);
      r.setWidth(Line);
    } else {
      r.setTop((behind ? r.bottom() + 1 : r.top()) - Line / 2);
      r.setHeight(Line);
    }
  }
  mark_->setGeometry(r);
  mark_->show();
}

bool RowDrag::Moved(const QMouseEvent& event) {
  if (!pressed_.isValid() || (event.buttons() & Qt::LeftButton) == 0) return dragging_;
  dragging_ |= (event.pos() - from_).manhattanLength() >= QApplication::startDragDistance();
  if (!dragging_) return true;
  const Target target = TargetAt(event.pos());
  if (target.index.isValid()) view_.scrollTo(target.index);
  Mark(target);
  return true;
}

bool RowDrag::Released(const QMouseEvent& event) {
  const bool valid = pressed_.isValid();
  pressed_ = QModelIndex();
  mark_->hide();
  if (!std::exchange(dragging_, false)) return false;
  if (valid) drop_(TargetAt(event.pos()));
  return true;
}

bool RowDrag::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &view_) {
    const bool escape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (!escape || !dragging_) return false;
    pressed_ = QModelIndex();
    mark_->hide();
    return true;
  }
  const auto* mouse = dynamic_cast<QMouseEvent*>(event);
  if (!mouse) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      from_ = mouse->pos();
      pressed_ = mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier
                     ? view_.indexAt(from_)
                     : QModelIndex();
      return false;
    case QEvent::MouseMove:
      return Moved(*mouse);
    case QEvent::MouseButtonRelease:
      return Released(*mouse);
    default:
      return false;
  }
}
