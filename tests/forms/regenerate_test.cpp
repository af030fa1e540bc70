// The text that is written for a value, in the layouts of both kinds of files.
#include <cmath>
#include <limits>
#include <random>

#include "tests/forms/FormTest.h"

using namespace formtest;

namespace {
std::string Text(const Value& v, const Dialect& style, int level = 1) {
  return forms::ValueToText(v, style, level).toStdString();
}
Value ListOf(std::vector<Value> items) {
  Value v;
  v.type = ValueType::List;
  v.items = std::move(items);
  return v;
}
Value Items(std::vector<forms::CollectionItem> items) {
  Value v;
  v.type = ValueType::Collection;
  v.collection = std::move(items);
  return v;
}
Value Ascii(const QByteArray& text) { return Value::Text(QString::fromLatin1(text)); }
}  // namespace

TEST(Regenerate, Words) {
  for (const Dialect& style : {Vcl(), Lcl()}) {
    EXPECT_EQ(Text(Value::Boolean(true), style), "True");
    EXPECT_EQ(Text(Value::Boolean(false), style), "False");
    EXPECT_EQ(Text(Value{}, style), "nil");
    EXPECT_EQ(Text(Value::Identifier("clRed"), style), "clRed");
    EXPECT_EQ(Text(Value::Integer(INT64_MIN), style), "-9223372036854775808");
    EXPECT_EQ(Text(Value::SetOf({}), style), "[]");
    EXPECT_EQ(Text(Value::SetOf({"a", "b", "c"}), style), "[a, b, c]");
  }
}

TEST(Regenerate, ListsCloseWhereTheLayoutClosesThem) {
  const Value v = ListOf({Value::Integer(1), ListOf({Ascii("x"), ListOf({})}), Value::SetOf({"a"})});
  EXPECT_EQ(Text(v, Vcl()), "(\n    1\n    (\n      'x'\n      ())\n    [a])");
  EXPECT_EQ(Text(v, Lcl()), "(\n    1\n    (\n      'x'\n      (      )\n    )\n    [a]\n  )");
  EXPECT_EQ(Text(ListOf({}), Vcl()), "()");
  EXPECT_EQ(Text(ListOf({}), Lcl()), "(  )");
}

TEST(Regenerate, CollectionsHaveTrailingBlanksInTheLclLayoutOnly) {
  const Value v = Items({{{}, {{"Caption", Ascii("a")}, {"Sub", Items({{{}, {}}})}}}, {7, {}}, {{}, {}}});
  EXPECT_EQ(Text(v, Vcl()),
            "<\n    item\n      Caption = 'a'\n      Sub = <\n        item\n        end>\n    end\n"
            "    item [7]\n    end\n    item\n    end>");
  EXPECT_EQ(Text(v, Lcl()),
            "<  \n    item\n      Caption = 'a'\n      Sub = <      \n        item\n        end>\n    end  \n"
            "    item [7]\n    end  \n    item\n    end>");
  EXPECT_EQ(Text(Items({}), Vcl()), "<>");
  EXPECT_EQ(Text(Items({}), Lcl()), "<>");
}

TEST(Regenerate, BinaryHas32BytesALine) {
  QByteArray bytes;
  for (int i = 0; i < 65; ++i) bytes += static_cast<char>(i + 0xA0);
  const std::string line1 = bytes.first(32).toHex().toUpper().toStdString();
  const std::string line2 = bytes.mid(32, 32).toHex().toUpper().toStdString();
  EXPECT_EQ(Text(Value::Data({}), Vcl()), "{}");
  EXPECT_EQ(Text(Value::Data("\x01\xAB"), Vcl()), "{01AB}");
  EXPECT_EQ(Text(Value::Data(bytes.first(31)), Vcl()), "{" + line1.substr(0, 62) + "}");
  EXPECT_EQ(Text(Value::Data(bytes.first(32)), Vcl()), "{\n    " + line1 + "}");
  EXPECT_EQ(Text(Value::Data(bytes.first(33)), Vcl()), "{\n    " + line1 + "\n    C0}");
  EXPECT_EQ(Text(Value::Data(bytes), Vcl()), "{\n    " + line1 + "\n    " + line2 + "\n    E0}");
  EXPECT_EQ(Text(Value::Data({}), Lcl()), "{\n  }");
  EXPECT_EQ(Text(Value::Data("\x01\xAB"), Lcl()), "{\n    01AB\n  }");
  EXPECT_EQ(Text(Value::Data(bytes), Lcl()), "{\n    " + line1 + "\n    " + line2 + "\n    E0\n  }");
}

