#include "vcl/ExtCtrls.h"

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
          .PublishAll("Caption", "Color", "Enabled", "Font", "ParentColor", "ParentFont", "ParentShowHint",
                      "ShowHint", "TabOrder", "TabStop", "Visible", "OnClick", "OnDblClick", "OnEnter",
                      "OnExit", "OnMouseDown", "OnMouseMove", "OnMouseUp", "OnResize")
          .ClassDoc(QStringLiteral("A surface that groups other controls.")));
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
  static constexpr int horizontal[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
  canvas.TextRect(inside, horizontal[static_cast<int>(alignment_)] | Qt::AlignVCenter, Caption(), *Font(),
                  Enabled());
}

const TClass& TTimer::StaticClass() {
  static const TClass cls(DescribeClass<TTimer>("TTimer", TComponent::StaticClass())
                              .Published("Enabled", &TTimer::Enabled, &TTimer::SetEnabled, true)
                              .Published("Interval", &TTimer::Interval, &TTimer::SetInterval, 1000)
                              .Doc(QStringLiteral("Milliseconds between two events."))
                              .Event("OnTimer")
                              .ClassDoc(QStringLiteral("Raises an event at regular intervals.")));
  return cls;
}
