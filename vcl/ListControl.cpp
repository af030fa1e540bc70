#include "vcl/ListControl.h"

const TClass& TCustomListControl::StaticClass() {
  static const TClass cls(DescribeClass<TCustomListControl>("TCustomListControl", TWinControl::StaticClass())
                              .Declared(MultiSelect));
  return cls;
}
