#include "vcl/ScrollBox.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TScrollBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TScrollBox>("TScrollBox", TWinControl::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Styling, Container, "DockSite", "OnDockDrop", "OnDockOver", "OnGetSiteInfo",
                      "OnUnDock", ResizeEvents, WheelEvents, "AutoSize", "TabStop", MouseEvents, KeyEvents,
                      FocusEvents, DragEvents)
          .PublishedAll(AutoScroll, BorderStyle, HorzScrollBar, VertScrollBar)
          .Passive("UseWheelForScrolling", false)
          .Event("OnPaint")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A surface that scrolls over what does not fit."),
              "pen line 1.5 brush fill box 3.5 4.5 17 15 0 path 16.5 4.5 16.5 19.5 pen accent 2 brush none "
              "path 18.5 8 18.5 12"));
  return cls;
}

TScrollBox::TScrollBox(TComponent* owner) : TWinControl(owner) { SetBounds(0, 0, 185, 41); }

QRect TScrollBox::ClientRect() const {
  const int border = Get(BorderStyle) == TBorderStyle::bsSingle ? 2 : 0;
  return {border, border, std::max(Width() - 2 * border, 0), std::max(Height() - 2 * border, 0)};
}

QSize TScrollBox::Reach() const {
  QSize reach(IsKept(&HorzScrollBar) ? Get(HorzScrollBar)->Get(TControlScrollBar::Range) : 0,
              IsKept(&VertScrollBar) ? Get(VertScrollBar)->Get(TControlScrollBar::Range) : 0);
  if (Get(AutoScroll))
    for (const TControl* c : Controls())
      if (c->Align() == TAlign::alNone)
        reach = reach.expandedTo({c->Left() + c->Width(), c->Top() + c->Height()});
  return reach;
}

void TScrollBox::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  if (Get(BorderStyle) == TBorderStyle::bsSingle) PaintEditFrame(canvas, all, PartStates(), Color());
  const QRect client = ClientRect();
  canvas.FillRect(client, Color());
  const QSize reach = Reach();
  constexpr int thick = 17;
  const bool down = Get(VertScrollBar)->Get(TControlScrollBar::Visible) && reach.height() > client.height();
  const bool across = Get(HorzScrollBar)->Get(TControlScrollBar::Visible) && reach.width() > client.width();
  if (client.width() < 2 * thick || client.height() < 2 * thick) return;
  if (down)
    PaintScrollBar(
        canvas,
        QRect(client.right() + 1 - thick, client.top(), thick, client.height() - (across ? thick : 0)),
        PartStates(), {0, reach.height(), 0, client.height()}, Qt::Vertical);
  if (across)
    PaintScrollBar(
        canvas, QRect(client.left(), client.bottom() + 1 - thick, client.width() - (down ? thick : 0), thick),
        PartStates(), {0, reach.width(), 0, client.width()}, Qt::Horizontal);
}
