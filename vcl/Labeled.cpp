#include "vcl/Labeled.h"

#include "vcl/Label.h"

const TClass& TBoundLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TBoundLabel>("TBoundLabel", TPersistent::StaticClass())
          .Published("Caption", &TBoundLabel::Caption, &TBoundLabel::SetCaption)
          .Type(CaptionType())
          .Published("Font", &TBoundLabel::Font, &TBoundLabel::SetFont)
          .StoredIf(&TBoundLabel::FontStored)
          .Published("ParentFont", &TBoundLabel::ParentFont, &TBoundLabel::SetParentFont, true)
          .Passive("AlignWithMargins", false)
          .Passive("BiDiMode", TBiDiMode::bdLeftToRight)
          .Passive("Color", clBtnFace)
          .Passive("Cursor", TCursor{0})
          .Passive("DragCursor", TCursor{-12})
          .Passive("DragMode", TDragMode::dmManual)
          .Passive("Enabled", true)
          .Passive("HelpContext", 0)
          .Passive<QString>("HelpKeyword")
          .Passive("HelpType", THelpType::htContext)
          .Passive<QString>("Hint")
          .Passive("Layout", TTextLayout::tlTop)
          .Passive("ParentBiDiMode", true)
          .Passive("ParentColor", true)
          .Passive("ParentShowHint", true)
          .Passive("ShowAccelChar", true)
          .Passive("ShowHint", false)
          .Passive("StyleElements",
                   TStyleElements{TStyleElement::seFont, TStyleElement::seClient, TStyleElement::seBorder})
          .Passive<QString>("StyleName")
          .Passive("Transparent", true)
          .Passive("Visible", true)
          .Passive("WordWrap", false)
          .Event("OnClick")
          .Event("OnContextPopup", "TContextPopupEvent")
          .Event("OnDblClick")
          .Event("OnDragDrop", "TDragDropEvent")
          .Event("OnDragOver", "TDragOverEvent")
          .Event("OnEndDrag", "TEndDragEvent")
          .Event("OnMouseActivate", "TMouseActivateEvent")
          .Event("OnMouseDown", "TMouseEvent")
          .Event("OnMouseEnter")
          .Event("OnMouseLeave")
          .Event("OnMouseMove", "TMouseMoveEvent")
          .Event("OnMouseUp", "TMouseEvent")
          .Event("OnStartDrag", "TStartDragEvent")
          .StreamedPassive("Width", 0)
          .StreamedPassive("Height", 0));
  return cls;
}

TBoundLabel::TBoundLabel(TControl* owner)
    : TKeptPart(owner), control_(*owner), font_(std::make_unique<TFont>(this)) {}

QRect TBoundLabel::Bounds(TLabelPosition position, int spacing) const {
  if (caption_.isEmpty()) return {};
  const QSize size = TextExtent(caption_, ShownFont(), Qt::TextShowMnemonic);
  const int middle = (control_.Height() - size.height()) / 2;
  switch (position) {
    case TLabelPosition::lpAbove:
      return {{0, -spacing - size.height()}, size};
    case TLabelPosition::lpBelow:
      return {{0, control_.Height() + spacing}, size};
    case TLabelPosition::lpLeft:
      return {{-spacing - size.width(), middle}, size};
    case TLabelPosition::lpRight:
      return {{control_.Width() + spacing, middle}, size};
  }
  return {};
}

void TBoundLabel::Paint(TCanvas& canvas, const QRect& bounds) const {
  canvas.TextRect(bounds, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, caption_, ShownFont(),
                  control_.Enabled());
}

void TBoundLabel::SetParentFont(bool v) {
  if (v == parentFont_) return;
  const TUpdateLock once(*this);
  if (v) font_->Assign(std::make_unique<TFont>().get());
  Change(parentFont_, v);
}

void TBoundLabel::PartChanged(TPersistent& part) {
  parentFont_ = false;
  TKeptPart::PartChanged(part);
}
