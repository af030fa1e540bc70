// Ordinal and floating-point properties: read, written, refused, default, stored, as text, reset.
#include <cmath>
#include <limits>

#include "tests/rtl/RtlTest.h"

using namespace rtltest;

namespace {
struct OrdCase {
  const char* name;
  std::int64_t min, max, initial;
  TTypeKind kind;
  const char* initialText;
};
constexpr OrdCase Ordinals[] = {
    {"Int", INT32_MIN, INT32_MAX, 3, TTypeKind::tkInteger, "3"},
    {"ShortInt", -128, 127, 0, TTypeKind::tkInteger, "0"},
    {"Byte", 0, 255, 0, TTypeKind::tkInteger, "0"},
    {"SmallInt", -32768, 32767, 0, TTypeKind::tkInteger, "0"},
    {"Word", 0, 65535, 0, TTypeKind::tkInteger, "0"},
    {"Cardinal", 0, UINT32_MAX, 0, TTypeKind::tkInteger, "0"},
    {"Int64", INT64_MIN, INT64_MAX, 0, TTypeKind::tkInt64, "0"},
    {"Letter", 0, 65535, 65, TTypeKind::tkChar, "65"},
    {"Boolean", 0, 1, 1, TTypeKind::tkEnumeration, "True"},
    {"Flavour", 0, 2, 1, TTypeKind::tkEnumeration, "fvSour"},
    {"Flavours", 0, 7, 5, TTypeKind::tkSet, "[fvSweet,fvBitter]"},
};
constexpr const char* Floats[] = {"Single", "Real", "Money", "Moment"};
}  // namespace

TEST(OrdinalProperty, AcceptsItsWholeRangeAndNothingBeyond) {
  TEverything c(nullptr);
  for (const OrdCase& o : Ordinals) {
    const TPropInfo& p = Prop(c, o.name);
    EXPECT_EQ(p.Kind(), o.kind) << o.name;
    EXPECT_EQ(GetOrdProp(c, p), o.initial) << o.name;
    for (const std::int64_t v : {o.min, o.max}) {
      SetOrdProp(c, p, v);
      EXPECT_EQ(GetOrdProp(c, p), v) << o.name;
    }
    if (o.min != INT64_MIN) {
      EXPECT_THROW(SetOrdProp(c, p, o.min - 1), EPropertyError) << o.name;
    }
    if (o.max != INT64_MAX) {
      EXPECT_THROW(SetOrdProp(c, p, o.max + 1), EPropertyError) << o.name;
    }
    EXPECT_EQ(GetOrdProp(c, p), o.max) << o.name << " is unchanged by a refusal";
  }
}

TEST(OrdinalProperty, ARefusalNamesClassPropertyAndValue) {
  TEverything c(nullptr);
  try {
    SetOrdProp(c, Prop(c, "Byte"), 256);
    FAIL();
  } catch (const EPropertyError& e) {
    EXPECT_TRUE(e.Message().contains(QStringLiteral("TEverything.Byte"))) << e.what();
    EXPECT_TRUE(e.Message().contains(QStringLiteral("256"))) << e.what();
  }
}

TEST(OrdinalProperty, IsStoredUnlessItEqualsItsDefault) {
  TEverything c(nullptr);
  for (const OrdCase& o : Ordinals) {
    const TPropInfo& p = Prop(c, o.name);
    EXPECT_EQ(p.Default, o.initial) << o.name;
    EXPECT_TRUE(IsDefaultValue(c, p)) << o.name;
    EXPECT_FALSE(IsStoredProp(c, p)) << o.name;
    SetOrdProp(c, p, o.initial == o.max ? o.min : o.max);
    EXPECT_FALSE(IsDefaultValue(c, p)) << o.name;
    EXPECT_TRUE(IsStoredProp(c, p)) << o.name;
    ResetProp(c, p);
    EXPECT_EQ(GetOrdProp(c, p), o.initial) << o.name;
  }
}

TEST(OrdinalProperty, WithoutADefaultItIsAlwaysStoredAndKeptOnReset) {
  TEverything c(nullptr);
  const TPropInfo& p = Prop(c, "Always");
  EXPECT_TRUE(IsStoredProp(c, p));
  SetOrdProp(c, p, 9);
  ResetProp(c, p);
  EXPECT_EQ(c.always, 9);
}

TEST(OrdinalProperty, GoesThroughTextBothWays) {
  TEverything c(nullptr), d(nullptr);
  for (const OrdCase& o : Ordinals) {
    const TPropInfo& p = Prop(c, o.name);
    EXPECT_EQ(GetPropText(c, p), QLatin1StringView(o.initialText)) << o.name;
    for (const std::int64_t v : {o.min, o.max, o.initial}) {
      SetOrdProp(c, p, v);
      SetPropText(d, p, GetPropText(c, p));
      EXPECT_EQ(GetOrdProp(d, p), v) << o.name;
    }
    for (const char* wrong : {"", "fvSalty", "1.5", "x", "[fvSalty]", "--1", "99999999999999999999"}) {
      if (o.kind == TTypeKind::tkSet && !*wrong) continue;  // no elements
      EXPECT_THROW(SetPropText(d, p, QLatin1StringView(wrong)), EConvertError) << o.name << " " << wrong;
      EXPECT_EQ(GetOrdProp(d, p), o.initial) << o.name;
    }
  }
}

