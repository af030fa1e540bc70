// Region masks and button faces: what they keep, store and show.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

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
        CopyProp(mask, *prop, copy, *prop);
      EXPECT_EQ(copy.BorderPicture(), mask.BorderPicture()) << compress << depth;
      const TPropInfo& picture = TVRXRegionMask::StaticClass().GetProp("BorderPicture");
      EXPECT_EQ(GetBinaryProp(copy, picture), GetBinaryProp(mask, picture));
      EXPECT_EQ(GetBinaryProp(mask, picture).startsWith(compress ? "\x89PNG" : "BM"), true);
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
