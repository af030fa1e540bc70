#include "tests/rtl/RtlTest.h"

namespace rtltest {

const TClass& TPoint2::StaticClass() {
  static const TClass cls(DescribeClass<TPoint2>("TPoint2", TPersistent::StaticClass())
                              .Published("X", &TPoint2::X, &TPoint2::SetX, 0)
                              .Published("Y", &TPoint2::Y, &TPoint2::SetY, 5));
  return cls;
}

const TClass& TPiece::StaticClass() {
  static const TClass cls(DescribeClass<TPiece>("TPiece", TCollectionItem::StaticClass())
                              .Published("Title", &TPiece::Title, &TPiece::SetTitle));
  return cls;
}

const TClass& TEverything::StaticClass() {
  using T = TEverything;
  static const TClass cls(
      DescribeClass<T>("TEverything", TComponent::StaticClass())
          .Published("Int", &T::integer, &T::integer, 3)
          .Published("ShortInt", &T::shortInt, &T::shortInt, 0)
          .Published("Byte", &T::byte, &T::byte, 0)
          .Published("SmallInt", &T::smallInt, &T::smallInt, 0)
          .Published("Word", &T::word, &T::word, 0)
          .Published("Cardinal", &T::cardinal, &T::cardinal, 0)
          .Published("Int64", &T::int64, &T::int64, 0)
          .Published("Letter", &T::letter, &T::letter, 65)
          .Published("Boolean", &T::boolean, &T::boolean, true)
          .Published("Flavour", &T::flavour, &T::flavour, TFlavour::fvSour)
          .Published("Flavours", &T::flavours, &T::flavours, TFlavours{TFlavour::fvSweet, TFlavour::fvBitter})
          .Published("Single", &T::single, &T::single)
          .Published("Real", &T::real, &T::real)
          .Published("Money", &T::money, &T::money)
          .Published("Moment", &T::moment, &T::moment)
          .Published("Text", &T::text, &T::text)
          .Streamed("Data", &T::data, &T::data)
          .Published("Always", &T::always, &T::always)
          .Published("Conditional", &T::conditional, &T::conditional, 0)
          .StoredIf(&T::Keep)
          .Published("Never", &T::always, &T::always)
          .NeverStored()
          .Published("ReadOnly", &T::readOnly, nullptr, 0)
          .Published("Point", &T::Point, nullptr)
          .Published("Lines", &T::Lines, nullptr)
          .Published("Parts", &T::Parts, nullptr)
          .Published("Friend", &T::Friend, &T::SetFriend)
          .Event("OnClick")
          .Event("OnKey", "TKeyEvent"));
  return cls;
}

}  // namespace rtltest