TEST(OrdinalProperty, TextIsReadWithoutRegardToCaseAndBlanks) {
  TEverything c(nullptr);
  SetPropText(c, Prop(c, "Flavour"), QStringLiteral(" FVBITTER "));
  EXPECT_EQ(c.flavour, TFlavour::fvBitter);
  SetPropText(c, Prop(c, "Boolean"), QStringLiteral("false"));
  EXPECT_FALSE(c.boolean);
  SetPropText(c, Prop(c, "Flavours"), QStringLiteral(" [ fvsour , FvSweet ] "));
  EXPECT_EQ(c.flavours, (TFlavours{TFlavour::fvSour, TFlavour::fvSweet}));
  SetPropText(c, Prop(c, "Flavours"), QStringLiteral("[]"));
  EXPECT_EQ(c.flavours, TFlavours());
  SetPropText(c, Prop(c, "Flavours"), QStringLiteral("fvBitter"));
  EXPECT_EQ(c.flavours, TFlavours{TFlavour::fvBitter});
}

TEST(OrdinalProperty, HexadecimalTextIsRead) {
  TEverything c(nullptr);
  SetPropText(c, Prop(c, "Int"), QStringLiteral("$1f"));
  EXPECT_EQ(c.integer, 31);
  SetPropText(c, Prop(c, "Int"), QStringLiteral("$FFFFFFFF"));
  EXPECT_EQ(c.integer, -1);
  SetPropText(c, Prop(c, "Cardinal"), QStringLiteral("$FFFFFFFF"));
  EXPECT_EQ(c.cardinal, UINT32_MAX);
  for (const char* wrong : {"$", "$100000000", "$G", "$-5", "$ 5"})
    EXPECT_THROW(SetPropText(c, Prop(c, "Int"), QLatin1StringView(wrong)), EConvertError) << wrong;
}

TEST(FloatProperty, IsReadWrittenResetAndDefaultAtZero) {
  TEverything c(nullptr);
  for (const char* name : Floats) {
    const TPropInfo& p = Prop(c, name);
    EXPECT_EQ(p.Kind(), TTypeKind::tkFloat);
    EXPECT_FALSE(IsStoredProp(c, p)) << name;
    SetFloatProp(c, p, -2.25L);
    EXPECT_EQ(static_cast<double>(GetFloatProp(c, p)), -2.25) << name;
    EXPECT_TRUE(IsStoredProp(c, p)) << name;
    EXPECT_EQ(GetPropText(c, p), QStringLiteral("-2.25")) << name;
    SetPropText(c, p, QStringLiteral(" 17.5 "));
    EXPECT_EQ(static_cast<double>(GetFloatProp(c, p)), 17.5) << name;
    ResetProp(c, p);
    EXPECT_EQ(static_cast<double>(GetFloatProp(c, p)), 0.0) << name;
  }
}

TEST(FloatProperty, CurrencyIsKeptInTenThousandths) {
  TEverything c(nullptr);
  SetFloatProp(c, Prop(c, "Money"), 1.23456L);
  EXPECT_EQ(c.money.Scaled, 12346);
  SetFloatProp(c, Prop(c, "Money"), -1.23456L);
  EXPECT_EQ(c.money.Scaled, -12346);
  SetFloatProp(c, Prop(c, "Money"), 922337203685477.0L);
  EXPECT_EQ(c.money.Scaled, 9223372036854770000);
}

TEST(FloatProperty, WhatTheTypeCannotHoldIsRefused) {
  TEverything c(nullptr);
  const long double infinity = std::numeric_limits<long double>::infinity();
  for (const char* name : Floats) {
    SetFloatProp(c, Prop(c, name), 2);
    for (const long double wrong : {infinity, -infinity, std::numeric_limits<long double>::quiet_NaN()})
      EXPECT_THROW(SetFloatProp(c, Prop(c, name), wrong), EPropertyError) << name;
    for (const char* wrong : {"", "x", "1,5", "1.5.2", "nan", "inf"})
      EXPECT_ANY_THROW(SetPropText(c, Prop(c, name), QLatin1StringView(wrong))) << name << " " << wrong;
    EXPECT_EQ(static_cast<double>(GetFloatProp(c, Prop(c, name))), 2.0) << name;
  }
  EXPECT_THROW(SetFloatProp(c, Prop(c, "Single"), 1e39L), EPropertyError);
  EXPECT_THROW(SetFloatProp(c, Prop(c, "Single"), -1e39L), EPropertyError);
  EXPECT_THROW(SetFloatProp(c, Prop(c, "Money"), 922337203685478.0L), EPropertyError);
  EXPECT_THROW(SetFloatProp(c, Prop(c, "Money"), -1e15L), EPropertyError);
  EXPECT_EQ(c.single, 2.0f);
  EXPECT_EQ(c.money.Scaled, 20000);
}
