// Region masks and button faces: what they keep, store and show.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <set>

#include "library/controls/Button3D.h"
#include "library/controls/RegionControl.h"
#include "library/pixels/RegionFromBitmap.h"
#include "rtl/PropAccess.h"
#include "vcl/PictureFile.h"

namespace {
TBitmap Block(TColor color, int side = 8) {
  TBitmap picture(side, side);
  picture.Fill(clFuchsia);
  for (int y = 2; y < side - 2; ++y)
    for (int x = 2; x < side - 2; ++x) picture.SetPixel(x, y, color);
  return picture;
}
void Fill(TVRXRegionMask& mask, const TBitmap& picture) {
  const TRegionBuild build = BuildWindowRegion(picture, {clFuchsia}, TRegionBorder::None, nullptr);
  mask.SetRegionData(build.RegionData());
  mask.SetBorderPicture(build.Border);
}
QImage Painted(TControl& control) {
  QImage image(control.Width(), control.Height(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PaintControl(control, painter);
  return image;
}
}  // namespace

TEST(RegionMask, AControlPaintsThroughItsRegion) {
  TVRXRegion control(nullptr);
  Fill(*control.RegionMask(), Block(clRed));
  EXPECT_EQ(control.Width(), 8);  // it takes the size of its picture
  const QImage image = Painted(control);
  for (int y = 0; y < 8; ++y)
    for (int x = 0; x < 8; ++x)
      EXPECT_EQ(image.pixel(x, y), x >= 2 && x < 6 && y >= 2 && y < 6 ? qRgb(255, 0, 0) : qRgba(0, 0, 0, 0));
}

TEST(RegionMask, DownShowsTheSecondState) {
  TVRXRegion control(nullptr);
  Fill(*control.RegionMask(), Block(clRed));
  control.RegionMask()->SetStatePicture(0, Block(clLime));
  control.RegionMask()->SetStatePicture(1, Block(clBlue));
  EXPECT_EQ(Painted(control).pixel(4, 4), qRgb(0, 255, 0));
  control.SetDown(true);
  EXPECT_EQ(Painted(control).pixel(4, 4), qRgb(0, 0, 255));
}

TEST(RegionMask, OnlyAPanelTakesOtherControlsAndShowsThemOnItself) {
  EXPECT_FALSE(TVRXRegion(nullptr).AcceptsControls());
  EXPECT_FALSE(TVRXWndButtonShape(nullptr).AcceptsControls());
  TVRXPanelShape panel(nullptr);
  EXPECT_TRUE(panel.AcceptsControls());
  panel.SetBounds(0, 0, 40, 30);
  panel.SetTransparent(false);
  panel.SetColor(clRed);
  TVRXPanelShape inner(nullptr);
  inner.SetParent(&panel);
  inner.SetBounds(10, 5, 20, 8);
  inner.SetTransparent(false);
  inner.SetColor(clBlue);
  EXPECT_EQ(Painted(panel).pixel(5, 20), qRgb(255, 0, 0));
  EXPECT_EQ(Painted(panel).pixel(20, 9), qRgb(0, 0, 255));
}

TEST(RegionMask, ARegionIsTheSameAsItsData) {
  const TRegion region = TRegion(TRect{1, 2, 5, 9}).United(TRegion(TRect{7, 4, 8, 20}));
  TVRXRegionMask mask, other;
  mask.SetRegion(region);
  other.SetRegionData(region.ToData());
  EXPECT_EQ(mask.RegionData(), other.RegionData());
  EXPECT_EQ(mask.Region(), other.Region());
  mask.SetRegion({});
  EXPECT_FALSE(mask.HasRegion());
  EXPECT_TRUE(mask.Region().Empty());
}

TEST(RegionMask, CorruptRegionDataIsRefusedAndNothingChanges) {
  TVRXRegionMask mask;
  Fill(mask, Block(clRed));
  const QByteArray data = mask.RegionData();
  EXPECT_THROW(mask.SetRegionData(data.left(data.size() - 1)), EInvalidRegion);
  EXPECT_THROW(mask.SetRegionData("x"), EInvalidRegion);
  EXPECT_EQ(mask.RegionData(), data);
  const TPropInfo& picture = TVRXRegionMask::StaticClass().GetProp("BorderPicture");
  const QByteArray bytes = GetBinaryProp(mask, picture);
  EXPECT_THROW(SetBinaryProp(mask, picture, bytes.left(20)), EInvalidPicture);
  EXPECT_EQ(GetBinaryProp(mask, picture), bytes);
}

TEST(RegionMask, ItsBytesAreReadBackAndStayAsTheyAre) {
  for (const bool compress : {false, true})
    for (int depth = 0; depth <= static_cast<int>(TVRXColorDepth::spf16bit); ++depth) {
      TVRXRegionMask mask, copy;
      mask.SetCompress(compress);
      mask.SetColorDepth(static_cast<TVRXColorDepth>(depth));
      Fill(mask, Block(TColor(0x3579BD)));
      for (const TPropInfo* prop : TVRXRegionMask::StaticClass().Properties())
        SetProp(copy, *prop, GetProp(mask, *prop));
      EXPECT_EQ(copy.BorderPicture(), mask.BorderPicture()) << compress << depth;
      const TPropInfo& picture = TVRXRegionMask::StaticClass().GetProp("BorderPicture");
      EXPECT_EQ(GetBinaryProp(copy, picture), GetBinaryProp(mask, picture));
      EXPECT_EQ(GetBinaryProp(mask, picture).startsWith(compress ? "\x89PNG" : "BM"), true);
    }
}

namespace {
// Many colours, white and grey among them, in a picture that is not square.
TBitmap ManyColors() {
  TBitmap picture(40, 27);
  for (int y = 0; y < 27; ++y)
    for (int x = 0; x < 40; ++x)
      picture.SetPixel(x, y,
                       RGBColor(static_cast<unsigned>(x * 6), static_cast<unsigned>(y * 9),
                                static_cast<unsigned>(x * y) % 256));
  picture.SetPixel(0, 0, clWhite);
  picture.SetPixel(39, 26, clGray);
  return picture;
}
std::set<QRgb> ColorsOf(const QImage& image) {
  std::set<QRgb> colors;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) colors.insert(image.pixel(x, y));
  return colors;
}
QByteArray BorderBytes(const TVRXRegionMask& mask) {
  return GetBinaryProp(mask, TVRXRegionMask::StaticClass().GetProp("BorderPicture"));
}
}  // namespace

TEST(RegionMask, EveryDepthStoresItsNumberOfBits) {
  struct Depth {
    TVRXColorDepth depth;
    int bits;
    std::size_t colors;
  };
  using enum TVRXColorDepth;
  std::set<QByteArray> seen;
  for (const Depth& d : {Depth{spfMono, 1, 2}, Depth{spf4bit, 4, 16}, Depth{spf8bit, 8, 256},
                         Depth{spf16bit, 16, 65536}, Depth{spfDefault, 24, 1 << 24}}) {
    TVRXRegionMask mask, read;
    Fill(mask, ManyColors());
    const QByteArray region = mask.RegionData();
    mask.SetColorDepth(d.depth);
    const QByteArray bytes = BorderBytes(mask);
    ASSERT_TRUE(bytes.startsWith("BM"));
    EXPECT_EQ(bytes[28] | bytes[29] << 8, d.bits);
    // A head, a table of the colours, and rows of whole words.
    EXPECT_LE(bytes.size(), 66 + 4 * 256 + (40 * d.bits + 31) / 32 * 4 * 27);
    EXPECT_LE(ColorsOf(mask.BorderPicture()).size(), d.colors);
    EXPECT_TRUE(seen.insert(bytes).second) << d.bits;
    EXPECT_EQ(mask.RegionData(), region);
    for (const TPropInfo* prop : TVRXRegionMask::StaticClass().Properties())
      SetProp(read, *prop, GetProp(mask, *prop));
    EXPECT_EQ(read.BorderPicture(), mask.BorderPicture()) << d.bits;
    EXPECT_EQ(read.BorderPicture().pixel(0, 0), qRgb(255, 255, 255)) << d.bits;
    EXPECT_EQ(BorderBytes(read), bytes);
    // Once reduced, nothing more is lost.
    read.SetCompress(true);
    read.SetCompress(false);
    EXPECT_EQ(BorderBytes(read), bytes) << d.bits;
  }
}

TEST(RegionMask, ADepthKeepsColoursThatItHasRoomFor) {
  TBitmap few(9, 5);
  for (int i = 0; i < 45; ++i)
    few.SetPixel(i % 9, i / 9, RGBColor(static_cast<unsigned>(i % 16) * 3 + 100, 77, 12));
  for (const auto depth : {TVRXColorDepth::spf4bit, TVRXColorDepth::spf8bit}) {
    TVRXRegionMask mask;
    Fill(mask, few);
    mask.SetColorDepth(depth);
    EXPECT_EQ(mask.BorderPicture(), few.Image());
  }
}

TEST(RegionMask, FewerColoursAreShownAndMoreComeBack) {
  TVRXRegionMask mask;
  Fill(mask, Block(TColor(0x3579BD)));
  const QImage full = mask.BorderPicture();
  mask.SetColorDepth(TVRXColorDepth::spfMono);
  EXPECT_NE(mask.BorderPicture(), full);
  mask.SetColorDepth(TVRXColorDepth::spfDefault);
  EXPECT_EQ(mask.BorderPicture(), full);
}

TEST(ButtonFace, MasksSplitThePictureAtItsTransparentColour) {
  const TVRXMaskedPicture split = VRXBmpCreateMasksExt(Block(clRed), clFuchsia);
  EXPECT_EQ(split.Mask.Pixel(0, 0), clWhite);
  EXPECT_EQ(split.Picture.Pixel(0, 0), clBlack);
  EXPECT_EQ(split.Mask.Pixel(4, 4), clBlack);
  EXPECT_EQ(split.Picture.Pixel(4, 4), clRed);
}

TEST(ButtonFace, TheButtonShowsThePictureOfItsState) {
  TVRX3DEffectButton button(nullptr);
  button.Set3DPics(VRXBmpCreateMasksExt(Block(clRed), clFuchsia),
                   VRXBmpCreateMasksExt(Block(clLime), clFuchsia),
                   VRXBmpCreateMasksExt(Block(clBlue), clFuchsia));
  button.SetBounds(0, 0, 8, 8);
  EXPECT_EQ(Painted(button).pixel(4, 4), qRgb(255, 0, 0));
  EXPECT_EQ(Painted(button).pixel(0, 0), qRgba(0, 0, 0, 0));
  button.SetDown(true);
  EXPECT_EQ(Painted(button).pixel(4, 4), qRgb(0, 255, 0));
  button.SetEnabled(false);
  EXPECT_EQ(Painted(button).pixel(4, 4), qRgb(0, 0, 255));
}
