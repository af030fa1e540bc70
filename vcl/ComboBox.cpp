#include "vcl/ComboBox.h"

#include "rtl/Class.h"
#include "vcl/AsGiven.h"
#include "vcl/Painters.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomComboBox::StaticClass() {
  static const TClass cls(DescribeClass<TCustomComboBox>("TCustomComboBox", TCustomListControl::StaticClass())
                              .DeclaredAll(CharCase, DropDownCount, ItemHeight, ItemIndex, Items, MaxLength,
                                           ReadOnly, Sorted, Style, TextHint)
                              .Declared("Text", &TCustomComboBox::Text, &TCustomComboBox::SetText)
                              .Type(CaptionType())
                              .DeclaredEvent("OnChange")
                              .DeclaredEvent("OnCloseUp")
                              .DeclaredEvent("OnDropDown")
                              .DeclaredEvent("OnSelect"));
  return cls;
}

TCustomComboBox::TCustomComboBox(TComponent* owner) : TCustomListControl(owner) {
  captionFollowsName_ = true;
  tabStop_ = true;
  StartWith(clWindow);
  SetBounds(0, 0, 145, 21);
}

void TCustomComboBox::PaintField(TCanvas& canvas, const QRect& inside) {
  QString text = Text();
  const QStringList& items = Get(Items)->Lines();
  const int index = Get(ItemIndex);
  if (Get(Style) != TComboBoxStyle::csDropDown && Get(Style) != TComboBoxStyle::csSimple)
    text = index >= 0 && index < items.size() ? items[index] : QString();
  const bool hint = text.isEmpty() && !Get(TextHint).isEmpty();
  canvas.TextRect(inside, Qt::AlignLeft | Qt::AlignVCenter, hint ? Get(TextHint) : text, *Font(),
                  Enabled() && !hint);
}

void TCustomComboBox::Paint(TCanvas& canvas) {
  QRect field = ClientRect(), list;
  const bool simple = Get(Style) == TComboBoxStyle::csSimple;
  if (simple) {  // the list is always there, below the field
    field.setHeight(TextExtent(QStringLiteral("Wg"), *Font()).height() + 8);
    list = ClientRect().adjusted(0, field.height(), 0, 0);
  }
  QRect inside = PaintEditFrame(canvas, field, PartStates(), Color());
  if (!simple) {
    constexpr int Knob = 17;
    const QRect knob(field.right() - Knob, field.top() + 1, Knob, field.height() - 2);
    PaintDropButton(canvas, knob, PartStates());
    inside.setRight(knob.left() - 1);
  }
  PaintField(canvas, inside);
  if (list.height() <= 4) return;
  const QRect lines = PaintEditFrame(canvas, list, PartStates(), Color());
  canvas.TextRect(lines, Qt::AlignLeft | Qt::AlignTop, Get(Items)->Lines().join(u'\n'), *Font(), Enabled());
}

const TClass& TComboBox::StaticClass() {
  static const TClass cls(
      DescribeClass<TComboBox>("TComboBox", TCustomComboBox::StaticClass())
          .Published("Style", &TComboBox::StyleOf, &TComboBox::SetStyle, TComboBoxStyle::csDropDown)
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, "CharCase", "DropDownCount", "ItemHeight", "ItemIndex",
                      "Items", "MaxLength", "ReadOnly", "Sorted", "Text", "TextHint", "OnChange", "OnCloseUp",
                      "OnDropDown", "OnSelect", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Passive("ArrowKeysTraverseList", true)
          .Passive("AutoComplete", true)
          .Passive("AutoCompleteDelay", 500)
          .Passive("AutoCompleteText",
                   TComboBoxAutoCompleteText{TComboBoxAutoCompleteTextOption::cbactEndOfLineComplete,
                                             TComboBoxAutoCompleteTextOption::cbactSearchAscending})
          .Passive("AutoDropDown", false)
          .Passive("AutoCloseUp", false)
          .Passive("AutoDropDownWidth", false)
          .Passive("AutoSelect", true)
          .Publish("AutoSize", true)
          .Passive("ItemWidth", 0)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnDrawItem", "TDrawItemEvent")
          .Event("OnMeasureItem", "TMeasureItemEvent")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field for a text, with a list of texts to choose from."),
                    "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen accent 2 path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

TComboBox::TComboBox(TComponent* owner) : TCustomComboBox(owner) { autoSize_ = true; }

void TComboBox::SetStyle(TComboBoxStyle v) {
  const int height = Height();
  Set(Style, v);
  if (v == TComboBoxStyle::csSimple && !TakesAsGiven(*this)) SetBounds(Left(), Top(), Width(), height);
}

QSize TComboBox::AutoSizeHint() const {
  constexpr int frame = 6, usual = 16;
  switch (Get(Style)) {
    case TComboBoxStyle::csSimple:
      return {Width(), Height()};
    case TComboBoxStyle::csDropDown:
    case TComboBoxStyle::csDropDownList:
      return {Width(), TextExtent(QStringLiteral("Wg"), *Font()).height() + 8};
    default:
      return {Width(), (Get(ItemHeight) > 0 ? Get(ItemHeight) : usual) + frame};
  }
}
