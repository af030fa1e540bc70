#include "vcl/Constraints.h"

#include "rtl/Class.h"

const TClass& TSizeConstraints::StaticClass() {
  static const TTypeInfo size = OrdinalType("TConstraintSize", 0, INT32_MAX);
  using C = TSizeConstraints;
  static const TClass cls(DescribeClass<C>("TSizeConstraints", TPersistent::StaticClass())
                              .Published("MaxHeight", &C::MaxHeight, &C::SetMaxHeight, 0)
                              .Type(size)
                              .Published("MaxWidth", &C::MaxWidth, &C::SetMaxWidth, 0)
                              .Type(size)
                              .Published("MinHeight", &C::MinHeight, &C::SetMinHeight, 0)
                              .Type(size)
                              .Published("MinWidth", &C::MinWidth, &C::SetMinWidth, 0)
                              .Type(size));
  return cls;
}

QSize TSizeConstraints::Limit(QSize size) const {
  const auto limit = [](int v, int least, int most) {
    if (most > 0 && v > most) v = most;
    return v < least ? least : v;
  };
  return {limit(size.width(), minWidth_, maxWidth_), limit(size.height(), minHeight_, maxHeight_)};
}
