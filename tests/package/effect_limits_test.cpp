// What is made here can be read again, and storing it is never a long silence.
#include <QProgressDialog>

#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/EffectDialogTest.h"

using namespace pixeltest;

using EffectLimits = EffectDialog;

TEST_F(EffectLimits, ASourceWhoseResultsCouldNotBeReadAgainIsRefusedBeforeTheRun) {
  // One row becomes eleven: more pixels than a picture may have.
  const TBitmap source = Plain(6'200'000, 1, clRed);
  FillResults();
  Show([&] {
    dlg.spind->setValue(5);
    pictures[0].Assign(&source);
    const QString caption = dlg.windowTitle();
    Click(dlg.EXECUTE);
    ASSERT_EQ(prompts.warned.size(), 1);
    EXPECT_TRUE(prompts.warned[0].contains(QStringLiteral("6200010 x 11")))
        << prompts.warned[0].toStdString();
    EXPECT_TRUE(prompts.warned[0].contains(QStringLiteral("bevel of 5")));
    EXPECT_EQ(dlg.windowTitle(), caption);
    EXPECT_TRUE(dlg.EXECUTE->isEnabled());
    ExpectFilledResults();
  });
}

class LargeEffect : public PictureDialogTest {
 protected:
  bool Launch() {
    Offer(Plain(2100, 2003, clRed));
    modal::NextOf<TVRX3DEffectEditorDlg>([](auto& dlg) {
      Click(dlg.btngetpic);
      Click(dlg.EXECUTE);
      Click(dlg.Ok);
    });
    return VRXCPGetButtonFace3D(button);
  }
  TVRXCustom3DButton button{nullptr};
};

TEST_F(LargeEffect, CompressingIsShownAndCanBeCancelled) {
  button.SetBounds(1, 2, 100, 90);
  int shown = 0;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    if (auto* progress = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget())) {
      ++shown;
      progress->cancel();
    }
  });
  look.start(0);
  EXPECT_FALSE(Launch());
  EXPECT_EQ(shown, 1);
  EXPECT_TRUE(button.ButtonFace()->Empty());
  EXPECT_EQ(button.Width(), 100);
}

TEST_F(LargeEffect, WhatWasCompressedIsStoredWithoutFurtherWork) {
  ASSERT_TRUE(Launch());
  EXPECT_EQ(button.Width(), 2104);
  EXPECT_FALSE(button.ButtonFace()->Empty());
  EXPECT_FALSE(button.ButtonFace()->NeedsTime());
}
