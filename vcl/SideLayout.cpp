#include "vcl/SideLayout.h"

#include "rtl/Class.h"

const TTypeInfo& TypeInfoOf<THandler>::Get() {
  static const TTypeInfo info = MethodType("TNotifyEvent");
  return info;
}

const TClass& TAnchorSide::StaticClass() {
  static const TClass cls(DescribeClass<TAnchorSide>("TAnchorSide", TPersistent::StaticClass())
                              .Passive<TComponent*>("Control")
                              .Passive("Side", TAnchorSideReference::asrTop));
  return cls;
}

const TClass& TControlBorderSpacing::StaticClass() {
  static const TClass cls(
      DescribeClass<TControlBorderSpacing>("TControlBorderSpacing", TPersistent::StaticClass())
          .Passive("Left", 0)
          .Passive("Top", 0)
          .Passive("Right", 0)
          .Passive("Bottom", 0)
          .Passive("Around", 0)
          .Passive("InnerBorder", 0)
          .Passive("CellAlignHorizontal", TControlCellAlign::ccaFill)
          .Passive("CellAlignVertical", TControlCellAlign::ccaFill));
  return cls;
}

const TClass& TControlChildSizing::StaticClass() {
  using enum TChildControlResizeStyle;
  static const TClass cls(
      DescribeClass<TControlChildSizing>("TControlChildSizing", TPersistent::StaticClass())
          .Passive("LeftRightSpacing", 0)
          .Passive("TopBottomSpacing", 0)
          .Passive("HorizontalSpacing", 0)
          .Passive("VerticalSpacing", 0)
          .Passive("EnlargeHorizontal", crsAnchorAligning)
          .Passive("EnlargeVertical", crsAnchorAligning)
          .Passive("ShrinkHorizontal", crsAnchorAligning)
          .Passive("ShrinkVertical", crsAnchorAligning)
          .Passive("Layout", TControlChildrenLayout::cclNone)
          .Passive("ControlsPerLine", 0));
  return cls;
}
