#include "vcl/GridPanel.h"

#include <algorithm>
#include <cmath>

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TCellItem::StaticClass() {
  static const TClass cls(
      DescribeClass<TCellItem>("TCellItem", TCollectionItem::StaticClass()).PublishedAll(SizeStyle, Value));
  return cls;
}
const TClass& TColumnItem::StaticClass() {
  static const TClass cls(DescribeClass<TColumnItem>("TColumnItem", TCellItem::StaticClass()));
  return cls;
}
const TClass& TRowItem::StaticClass() {
  static const TClass cls(DescribeClass<TRowItem>("TRowItem", TCellItem::StaticClass()));
  return cls;
}
const TClass& TColumnCollection::StaticClass() {
  static const TClass cls(DescribeClass<TColumnCollection>("TColumnCollection", TCollection::StaticClass()));
  return cls;
}
const TClass& TRowCollection::StaticClass() {
  static const TClass cls(DescribeClass<TRowCollection>("TRowCollection", TCollection::StaticClass()));
  return cls;
}
const TClass& TGridControlItem::StaticClass() {
  static const TTypeInfo span = OrdinalType("TCellSpan", 1, INT32_MAX);
  static const TClass cls(DescribeClass<TGridControlItem>("TGridControlItem", TControlItem::StaticClass())
                              .Published(Column)
                              .Published(ColumnSpan)
                              .Type(span)
                              .Publish("Control")
                              .Published(Row)
                              .Published(RowSpan)
                              .Type(span)
                              .Alphabetical());
  return cls;
}
const TClass& TControlCollection::StaticClass() {
  static const TClass cls(
      DescribeClass<TControlCollection>("TControlCollection", TCollection::StaticClass()));
  return cls;
}

const TClass& TGridPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TGridPanel>("TGridPanel", TCustomPanel::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Styling, Container, Docking, ResizeEvents, WheelEvents, "Alignment", "AutoSize",
                      "BorderStyle", "BorderWidth", "Caption", "FullRepaint", "Locked", "ParentCustomHint",
                      "ShowCaption", "TabStop", "VerticalAlignment", MouseEvents, FocusEvents, DragEvents,
                      "OnPaint")
          .PublishedAll(ColumnCollection, ControlCollection, ExpandStyle, RowCollection)
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A panel in which every control has a cell."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 0 path 12 4.5 12 19.5 path 3.5 12 20.5 12 pen none "
              "brush accent box 5.5 6.5 4.5 3.5 0.5"));
  return cls;
}

namespace {
// Pixels first, then what the content needs, and shares of what is left.
template <class F>
std::vector<int> Edges(const TCollection& items, int room, F content) {
  const int count = items.Count() == 0 ? 2 : items.Count();
  std::vector<double> sizes(static_cast<std::size_t>(count), 0);
  double fixed = 0, shares = 0;
  const auto item = [&](int i) -> const TCellItem* {
    return items.Count() == 0 ? nullptr : static_cast<const TCellItem*>(items.Item(i));
  };
  // Damaged numbers are no numbers.
  const auto value = [](const TCellItem& c) {
    const double v = c.Get(TCellItem::Value);
    return std::isfinite(v) ? std::clamp(v, 0.0, 1e6) : 0.0;
  };
  for (int i = 0; i < count; ++i) {
    const TCellItem* cell = item(i);
    const TSizeStyle style = cell ? cell->Get(TCellItem::SizeStyle) : TSizeStyle::ssPercent;
    if (style == TSizeStyle::ssPercent) {
      shares += cell ? value(*cell) : 50;
    } else {
      fixed += sizes[static_cast<std::size_t>(i)] = style == TSizeStyle::ssAuto ? content(i) : value(*cell);
    }
  }
  const double left = std::max(room - fixed, 0.0);
  std::vector<int> edges{0};
  double at = 0;
  for (int i = 0; i < count; ++i) {
    const TCellItem* cell = item(i);
    if (!cell || cell->Get(TCellItem::SizeStyle) == TSizeStyle::ssPercent)
      sizes[static_cast<std::size_t>(i)] = shares > 0 ? left * (cell ? value(*cell) : 50) / shares : 0;
    at += sizes[static_cast<std::size_t>(i)];
    edges.push_back(static_cast<int>(std::lround(at)));
  }
  return edges;
}
}  // namespace

