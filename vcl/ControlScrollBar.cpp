#include "vcl/ControlScrollBar.h"

#include "rtl/Class.h"

const TClass& TControlScrollBar::StaticClass() {
  static const TClass cls(DescribeClass<TControlScrollBar>("TControlScrollBar", TPersistent::StaticClass())
                              .Passive("ButtonSize", 0)
                              .Passive("Color", clBtnHighlight)
                              .Passive("Increment", std::int16_t{8})
                              .Passive("Margin", std::uint16_t{0})
                              .Passive("Page", 0)
                              .Passive("ParentColor", true)
                              .PublishedAll(Position, Range)
                              .Passive("Size", 0)
                              .Passive("Smooth", false)
                              .Passive("Style", TScrollBarStyle::ssRegular)
                              .Passive("ThumbSize", 0)
                              .Passive("Tracking", false)
                              .Published(Visible));
  return cls;
}
