#include "vcl/Panel.h"

#include "vcl/PropertyGroups.h"

const TClass& TPanel::StaticClass() {
  static const TTypeInfo width = OrdinalType("TBevelWidth", 1, INT32_MAX);
  static const TTypeInfo border = OrdinalType("TBorderWidth", 0, INT32_MAX);
  static const TClass cls(
      DescribeClass<TPanel>("TPanel", TWinControl::StaticClass())
          .Publish("Align")
          .Published("Alignment", &TPanel::Alignment, &TPanel::SetAlignment, TAlignment::taCenter)
          .Publish("Anchors")
          .Published("BevelInner", &TPanel::BevelInner, &TPanel::SetBevelInner, TBevelCut::bvNone)
          .Published("BevelOuter", &TPanel::BevelOuter, &TPanel::SetBevelOuter, TBevelCut::bvRaised)
          .Published("BevelWidth", &TPanel::BevelWidth, &TPanel::SetBevelWidth, 1)
          .Type(width)
          .Published("BorderWidth", &TPanel::BorderWidth, &TPanel::SetBorderWidth, 0)
          .Type(border)
          .PublishAll("Caption", Look, ParentLook, Hints, "TabOrder", "TabStop", "Visible", "OnClick",
                      "OnDblClick", FocusEvents, MouseButtonEvents, "OnResize")
          .ClassDoc(QStringLiteral("A surface that groups other controls."),
                    "pen line 1.5 brush fill box 3.5 5.5 17 13 0 pen accent 1.5 path 6 16 6 8 18 8"));
  return cls;
}

TPanel::TPanel(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 185, 41);
}

void TPanel::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  QRect inside = ClientRect();
  const auto bevel = [&](TBevelCut cut) {
    if (cut == TBevelCut::bvRaised)
      inside = canvas.Frame3D(inside, clBtnHighlight, clBtnShadow, bevelWidth_);
    else if (cut == TBevelCut::bvLowered)
      inside = canvas.Frame3D(inside, clBtnShadow, clBtnHighlight, bevelWidth_);
    else if (cut == TBevelCut::bvSpace)
      inside.adjust(bevelWidth_, bevelWidth_, -bevelWidth_, -bevelWidth_);
  };
  bevel(bevelOuter_);
  inside.adjust(borderWidth_, borderWidth_, -borderWidth_, -borderWidth_);
  bevel(bevelInner_);
  canvas.TextRect(inside, AlignmentFlag(alignment_) | Qt::AlignVCenter, Caption(), *Font(), Enabled());
}