// The largest control that stands in this column or row alone.
int TGridPanel::Extent(const TCollection&, int index, bool columns) const {
  int most = 0;
  const TControlCollection& items = *Get(ControlCollection);
  for (int i = 0; i < items.Count(); ++i) {
    const auto& item = static_cast<const TGridControlItem&>(*items.Item(i));
    const TControl* c = item.Get(TControlItem::Control);
    const bool alone = item.Get(columns ? TGridControlItem::ColumnSpan : TGridControlItem::RowSpan) == 1;
    if (!c || !alone || item.Get(columns ? TGridControlItem::Column : TGridControlItem::Row) != index)
      continue;
    const QMargins m = c->OwnMargins();
    most = std::max(most, columns ? c->Width() + m.left() + m.right() : c->Height() + m.top() + m.bottom());
  }
  return most;
}

std::vector<int> TGridPanel::ColumnEdges(int room) const {
  return Edges(*Get(ColumnCollection), room, [&](int i) { return Extent(*Get(ColumnCollection), i, true); });
}
std::vector<int> TGridPanel::RowEdges(int room) const {
  return Edges(*Get(RowCollection), room, [&](int i) { return Extent(*Get(RowCollection), i, false); });
}

void TGridPanel::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                 const Placements*) const {
  const QRect room = client.marginsRemoved(insets);
  const std::vector<int> columns = ColumnEdges(room.width()), rows = RowEdges(room.height());
  const TControlCollection& items = *Get(ControlCollection);
  const auto span = [](const std::vector<int>& edges, int from, int count) {
    const int last = static_cast<int>(edges.size()) - 1;
    const int begin = std::clamp(from, 0, last);
    const int end = static_cast<int>(std::clamp<std::int64_t>(std::int64_t{begin} + count, begin, last));
    return std::pair(edges[static_cast<std::size_t>(begin)],
                     edges[static_cast<std::size_t>(end)] - edges[static_cast<std::size_t>(begin)]);
  };
  for (auto& p : all) {
    const TControlItem* item = items.ItemOf(*p.control);
    if (!item || item->Get(TGridControlItem::Column) < 0 || item->Get(TGridControlItem::Row) < 0) {
      PlaceAt(p, p.stands.topLeft());
      continue;
    }
    const auto [x, width] =
        span(columns, item->Get(TGridControlItem::Column), item->Get(TGridControlItem::ColumnSpan));
    const auto [y, height] =
        span(rows, item->Get(TGridControlItem::Row), item->Get(TGridControlItem::RowSpan));
    const QRect cell = QRect(room.left() + x, room.top() + y, width, height).marginsRemoved(p.margins);
    const int ownWidth = p.stands.width(), ownHeight = p.stands.height();
    PlaceAt(p, cell.topLeft());
    // Aligned, it fills the cell that way; else its anchors pull it to the edges, or it stands in the middle.
    const auto along = [](bool near, bool far, bool fills, int at, int extent, int own) {
      if (fills || (near && far)) return std::pair(at, extent);
      if (near) return std::pair(at, own);
      return far ? std::pair(at + extent - own, own) : std::pair(at + (extent - own) / 2, own);
    };
    using enum TAlign;
    const bool none = p.align == alNone || p.align == alCustom;
    const bool acrossFills = p.align == alClient || p.align == alTop || p.align == alBottom;
    const bool downFills = p.align == alClient || p.align == alLeft || p.align == alRight;
    const auto anchored = [&](TAnchorKind kind) { return none && p.anchors.Contains(kind); };
    const auto h = along(anchored(TAnchorKind::akLeft) || p.align == alLeft,
                         anchored(TAnchorKind::akRight) || p.align == alRight, acrossFills, cell.left(),
                         cell.width(), ownWidth);
    const auto v = along(anchored(TAnchorKind::akTop) || p.align == alTop,
                         anchored(TAnchorKind::akBottom) || p.align == alBottom, downFills, cell.top(),
                         cell.height(), ownHeight);
    p.left = h.first, p.width = h.second, p.top = v.first, p.height = v.second;
    p.ownsWidth = !acrossFills && !(anchored(TAnchorKind::akLeft) && anchored(TAnchorKind::akRight));
    p.ownsHeight = !downFills && !(anchored(TAnchorKind::akTop) && anchored(TAnchorKind::akBottom));
  }
}

