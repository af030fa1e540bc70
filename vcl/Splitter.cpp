#include "vcl/Splitter.h"

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

namespace {
constexpr TCursor Across{-14}, Down{-15};  // crHSplit, crVSplit
}  // namespace

const TClass& TSplitter::StaticClass() {
  static const TTypeInfo size = OrdinalType("NaturalNumber", 1, INT32_MAX);
  static const TClass cls(
      DescribeClass<TSplitter>("TSplitter", TGraphicControl::StaticClass())
          .Published("Align", &TSplitter::Direction, &TSplitter::SetDirection, TAlign::alLeft)
          .PublishAll("Anchors", "Color", "Constraints", "Enabled", ParentLook, "Font", Hints, "PopupMenu",
                      "StyleElements", "StyleName", Placement, Help, "Visible", "OnClick", "OnDblClick",
                      "OnMouseDown", "OnMouseEnter", "OnMouseLeave", "OnMouseMove", "OnMouseUp", "OnResize",
                      WheelEvents)
          .Published(Beveled)
          .Publish("Cursor", Across)
          .Passive("AutoSnap", true)
          .Passive("MinSize", 30)
          .Type(size)
          .Passive("ResizeAnchor", TAnchorKind::akLeft)
          .Passive("ResizeStyle", TResizeStyle::rsPattern)
          .OtherDefault(TResizeStyle::rsUpdate)
          .Event("OnCanOffset")
          .Event("OnCanResize", "TCanResizeEvent")
          .Event("OnMoved")
          .Event("OnPaint")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A bar between two controls; dragging it sizes both."),
              "pen line 1.5 brush fill box 2.5 5 6 14 0 box 15.5 5 6 14 0 pen accent 2 path 12 4 12 20"));
  return cls;
}

TSplitter::TSplitter(TComponent* owner) : TGraphicControl(owner) {
  SetAlign(TAlign::alLeft);
  SetCursor(Across);
  SetBounds(0, 0, 3, 100);
}

void TSplitter::SetDirection(TAlign v) {
  if (v == Align()) return;
  const TUpdateLock once(*this);
  const bool stood = Stands();
  const int thickness = stood ? Width() : Height();
  const bool free = IsLoading() || IsLayoutFrozen();
  SetAlign(v);
  if (free || stood == Stands()) return;
  if (Cursor() == Across || Cursor() == Down) SetCursor(Stands() ? Across : Down);
  if (Stands())
    SetWidth(thickness);
  else
    SetHeight(thickness);
}

void TSplitter::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  canvas.FillRect(inside, Color());
  if (Get(Beveled)) inside = canvas.Frame3D(inside, clBtnHighlight, clBtnShadow, 1);
  // A few dots in the middle, where there is room for them.
  constexpr int apart = 4, room = 3;
  if (std::min(inside.width(), inside.height()) < room) return;
  const QPoint middle = inside.center();
  const QPoint step = Stands() ? QPoint(0, apart) : QPoint(apart, 0);
  for (int i = -2; i <= 2; ++i)
    if (const QPoint dot = middle + i * step; inside.contains(dot))
      canvas.FillRect(QRect(dot, QSize(1, 1)), clBtnShadow);
}
