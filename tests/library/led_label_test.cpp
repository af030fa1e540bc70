#include <gtest/gtest.h>

#include "LibraryTest.h"
#include "rtl/PropAccess.h"

namespace {
const QColor Active(255, 0, 0), Dark(0, 0, 255), Back(Qt::black);

struct Shown {
  TVRXLEDLabel label{nullptr};
  explicit Shown(const char* text, int size = 20, int thickness = 6) {
    label.LED()->SetColor(0, FromQColor(Active));
    label.LED()->SetColor(1, FromQColor(Dark));
    label.LED()->SetSize(1, static_cast<std::uint8_t>(size));
    label.LED()->SetSize(2, static_cast<std::uint8_t>(thickness));
    label.LED()->SetSize(3, static_cast<std::uint8_t>(size));
    label.SetCaption(QString::fromLatin1(text));
  }
  QImage Picture() { return Draw(label, Qt::green); }
};

class CountingHost : public IControlHost {
 public:
  void ControlChanged(TControl&) override { ++changes; }
  int changes = 0;
};
}  // namespace

TEST(LedLabel, StartsBlackAndSizesItself) {
  const TVRXLEDLabel label(nullptr);
  EXPECT_EQ(label.Color(), clBlack);
  EXPECT_FALSE(label.ParentColor());
  EXPECT_TRUE(label.AutoSize());
  EXPECT_FALSE(label.Transparent());
  EXPECT_EQ(label.Alignment(), TAlignment::taLeftJustify);
}

TEST(LedLabel, LightsTheSegmentsOfItsText) {
  Shown eight("8"), blank(" "), one("1");
  const int all = CountPixels(eight.Picture(), Active);
  EXPECT_GT(all, 100);
  EXPECT_EQ(CountPixels(eight.Picture(), Dark), 0);
  EXPECT_EQ(CountPixels(blank.Picture(), Active), 0);
  EXPECT_EQ(CountPixels(blank.Picture(), Dark), all) << "the same segments, dark";
  const int lit = CountPixels(one.Picture(), Active);
  EXPECT_GT(lit, 0);
  EXPECT_EQ(lit + CountPixels(one.Picture(), Dark), all);
  EXPECT_EQ(CountPixels(eight.Picture(), Qt::green), 0) << "the background is the label's own";
}

TEST(LedLabel, NoColorHidesTheSegments) {
  Shown one("1");
  one.label.LED()->SetColor(1, clNone);
  const QImage image = one.Picture();
  EXPECT_EQ(CountPixels(image, Dark), 0);
  EXPECT_GT(CountPixels(image, Active), 0);
  one.label.LED()->SetColor(0, clNone);
  const QImage nothing = one.Picture();
  EXPECT_EQ(CountPixels(nothing, Back), nothing.width() * nothing.height());
}

TEST(LedLabel, TransparentShowsWhatIsBehind) {
  Shown one("1");
  one.label.SetTransparent(true);
  const QImage image = one.Picture();
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::green));
  EXPECT_EQ(CountPixels(image, Back), 0);
  EXPECT_GT(CountPixels(image, Active), 0);
}

TEST(LedLabel, DisabledDigitsGoDark) {
  Shown eight("8");
  eight.label.SetEnabled(false);
  EXPECT_GT(CountPixels(eight.Picture(), Active), 0) << "off at first";
  eight.label.LED()->SetDisabledDigits(true);
  EXPECT_EQ(CountPixels(eight.Picture(), Active), 0);
  EXPECT_GT(CountPixels(eight.Picture(), Dark), 0);
  eight.label.SetEnabled(true);
  EXPECT_GT(CountPixels(eight.Picture(), Active), 0);
}

