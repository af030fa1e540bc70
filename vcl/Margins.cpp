#include "vcl/Margins.h"

#include "rtl/Class.h"

namespace {
template <class T>
TClassBuilder DescribeEdges(const char* name, int each) {
  return DescribeClass<T>(name, TEdges::StaticClass())
      .Published("Left", &TEdges::Left, &TEdges::SetLeft, each)
      .Published("Top", &TEdges::Top, &TEdges::SetTop, each)
      .Published("Right", &TEdges::Right, &TEdges::SetRight, each)
      .Published("Bottom", &TEdges::Bottom, &TEdges::SetBottom, each);
}
}  // namespace

const TClass& TEdges::StaticClass() {
  static const TClass cls(DescribeClass<TEdges>("TEdges", TPersistent::StaticClass()));
  return cls;
}
const TClass& TMargins::StaticClass() {
  static const TClass cls(DescribeEdges<TMargins>("TMargins", 3));
  return cls;
}
const TClass& TPadding::StaticClass() {
  static const TClass cls(DescribeEdges<TPadding>("TPadding", 0));
  return cls;
}
