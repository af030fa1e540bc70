#include "vcl/SideLayout.h"

#include "rtl/Class.h"

const TTypeInfo& TypeInfoOf<THandler>::Get() {
  static const TTypeInfo info = MethodType("TNotifyEvent");
  return info;
}

const TClass& TAnchorSide::StaticClass() {
  static const TClass cls(DescribeClass<TAnchorSide>("TAnchorSide", TPersistent::StaticClass())
                              .Published(Control)
                              .Published(Side));
  return cls;
}

const TClass& TControlBorderSpacing::StaticClass() {
  static const TClass cls(
      DescribeClass<TControlBorderSpacing>("TControlBorderSpacing", TPersistent::StaticClass())
          .PublishedAll(Left, Top, Right, Bottom, Around)
          .Passive("InnerBorder", 0)
          .Passive("CellAlignHorizontal", TControlCellAlign::ccaFill)
          .Passive("CellAlignVertical", TControlCellAlign::ccaFill));
  return cls;
}

const TClass& TControlChildSizing::StaticClass() {
  using enum TChildControlResizeStyle;
  static const TClass cls(
      DescribeClass<TControlChildSizing>("TControlChildSizing", TPersistent::StaticClass())
          .PublishedAll(LeftRightSpacing, TopBottomSpacing, HorizontalSpacing, VerticalSpacing)
          .Passive("EnlargeHorizontal", crsAnchorAligning)
          .Passive("EnlargeVertical", crsAnchorAligning)
          .Passive("ShrinkHorizontal", crsAnchorAligning)
          .Passive("ShrinkVertical", crsAnchorAligning)
          .Passive("Layout", TControlChildrenLayout::cclNone)
          .Passive("ControlsPerLine", 0));
  return cls;
}
