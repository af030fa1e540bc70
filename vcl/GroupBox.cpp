#include "vcl/GroupBox.h"

#include <algorithm>

#include "rtl/Class.h"
#include "vcl/AsGiven.h"
#include "vcl/DesignMarks.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomGroupBox::StaticClass() {
  static const TClass cls(DescribeClass<TCustomGroupBox>("TCustomGroupBox", TWinControl::StaticClass()));
  return cls;
}

TCustomGroupBox::TCustomGroupBox(TComponent* owner) : TWinControl(owner) {
  captionFollowsName_ = true;
  SetBounds(0, 0, 185, 105);
}

QMargins TCustomGroupBox::Insets() const {
  if (ToldClientRect()) return TWinControl::Insets();
  constexpr int frame = 2;
  return TWinControl::Insets() +
         QMargins(frame, TextExtent(QStringLiteral("0"), *Font()).height() + frame, frame, frame);
}

QRect TCustomGroupBox::PaintFrame(TCanvas& canvas) const {
  const QRect all = TWinControl::ClientRect();
  canvas.FillRect(all, Color());
  return PaintGroupFrame(canvas, all, PartStates(), Caption(), *Font());
}

void TCustomGroupBox::Paint(TCanvas& canvas) { PaintFrame(canvas); }

const TClass& TGroupBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TGroupBox>("TGroupBox", TCustomGroupBox::StaticClass())
          .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging, Windowed, Help,
                      Styling, WheelEvents, Container, Docking, ResizeEvents, "AutoSize", "Caption",
                      "ParentCustomHint", "TabStop", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Passive("DefaultHeadingFont", true)
          .Passive("ShowFrame", true)
          .Alphabetical()
          .ClassDoc(QStringLiteral("A frame with a title around controls that belong together."),
                    "pen line 1.5 brush fill box 3 6.5 18 13 2 pen accent 2 path 6 6.5 13 6.5"));
  return cls;
}

const TClass& TChoiceGroup::StaticClass() {
  static const TTypeInfo columns = OrdinalType("TColumnCount", 1, 16);
  static const TClass cls(DescribeClass<TChoiceGroup>("TChoiceGroup", TCustomGroupBox::StaticClass())
                              .Declared(Columns)
                              .Type(columns)
                              .Declared(Items)
                              .Declared(WordWrap));
  return cls;
}

TChoiceGroup::TChoiceGroup(TComponent* owner) : TCustomGroupBox(owner) { tabStop_ = true; }

void TChoiceGroup::Paint(TCanvas& canvas) {
  QRect inside = PaintFrame(canvas).adjusted(6, 0, -2, -2);
  // Below the frame's line, title or not.
  inside.setTop(std::max(inside.top(), TextExtent(QStringLiteral("Wg"), *Font()).height()));
  const QStringList& items = Get(Items)->Lines();
  const int count = static_cast<int>(items.size());
  if (count == 0) return PaintEmpty(canvas, inside);
  const int columns = std::min(Get(Columns), count), rows = (count + columns - 1) / columns;
  const int mark = CheckMarkSize().width();
  for (int i = 0; i < count; ++i) {
    const QRect cell(inside.left() + i / rows * inside.width() / columns,
                     inside.top() + i % rows * inside.height() / rows, inside.width() / columns,
                     inside.height() / rows);
    PaintItemMark(canvas, QRect(cell.left(), cell.top(), mark, cell.height()), i);
    canvas.TextRect(cell.adjusted(mark + 5, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic,
                    items[i], *Font(), Enabled());
  }
}

// A choice in place of those to come tells the group from other frames.
void TChoiceGroup::PaintEmpty(TCanvas& canvas, const QRect& inside) const {
  if (!IsDesigning()) return;
  const QRect mark(inside.topLeft(), QSize(CheckMarkSize().width(), inside.height()));
  canvas.Painter().save();
  canvas.Painter().setOpacity(0.6);
  PaintItemMark(canvas, mark, 0);
  canvas.Painter().restore();
  PaintDesignName(canvas, QRect(QPoint(mark.right() + 6, inside.top()), inside.bottomRight()), *this,
                  Qt::AlignLeft | Qt::AlignVCenter);
}

const TClass& TCustomRadioGroup::StaticClass() {
  static const TClass cls(
      DescribeClass<TCustomRadioGroup>("TCustomRadioGroup", TChoiceGroup::StaticClass())
          .Declared("ItemIndex", &TCustomRadioGroup::IndexOf, &TCustomRadioGroup::SetIndex, -1));
  return cls;
}

void TCustomRadioGroup::SetIndex(int v) {
  Set(ItemIndex, TakesAsGiven(*this) ? v : std::clamp(v, -1, Get(Items)->Count() - 1));
}

void TCustomRadioGroup::PaintItemMark(TCanvas& canvas, const QRect& rect, int index) const {
  PaintRadioMark(canvas, rect, PartStates(), index == Get(ItemIndex));
}

const TClass& TRadioGroup::StaticClass() {
  static const TClass cls(DescribeClass<TRadioGroup>("TRadioGroup", TCustomRadioGroup::StaticClass())
                              .PublishAll(Placing, Look, ParentLook, Hints, Placement, Direction, Dragging,
                                          Windowed, Help, Styling, WheelEvents, Container, "AutoSize",
                                          "Caption", "Columns", "ItemIndex", "Items", "WordWrap", "OnClick",
                                          FocusEvents, DragEvents)
                              .Passive("AutoFill", true)
                              .Publish("TabStop", true)
                              .Alphabetical()
                              .ClassDoc(QStringLiteral("Choices that exclude each other, in a frame."),
                                        "pen line 1.5 brush fill box 3 3.5 18 17 2 oval 5.8 6 4.4 4.4 oval "
                                        "5.8 13.6 4.4 4.4 pen none brush "
                                        "accent oval 6.6 6.8 2.8 2.8 pen accent 1.8 path 12.5 8.2 18 8.2 pen "
                                        "line 1.5 path 12.5 15.8 18 15.8"));
  return cls;
}
