#include "vcl/StaticText.h"

#include "vcl/PropertyGroups.h"

const TClass& TCustomStaticText::StaticClass() {
  static const TClass cls(DescribeClass<TCustomStaticText>("TCustomStaticText", TWinControl::StaticClass())
                              .DeclaredAll(Alignment, BorderStyle, FocusControl, ShowAccelChar, Transparent));
  return cls;
}

TCustomStaticText::TCustomStaticText(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 65, 17);
}

QSize TCustomStaticText::AutoSizeHint() const {
  const int border = Get(BorderStyle) == TStaticBorderStyle::sbsNone ? 0 : 2;
  return TextExtent(Caption(), *Font(), Get(ShowAccelChar) ? int{Qt::TextShowMnemonic} : 0) +
         QSize(border, border + 2);
}

void TCustomStaticText::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (!Get(Transparent) || !ParentColor()) canvas.FillRect(inside, Color());
  if (Get(BorderStyle) == TStaticBorderStyle::sbsSingle)
    inside = canvas.Frame3D(inside, clWindowFrame, clWindowFrame, 1);
  else if (Get(BorderStyle) == TStaticBorderStyle::sbsSunken)
    inside = canvas.Frame3D(inside, clBtnShadow, clBtnHighlight, 1);
  canvas.TextRect(inside,
                  AlignmentFlag(Get(Alignment)) | Qt::AlignTop | Qt::TextWordWrap |
                      (Get(ShowAccelChar) ? Qt::TextShowMnemonic : 0),
                  Caption(), *Font(), Enabled());
}

const TClass& TStaticText::StaticClass() {
  static const TClass cls(
      DescribeClass<TStaticText>("TStaticText", TCustomStaticText::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Bevels, Windowed,
                      Help, Input, Styling, WheelEvents, "Alignment", "BorderStyle", "Caption",
                      "FocusControl", "ShowAccelChar", "Transparent", MouseEvents, DragEvents)
          .Publish("AutoSize", true)
          .Publish("TabStop")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A text on the form that other controls cannot shine through."),
                    "pen line 1.5 brush fill box 3 5.5 18 13 1 pen accent 2 path 8.5 15 12 8.5 15.5 15 path "
                    "10 13 14 13"));
  return cls;
}
