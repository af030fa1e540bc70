#include "vcl/RichEdit.h"

#include "rtl/Class.h"
#include "vcl/PropertyGroups.h"

const TClass& TCustomRichEdit::StaticClass() {
  static const TClass cls(DescribeClass<TCustomRichEdit>("TCustomRichEdit", TCustomMemo::StaticClass()));
  return cls;
}

const TClass& TRichEdit::StaticClass() {
  static const TClass cls(
      DescribeClass<TRichEdit>("TRichEdit", TCustomRichEdit::StaticClass())
          .PublishAll(Placing, Lettering, Hints, Placement, Direction, Dragging, Bevels, Windowed, Help,
                      Input, Styling, WheelEvents, "Alignment", "BorderStyle", "CharCase", "HideSelection",
                      "Lines", "MaxLength", "ReadOnly", "ScrollBars", "WantReturns", "WantTabs", "WordWrap",
                      "OnChange", MouseEvents, KeyEvents, FocusEvents, DragEvents)
          .Passive("BorderWidth", 0)
          .Passive("EnableURLs", false)
          .Passive("HideScrollBars", true)
          .Passive("PlainText", false)
          .Passive("SpellChecking", false)
          .Passive("Transparent", false)
          .Passive("Zoom", 100)
          .Publish("Color", clWindow)
          .Publish("ParentColor", false)
          .Publish("TabStop", true)
          .Event("OnLinkClick", "TRichEditLinkClick")
          .Event("OnProtectChange", "TRichEditProtectChange")
          .PublishAll("OnResize")
          .Event("OnResizeRequest", "TRichEditResizeEvent")
          .Event("OnSaveClipboard", "TRichEditSaveClipboard")
          .Event("OnSelectionChange")
          .Alphabetical()
          .ClassDoc(QStringLiteral("A field for a text of many lines with formats."),
                    "pen line 1.5 brush fill box 3.5 4.5 17 15 2 pen accent 2.4 path 7 9 12 9 pen line 1.5 "
                    "path 14 9 17 9 path 7 12.5 17 12.5 path 7 16 15 16"));
  return cls;
}
