#include "vcl/Label.h"

#include "vcl/Form.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomLabel::StaticClass() {
  using C = TCustomLabel;
  static const TClass cls(
      DescribeClass<C>("TCustomLabel", TGraphicControl::StaticClass())
          .Declared("Alignment", &C::Alignment, &C::SetAlignment, TAlignment::taLeftJustify)
          .Declared("FocusControl", &C::FocusControl, &C::SetFocusControl)
          .Doc(QStringLiteral("The control that the label's accelerator moves the focus to."))
          .Declared("Layout", &C::Layout, &C::SetLayout, TTextLayout::tlTop)
          .Declared("ShowAccelChar", &C::ShowAccelChar, &C::SetShowAccelChar, true)
          .Declared("Transparent", &C::Transparent, &C::SetTransparent, true)
          .Doc(QStringLiteral("Lets what is behind the label show through."))
          .Declared("WordWrap", &C::WordWrap, &C::SetWordWrap, false)
          .DeclaredPassive("EllipsisPosition", TEllipsisPosition::epNone)
          .DeclaredPassive("GlowSize", 0)
          .DeclaredPassive("OptimalFill", false));
  return cls;
}

const TClass& TLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TLabel>("TLabel", TCustomLabel::StaticClass())
          .PublishAll("Align", "Alignment", "Anchors")
          .Publish("AutoSize", true)
          .PublishAll("Caption", "Color", "Enabled", "FocusControl", "Font", ParentLook, "ParentShowHint",
                      "ShowAccelChar", "ShowHint", "Transparent", "Layout", "Visible", "WordWrap",
                      MouseEvents, Placement, Direction, Dragging, Help, Styling, WheelEvents, DragEvents,
                      "PopupMenu", "EllipsisPosition", "GlowSize", "OptimalFill")
          .ClassDoc(QStringLiteral("A text on the form."),
                    "pen line 2.2 path 5 19 12 4.5 19 19 pen accent 2.2 path 8 14 16 14"));
  return cls;
}

TCustomLabel::TCustomLabel(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 65, 17);
}

int TCustomLabel::TextFlags() const {
  static constexpr int vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  return AlignmentFlag(alignment_) | vertical[static_cast<int>(layout_)] |
         (wordWrap_ ? Qt::TextWordWrap : 0) | (showAccelChar_ ? Qt::TextShowMnemonic : 0);
}

QSize TCustomLabel::AutoSizeHint() const {
  const QSize text =
      TextExtent(Caption().isEmpty() ? QStringLiteral(" ") : Caption(), *Font(),
                 TextFlags() & (Qt::TextWordWrap | Qt::TextShowMnemonic), wordWrap_ ? Width() : 0);
  return {wordWrap_ ? Width() : Caption().isEmpty() ? 0 : text.width(), text.height()};
}

// In forms whose width is the client's, anchors alone decide which edge stays.
bool TCustomLabel::GrowsToTheLeft() const {
  const TControl* top = this;
  while (top->Parent()) top = top->Parent();
  const auto* form = As<TForm>(top);
  if (form && form->SizeIsClient())
    return Anchors().Contains(TAnchorKind::akRight) && !Anchors().Contains(TAnchorKind::akLeft);
  return alignment_ == TAlignment::taRightJustify;
}

void TCustomLabel::DoChanged() {
  measured_.reset();
  TGraphicControl::DoChanged();
}

QRect TCustomLabel::PaintExtent() const {
  const QRect own = TGraphicControl::PaintExtent();
  if (!AutoSize() || Align() != TAlign::alNone) return own;
  if (!measured_ || measured_->width != Width()) measured_ = {Width(), AutoSizeHint()};
  const QSize text = measured_->text.expandedTo(own.size());
  const int more = text.width() - own.width();
  const int left = alignment_ == TAlignment::taRightJustify ? -more
                   : alignment_ == TAlignment::taCenter     ? -more / 2
                                                            : 0;
  return {left, 0, text.width(), text.height()};
}

void TCustomLabel::Paint(TCanvas& canvas) {
  const QRect area = PaintExtent();
  if (!transparent_) canvas.FillRect(area, Color());
  canvas.TextRect(area, TextFlags(), Caption(), *Font(), Enabled());
}