const TGridControlItem* TGridPanel::ItemIn(int column, int row) const {
  const TControlCollection& items = *Get(ControlCollection);
  for (int i = 0; i < items.Count(); ++i) {
    const auto& item = static_cast<const TGridControlItem&>(*items.Item(i));
    const int left = item.Get(TGridControlItem::Column), top = item.Get(TGridControlItem::Row);
    if (column >= left && column - left < item.Get(TGridControlItem::ColumnSpan) && row >= top &&
        row - top < item.Get(TGridControlItem::RowSpan))
      return &item;
  }
  return nullptr;
}

void TGridPanel::MoveToCellAt(const TControl& control, QPoint point) {
  const QRect room = ClientRect().marginsRemoved(Insets());
  TControlItem* item = Get(ControlCollection)->ItemOf(control);
  if (!item || !room.contains(point)) return;
  const auto at = [](const std::vector<int>& edges, int place) {
    return static_cast<int>(std::upper_bound(edges.begin(), edges.end() - 1, place) - edges.begin()) - 1;
  };
  const int column = at(ColumnEdges(room.width()), point.x() - room.left());
  const int row = at(RowEdges(room.height()), point.y() - room.top());
  if (ItemIn(column, row)) return;
  const TUpdateLock once(*this);
  item->Set(TGridControlItem::Column, column);
  item->Set(TGridControlItem::Row, row);
}

void TGridPanel::ControlsListed() {
  TCustomPanel::ControlsListed();
  if (IsLoading() || IsDestroying() || IsLayoutFrozen() || !IsDesigning()) return;
  TControlCollection& items = *Get(ControlCollection);
  const TUpdateLock once(*this);
  items.Keep(Controls());
  const int columns = std::max(Get(ColumnCollection)->Count(), 0), across = columns == 0 ? 2 : columns;
  for (TControl* c : Controls()) {
    if (items.ItemOf(*c)) continue;
    int cell = 0;
    while (ItemIn(cell % across, cell / across)) ++cell;
    auto* item = static_cast<TGridControlItem*>(items.Add());
    item->Set(TControlItem::Control, c);
    item->Set(TGridControlItem::Column, cell % across);
    item->Set(TGridControlItem::Row, cell / across);
  }
}

void TGridPanel::Notification(TComponent* component, TOperation operation) {
  // Before its references are dropped: an item that refers to nobody is not found any more.
  if (operation == TOperation::opRemove && IsKept(&ControlCollection) && !IsDestroying())
    Get(ControlCollection)->Forget(component);
  TCustomPanel::Notification(component, operation);
}

void TGridPanel::Paint(TCanvas& canvas) {
  TCustomPanel::Paint(canvas);
  if (!IsDesigning()) return;
  const QRect room = ClientRect().marginsRemoved(Insets());
  if (room.isEmpty()) return;
  QPainter& p = canvas.Painter();
  p.setPen(QPen(ToQColor(clBtnShadow), 1, Qt::DotLine));
  const std::vector<int> columns = ColumnEdges(room.width()), rows = RowEdges(room.height());
  for (std::size_t i = 1; i + 1 < columns.size(); ++i)
    p.drawLine(room.left() + columns[i], room.top(), room.left() + columns[i], room.bottom());
  for (std::size_t i = 1; i + 1 < rows.size(); ++i)
    p.drawLine(room.left(), room.top() + rows[i], room.right(), room.top() + rows[i]);
}
