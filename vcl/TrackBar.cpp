#include "vcl/TrackBar.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TTrackBar::StaticClass() {
  static const TClass cls(
      DescribeClass<TTrackBar>("TTrackBar", TWinControl::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help,
                      Styling, WheelEvents, MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .PublishedAll(Frequency, Reversed, SliderVisible, TickMarks, TickStyle)
          .Published("Orientation", &TTrackBar::OrientationOf, &TTrackBar::SetOrientation,
                     TTrackBarOrientation::trHorizontal)
          .Published("Max", &TTrackBar::MaxOf, &TTrackBar::SetMax, 10)
          .Published("Min", &TTrackBar::MinOf, &TTrackBar::SetMin, 0)
          .Published("Position", &TTrackBar::PositionOf, &TTrackBar::SetPosition, 0)
          .Passive("BorderWidth", 0)
          .Passive("LineSize", 1)
          .Passive("PageSize", 2)
          .Passive("PositionToolTip", TPositionToolTip::ptNone)
          .Passive("ScalePos", TTrackBarScalePos::trTop)
          .Passive("SelEnd", 0)
          .Passive("SelStart", 0)
          .Passive("ShowSelRange", true)
          .Passive("ThumbLength", 20)
          .Publish("TabStop", true)
          .Event("OnChange")
          .Event("OnTracking")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A value that is set by moving a handle."),
              "pen line 1.5 path 3 11 21 11 path 4 17.5 4 19.5 path 12 17.5 12 19.5 path 20 17.5 20 19.5 "
              "pen line 1.5 brush accent box 8 6.5 5 9 1.5"));
  return cls;
}

TTrackBar::TTrackBar(TComponent* owner) : TRangedControl(owner) {
  tabStop_ = true;
  SetBounds(0, 0, 150, 45);
}

void TTrackBar::SetOrientation(TTrackBarOrientation v) {
  if (v == Get(Orientation)) return;
  Set(Orientation, v);
  if (!TakesAsGiven(*this)) SetBounds(Left(), Top(), Height(), Width());
}

void TTrackBar::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  const bool across = Get(Orientation) == TTrackBarOrientation::trHorizontal;
  TScrollRange range{Get(Min), Get(Max), Get(Position), 1};
  if (Get(Reversed)) range.Position = static_cast<int>(std::int64_t{range.Min} + range.Max - range.Position);
  const bool ticks = Get(TickStyle) != TTickStyle::tsNone;
  const TTickMark marks = Get(TickMarks);
  PaintSlider(canvas, ClientRect(), PartStates(), range, across ? Qt::Horizontal : Qt::Vertical,
              {ticks && marks != TTickMark::tmBottomRight, ticks && marks != TTickMark::tmTopLeft,
               std::max(Get(Frequency), 1)});
}
