#include "vcl/Panel.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomPanel::StaticClass() {
  static const TTypeInfo width = OrdinalType("TBevelWidth", 1, INT32_MAX);
  static const TTypeInfo border = OrdinalType("TBorderWidth", 0, INT32_MAX);
  static const TClass cls(DescribeClass<TCustomPanel>("TCustomPanel", TWinControl::StaticClass())
                              .DeclaredAll(Alignment, BevelInner, BevelOuter, BorderStyle)
                              .Declared(BevelWidth)
                              .Type(width)
                              .Declared(BorderWidth)
                              .Type(border)
                              .DeclaredAll(ShowCaption, VerticalAlignment)
                              .DeclaredPassive("BevelColor", clDefault)
                              .DeclaredPassive("FullRepaint", true)
                              .DeclaredPassive("Locked", false)
                              .DeclaredPassive("UseDockManager", true)
                              .DeclaredPassive("Wordwrap", false)
                              .DeclaredEvent("OnPaint"));
  return cls;
}

TCustomPanel::TCustomPanel(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 185, 41);
}

QMargins TCustomPanel::Frame() const {
  const int border = Get(BorderStyle) == TBorderStyle::bsSingle ? 2 : 0;
  if (Get(BevelKind) == TBevelKind::bkNone) return {border, border, border, border};
  // The edges themselves are always a raised line inside of a lowered one.
  constexpr int edge = 2;
  const auto at = [&](TBevelEdge e) { return border + (Get(BevelEdges).Contains(e) ? edge : 0); };
  return {at(TBevelEdge::beLeft), at(TBevelEdge::beTop), at(TBevelEdge::beRight), at(TBevelEdge::beBottom)};
}

QRect TCustomPanel::ClientRect() const {
  const QMargins frame = Frame();
  return {frame.left(), frame.top(), std::max(Width() - frame.left() - frame.right(), 0),
          std::max(Height() - frame.top() - frame.bottom(), 0)};
}

QMargins TCustomPanel::Insets() const {
  const auto limited = [](int v) { return std::clamp(v, 0, 1000); };
  const int bevel = (Get(BevelInner) != TBevelCut::bvNone ? limited(Get(BevelWidth)) : 0) +
                    (Get(BevelOuter) != TBevelCut::bvNone ? limited(Get(BevelWidth)) : 0);
  const int each = bevel + limited(Get(BorderWidth));
  return TWinControl::Insets() + QMargins(each, each, each, each);
}

void TCustomPanel::Paint(TCanvas& canvas) {
  const QRect all(0, 0, Width(), Height());
  canvas.FillRect(all, Color());
  QRect inside = ClientRect();
  if (inside != all) {
    // Sides without an edge are drawn, too, and lie under the surface.
    const QRect outer = Get(BorderStyle) == TBorderStyle::bsSingle
                            ? canvas.Frame3D(all, clBtnShadow, clBtnHighlight, 2)
                            : all;
    if (Get(BevelKind) != TBevelKind::bkNone) {
      const bool flat = Get(BevelKind) == TBevelKind::bkFlat;
      const QRect inner = canvas.Frame3D(outer, clBtnShadow, flat ? clBtnShadow : clBtnHighlight, 1);
      canvas.Frame3D(inner, flat ? Color() : clBtnHighlight, flat ? Color() : clBtnShadow, 1);
    }
    canvas.FillRect(inside, Color());
  }
  const auto bevel = [&](TBevelCut cut) {
    const int width = std::clamp(Get(BevelWidth), 0, std::max(Width(), Height()));
    if (cut == TBevelCut::bvRaised)
      inside = canvas.Frame3D(inside, clBtnHighlight, clBtnShadow, width);
    else if (cut == TBevelCut::bvLowered)
      inside = canvas.Frame3D(inside, clBtnShadow, clBtnHighlight, width);
    else if (cut == TBevelCut::bvSpace)
      inside.adjust(width, width, -width, -width);
  };
  bevel(Get(BevelOuter));
  const int border = std::clamp(Get(BorderWidth), 0, std::max(Width(), Height()));
  inside.adjust(border, border, -border, -border);
  bevel(Get(BevelInner));
  if (!Get(ShowCaption)) return;
  static constexpr int vertical[] = {Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter};
  canvas.TextRect(inside,
                  AlignmentFlag(Get(Alignment)) | vertical[static_cast<int>(Get(VerticalAlignment))] |
                      Qt::TextShowMnemonic,
                  Caption(), *Font(), Enabled());
}

const TClass& TPanel::StaticClass() {
  static const TClass cls(
      DescribeClass<TPanel>("TPanel", TCustomPanel::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Styling, Container, Docking, ResizeEvents, WheelEvents, "Alignment", "AutoSize",
                      "BevelColor", "BorderStyle", "BorderWidth", "Caption", "FullRepaint", "Locked",
                      "ParentCustomHint", "ShowCaption", "TabStop", "VerticalAlignment", "Wordwrap",
                      MouseEvents, FocusEvents, DragEvents, "OnPaint")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A surface that groups other controls."),
                    "pen line 1.5 brush fill box 3.5 5.5 17 13 0 pen accent 1.5 path 6 16 6 8 18 8"));
  return cls;
}
