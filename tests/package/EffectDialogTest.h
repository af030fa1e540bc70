// A 3D effect dialog with bitmaps of its own.
#pragma once
#include "package/dialogs/pVRX3DEffectEditorDlg.h"
#include "tests/package/PixelDialogTest.h"

class EffectDialog : public pixeltest::PictureDialogTest {
 protected:
  EffectDialog() {
    for (std::size_t i = 0; i < 4; ++i) dlg.bitmaps[i] = &pictures[i];
  }
  ~EffectDialog() override { VRX3DEffectAbort = false; }
  // Shows the dialog while `act` uses it; its result.
  int Show(std::function<void()> act) {
    modal::NextOf<TVRX3DEffectEditorDlg>([this, act = std::move(act)](auto&) {
      act();
      if (dlg.isVisible()) dlg.reject();
    });
    return dlg.ShowModal();
  }
  // Acts in the next run, from inside of it.
  void DuringRun(std::function<void()> act) {
    steps_.Next([this, act = std::move(act)] {
      EXPECT_FALSE(dlg.EXECUTE->isEnabled());
      acted = true;
      act();
    });
  }
  void LoadPicture(const TBitmap& picture) {
    Offer(picture);
    pixeltest::Click(dlg.btngetpic);
  }
  // Results of an earlier run.
  void FillResults() {
    pictures[1] = pixeltest::Plain(3, 3, clRed);
    pictures[2] = pixeltest::Plain(4, 4, clLime);
    pictures[3] = pixeltest::Plain(5, 5, clBlue);
  }
  void ExpectFilledResults() {
    EXPECT_TRUE(pictures[1] == pixeltest::Plain(3, 3, clRed));
    EXPECT_TRUE(pictures[2] == pixeltest::Plain(4, 4, clLime));
    EXPECT_TRUE(pictures[3] == pixeltest::Plain(5, 5, clBlue));
  }
  // So much to do that a run has many steps.
  static TBitmap Noise() {
    TBitmap picture = TBitmap::Uninitialized(90, 60);
    std::uint32_t seed = 1;
    for (int y = 0; y < picture.Height(); ++y) {
      std::uint32_t* row = picture.WritableRow(y);
      for (int x = 0; x < picture.Width(); ++x) {
        seed = seed * 1664525 + 1013904223;
        row[x] = (seed >> 16) % 3 == 0 ? 0xFF123456 : 0xFFC0C0C0;
      }
    }
    picture.SetPixel(0, picture.Height() - 1, clSilver);
    return picture;
  }
  QString State() const { return dlg.cmbState->currentText(); }

  TBitmap pictures[4];
  TVRX3DEffectEditorDlg dlg{nullptr};
  bool acted = false;

 private:
  pixeltest::RunSteps steps_;
};
