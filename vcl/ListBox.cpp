#include "vcl/ListBox.h"

#include <QtEndian>

#include "rtl/Class.h"
#include "rtl/Exceptions.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomListBox::StaticClass() {
  static const TClass cls(DescribeClass<TCustomListBox>("TCustomListBox", TCustomListControl::StaticClass())
                              .DeclaredAll(AutoComplete, BorderStyle, Columns, ExtendedSelect, IntegralHeight,
                                           ItemHeight, ItemIndex, Items, ScrollWidth, Sorted, Style, TabWidth,
                                           TopIndex)
                              .DeclaredPassive("AutoCompleteDelay", 500)
                              .DeclaredPassive("ClickOnSelChange", true)
                              .DeclaredPassive("Options", TListBoxOptions{TListBoxOption::lboDrawFocusRect})
                              .DeclaredEvent("OnData", "TLBGetDataEvent")
                              .DeclaredEvent("OnDataFind", "TLBFindDataEvent")
                              .DeclaredEvent("OnDataObject", "TLBGetDataObjectEvent")
                              .DeclaredEvent("OnDrawItem", "TDrawItemEvent")
                              .DeclaredEvent("OnMeasureItem", "TMeasureItemEvent")
                              .DeclaredEvent("OnSelectionChange", "TSelectionChangeEvent"));
  return cls;
}

TCustomListBox::TCustomListBox(TComponent* owner) : TCustomListControl(owner) {
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 121, 97);
}

void TCustomListBox::Paint(TCanvas& canvas) {
  QRect inside = ClientRect();
  if (Get(BorderStyle) == TBorderStyle::bsSingle)
    inside = PaintEditFrame(canvas, inside, PartStates(), Color());
  else
    canvas.FillRect(inside, Color());
  QStringList items = Get(Items)->Lines();
  if (Get(Sorted)) items.sort(Qt::CaseInsensitive);
  if (items.isEmpty() && IsDesigning()) items << Name();
  const int own = Get(ItemHeight), height = own > 0 && Get(Style) != TListBoxStyle::lbStandard
                                                ? own
                                                : TextExtent(QStringLiteral("Wg"), *Font()).height();
  TFont onHighlight;
  onHighlight.Assign(Font());
  onHighlight.SetColor(clHighlightText);
  const int columns = std::max(Get(Columns), 1), rows = std::max(inside.height() / height, 1);
  const int chosenItem = ChosenItem();
  for (int i = std::max(Get(TopIndex), 0), place = 0; i < items.size(); ++i, ++place) {
    if (place >= rows * columns + (columns == 1)) break;  // the last one may be cut
    QRect line(inside.left() + place / rows * inside.width() / columns, inside.top() + place % rows * height,
               inside.width() / columns, height);
    if (columns == 1) line.moveTop(inside.top() + place * height);
    line = line.intersected(inside);
    const bool chosen = i == chosenItem;
    QRect text = PaintItemMark(canvas, line, i);
    if (chosen) canvas.FillRect(text, Enabled() ? clHighlight : clBtnShadow);
    canvas.TextRect(text.adjusted(2, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, items[i],
                    chosen ? onHighlight : *Font(), Enabled() || chosen);
  }
}

namespace {
// What both kinds of lists publish.
constexpr const char* ListProperties[] = {
    "AutoComplete",   "AutoCompleteDelay", "BorderStyle", "ClickOnSelChange", "Columns",
    "ExtendedSelect", "IntegralHeight",    "ItemHeight",  "ItemIndex",        "Items",
    "MultiSelect",    "Options",           "ScrollWidth", "Sorted",           "Style",
    "TabWidth",       "TopIndex"};
constexpr const char* ListEvents[] = {"OnData",     "OnDataFind",    "OnDataObject",
                                      "OnDrawItem", "OnMeasureItem", "OnSelectionChange"};
}  // namespace

const TClass& TListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TListBox>("TListBox", TCustomListBox::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, ListProperties, ListEvents, MouseEvents, KeyEvents,
                      FocusEvents, DragEvents)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Alphabetical()
          .ClassDoc(
              QStringLiteral("A list of texts."),
              "pen line 1.5 brush fill box 4 3.5 16 17 2 pen accent 2 path 7 8 17 8 pen line 1.5 path 7 "
              "12 15 12 path 7 16 16 16"));
  return cls;
}

const TClass& TCheckListBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TCheckListBox>("TCheckListBox", TCustomListBox::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, ListProperties, ListEvents, MouseEvents, KeyEvents,
                      FocusEvents, DragEvents)
          .PublishedAll(AllowGrayed, Flat, HeaderBackgroundColor, HeaderColor)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnClickCheck")
          .Event("OnItemClick", "TCheckListClicked")
          .Alphabetical()
          .Streamed("Data", &TCheckListBox::Data, &TCheckListBox::SetData)
          .ClassDoc(QStringLiteral("A list of choices that are made or not."),
                    "pen line 1.5 brush fill box 4 3.5 16 17 2 pen accent 1.8 path 6.5 8 8 9.5 10.5 6.5 path "
                    "6.5 15.5 8 17 10.5 14 pen line 1.5 path 13 8 17 8 path 13 15.5 17 15.5"));
  return cls;
}

TCheckBoxState TCheckListBox::State(int index) const {
  constexpr int Count = 4;
  if (index < 0 || Count + index >= data_.size()) return TCheckBoxState::cbUnchecked;
  const char state = data_[Count + index];
  return state == 1   ? TCheckBoxState::cbChecked
         : state == 2 ? TCheckBoxState::cbGrayed
                      : TCheckBoxState::cbUnchecked;
}

void TCheckListBox::SetState(int index, TCheckBoxState state) {
  const int count = Get(Items)->Count();
  if (index < 0 || index >= count)
    throw EComponentError(QStringLiteral("%1 has no item %2.").arg(Name()).arg(index));
  if (State(index) == state) return;
  QByteArray bytes(4 + count, '\0');
  qToLittleEndian(count, bytes.data());
  for (int i = 0; i < count; ++i) bytes[4 + i] = static_cast<char>(i == index ? state : State(i));
  SetData(bytes);
}

QRect TCheckListBox::PaintItemMark(TCanvas& canvas, const QRect& line, int index) const {
  const int mark = CheckMarkSize().width();
  PaintCheckMark(canvas, QRect(line.left() + 1, line.top(), mark, line.height()), PartStates(), State(index));
  return line.adjusted(mark + 3, 0, 0, 0);
}
