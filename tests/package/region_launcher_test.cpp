// The launcher of the region dialog writes into its argument on OK only.
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

class RegionLauncher : public PictureDialogTest {
 protected:
  void SetUp() override {
    PictureDialogTest::SetUp();
    Offer(BarOnSilver());
    mask.SetColorDepth(TVRXColorDepth::spf16bit);
    mask.SetBorderPicture(Plain(4, 4, clBlue));
    mask.SetRegionData(earlier);
  }
  bool Launch(bool window, std::function<void(TVRXfrmRegionFromBMPdlg&)> act) {
    modal::NextOf<TVRXfrmRegionFromBMPdlg>([act = std::move(act)](auto& dlg) {
      act(dlg);
      if (dlg.isVisible()) dlg.reject();
    });
    return VRXCPGetRegionMask(mask, window);
  }
  static void Build(TVRXfrmRegionFromBMPdlg& dlg) {
    Click(dlg.LoadButton);
    dlg.cl->addItem(QStringLiteral("clSilver"));
    dlg.pages->setCurrentIndex(1);
    Click(dlg.BuildButton);
    EXPECT_TRUE(dlg.OKButton->isEnabled());
  }
  const QByteArray earlier =
      BuildWindowRegion(Plain(4, 4, clBlue), {clRed}, TRegionBorder::None, nullptr).RegionData();
  TVRXRegionMask mask;
};

TEST_F(RegionLauncher, TheDialogWorksOnACopyOfTheMask) {
  Launch(true, [&](auto& dlg) {
    EXPECT_NE(dlg.mask.get(), &mask);
    EXPECT_EQ(dlg.mask->RegionData(), earlier);
    EXPECT_EQ(dlg.colb->currentText(), QStringLiteral("spf16bit"));
    EXPECT_FALSE(dlg.ccb->isChecked());
  });
}

TEST_F(RegionLauncher, OkWritesTheBuiltMaskBack) {
  EXPECT_TRUE(Launch(true, [](auto& dlg) {
    Build(dlg);
    Choose(dlg.colb, QStringLiteral("spfDefault"));
    dlg.ccb->click();
    Click(dlg.OKButton);
  }));
  const TRegionBuild expected = BuildWindowRegion(BarOnSilver(), {clSilver}, TRegionBorder::None, nullptr);
  EXPECT_EQ(mask.RegionData(), expected.RegionData());
  EXPECT_EQ(mask.BorderPicture(), expected.Border.Image());
  EXPECT_EQ(mask.ColorDepth(), TVRXColorDepth::spfDefault);
  EXPECT_TRUE(mask.Compress());
}

TEST_F(RegionLauncher, CancelLeavesTheMaskAsItWas) {
  EXPECT_FALSE(Launch(true, [](auto& dlg) {
    Build(dlg);
    Choose(dlg.colb, QStringLiteral("spfMono"));
    dlg.ccb->click();
    EXPECT_TRUE(dlg.mask->Compress());
    Click(dlg.CancelButton);
  }));
  EXPECT_EQ(mask.RegionData(), earlier);
  EXPECT_EQ(mask.BorderPicture(), Plain(4, 4, clBlue).Image());
  EXPECT_EQ(mask.ColorDepth(), TVRXColorDepth::spf16bit);
  EXPECT_FALSE(mask.Compress());
}

TEST_F(RegionLauncher, WindowsAreOfferedBorderStyles) {
  Launch(true, [](auto& dlg) {
    EXPECT_FALSE(dlg.buttonFace);
    EXPECT_FALSE(dlg.cb->isHidden());
    EXPECT_TRUE(dlg.cb2->isHidden());
  });
}

TEST_F(RegionLauncher, ButtonsAreOfferedTheirOwnStylesAndGetTwoStates) {
  mask.SetColorDepth(TVRXColorDepth::spfDefault);
  EXPECT_TRUE(Launch(false, [](auto& dlg) {
    EXPECT_TRUE(dlg.buttonFace);
    EXPECT_TRUE(dlg.cb->isHidden());
    EXPECT_FALSE(dlg.cb2->isHidden());
    Build(dlg);
    Click(dlg.OKButton);
  }));
  const TRegionBuild expected = BuildButtonRegion(BarOnSilver(), {clSilver}, TRegionButton::Win31, nullptr);
  EXPECT_EQ(mask.RegionData(), expected.RegionData());
  EXPECT_EQ(mask.StatePicture(0), expected.First.Image());
  EXPECT_EQ(mask.StatePicture(1), expected.Second.Image());
}
