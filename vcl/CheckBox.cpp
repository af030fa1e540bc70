#include "vcl/CheckBox.h"

#include "rtl/Class.h"
#include "vcl/ActionLook.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

namespace {
constexpr int Gap = 4;  // between mark and text
int MarkSide() { return CheckMarkSize().width(); }
}  // namespace

const TClass& TMarkControl::StaticClass() {
  static const TClass cls(DescribeClass<TMarkControl>("TMarkControl", TWinControl::StaticClass())
                              .DeclaredAll(Alignment, WordWrap));
  return cls;
}

TMarkControl::TMarkControl(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 97, 17);
}

QSize TMarkControl::AutoSizeHint() const {
  const QSize text = TextExtent(Caption(), *Font(), Qt::TextShowMnemonic);
  return {MarkSide() + Gap + text.width() + 2, std::max(MarkSide(), text.height()) + 2};
}

void TMarkControl::Paint(TCanvas& canvas) {
  canvas.FillRect(ClientRect(), Color());
  QRect text = ClientRect();
  QRect mark(0, (Height() - MarkSide()) / 2, MarkSide(), MarkSide());
  if (Get(Alignment) == TLeftRight::taRightJustify) {
    text.setLeft(MarkSide() + Gap);
  } else {
    mark.moveRight(ClientRect().right());
    text.setRight(mark.left() - Gap);
  }
  PaintMark(canvas, mark);
  const TActionLook look = LookOf(*this);
  canvas.TextRect(
      text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | (Get(WordWrap) ? Qt::TextWordWrap : 0),
      look.caption, *Font(), look.enabled);
}

const TClass& TCustomCheckBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomCheckBox>("TCustomCheckBox", TMarkControl::StaticClass())
          .DeclaredAll(AllowGrayed, State)
          .Declared("Checked", &TCustomCheckBox::Checked, &TCustomCheckBox::SetChecked, false));
  return cls;
}

TCustomCheckBox::TCustomCheckBox(TComponent* owner) : TMarkControl(owner) { tabStop_ = true; }

void TCustomCheckBox::SetChecked(bool v) {
  Set(State, v ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked);
}

void TCustomCheckBox::PaintMark(TCanvas& canvas, const QRect& rect) const {
  const TActionLook look = LookOf(*this, Checked());
  const bool checked = look.checked && Get(State) == TCheckBoxState::cbUnchecked;
  PaintCheckMark(canvas, rect, look.States(), checked ? TCheckBoxState::cbChecked : Get(State));
}

const TClass& TCheckBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TCheckBox>("TCheckBox", TCustomCheckBox::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help,
                      Styling, WheelEvents, "Action", "Alignment", "AllowGrayed", "AutoSize", "Caption",
                      "Checked", "State", "WordWrap", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Publish("TabStop", true)
          .Event("OnChange")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A choice that is made or not."),
                    "pen line 1.5 brush fill box 4.5 4.5 15 15 2 pen accent 2.2 path 8 12 11 15 16 9"));
  return cls;
}

const TClass& TRadioButton::StaticClass() {
  static const TClass cls(
      DescribeClass<TRadioButton>("TRadioButton", TMarkControl::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help,
                      Styling, WheelEvents, "Action", "Alignment", "AutoSize", "Caption", "WordWrap",
                      MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Published("Checked", &TRadioButton::Checked, &TRadioButton::SetChecked, false)
          .Publish("TabStop", false)
          .Event("OnChange")
          .Alphabetical()
          .ClassDoc(QStringLiteral("One of several choices that exclude each other."),
                    "pen line 1.5 brush fill oval 4 4 16 16 pen none brush accent oval 8 8 8 8"));
  return cls;
}

TRadioButton::TRadioButton(TComponent* owner) : TMarkControl(owner) { SetBounds(0, 0, 113, 17); }

void TRadioButton::PaintMark(TCanvas& canvas, const QRect& rect) const {
  const TActionLook look = LookOf(*this, checked_);
  PaintRadioMark(canvas, rect, look.States(), look.checked);
}

void TRadioButton::SetChecked(bool v) {
  if (checked_ == v) return;
  Change(checked_, v);
  if (!v || !Parent() || IsLoading()) return;
  for (TControl* c : Parent()->Controls())
    if (auto* other = As<TRadioButton>(c); other && other != this) other->SetChecked(false);
}
