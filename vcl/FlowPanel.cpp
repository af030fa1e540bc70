#include "vcl/FlowPanel.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TFlowPanelControl::StaticClass() {
  static const TClass cls(DescribeClass<TFlowPanelControl>("TFlowPanelControl", TControlItem::StaticClass())
                              .Publish("Control")
                              .Published(WrapAfter)
                              .Passive("Index", 0));
  return cls;
}
const TClass& TFlowPanelControlList::StaticClass() {
  static const TClass cls(
      DescribeClass<TFlowPanelControlList>("TFlowPanelControlList", TCollection::StaticClass()));
  return cls;
}

const TClass& TFlowPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TFlowPanel>("TFlowPanel", TCustomPanel::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Styling, Container, Docking, ResizeEvents, WheelEvents, "Alignment", "AutoSize",
                      "BorderStyle", "BorderWidth", "Caption", "FullRepaint", "Locked", "ParentCustomHint",
                      "ShowCaption", "TabStop", "VerticalAlignment", MouseEvents, FocusEvents, DragEvents,
                      "OnPaint")
          .PublishedAll(AutoWrap, ControlList, FlowLayout, FlowStyle)
          .Event("OnAlignInsertBefore", "TAlignInsertBeforeEvent")
          .Event("OnAlignPosition", "TAlignPositionEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A panel in which controls follow each other in rows."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 0 pen none brush accent box 6 7 5 4 0.5 box 12.5 7 "
              "5 4 0.5 brush line box 6 13 5 4 0.5"));
  return cls;
}

namespace {
struct Flow {
  bool down;  // runs downwards or upwards first, then to the side
  bool fromRight, fromBottom;
};
constexpr Flow Flows[] = {{false, false, false}, {false, true, false}, {false, false, true},
                          {false, true, true},   {true, false, false}, {true, false, true},
                          {true, true, false},   {true, true, true}};

// Across the row: at its beginning, in its middle or at its end.
int Offset(TTextLayout layout, int room, int size) {
  return layout == TTextLayout::tlTop ? 0 : layout == TTextLayout::tlCenter ? (room - size) / 2 : room - size;
}
}  // namespace

void TFlowPanel::ArrangeControls(Placements& all, const QRect& client, const QMargins& insets,
                                 const Placements*) const {
  const QRect room = client.marginsRemoved(insets);
  const Flow flow = Flows[static_cast<int>(Get(FlowStyle))];
  const int length = flow.down ? room.height() : room.width();
  // Every place is counted from the corner where the flow begins; it is turned to the edges afterwards.
  struct Cell {
    Placements::value_type* p;
    int along, across, size, thick;
  };
  std::vector<Cell> row;
  int along = 0, across = 0;
  const auto finish = [&] {
    int thick = 0;
    for (const Cell& c : row) thick = std::max(thick, c.thick);
    for (const Cell& c : row) {
      const QMargins& m = c.p->margins;
      const int at = c.across + Offset(Get(FlowLayout), thick, c.thick);
      int x = flow.down ? at : c.along, y = flow.down ? c.along : at;
      const int width = flow.down ? c.thick : c.size, height = flow.down ? c.size : c.thick;
      if (flow.fromRight) x = room.width() - x - width;
      if (flow.fromBottom) y = room.height() - y - height;
      PlaceAt(*c.p, room.topLeft() + QPoint(x + m.left(), y + m.top()));
    }
    across += thick;
    along = 0;
    row.clear();
  };
  bool full = false;
  for (auto& p : all) {
    if (!p.takesPart) {
      PlaceAt(p, p.stands.topLeft());
      continue;
    }
    const int width = p.stands.width() + p.margins.left() + p.margins.right();
    const int height = p.stands.height() + p.margins.top() + p.margins.bottom();
    const int size = flow.down ? height : width, thick = flow.down ? width : height;
    if (!row.empty() && (full || (Get(AutoWrap) && along + size > length))) finish();
    row.push_back({&p, along, across, size, thick});
    along += size;
    const TControlItem* item = IsKept(&ControlList) ? Get(ControlList)->ItemOf(*p.control) : nullptr;
    full = item && item->Get(TFlowPanelControl::WrapAfter) == TWrapAfter::waForce;
  }
  finish();
}

void TFlowPanel::Notification(TComponent* component, TOperation operation) {
  // Before its references are dropped: an item that refers to nobody is not found any more.
  if (operation == TOperation::opRemove && IsKept(&ControlList) && !IsDestroying())
    Get(ControlList)->Forget(component);
  TCustomPanel::Notification(component, operation);
}
