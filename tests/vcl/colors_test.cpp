#include <QtTest>
#include <random>
#include <set>

#include "VclTest.h"
#include "rtl/Exceptions.h"
#include "rtl/IntegerConsts.h"
#include "rtl/PropText.h"
#include "vcl/ColorSwatch.h"
#include "vcl/Colors.h"
#include "vcl/ControlView.h"
#include "vcl/FormColors.h"
#include "vcl/Label.h"

TEST(Colors, EveryNameLeadsToItsValueAndBack) {
  std::set<std::string> names;
  std::set<std::uint32_t> values;
  for (const TColorEntry& e : NamedColors()) {
    SCOPED_TRACE(e.Name);
    EXPECT_TRUE(names.insert(e.Name).second);
    EXPECT_TRUE(values.insert(static_cast<std::uint32_t>(e.Value)).second);
    EXPECT_EQ(StringToColor(QString::fromLatin1(e.Name)), e.Value);
    EXPECT_EQ(StringToColor(QString::fromLatin1(e.Name).toUpper()), e.Value);
    EXPECT_EQ(ColorToString(e.Value), QString::fromLatin1(e.Name));
  }
  EXPECT_EQ(names.size(), 52u);
}

TEST(Colors, TheTypeKnowsTheNames) {
  const TTypeInfo& type = TypeInfoOf<TColor>::Get();
  ASSERT_NE(FindIntegerConsts(type), nullptr);
  EXPECT_EQ(OrdToText(type, 0x0000FF), QStringLiteral("clRed"));
  EXPECT_EQ(TextToOrd(type, QStringLiteral("clbtnface")), 0xFF00000F);
  EXPECT_EQ(type.Name, "TColor");
}

TEST(Colors, SystemColorsHaveTheirNumbers) {
  const std::pair<TColor, unsigned> rows[] = {
      {clScrollBar, 0},  {clWindow, 5},    {clWindowText, 8}, {clHighlight, 13}, {clBtnFace, 15},
      {clBtnShadow, 16}, {clGrayText, 17}, {clBtnText, 18},   {clInfoText, 23},  {clInfoBk, 24}};
  for (const auto& [color, index] : rows) EXPECT_EQ(static_cast<std::uint32_t>(color), 0xFF000000u + index);
}

TEST(Colors, EveryFormOfTextIsRead) {
  const std::pair<const char*, TColor> rows[] = {
      {"  clRed ", clRed},
      {"$000000FF", clRed},
      {"$ff", clRed},
      {"255", clRed},
      {"0", clBlack},
      {"-16777201", clBtnFace},
      {"4278190095", clBtnFace},
      {"$FF00000F", clBtnFace},
      {"#ff8000", RGBColor(255, 128, 0)},
      {"#FF8001", RGBColor(255, 128, 1)},
      {"$1FFFFFFF", clNone},
      {"536870911", clNone},
      {"clNone", clNone},
  };
  for (const auto& [text, color] : rows) EXPECT_EQ(StringToColor(QString::fromLatin1(text)), color) << text;
}

TEST(Colors, OtherTextIsRefusedAndNamed) {
  for (const char* text : {"", "clReddish", "Red", "#ff80", "#gg0000", "#1234567", "$", "$12345678A", "$xyz",
                           "4294967296", "-2147483649", "1.5", "clRed clBlue"}) {
    try {
      StringToColor(QString::fromLatin1(text));
      ADD_FAILURE() << text << " was accepted";
    } catch (const EConvertError& e) {
      EXPECT_TRUE(e.Message().contains(QStringLiteral("\"%1\"").arg(QString::fromLatin1(text)))) << e.what();
    }
  }
}

TEST(Colors, AColorWithoutANameIsHexadecimal) {
  EXPECT_EQ(ColorToString(TColor(0x0012ABCD)), QStringLiteral("$0012ABCD"));
  EXPECT_EQ(ColorToString(TColor(0x1)), QStringLiteral("$00000001"));
  std::mt19937 random(7);
  for (int i = 0; i < 2000; ++i) {
    const TColor c = TColor(static_cast<std::uint32_t>(random()));
    EXPECT_EQ(StringToColor(ColorToString(c)), c);
  }
}

TEST(Colors, ChannelsAreBlueGreenRed) {
  EXPECT_EQ(RGBColor(0x12, 0x34, 0x56), TColor(0x563412));
  EXPECT_EQ(ToQColor(TColor(0x563412)), QColor(0x12, 0x34, 0x56));
  EXPECT_EQ(FromQColor(QColor(0x12, 0x34, 0x56)), TColor(0x563412));
}

TEST(Colors, NoneIsTransparentAndDefaultBlack) {
  EXPECT_EQ(ToQColor(clNone).alpha(), 0);
  EXPECT_EQ(ColorToRGB(clNone), clBlack);
  EXPECT_EQ(ColorToRGB(clDefault), clBlack);
  EXPECT_EQ(ToQColor(clBlack).alpha(), 255);
}

