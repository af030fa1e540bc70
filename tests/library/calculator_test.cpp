// The calculator: what its keys make of a number, and where they are.
#include "library/controls/Calculator.h"
#include "rtl/PropText.h"
#include "tests/library/VisibleProperties.h"

namespace {
// Keys with a blank between them; a number is typed digit by digit.
void PressAll(auto& calculator, const char* keys) {
  for (const QString& word : QString::fromLatin1(keys).split(u' ', Qt::SkipEmptyParts)) {
    if (!word[0].isDigit() || word == u"1/x") {
      EXPECT_TRUE(calculator.Press(word)) << word.toStdString();
      continue;
    }
    for (const QChar c : word) EXPECT_TRUE(calculator.Press(QString(c)));
  }
}
struct Sum {
  const char* keys;
  const char* display;
};
constexpr Sum Sums[] = {
    {"", "0"},
    {"0 0 7", "7"},
    {"1.50", "1.50"},
    {". 5", "0.5"},
    {"1.2 . 3", "1.23"},
    {"2 + 3 =", "5"},
    {"2 + 3 * 4 =", "20"},
    {"20 - 5 / 3 =", "5"},
    {"2 + 3 +", "5"},
    {"2 + * 3 =", "6"},
    {"5 + =", "10"},
    {"5 * = =", "125"},
    {"2 + 3 = = =", "11"},
    {"2 + 3 = 4 =", "7"},
    {"2 + 3 = 4 + 1 =", "5"},
    {"0.1 + 0.2 - 0.3 =", "0"},
    {"1 / 3 =", "0.333333333333333"},
    {"1 / 3 * 3 =", "0.999999999999999"},
    {"200 + 10 % =", "220"},
    {"200 - 10 % =", "180"},
    {"200 * 10 % =", "20"},
    {"50 %", "0.5"},
    {"9 sqrt", "3"},
    {"4 + 9 sqrt =", "7"},
    {"8 1/x", "0.125"},
    {"7 +/-", "-7"},
    {"7 +/- +/-", "7"},
    {"+/- 5", "5"},
    {"2 + 3 = +/-", "-5"},
    {"123 back", "12"},
    {"1 back", "0"},
    {"5 +/- back", "0"},
    {"2 + 3 = back", "5"},
    {"12 + 34 CE 5 =", "17"},
    {"12 + 34 C 5 =", "5"},
    {"1 / 0 =", "Error"},
    {"1 / 0 = 5 + 2 =", "Error"},
    {"1 / 0 = C 5", "5"},
    {"1 / 0 = CE", "0"},
    {"7 MS 1 / 0 = CE 5 + MR =", "12"},
    {"4 +/- sqrt", "Error"},
    {"0 1/x", "Error"},
    {"1234567890123456789", "123456789012345"},
    {"7 MS 5 + MR =", "12"},
    {"7 MS 8 M+ C MR", "15"},
    {"7 MS MC C MR", "0"},
    {"7 MS 5", "5"},
    {"1 / 0 = C MR", "0"},
    {"999999999999999 * 999999999999999 =", "9.99999999999998e+29"},
};
}  // namespace

TEST(Calculator, ReckonsFromLeftToRight) {
  for (const Sum& sum : Sums) {
    SCOPED_TRACE(sum.keys);
    TVRXCalculatorEngine engine;
    PressAll(engine, sum.keys);
    EXPECT_EQ(engine.Display().toStdString(), sum.display);
    EXPECT_EQ(engine.HasError(), QByteArrayView(sum.display) == "Error");
    TVRXCalculator calculator(nullptr);
    PressAll(calculator, sum.keys);
    EXPECT_EQ(calculator.DisplayText().toStdString(), sum.display);
    EXPECT_EQ(calculator.ValueOf(), engine.Value());
    EXPECT_EQ(calculator.MemoryOf(), engine.Memory());
  }
}

TEST(Calculator, KnowsItsKeysOnly) {
  TVRXCalculatorEngine engine(12);
  for (const char16_t* key : {u"", u"x", u"10", u"mc", u"sin", u"\u00D7"}) EXPECT_FALSE(engine.Press(key));
  EXPECT_EQ(engine.Display(), QStringLiteral("12"));
}

TEST(Calculator, ANumberThatIsGivenEndsWhatWasReckoned) {
  TVRXCalculator calculator(nullptr);
  PressAll(calculator, "2 + 3");
  calculator.SetValue(40);
  PressAll(calculator, "=");
  EXPECT_EQ(calculator.DisplayText(), QStringLiteral("40"));
  PressAll(calculator, "+ 2 =");
  EXPECT_EQ(calculator.ValueOf(), 42);
  calculator.SetMemory(8);
  PressAll(calculator, "* MR =");
  EXPECT_EQ(calculator.ValueOf(), 336);
}