TEST(Regenerate, StringsQuoteWhatCanBeQuoted) {
  EXPECT_EQ(Text(Ascii(""), Vcl()), "''");
  EXPECT_EQ(Text(Ascii("it's"), Vcl()), "'it'#39's'");
  EXPECT_EQ(Text(Ascii("it's"), Lcl()), "'it''s'");
  EXPECT_EQ(Text(Ascii("'"), Vcl()), "#39");
  EXPECT_EQ(Text(Ascii("'"), Lcl()), "''''");
  for (const Dialect& style : {Vcl(), Lcl()}) {
    EXPECT_EQ(Text(Ascii("a\r\nb\tc"), style), "'a'#13#10'b'#9'c'");
    EXPECT_EQ(Text(Ascii("\x7F"), style), "'\x7F'");
    EXPECT_EQ(Text(Value::Text(QString::fromUtf16(u"\u00E9x\U0001F600")), style), "#233'x'#55357#56832");
  }
}

TEST(Regenerate, ByteStringsKeepTheirBytes) {
  Value v = Ascii("");
  v.bytes = "\xCF\xF0\x01";
  EXPECT_EQ(Text(v, Vcl()), "'\xCF\xF0'#1");
  EXPECT_TRUE(ValueOf(forms::ValueToText(v)) == v);
}

TEST(Regenerate, LongStringsAreBrokenAt64UnitsInTheVclLayoutOnly) {
  const std::string a64(64, 'a'), a63(63, 'a');
  EXPECT_EQ(Text(Ascii(QByteArray(64, 'a')), Vcl()), "'" + a64 + "'");
  EXPECT_EQ(Text(Ascii(QByteArray(65, 'a')), Vcl()), "\n    '" + a64 + "' +\n    'a'");
  EXPECT_EQ(Text(Ascii(QByteArray(129, 'a')), Vcl()), "\n    '" + a64 + "' +\n    '" + a64 + "' +\n    'a'");
  EXPECT_EQ(Text(Ascii(QByteArray(128, 'a')), Vcl()), "\n    '" + a64 + "' +\n    '" + a64 + "'");
  EXPECT_EQ(Text(Ascii(QByteArray(63, 'a') + "\r\nb"), Vcl()), "\n    '" + a63 + "'#13 +\n    #10'b'");
  EXPECT_EQ(Text(Ascii(QByteArray(1000, 'a')), Lcl()), "'" + std::string(1000, 'a') + "'");
}

TEST(Regenerate, BrokenStringsInListsStartOnALineOfTheirOwn) {
  const QByteArray form = "object A: T\n  L = (\n    'x')\nend\n";
  Document doc = Document::Parse(form);
  Replace(doc, doc.Root(), "L", ListOf({Ascii(QByteArray(65, 'b')), Ascii("y")}));
  EXPECT_EQ(doc.Write().toStdString(),
            "object A: T\n  L = (\n    \n      '" + std::string(64, 'b') + "' +\n      'b'\n    'y')\nend\n");
}

// The rule again, in the plainest way: every unit on its own, a run opened and closed around it.
TEST(Regenerate, StringBreakingAgreesWithAPlainModel) {
  std::mt19937 random(7);
  for (int round = 0; round < 400; ++round) {
    QByteArray bytes;
    const auto size = random() % 200;
    for (std::size_t i = 0; i < size; ++i)
      bytes += random() % 5 ? static_cast<char>('a' + random() % 26) : "\r\n'\t\x7F"[random() % 5];
    std::vector<std::string> lines(1);
    bool quoted = false;
    int units = 0;
    for (const char c : bytes) {
      if (units == 64) {
        if (quoted) lines.back() += "'";
        quoted = false;
        lines.back() += " +";
        lines.emplace_back();
        units = 0;
      }
      const bool plain = c >= 32 && c != '\'';
      if (plain != quoted) lines.back() += "'";
      quoted = plain;
      lines.back() +=
          plain ? std::string(1, c) : std::string("#").append(std::to_string(static_cast<int>(c)));
      ++units;
    }
    if (quoted) lines.back() += "'";
    std::string expected;
    if (bytes.isEmpty()) expected = "''";
    for (const std::string& line : lines) expected += (bytes.size() > 64 ? "\n      " : "") + line;
    EXPECT_EQ(Text(Ascii(bytes), Vcl(), 2), expected);
    EXPECT_TRUE(ValueOf(QByteArray::fromStdString(expected)) == Ascii(bytes));
  }
}

