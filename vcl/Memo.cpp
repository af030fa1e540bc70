#include "vcl/Memo.h"

#include "rtl/Class.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomMemo::StaticClass() {
  static const TClass cls(DescribeClass<TCustomMemo>("TCustomMemo", TCustomEdit::StaticClass())
                              .DeclaredAll(Lines, ScrollBars, WantReturns, WantTabs, WordWrap));
  return cls;
}

TCustomMemo::TCustomMemo(TComponent* owner) : TCustomEdit(owner) {
  autoSize_ = false;
  SetBounds(0, 0, 185, 89);
}

namespace {
bool Shows(TScrollStyle style, Qt::Orientation orientation, bool needed) {
  using enum TScrollStyle;
  const bool across = orientation == Qt::Horizontal;
  switch (style) {
    case ssBoth:
      return true;
    case ssHorizontal:
      return across;
    case ssVertical:
      return !across;
    case ssAutoBoth:
      return needed;
    case ssAutoHorizontal:
      return across && needed;
    case ssAutoVertical:
      return !across && needed;
    default:
      return false;
  }
}
}  // namespace

void TCustomMemo::Paint(TCanvas& canvas) {
  QRect inside = PaintGround(canvas);
  const QSize text = TextExtent(ShownText(), *Font());
  const bool wraps = Get(WordWrap);
  constexpr int Bar = 17;
  const bool down = Shows(Get(ScrollBars), Qt::Vertical, text.height() > inside.height());
  const bool across = !wraps && Shows(Get(ScrollBars), Qt::Horizontal, text.width() > inside.width());
  const QRect frame = ClientRect().adjusted(1, 1, -1, -1);
  if (down)
    PaintScrollBar(
        canvas, QRect(frame.right() - Bar + 1, frame.top(), Bar, frame.height() - (across ? Bar : 0)),
        PartStates(), {.Max = std::max(text.height() - inside.height(), 0), .Page = inside.height()},
        Qt::Vertical);
  if (across)
    PaintScrollBar(canvas,
                   QRect(frame.left(), frame.bottom() - Bar + 1, frame.width() - (down ? Bar : 0), Bar),
                   PartStates(), {.Max = std::max(text.width() - inside.width(), 0), .Page = inside.width()},
                   Qt::Horizontal);
  inside.adjust(0, 0, down ? -Bar : 0, across ? -Bar : 0);
  canvas.TextRect(inside, AlignmentFlag(Get(Alignment)) | Qt::AlignTop | (wraps ? Qt::TextWordWrap : 0),
                  ShownText(), *Font(), Enabled());
}

const TClass& TMemo::StaticClass() {
  static const TClass cls(
      DescribeClass<TMemo>("TMemo", TCustomMemo::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, "Alignment", "BorderStyle", "CharCase", "HideSelection",
                      "Lines", "MaxLength", "OEMConvert", "ReadOnly", "ScrollBars", "WantReturns", "WantTabs",
                      "WordWrap", "OnChange", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field for a text of many lines."),
                    "pen line 1.5 brush fill box 3.5 4.5 17 15 2 pen accent 2 path 7 8.5 7 12.5 pen line 1.5 "
                    "path 9.5 9 17 9 path 7 15.5 15 15.5"));
  return cls;
}
