#include "vcl/ProgressBar.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TProgressBar::StaticClass() {
  static const TClass cls(
      DescribeClass<TProgressBar>("TProgressBar", TWinControl::StaticClass())
          .PublishAll(Placing, Lettering, "Color", ParentLook, Hints, Placement, Direction, Dragging,
                      Windowed, Help, Styling, "TabStop", WheelEvents, MouseEvents, FocusEvents, DragEvents)
          .PublishedAll(BarShowText, Orientation, Style)
          .Published("Max", &TProgressBar::MaxOf, &TProgressBar::SetMax, 100)
          .Published("Min", &TProgressBar::MinOf, &TProgressBar::SetMin, 0)
          .Published("Position", &TProgressBar::PositionOf, &TProgressBar::SetPosition, 0)
          .Passive("BackgroundColor", clDefault)
          .Passive("BarColor", clDefault)
          .Passive("BorderWidth", 0)
          .Passive("MarqueeInterval", 10)
          .Passive("Smooth", false)
          .Passive("SmoothReverse", false)
          .Passive("State", TProgressBarState::pbsNormal)
          .Passive("Step", 10)
          .Alphabetical()
          .ClassDoc(QStringLiteral("Shows how far something has come."),
                    "pen line 1.5 brush fill box 2.5 8.5 19 7 2 pen none brush accent box 4 10 9 4 0"));
  return cls;
}

TProgressBar::TProgressBar(TComponent* owner) : TRangedControl(owner) { SetBounds(0, 0, 150, 17); }

void TProgressBar::Paint(TCanvas& canvas) {
  using enum TProgressBarOrientation;
  const TProgressBarOrientation orientation = Get(Orientation);
  const bool across = orientation == pbHorizontal || orientation == pbRightToLeft;
  TScrollRange range{Get(Min), Get(Max), Get(Position), 0};
  const std::int64_t length = std::int64_t{range.Max} - range.Min;
  if (Get(Style) == TProgressBarStyle::pbstMarquee && length > 0)
    range.Position = static_cast<int>(range.Min + length / 3);
  QString text;
  if (Get(BarShowText) && length > 0)
    text = QStringLiteral("%1 %").arg((std::int64_t{range.Position} - range.Min) * 100 / length);
  QPainter& p = canvas.Painter();
  p.save();
  // Bars that grow from the other end are the mirrored ones.
  if (orientation == pbRightToLeft) p.setTransform(QTransform(-1, 0, 0, 1, Width(), 0), true);
  if (orientation == pbTopDown) p.setTransform(QTransform(1, 0, 0, -1, 0, Height()), true);
  const bool mirrored = orientation == pbRightToLeft || orientation == pbTopDown;
  PaintProgress(canvas, ClientRect(), PartStates(), range, across ? Qt::Horizontal : Qt::Vertical,
                mirrored ? QString() : text);
  p.restore();
  if (mirrored && !text.isEmpty()) canvas.TextRect(ClientRect(), Qt::AlignCenter, text, *Font(), Enabled());
}
