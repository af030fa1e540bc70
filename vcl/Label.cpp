#include "vcl/Label.h"

#include "vcl/Form.h"
#include "vcl/PropertyGroups.h"

const TClass& TLabel::StaticClass() {
  static const TClass cls(
      DescribeClass<TLabel>("TLabel", TGraphicControl::StaticClass())
          .Publish("Align")
          .Published("Alignment", &TLabel::Alignment, &TLabel::SetAlignment, TAlignment::taLeftJustify)
          .Publish("Anchors")
          .Publish("AutoSize", true)
          .PublishAll("Caption", "Color", "Enabled")
          .Published("FocusControl", &TLabel::FocusControl, &TLabel::SetFocusControl)
          .Doc(QStringLiteral("The control that the label's accelerator moves the focus to."))
          .PublishAll("Font", ParentLook, "ParentShowHint")
          .Published("ShowAccelChar", &TLabel::ShowAccelChar, &TLabel::SetShowAccelChar, true)
          .Publish("ShowHint")
          .Published("Transparent", &TLabel::Transparent, &TLabel::SetTransparent, true)
          .Doc(QStringLiteral("Lets what is behind the label show through."))
          .Published("Layout", &TLabel::Layout, &TLabel::SetLayout, TTextLayout::tlTop)
          .Publish("Visible")
          .Published("WordWrap", &TLabel::WordWrap, &TLabel::SetWordWrap, false)
          .PublishAll(MouseEvents, Placement, Direction, Dragging, Help, Styling, WheelEvents, DragEvents,
                      "PopupMenu")
          .Passive("EllipsisPosition", TEllipsisPosition::epNone)
          .Passive("GlowSize", 0)
          .Passive("OptimalFill", false)
          .ClassDoc(QStringLiteral("A text on the form."),
                    "pen line 2.2 path 5 19 12 4.5 19 19 pen accent 2.2 path 8 14 16 14"));
  return cls;
}

TLabel::TLabel(TComponent* owner) : TGraphicControl(owner) {
  captionFollowsName_ = true;
  autoSize_ = true;
  SetBounds(0, 0, 65, 17);
}

int TLabel::TextFlags() const {
  static constexpr int vertical[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
  return AlignmentFlag(alignment_) | vertical[static_cast<int>(layout_)] |
         (wordWrap_ ? Qt::TextWordWrap : 0) | (showAccelChar_ ? Qt::TextShowMnemonic : 0);
}

QSize TLabel::AutoSizeHint() const {
  const QSize text = TextExtent(Caption().isEmpty() ? QStringLiteral(" ") : Caption(), *Font(),
                                wordWrap_ ? int{Qt::TextWordWrap} : 0, wordWrap_ ? Width() : 0);
  return {wordWrap_ ? Width() : Caption().isEmpty() ? 0 : text.width(), text.height()};
}

// In forms whose width is the client's, anchors alone decide which edge stays.
bool TLabel::GrowsToTheLeft() const {
  const TControl* top = this;
  while (top->Parent()) top = top->Parent();
  const auto* form = As<TForm>(top);
  if (form && form->SizeIsClient())
    return Anchors().Contains(TAnchorKind::akRight) && !Anchors().Contains(TAnchorKind::akLeft);
  return alignment_ == TAlignment::taRightJustify;
}

void TLabel::DoChanged() {
  measured_.reset();
  TGraphicControl::DoChanged();
}

QRect TLabel::PaintExtent() const {
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

void TLabel::Paint(TCanvas& canvas) {
  const QRect area = PaintExtent();
  if (!transparent_) canvas.FillRect(area, Color());
  canvas.TextRect(area, TextFlags(), Caption(), *Font(), Enabled());
}
