// The launcher of the 3D effect dialog gives a button its pictures.
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/PixelDialogTest.h"

using namespace pixeltest;

class EffectLauncher : public PictureDialogTest {
 protected:
  bool Launch(std::function<void(TVRX3DEffectEditorDlg&)> act) {
    modal::NextOf<TVRX3DEffectEditorDlg>([act = std::move(act)](auto& dlg) {
      act(dlg);
      if (dlg.isVisible()) dlg.reject();
    });
    return VRXCPGetButtonFace3D(button);
  }
  TVRXCustom3DButton button{nullptr};
};

TEST_F(EffectLauncher, TheDialogOpensEmptyWithItsColoursAndWidth) {
  Launch([](auto& dlg) {
    const TColor expected[] = {RGBColor(0, 0, 0), RGBColor(255, 255, 255), RGBColor(255, 255, 255),
                               RGBColor(128, 128, 128)};
    EXPECT_TRUE(std::ranges::equal(dlg.colors, expected));
    EXPECT_EQ(dlg.bevelWidth, 2);
    for (const TBitmap* bitmap : dlg.bitmaps) {
      ASSERT_NE(bitmap, nullptr);
      EXPECT_TRUE(bitmap->Empty());
    }
  });
}

TEST_F(EffectLauncher, OkGivesTheButtonItsPicturesAndTheirSize) {
  Offer(BarOnSilver());
  button.SetBounds(30, 40, 100, 100);
  EXPECT_TRUE(Launch([](auto& dlg) {
    Click(dlg.btngetpic);
    Click(dlg.EXECUTE);
    Click(dlg.Ok);
  }));
  TBitmap up, down, disabled;
  VRXDrawButton3D(BarOnSilver(), up, down, disabled, clSilver, clWhite, clGray, clWhite, clNone, clNone,
                  clBlack, false, 2, nullptr);
  TVRX3DButtonFace expected;
  expected.SetPictures(VRXBmpCreateMasksExt(up, clSilver), VRXBmpCreateMasksExt(down, clSilver),
                       VRXBmpCreateMasksExt(disabled, clSilver));
  for (const auto state : {TVRX3DButtonState::Up, TVRX3DButtonState::Down, TVRX3DButtonState::Disabled}) {
    ASSERT_FALSE(expected.Picture(state).isNull());
    EXPECT_EQ(button.ButtonFace()->Picture(state), expected.Picture(state));
  }
  EXPECT_EQ(button.Left(), 30);
  EXPECT_EQ(button.Top(), 40);
  EXPECT_EQ(button.Width(), up.Width());
  EXPECT_EQ(button.Height(), up.Height());
}

TEST_F(EffectLauncher, OkWithoutAPictureLeavesTheButtonAsItWas) {
  button.SetBounds(0, 0, 100, 90);
  EXPECT_FALSE(Launch([](auto& dlg) { Click(dlg.Ok); }));
  EXPECT_TRUE(button.ButtonFace()->Empty());
  EXPECT_EQ(button.Width(), 100);
  EXPECT_EQ(button.Height(), 90);
}

TEST_F(EffectLauncher, CancelAfterARunLeavesTheButtonAsItWas) {
  Offer(BarOnSilver());
  button.SetBounds(0, 0, 100, 90);
  EXPECT_FALSE(Launch([](auto& dlg) {
    Click(dlg.btngetpic);
    Click(dlg.EXECUTE);
    EXPECT_TRUE(dlg.Ok->isEnabled());
    Click(dlg.VRXButton4);
  }));
  EXPECT_TRUE(button.ButtonFace()->Empty());
  EXPECT_EQ(button.Width(), 100);
}
