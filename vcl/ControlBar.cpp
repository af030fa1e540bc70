#include "vcl/ControlBar.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/Picture.h"
#include "vcl/PropertyGroups.h"
#include "vcl/ToolBar.h"

namespace {
constexpr int Grip = 9;
}  // namespace

const TClass& TControlBar::StaticClass() {
  static const TTypeInfo row = OrdinalType("TRowSize", 1, INT32_MAX);
  static const TClass cls(
      DescribeClass<TControlBar>("TControlBar", TWinControl::StaticClass())
          .PublishAll(Placing, Look, "ParentColor", "ParentFont", Hints, Placement, Direction, Dragging,
                      Windowed, Help, Styling, Docking, "ParentBackground", ResizeEvents, "AutoSize",
                      "TabStop", WheelEvents, MouseEvents, FocusEvents, DragEvents, "BevelEdges",
                      "BevelInner", "BevelOuter", "BevelWidth")
          .Published(BevelKind)
          .Published(RowSize)
          .Type(row)
          .Passive("AutoDock", true)
          .Passive("AutoDrag", true)
          .Passive("CornerEdge", TCornerEdge::ceSmall)
          .Passive("DrawingStyle", TTBDrawingStyle::dsNormal)
          .Passive("GradientDirection", TGradientDirection::gdVertical)
          .Passive("GradientEndColor", clBtnShadow)
          .Passive("GradientStartColor", clBtnHighlight)
          .Passive<TPicture*>("Picture")
          .Passive("RowSnap", true)
          .Event("OnBandDrag", "TBandDragEvent")
          .Event("OnBandInfo", "TBandInfoEvent")
          .Event("OnBandMove", "TBandMoveEvent")
          .Event("OnBandPaint", "TBandPaintEvent")
          .Event("OnPaint")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A bar that tool bars can be moved about in."),
              "pen line 1.5 brush fill box 2.5 5.5 19 13 1 path 2.5 12 21.5 12 pen accent 2 path 5.5 8 5.5 "
              "9.5 path 5.5 14.5 5.5 16"));
  return cls;
}

TControlBar::TControlBar(TComponent* owner) : TWinControl(owner) { SetBounds(0, 0, 100, 50); }

QRect TControlBar::ClientRect() const {
  const int edge = Get(BevelKind) == TBevelKind::bkNone ? 0 : 2;
  return {edge, edge, std::max(Width() - 2 * edge, 0), std::max(Height() - 2 * edge, 0)};
}

QMargins TControlBar::Insets() const { return TWinControl::Insets() + QMargins(Grip, 0, 0, 0); }

void TControlBar::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  canvas.FillRect(all, Color());
  if (Get(BevelKind) != TBevelKind::bkNone)
    canvas.Frame3D(canvas.Frame3D(all, clBtnShadow, clBtnHighlight, 1), clBtnHighlight, clBtnShadow, 1);
  const QPoint client = ClientRect().topLeft();
  for (const TControl* c : Controls()) {
    const QRect grip(client.x() + c->Left() - Grip, client.y() + c->Top() + 2, 3, c->Height() - 4);
    if (c->Height() > 6 && grip.left() >= 0) canvas.Frame3D(grip, clBtnHighlight, clBtnShadow, 1);
  }
}