TEST(Colors, SystemColorsFollowTheSchemeOfTheForms) {
  const auto shades = [](TFormColors colors) {
    const FormColorScope scope(colors);
    const QPalette p = ThemePalette(colors == TFormColors::Dark ? TTheme::Dark : TTheme::Light);
    EXPECT_EQ(ToQColor(clBtnFace), p.color(QPalette::Window));
    EXPECT_EQ(ToQColor(clWindow), p.color(QPalette::Base));
    EXPECT_EQ(ToQColor(clWindowText), p.color(QPalette::WindowText));
    EXPECT_EQ(ToQColor(clHighlight), p.color(QPalette::Highlight));
    EXPECT_EQ(ToQColor(clHighlightText), p.color(QPalette::HighlightedText));
    EXPECT_EQ(ToQColor(clBtnText), p.color(QPalette::ButtonText));
    EXPECT_EQ(ToQColor(clGrayText), p.color(QPalette::Disabled, QPalette::WindowText));
    EXPECT_EQ(ToQColor(clInfoBk), p.color(QPalette::ToolTipBase));
    std::vector<TColor> all;
    for (const TColorEntry& e : NamedColors()) all.push_back(ColorToRGB(e.Value));
    return all;
  };
  const auto light = shades(TFormColors::Light);
  const auto dark = shades(TFormColors::Dark);
  for (std::size_t i = 0; i < light.size(); ++i)
    if (!NamedColors()[i].System) {
      EXPECT_EQ(light[i], dark[i]) << NamedColors()[i].Name;
      EXPECT_EQ(light[i], NamedColors()[i].Value);
    }
  for (const char* name : {"clBtnFace", "clWindow", "clWindowText", "clGrayText", "clBtnShadow", "clInfoBk"})
    for (std::size_t i = 0; i < light.size(); ++i)
      EXPECT_TRUE(qstrcmp(NamedColors()[i].Name, name) != 0 || light[i] != dark[i]) << name;
}

TEST(FormColors, AreLightWhateverTheApplicationHas) {
  EXPECT_EQ(FormColors(), TFormColors::Light);
  const ThemeScope theme(TTheme::Dark);
  EXPECT_EQ(FormPalette(), ThemePalette(TTheme::Light));
  EXPECT_EQ(ToQColor(clBtnFace), ThemePalette(TTheme::Light).color(QPalette::Window));
  const FormColorScope scope(TFormColors::Designer);
  EXPECT_EQ(FormPalette(), QApplication::palette());
  EXPECT_EQ(ToQColor(clBtnFace), ThemePalette(TTheme::Dark).color(QPalette::Window));
}

TEST(FormColors, TheInnermostScopeCountsAndEnds) {
  {
    const FormColorScope outer(TFormColors::Dark);
    {
      const FormColorScope inner(TFormColors::Designer);
      EXPECT_EQ(FormColors(), TFormColors::Designer);
    }
    EXPECT_EQ(FormColors(), TFormColors::Dark);
  }
  EXPECT_EQ(FormColors(), TFormColors::Light);
}

TEST(FormColors, PickingAnotherSchemePaintsEveryViewAgain) {
  TLabel label(nullptr);
  label.SetBounds(0, 0, 20, 20);
  ControlView view(&label);
  view.resize(40, 40);
  view.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
  QCoreApplication::processEvents();
  struct Painted : QObject {
    bool eventFilter(QObject*, QEvent* e) override {
      count += e->type() == QEvent::Paint;
      return false;
    }
    int count = 0;
  } painted;
  view.installEventFilter(&painted);
  SetFormColors(TFormColors::Light);  // as it is
  QCoreApplication::processEvents();
  EXPECT_EQ(painted.count, 0);
  SetFormColors(TFormColors::Dark);
  QCoreApplication::processEvents();
  EXPECT_GT(painted.count, 0);
  SetFormColors(TFormColors::Light);
}

TEST(Theme, KnowsWhetherItIsDark) {
  {
    const ThemeScope scope(TTheme::Light);
    EXPECT_FALSE(IsDarkTheme());
  }
  const ThemeScope scope(TTheme::Dark);
  EXPECT_TRUE(IsDarkTheme());
  const QPalette before = QApplication::palette();
  ApplyTheme(TTheme::System);
  EXPECT_EQ(QApplication::palette(), before);
}

TEST(ColorSwatch, ShowsTheColorAndMarksNone) {
  const auto picture = [](TColor c) { return ColorSwatch(c, QSize(20, 10)).pixmap(20, 10).toImage(); };
  EXPECT_EQ(picture(clRed).pixelColor(10, 5), QColor(Qt::red));
  EXPECT_EQ(picture(clBlue).pixelColor(10, 5), QColor(Qt::blue));
  EXPECT_EQ(picture(clRed).pixelColor(0, 0), QColor(128, 128, 128));
  EXPECT_EQ(picture(clNone).pixelColor(4, 2), QColor(Qt::white));
  EXPECT_NE(picture(clNone), picture(clWhite));
}
