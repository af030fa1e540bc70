// Money between files and properties: exact to the ten-thousandth, on both sides of zero, both ways.
#include "FormTest.h"
#include "forms/Binding.h"
#include "forms/PropertyValues.h"
#include "rtl/PropAccess.h"

using namespace formtest;

namespace {
class TPurse : public TComponent {
  VRX_CLASS(TPurse)
 public:
  using TComponent::TComponent;
  TCurrency Money() const { return money_; }
  void SetMoney(TCurrency v) { Change(money_, v); }

 private:
  TCurrency money_;
};
const TClass& TPurse::StaticClass() {
  static const TClass cls(DescribeClass<TPurse>("TPurse", TComponent::StaticClass())
                              .Published("Money", &TPurse::Money, &TPurse::SetMoney));
  return cls;
}

struct Amount {  // a text holds the stored integer, too
  std::int64_t scaled;
  const char* text;
};
constexpr Amount Amounts[] = {{-15000, "-15000c"}, {-1, "-1c"}, {-12345678, "-12345678c"},
                              {25000, "25000c"},   {1, "1c"},   {0, "0c"}};

void Apply(TPurse& purse, const Document& document) {
  const Property& p = *document.Root().Find("P");
  forms::ApplyNow(purse, forms::FindTarget(purse, "Money"), document.Read(p), document);
}
}  // namespace

TEST(Currency, IsReadFromTextAndFromAStream) {
  for (const Amount& amount : Amounts) {
    const Document text = Document::Parse(FormWith(amount.text));
    TPurse fromText(nullptr), fromStream(nullptr);
    Apply(fromText, text);
    EXPECT_EQ(fromText.Money().Scaled, amount.scaled) << amount.text;
    Apply(fromStream, Document::Parse(text.WriteAs(Format::Binary)));
    EXPECT_EQ(fromStream.Money().Scaled, amount.scaled) << amount.text;
  }
}

TEST(Currency, IsWrittenAsItIsRead) {
  for (const Amount& amount : Amounts) {
    TPurse purse(nullptr), again(nullptr);
    purse.SetMoney({amount.scaled});
    Document document = Document::Create("T", "A");
    const auto value = forms::ValueOf(purse, TPurse::StaticClass().GetProp("Money"), document);
    ASSERT_TRUE(value.has_value());
    EXPECT_EQ(value->type, ValueType::Currency);
    EXPECT_EQ(value->integer, amount.scaled);
    document.Root().properties.push_back(document.MakeProperty("P", *value));
    for (const Format format : {Format::Text, Format::Binary}) {
      Apply(again, Document::Parse(document.WriteAs(format)));
      EXPECT_EQ(again.Money().Scaled, amount.scaled) << amount.text;
    }
  }
}