TEST(Calculator, ShowsAsManyDigitsAsItIsTold) {
  TVRXCalculator calculator(nullptr);
  calculator.SetValue(2.0 / 3);
  EXPECT_EQ(calculator.DisplayText(), QStringLiteral("0.666666666666667"));
  calculator.Set(TVRXCalculator::Precision, 4);
  EXPECT_EQ(calculator.DisplayText(), QStringLiteral("0.6667"));
  calculator.Set(TVRXCalculator::Precision, -5);
  EXPECT_EQ(calculator.DisplayText(), QStringLiteral("0.7"));
}

TEST(Calculator, KeysStandBesideEachOtherAndAreHitToTheirLastPixel) {
  for (const bool memory : {true, false}) {
    TVRXCalculator calculator(nullptr);
    calculator.SetBounds(0, 0, 231, 187);
    calculator.Set(TVRXCalculator::ShowMemory, memory);
    EXPECT_EQ(calculator.Keys().size(), memory ? 27 : 23);
    EXPECT_EQ(calculator.KeyRect(u"MR").isEmpty(), !memory);
    QRegion all;
    for (const QString& key : calculator.Keys()) {
      const QRect rect = calculator.KeyRect(key);
      EXPECT_TRUE(calculator.ClientRect().contains(rect));
      EXPECT_FALSE(all.intersects(rect)) << key.toStdString();
      all += rect;
      EXPECT_EQ(calculator.KeyAt(rect.topLeft()), key);
      EXPECT_EQ(calculator.KeyAt(rect.bottomRight()), key);
      EXPECT_NE(calculator.KeyAt(rect.bottomRight() + QPoint(1, 1)), key);
      EXPECT_NE(calculator.KeyAt(rect.topLeft() - QPoint(1, 1)), key);
    }
    EXPECT_EQ(calculator.KeyRect(u"=").bottomRight(), QPoint(231 - 5, 187 - 5));
    EXPECT_EQ(calculator.KeyAt({0, 0}), QString());
    EXPECT_EQ(calculator.KeyRect(u"7").left() - calculator.KeyRect(u"4").left(), 0);
    EXPECT_EQ(calculator.KeyRect(u"8").left() - calculator.KeyRect(u"7").right(), 5);
  }
}

TEST(Calculator, IsPaintedAgainWhileANumberIsTyped) {
  struct Host : IControlHost {
    void ControlChanged(TControl&) override { ++told; }
    int told = 0;
  } host;
  TVRXCalculator calculator(nullptr);
  PressAll(calculator, "3");
  const QImage before = Draw(calculator, Qt::white);
  calculator.SetHost(&host);
  PressAll(calculator, ".");
  calculator.SetHost(nullptr);
  EXPECT_EQ(calculator.ValueOf(), 3);
  EXPECT_GT(host.told, 0) << "no value has changed, but the picture";
  EXPECT_NE(Draw(calculator, Qt::white), before);
}

TEST(EveryProperty, OfACalculatorIsSeen) {
  visible::ExpectAll<TVRXCalculator>({{"", "BorderStyle=bsSingle"},
                                      {"", "Color=clYellow"},
                                      {"", "DigitColor=clRed"},
                                      {"", "DisplayColor=clYellow"},
                                      {"", "DisplayTextColor=clRed"},
                                      {"", "Enabled=False"},
                                      {"", "KeySpacing=7"},
                                      {"", "Memory=5"},
                                      {"", "MemoryColor=clRed"},
                                      {"", "OperatorColor=clRed"},
                                      {"Value=1.2345", "Precision=3"},
                                      {"", "ShowDisplay=False"},
                                      {"", "ShowMemory=False"},
                                      {"", "Value=17"}},
                                     {201, 163}, {QStringLiteral("Font."), QStringLiteral("ParentFont")});
}

TEST(Calculator, PaintsInAnySize) {
  for (const QSize size : {QSize(1, 1), QSize(9, 300), QSize(300, 9), QSize(40, 40)}) {
    TVRXCalculator calculator(nullptr);
    calculator.SetBounds(0, 0, size.width(), size.height());
    calculator.Set(TVRXCalculator::KeySpacing, INT32_MAX);
    Draw(calculator, Qt::white);
    calculator.Set(TVRXCalculator::KeySpacing, -3);
    const QImage image = Draw(calculator, Qt::white);
    EXPECT_EQ(image.size(), size);
  }
}
