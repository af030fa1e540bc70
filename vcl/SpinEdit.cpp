#include "vcl/SpinEdit.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomSpinEdit::StaticClass() {
  static const TClass cls(DescribeClass<TCustomSpinEdit>("TCustomSpinEdit", TCustomEdit::StaticClass())
                              .DeclaredPassive("EditorEnabled", true));
  return cls;
}

TCustomSpinEdit::TCustomSpinEdit(TComponent* owner) : TCustomEdit(owner) {
  captionFollowsName_ = false;
  autoSize_ = false;
  SetBounds(0, 0, 121, 22);
}

void TCustomSpinEdit::Paint(TCanvas& canvas) {
  QRect inside = PaintGround(canvas);
  constexpr int usual = 17;
  const int width = std::min(usual, Width() / 2);
  const QRect arrows(Width() - width - 1, 1, width, Height() - 2);
  inside.setRight(arrows.left() - 2);
  canvas.TextRect(inside, TextFlags(), ShownText(), *Font(), Enabled());
  PaintSpinButtons(canvas, arrows, PartStates());
}

namespace {
template <class T>
TClassBuilder DescribeSpinEdit(const char* name) {
  return DescribeClass<T>(name, TCustomSpinEdit::StaticClass())
      .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Windowed, Help, Styling,
                  WheelEvents, "Alignment", "AutoSelect", "AutoSize", "BorderStyle", "EditorEnabled",
                  "MaxLength", "ReadOnly", "TextHint", "OnChange", MouseEvents, KeyEvents, FocusEvents,
                  DragEvents)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true);
}
}  // namespace

const TClass& TSpinEdit::StaticClass() {
  static const TClass cls(
      DescribeSpinEdit<TSpinEdit>("TSpinEdit")
          .PublishedAll(Increment, MinValue, Value)
          .Published(MaxValue)
          .OtherDefault(100)
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field for a whole number, with arrows that count it up and down."),
              "pen line 1.5 brush fill box 2.5 6.5 19 11 2 path 15 6.5 15 17.5 pen accent 1.8 brush none "
              "path 16.7 10.5 18.2 9 19.7 10.5 path 16.7 13.5 18.2 15 19.7 13.5 pen line 1.5 path 6 10 6 "
              "14"));
  return cls;
}

const TClass& TFloatSpinEdit::StaticClass() {
  static const TClass cls(
      DescribeSpinEdit<TFloatSpinEdit>("TFloatSpinEdit")
          .PublishedAll(DecimalPlaces, Value)
          .Published("Increment", &TFloatSpinEdit::Increment, &TFloatSpinEdit::SetIncrement)
          .StoredIf(&TFloatSpinEdit::HasOwnIncrement)
          .Doc(QStringLiteral("How far a step of the arrows goes; 0 counts as 1."))
          .Passive<double>("MaxValue")
          .Passive<double>("MinValue")
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A field for a number with decimals, with arrows that count it up and down."),
              "pen line 1.5 brush fill box 2.5 6.5 19 11 2 path 15 6.5 15 17.5 pen accent 1.8 brush none "
              "path 16.7 10.5 18.2 9 19.7 10.5 path 16.7 13.5 18.2 15 19.7 13.5 pen line 1.5 path 5.5 10 "
              "5.5 14 path 8 14 8.2 14 path 10.5 10 10.5 14"));
  return cls;
}

QString TFloatSpinEdit::ShownText() const {
  constexpr int most = 15;
  return QString::number(Get(Value), 'f', std::clamp(Get(DecimalPlaces), 0, most));
}
