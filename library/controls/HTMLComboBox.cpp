#include "library/controls/HTMLComboBox.h"

#include "vcl/DesignMarks.h"
#include "vcl/PropertyGroups.h"

const TClass& TVRXHTMLComboBox::StaticClass() {
  static const TClass cls(DescribeClass<TVRXHTMLComboBox>("TVRXHTMLComboBox", TCustomComboBox::StaticClass())
                              .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels,
                                          Windowed, Help, Input, Styling, WheelEvents, "DropDownCount",
                                          "ItemHeight", "ItemIndex", "Items", "Sorted", "TextHint",
                                          "OnChange", "OnCloseUp", "OnDropDown", "OnSelect", MouseEvents,
                                          KeyEvents, FocusEvents, DragEvents)
                              .Published(Images)
                              .Doc(QStringLiteral("The pictures that <img index=...> shows."))
                              .Passive("AutoDropDownWidth", false)
                              .Publish("AutoSize", true)
                              .Publish("Color", clWindow)
                              .Publish("ParentColor", false)
                              .Publish("TabStop", true)
                              .Event("OnLinkClick", "TVRXHTMLLinkEvent")
                              .Alphabetical()
                              .ClassDoc(QStringLiteral("A list that drops down, of texts with markup."),
                                        "pen line 1.5 brush fill box 2.5 7.5 19 9 2 pen accent 2.4 path 5.5 "
                                        "12 8.5 12 pen line 1.5 path 10 "
                                        "12 12.5 12 pen accent 2 path 15 11 17 13 19 11"));
  return cls;
}

TVRXHTMLComboBox::TVRXHTMLComboBox(TComponent* owner) : TCustomComboBox(owner) {
  SetBounds(0, 0, 144, 23);
  autoSize_ = true;
}

QSize TVRXHTMLComboBox::AutoSizeHint() const {
  const int own = Get(ItemHeight);
  return {Width(),
          own > 0 ? std::min(own, 0x7FFF) + 6 : TextExtent(QStringLiteral("Wg"), *Font()).height() + 8};
}

// In one line: what is higher is cut.
void TVRXHTMLComboBox::PaintField(TCanvas& canvas, const QRect& inside) {
  QStringList items = Get(Items)->Lines();
  if (Get(Sorted)) items.sort(Qt::CaseInsensitive);
  const int index = Get(ItemIndex);
  const bool chosen = index >= 0 && index < items.size();
  if (!chosen && Get(TextHint).isEmpty())
    return PaintDesignName(canvas, inside, *this, Qt::AlignLeft | Qt::AlignVCenter);
  html::Setup setup = html::SetupFor(*Font(), Enabled() && chosen, inside.width(), Get(Images));
  setup.wrap = false;
  html::Draw(canvas, inside, Qt::AlignVCenter, chosen ? items[index] : Get(TextHint), setup, Get(Images));
}