TEST(Regenerate, FixedFloatsHave16DigitsAnd18Decimals) {
  const std::pair<long double, const char*> cases[] = {{0, "0.000000000000000000"},
                                                       {1, "1.000000000000000000"},
                                                       {-2.5L, "-2.500000000000000000"},
                                                       {40273, "40273.000000000000000000"},
                                                       {0.1L, "0.100000000000000000"},
                                                       {123456.789L, "123456.789000000000000000"},
                                                       {1e15L, "1000000000000000.000000000000000000"},
                                                       {1e20L, "100000000000000000000.000000000000000000"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(Text(Value::Real(number), Vcl()), text);
  // A file has such numbers: 16 digits, then zeros.
  EXPECT_EQ(Text(ValueOf("0.547337048607005300"), Vcl()), "0.547337048607005300");
}

TEST(Regenerate, GeneralFloatsHave15Digits) {
  const std::pair<long double, const char*> cases[] = {{0, "0"},
                                                       {1, "1"},
                                                       {-2.5L, "-2.5"},
                                                       {36921.0416666667L, "36921.0416666667"},
                                                       {1e14L, "100000000000000"},
                                                       {1e15L, "1E15"},
                                                       {1e308L, "1E308"},
                                                       {-1.5e-7L, "-1.5E-7"},
                                                       {0.0001L, "0.0001"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(Text(Value::Real(number), Lcl()), text);
}

TEST(Regenerate, FloatsTakeMoreDigitsWhenTheValueNeedsThem) {
  std::mt19937_64 random(11);
  for (const Dialect& style : {Vcl(), Lcl()}) {
    for (int i = 0; i < 2000; ++i) {
      const int power = static_cast<int>(random() % 400) - 200;
      const long double number =
          std::ldexp(static_cast<long double>(random() | 1), power) * (random() % 2 ? 1 : -1);
      const Value v = Value::Real(number);
      const Value again = ValueOf(forms::ValueToText(v, style));
      EXPECT_TRUE(again.IsReal() ? again.real == number : static_cast<long double>(again.integer) == number)
          << Text(v, style);
    }
  }
}

TEST(Regenerate, SuffixedNumbersComeBackTheSame) {
  std::mt19937_64 random(13);
  for (const Dialect& style : {Vcl(), Lcl()}) {
    for (int i = 0; i < 500; ++i) {
      const auto bits = static_cast<std::uint32_t>(random());
      float single;
      std::memcpy(&single, &bits, 4);
      if (!std::isfinite(single)) continue;
      const Value s = Value::Real(single, ValueType::Single);
      EXPECT_TRUE(ValueOf(forms::ValueToText(s, style)) == s) << Text(s, style);
      const Value d =
          Value::Real(static_cast<double>(random() % 100000) + static_cast<double>(random() % 86400) / 86400,
                      ValueType::Date);
      EXPECT_TRUE(ValueOf(forms::ValueToText(d, style)) == d) << Text(d, style);
      Value c;
      c.type = ValueType::Currency;
      c.integer = static_cast<std::int64_t>(random());
      EXPECT_TRUE(ValueOf(forms::ValueToText(c, style)) == c) << Text(c, style);
    }
  }
  EXPECT_EQ(Text(Value::Real(1.5L, ValueType::Single), Vcl()), "1.5s");
  EXPECT_EQ(Text(Value::Real(45000, ValueType::Date), Vcl()), "45000d");
}

TEST(Regenerate, NumbersWithoutATextFormAreWrittenAsZero) {
  const long double infinity = std::numeric_limits<long double>::infinity();
  const long double nan = std::numeric_limits<long double>::quiet_NaN();
  for (const ValueType type : {ValueType::Extended, ValueType::Double, ValueType::Single, ValueType::Date})
    for (const long double number : {infinity, -infinity, nan})
      for (const Dialect& style : {Vcl(), Lcl()})
        EXPECT_EQ(static_cast<double>(ValueOf(forms::ValueToText(Value::Real(number, type), style)).real),
                  0.0);
}

TEST(Regenerate, NewObjectsFollowTheLayout) {
  Document doc = Document::Create("TMain", "Main");
  doc.Root().position = 3;
  doc.Root().kind = ObjectKind::Inherited;
  Object& child = doc.Root().AddChild("TFrame", "");
  child.kind = ObjectKind::Inline;
  child.properties.push_back(doc.MakeProperty("Tag", Value::Integer(1)));
  EXPECT_EQ(doc.Write().toStdString(),
            "inherited Main: TMain [3]\n  inline TFrame\n    Tag = 1\n  end\nend\n");

  Document lcl = Document::Parse("object A: T\n  L = (\n    1\n  )\nend\n");
  lcl.Root().AddChild("TB", "B").position = -1;
  EXPECT_EQ(lcl.Write().toStdString(), "object A: T\n  L = (\n    1\n  )\n  object B: TB[-1]\n  end\nend\n");
}
