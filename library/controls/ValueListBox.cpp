#include "library/controls/ValueListBox.h"

#include "rtl/Class.h"
#include "vcl/DesignMarks.h"
#include "vcl/ItemPainting.h"
#include "vcl/PropertyGroups.h"

namespace {
// What both publish, the values last: a file gives the items first.
template <class C>
TClassBuilder Described(TClassBuilder b) {
  return std::move(b)
      .Publish("Color", clWindow)
      .Publish("ParentColor", false)
      .Publish("TabStop", true)
      .Publish("Items")
      .Doc(QStringLiteral("The names, as they are shown."))
      .Published(C::Values)
      .Doc(QStringLiteral("What stands behind the names, in their order."))
      .Published("Value", &C::ChosenValue, &C::ChooseValue)
      .Doc(QStringLiteral("The value of the chosen item. A name may be given for it."));
}
}  // namespace

const TClass& TVRXValueListBox::StaticClass() {
  static const TClass cls(
      Described<TVRXValueListBox>(
          DescribeClass<TVRXValueListBox>("TVRXValueListBox", TCustomListBox::StaticClass())
              .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                          Input, Styling, "BorderStyle", "Columns", "IntegralHeight", "ItemHeight", "Style",
                          "TopIndex", WheelEvents, "OnDrawItem", "OnMeasureItem", MouseEvents, KeyEvents,
                          FocusEvents, DragEvents))
          .Event("OnChange")
          .ClassDoc(
              QStringLiteral("A list of names, of which each stands for a value."),
              "pen line 1.5 brush fill box 4 3.5 16 17 2 path 7 8 11 8 path 7 12 11 12 path 7 16 11 16 pen "
              "accent 2 path 14 8 17 8 path 14 12 17 12 path 14 16 17 16"));
  return cls;
}

const TClass& TVRXValueComboBox::StaticClass() {
  static const TClass cls(
      Described<TVRXValueComboBox>(
          DescribeClass<TVRXValueComboBox>("TVRXValueComboBox", TCustomComboBox::StaticClass())
              .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                          Input, Styling, "DropDownCount", "TextHint", WheelEvents, "OnChange", "OnCloseUp",
                          "OnDropDown", "OnSelect", MouseEvents, KeyEvents, FocusEvents, DragEvents))
          .ClassDoc(
              QStringLiteral("A field with a list of names, of which each stands for a value."),
              "pen line 1.5 brush fill box 2.5 7.5 19 9 2 path 5.5 12 8 12 pen accent 2 path 9.8 12 12 12 "
              "path 14.5 11 17 13.5 19.5 11"));
  return cls;
}

void TVRXValueComboBox::PaintField(TCanvas& canvas, const QRect& inside) {
  const int chosen = ItemOfValue();
  if (chosen < 0 && Get(TextHint).isEmpty())
    return PaintDesignName(canvas, inside, *this, Qt::AlignLeft | Qt::AlignVCenter);
  PaintPlainText(canvas, inside, Qt::AlignLeft, chosen >= 0 ? Names()[chosen] : Get(TextHint), *Font(),
                 Enabled() && chosen >= 0);
}