TEST(LedLabel, FollowsTextAndLetterSize) {
  Shown d("88");
  const QSize before = d.label.BoundsRect().size();
  EXPECT_GE(before.width(), LEDTextSize(QStringLiteral("88"), *d.label.LED()).width());
  EXPECT_GE(before.height(), LEDTextSize(QStringLiteral("88"), *d.label.LED()).height());
  d.label.SetCaption(QStringLiteral("888"));
  EXPECT_GT(d.label.Width(), before.width());
  EXPECT_EQ(d.label.Height(), before.height());
  d.label.SetCaption(QStringLiteral("88"));
  EXPECT_EQ(d.label.BoundsRect().size(), before);
  for (const int index : {1, 2, 3}) {
    const QSize old = d.label.BoundsRect().size();
    d.label.LED()->SetSize(index, 31);
    EXPECT_NE(d.label.BoundsRect().size(), old) << index;
  }
  d.label.SetAutoSize(false);
  d.label.SetBounds(1, 2, 30, 40);
  d.label.SetCaption(QStringLiteral("12345"));
  d.label.LED()->SetSize(1, 4);
  EXPECT_EQ(d.label.BoundsRect(), QRect(1, 2, 30, 40));
}

TEST(LedLabel, ATextFitsIntoAnAutomaticSize) {
  for (const int thickness : {1, 2, 6, 32})
    for (const char* text : {"8", "8,8", "A;W.", "12:34!"}) {
      Shown d(text, 12, thickness);
      const QRect box = Inked(d.Picture(), Back);
      EXPECT_GT(box.left(), 0) << text;
      EXPECT_GT(box.top(), 0) << text;
      EXPECT_LT(box.right(), d.label.Width() - 1) << text;
      EXPECT_LT(box.bottom(), d.label.Height() - 1) << text;
    }
}

TEST(LedLabel, AlignsTheText) {
  Shown d("8");
  d.label.SetAutoSize(false);
  d.label.SetBounds(0, 0, 200, 100);
  const int wide = LEDCellSize(TLEDCell::Seven, *d.label.LED()).width();
  const QRect left = Inked(d.Picture(), Back);
  d.label.SetAlignment(TAlignment::taCenter);
  const QRect centre = Inked(d.Picture(), Back);
  d.label.SetAlignment(TAlignment::taRightJustify);
  const QRect right = Inked(d.Picture(), Back);
  EXPECT_LT(left.right(), 3 * wide / 2);
  EXPECT_NEAR(centre.center().x(), 100, 1);
  EXPECT_GT(right.left(), 200 - 3 * wide / 2);
  EXPECT_NEAR(left.left(), 199 - right.right(), 1) << "the margins are equal";
  EXPECT_NEAR(centre.center().y(), 50, 4);
}

TEST(LedLabel, SmallLettersArePaintedAsCapitals) {
  Shown small("start"), capital("START");
  EXPECT_EQ(small.Picture(), capital.Picture());
}

TEST(LedLabel, HearsOfChangesOfItsLetters) {
  Shown d("8");
  CountingHost host;
  d.label.SetHost(&host);
  d.label.LED()->SetColor(0, clBlue);
  EXPECT_EQ(host.changes, 1);
  d.label.LED()->SetColor(0, clBlue);
  EXPECT_EQ(host.changes, 1);
  d.label.LED()->SetSize(2, 9);
  EXPECT_GT(host.changes, 1);
  const int before = host.changes;
  d.label.SetTransparent(true);
  d.label.SetAlignment(TAlignment::taCenter);
  EXPECT_EQ(host.changes, before + 2);
  d.label.SetTransparent(true);
  d.label.SetAlignment(TAlignment::taCenter);
  EXPECT_EQ(host.changes, before + 2);
  d.label.SetHost(nullptr);
}

TEST(LedLabel, TakesTheLettersOfAnother) {
  Shown d("8");
  TVRXLEDLabel other(nullptr);
  other.SetLED(d.label.LED());
  EXPECT_NE(other.LED(), d.label.LED());
  EXPECT_EQ(other.LED()->Thickness(), 6);
  EXPECT_EQ(other.LED()->ActiveColor(), clRed);
  other.LED()->SetSize(2, 3);
  EXPECT_EQ(d.label.LED()->Thickness(), 6);
}

TEST(LedLabel, PaintsAtAnySize) {
  Shown d("AZ8,.:");
  d.label.SetAutoSize(false);
  for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(3, 200), QSize(600, 2)}) {
    d.label.SetBounds(0, 0, size.width(), size.height());
    EXPECT_EQ(Inked(Draw(d.label, Qt::green), Qt::green).isEmpty(), size.isEmpty());
  }
}
