// Icons of the palette: every class has one of its own that can be told from all others and from its ground,
// at the sizes of palettes and trees, in both themes.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "ClassWalk.h"
#include "designintf/ComponentIcons.h"
#include "tests/support/Contrast.h"
#include "vcl/Theme.h"

namespace {
constexpr int kSizes[] = {16, 24, 48};
constexpr TTheme kThemes[] = {TTheme::Light, TTheme::Dark};

std::vector<const TClass*> PaletteClasses() {
  std::vector<const TClass*> classes;
  for (const TPalettePage& page : Registrations().PalettePages())
    for (const TClass* cls : page.Classes) classes.push_back(cls);
  return classes;
}

QColor GroundOf(TTheme theme) { return ThemePalette(theme).color(QPalette::Window); }

// As a button of the palette shows it.
QImage Icon(const TClass& cls, int size, TTheme theme) {
  QImage image(size, size, QImage::Format_RGB32);
  image.fill(GroundOf(theme));
  QPainter(&image).drawPixmap(0, 0, ComponentPixmap(cls, size, 1, ThemePalette(theme)));
  return image;
}

template <class F>
int CountPixels(const QImage& image, const F& counts) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += counts(x, y) ? 1 : 0;
  return count;
}
bool IsApart(QRgb a, QRgb b) {
  return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > 120;
}
// The part of the pixels in which two pictures plainly differ.
double Difference(const QImage& a, const QImage& b) {
  return CountPixels(a, [&](int x, int y) { return IsApart(a.pixel(x, y), b.pixel(x, y)); }) /
         static_cast<double>(a.width() * a.height());
}
}  // namespace

// Its own, or of an ancestor that is on no page.
TEST(PaletteIcons, EveryClassHasOneThatNoOtherHas) {
  EXPECT_GE(PaletteClasses().size(), 170u);
  std::map<const char*, QByteArray> taken;
  for (const TClass* cls : PaletteClasses()) {
    EXPECT_FALSE(cls->Icon().isEmpty()) << cls->ClassName().constData();
    const auto [it, isNew] = taken.try_emplace(cls->Icon().data(), cls->ClassName());
    EXPECT_TRUE(isNew) << cls->ClassName().constData() << " has " << it->second.constData() << "'s";
  }
}

TEST(PaletteIcons, NoTwoAreAlike) {
  const auto classes = PaletteClasses();
  for (const TTheme theme : kThemes)
    for (const int size : kSizes) {
      std::vector<QImage> icons;
      for (const TClass* cls : classes) icons.push_back(Icon(*cls, size, theme));
      for (std::size_t i = 0; i < icons.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
          EXPECT_GE(Difference(icons[i], icons[j]), 0.02)
              << classes[i]->ClassName().constData() << " and " << classes[j]->ClassName().constData()
              << " at " << size;
    }
}

TEST(PaletteIcons, OfRelativesAreToldApartAtAGlance) {
  const auto icon = [](const char* name, TTheme theme) {
    const auto classes = PaletteClasses();
    const auto it = std::find_if(classes.begin(), classes.end(),
                                 [&](const TClass* cls) { return cls->ClassName() == name; });
    return Icon(**it, 24, theme);
  };
  constexpr const char* relatives[][2] = {{"TGroupBox", "TRadioGroup"}, {"TTabControl", "TPageControl"}};
  for (const TTheme theme : kThemes)
    for (const auto& [a, b] : relatives)
      EXPECT_GE(Difference(icon(a, theme), icon(b, theme)), 0.12) << a << " and " << b;
}

// Quiet tones are quiet: in the dark nothing is brighter than the lines and the accents.
TEST(PaletteIcons, HaveNothingThatGlaresInTheDark) {
  for (const TClass* cls : PaletteClasses()) {
    const QImage icon = Icon(*cls, 48, TTheme::Dark);
    const auto glares = [&](int x, int y) { return icon.pixelColor(x, y).lightness() > 215; };
    EXPECT_LE(CountPixels(icon, glares), 48) << cls->ClassName().constData();
  }
}

TEST(PaletteIcons, HaveAccentsThatStandOutFromADarkGround) {
  for (const TClass* cls : PaletteClasses()) {
    if (!cls->Icon().contains("accent")) continue;
    const QImage icon = Icon(*cls, 48, TTheme::Dark);
    double most = 0;
    for (int y = 0; y < 48; ++y)
      for (int x = 0; x < 48; ++x)
        if (const QColor color = icon.pixelColor(x, y); color.hsvSaturation() > 60)
          most = std::max(most, Contrast(color, GroundOf(TTheme::Dark)));
    if (most > 0) {  // one page has grey for its accent
      EXPECT_GE(most, 3.5) << cls->ClassName().constData();
    }
  }
}

TEST(PaletteIcons, AreLegibleOnTheirGround) {
  for (const TTheme theme : kThemes)
    for (const int size : kSizes)
      for (const TClass* cls : PaletteClasses()) {
        const QImage icon = Icon(*cls, size, theme);
        const auto clear = [&](int x, int y) {
          return Contrast(icon.pixelColor(x, y), GroundOf(theme)) >= 3;
        };
        EXPECT_GE(CountPixels(icon, clear) / static_cast<double>(size * size), 0.04)
            << cls->ClassName().constData() << " at " << size
            << (theme == TTheme::Dark ? ", dark" : ", light");
        // And nothing of it is cut off.
        const auto atEdge = [&](int x, int y) {
          return (x == 0 || y == 0 || x == size - 1 || y == size - 1) && clear(x, y);
        };
        EXPECT_LE(CountPixels(icon, atEdge), size / 8) << cls->ClassName().constData() << " at " << size;
      }
}
