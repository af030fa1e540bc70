#include "vcl/ScrollBar.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TScrollBar::StaticClass() {
  static const TClass cls(
      DescribeClass<TScrollBar>("TScrollBar", TWinControl::StaticClass())
          // In front of the sides, which a form file gives as they are in the end.
          .Published("Kind", &TScrollBar::Kind, &TScrollBar::SetKind, TScrollBarKind::sbHorizontal)
          .PublishAll(Placing, "Enabled", Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                      MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Published(PageSize)
          .Published("Max", &TScrollBar::MaxOf, &TScrollBar::SetMax, 100)
          .Published("Min", &TScrollBar::MinOf, &TScrollBar::SetMin, 0)
          .Published("Position", &TScrollBar::PositionOf, &TScrollBar::SetPosition, 0)
          .Passive("LargeChange", std::uint16_t{1})
          .Passive("SmallChange", std::uint16_t{1})
          .Publish("TabStop", true)
          .Event("OnChange")
          .Event("OnScroll", "TScrollEvent")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A bar to scroll with."),
              "pen line 1.5 brush fill box 2.5 8 19 8 2 brush none path 6 10.5 4.5 12 6 13.5 path 18 10.5 "
              "19.5 12 18 13.5 pen none brush accent box 8 9.5 5 5 1"));
  return cls;
}

TScrollBar::TScrollBar(TComponent* owner) : TRangedControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 121, 17);
}

void TScrollBar::SetKind(TScrollBarKind v) {
  if (kind_ == v) return;
  Change(kind_, v);
  if (!IsLoading() && !IsLayoutFrozen()) SetBounds(Left(), Top(), Height(), Width());
}

void TScrollBar::Paint(TCanvas& canvas) {
  TScrollRange range{Get(Min), Get(Max), Get(Position), std::max(Get(PageSize), 1)};
  if (range.Max <= range.Min || range.Page > std::int64_t{range.Max} - range.Min) range = {0, 1, 0, 2};
  PaintScrollBar(canvas, ClientRect(), PartStates(), range,
                 Kind() == TScrollBarKind::sbHorizontal ? Qt::Horizontal : Qt::Vertical);
}
