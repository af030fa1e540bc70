// Details of looks that are easily lost: accelerators of turned texts, what is transparent in stored
// pictures, the pressed button.
#include <gtest/gtest.h>

#include "library/controls/Button3D.h"
#include "library/controls/RegionControl.h"
#include "library/values/StoredPicture.h"
#include "library/values/TextDraw.h"
#include "rtl/PropAccess.h"

namespace {
std::unique_ptr<TVRXCaption> Turned(const char* text, int angle, int orientation) {
  auto caption = std::make_unique<TVRXCaption>();
  caption->SetCaption(QString::fromLatin1(text));
  caption->Font()->SetHeight(-22);
  caption->Font()->SetOrientation(orientation);
  caption->FontFX()->SetAngle(static_cast<std::uint16_t>(angle));
  return caption;
}
QImage Drawn(const char* text, int angle, int orientation) {
  const auto caption = Turned(text, angle, orientation);
  QImage image(170, 140, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  TCanvas canvas(painter);
  caption->Draw(canvas, image.rect(), true, clWhite);
  return image;
}
QSize Measured(const char* text, int angle, int orientation) {
  const auto caption = Turned(text, angle, orientation);
  return VRXDrawTextCalcExt(caption->Caption(), *caption->FontFX(), *caption->Font(), false).size();
}
// Neither square nor opaque: a corner is cut out, and a row is half transparent.
QImage Glass() {
  QImage image(13, 7, QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      image.setPixel(x, y, qRgba(x * 19, y * 36, 200, x + y < 5 ? 0 : y == 6 ? 120 : 255));
  return image;
}
QImage Painted(TControl& control) {
  QImage image(control.Width(), control.Height(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PaintControl(control, painter);
  return image;
}
}  // namespace

TEST(TurnedCaption, ByItsEffectEveryAmpersandIsALetter) {
  for (const int orientation : {0, 300}) {
    EXPECT_NE(Drawn("&", 360, orientation), Drawn("", 360, orientation));
    EXPECT_NE(Drawn("A&&B", 40, orientation), Drawn("A&B", 40, orientation));
    EXPECT_NE(Drawn("&Go", 40, orientation), Drawn("Go", 40, orientation));
    EXPECT_GT(Measured("A&&B", 360, orientation).width(), Measured("A&B", 360, orientation).width());
  }
}

TEST(TurnedCaption, ByItsFontAnAmpersandMarksTheAccelerator) {
  for (const int orientation : {300, -450}) {
    EXPECT_EQ(Drawn("&", 0, orientation), Drawn("", 0, orientation));
    EXPECT_EQ(Measured("&Go", 0, orientation), Measured("Go", 0, orientation));
    EXPECT_EQ(Measured("A&&B", 0, orientation), Measured("A&B", 360, orientation));
    EXPECT_EQ(Drawn("A&&B", 0, orientation), Drawn("A&B", 360, orientation)) << "one of two is drawn";
    EXPECT_NE(Drawn("&Go", 0, orientation), Drawn("Go", 0, orientation)) << "it is underlined";
  }
}

TEST(TransparentPicture, ComesBackFromItsBytesAsItIs) {
  for (const bool compress : {false, true}) {
    StoredPicture picture, read;
    picture.SetStorage(compress, TVRXColorDepth::spfDefault);
    picture.SetImage(Glass());
    EXPECT_TRUE(picture.Bytes().startsWith("\x89PNG"));
    read.SetBytes(picture.Bytes());
    EXPECT_EQ(read.Size(), QSize(13, 7));
    for (int y = 0; y < 7; ++y)
      for (int x = 0; x < 13; ++x)
        EXPECT_EQ(read.Image().pixelColor(x, y).alpha(), Glass().pixelColor(x, y).alpha()) << x << ' ' << y;
    EXPECT_EQ(read.Image().pixel(12, 3), Glass().pixel(12, 3));
  }
}

TEST(TransparentPicture, StaysSoInAButtonThatIsStoredAndReadAgain) {
  TBitmap source(13, 7);
  source.Fill(clLime);
  for (int x = 0; x < 6; ++x) source.SetPixel(x, 6, clMaroon);
  const TVRXMaskedPicture masked = VRXBmpCreateMasksExt(source, clLime);
  TVRX3DButtonFace made, read;
  made.SetPictures(masked, masked, masked);
  for (const TPropInfo* prop : TVRX3DButtonFace::StaticClass().Properties())
    SetProp(read, *prop, GetProp(made, *prop));
  TVRX3DEffectButton button(nullptr);
  button.SetButtonFace(&read);
  button.SetBounds(0, 0, 13, 7);
  const QImage shown = Painted(button);
  for (int x = 0; x < 13; ++x) {
    EXPECT_EQ(shown.pixelColor(x, 6), x < 6 ? QColor(128, 0, 0) : QColor(0, 0, 0, 0)) << x;
    EXPECT_EQ(qAlpha(shown.pixel(x, 2)), 0) << x;
  }
}

TEST(PressedButton, ShowsItsTextOnePixelToTheRightAndDown) {
  TVRX3DEffectButton button(nullptr);
  button.SetCaption(QStringLiteral("Hg"));
  button.SetBounds(0, 0, 97, 41);
  const QRect inside = QRect(0, 0, 97, 41).adjusted(8, 8, -8, -8);
  const QImage up = Painted(button);
  button.SetDown(true);
  const QImage down = Painted(button);
  EXPECT_EQ(down.copy(inside.translated(1, 1)), up.copy(inside));
  EXPECT_NE(down.copy(inside), up.copy(inside));
}
