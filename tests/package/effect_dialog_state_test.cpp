// The states of the 3D effect dialog, and how a run in it ends.
#include "tests/package/EffectDialogTest.h"

using namespace pixeltest;

TEST_F(EffectDialog, OpensWithEverythingEnabledButTheListOfStates) {
  Show([&] {
    EXPECT_EQ(dlg.windowTitle(), QStringLiteral("3D Effect Editor"));
    EXPECT_TRUE(dlg.EXECUTE->isEnabled());
    EXPECT_TRUE(dlg.STOP->isEnabled());
    EXPECT_TRUE(dlg.Ok->isEnabled());
    EXPECT_FALSE(dlg.cmbState->isEnabled());
    EXPECT_EQ(State(), QStringLiteral("Original"));
  });
}

TEST_F(EffectDialog, FinishedPicturesCanBeAcceptedAsTheyCame) {
  pictures[0] = BarOnSilver();
  FillResults();
  EXPECT_EQ(Show([&] {
              EXPECT_TRUE(dlg.BtnImg->Picture() == BarOnSilver());
              Click(dlg.Ok);
            }),
            1);
  ExpectFilledResults();
}

TEST_F(EffectDialog, AChosenPictureIsShownAndWaitsForARun) {
  Show([&] {
    LoadPicture(BarOnSilver());
    EXPECT_TRUE(pictures[0] == BarOnSilver());
    EXPECT_TRUE(dlg.BtnImg->Picture() == BarOnSilver());
    EXPECT_TRUE(dlg.EXECUTE->isEnabled());
    EXPECT_FALSE(dlg.Ok->isEnabled());
    EXPECT_FALSE(dlg.cmbState->isEnabled());
    EXPECT_EQ(State(), QStringLiteral("Original"));
  });
}

TEST_F(EffectDialog, AFinishedRunShowsUpAndCanBeConfirmed) {
  EXPECT_EQ(Show([&] {
              LoadPicture(BarOnSilver());
              Click(dlg.EXECUTE);
              EXPECT_EQ(dlg.windowTitle(), QStringLiteral("3DEffect-Editor"));
              EXPECT_EQ(State(), QStringLiteral("Up"));
              EXPECT_FALSE(pictures[1].Empty());
              EXPECT_TRUE(dlg.BtnImg->Picture() == pictures[1]);
              EXPECT_TRUE(dlg.Ok->isEnabled());
              EXPECT_TRUE(dlg.cmbState->isEnabled());
              EXPECT_TRUE(dlg.EXECUTE->isEnabled());
              EXPECT_FALSE(dlg.STOP->isEnabled());
              EXPECT_EQ(dlg.vrxprog->Percent(), 0);
              Click(dlg.Ok);
            }),
            1);
}

TEST_F(EffectDialog, ANewPictureAfterARunHasToBeExecutedAgain) {
  Show([&] {
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
    LoadPicture(Colorful(7, 6));
    EXPECT_FALSE(dlg.Ok->isEnabled());
    EXPECT_FALSE(dlg.cmbState->isEnabled());
    EXPECT_EQ(State(), QStringLiteral("Original"));
    EXPECT_TRUE(dlg.BtnImg->Picture() == Colorful(7, 6));
  });
}

TEST_F(EffectDialog, StopInARunLeavesTheResultsAndForbidsOk) {
  FillResults();
  Show([&] {
    LoadPicture(Noise());
    DuringRun([&] {
      EXPECT_EQ(dlg.windowTitle(), QStringLiteral("Please wait - effect is being generated..."));
      EXPECT_TRUE(dlg.STOP->isEnabled());
      EXPECT_FALSE(dlg.Ok->isEnabled());
      Click(dlg.STOP);
    });
    Click(dlg.EXECUTE);
    EXPECT_TRUE(acted);
    EXPECT_EQ(dlg.windowTitle(), QStringLiteral("3DEffect-Editor"));
    EXPECT_EQ(State(), QStringLiteral("Original"));
    EXPECT_TRUE(dlg.BtnImg->Picture() == pictures[0]);
    EXPECT_FALSE(dlg.Ok->isEnabled());
    EXPECT_FALSE(dlg.cmbState->isEnabled());
    EXPECT_TRUE(dlg.EXECUTE->isEnabled());
    EXPECT_FALSE(dlg.STOP->isEnabled());
    EXPECT_EQ(dlg.vrxprog->Percent(), 0);
    EXPECT_FALSE(VRX3DEffectAbort);
  });
  ExpectFilledResults();
}

TEST_F(EffectDialog, ARunAfterAStoppedOneIsComplete) {
  Show([&] {
    LoadPicture(Noise());
    DuringRun([&] { Click(dlg.STOP); });
    Click(dlg.EXECUTE);
    ASSERT_TRUE(acted);
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
    EXPECT_EQ(State(), QStringLiteral("Up"));
    EXPECT_TRUE(dlg.Ok->isEnabled());
    EXPECT_EQ(pictures[1].Width(), 14 + 2 * 2);
  });
}

TEST_F(EffectDialog, StopBeforeARunDoesNotEndIt) {
  Show([&] {
    Click(dlg.STOP);
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
    EXPECT_EQ(State(), QStringLiteral("Up"));
  });
}

TEST_F(EffectDialog, CancelInARunEndsItAndTheDialog) {
  FillResults();
  EXPECT_EQ(Show([&] {
              LoadPicture(Noise());
              DuringRun([&] { Click(dlg.VRXButton4); });
              Click(dlg.EXECUTE);
              EXPECT_FALSE(dlg.isVisible());
            }),
            2);
  EXPECT_TRUE(acted);
  ExpectFilledResults();
}

TEST_F(EffectDialog, EscapeInARunEndsItAndTheDialog) {
  FillResults();
  EXPECT_EQ(Show([&] {
              LoadPicture(Noise());
              DuringRun([&] { QTest::keyClick(&dlg, Qt::Key_Escape); });
              Click(dlg.EXECUTE);
              EXPECT_FALSE(dlg.isVisible());
            }),
            2);
  EXPECT_TRUE(acted);
  ExpectFilledResults();
}

TEST_F(EffectDialog, ClosingTheWindowInARunEndsBoth) {
  FillResults();
  EXPECT_EQ(Show([&] {
              LoadPicture(Noise());
              DuringRun([&] { dlg.close(); });
              Click(dlg.EXECUTE);
              EXPECT_FALSE(dlg.isVisible());
            }),
            2);
  EXPECT_TRUE(acted);
  ExpectFilledResults();
}

TEST_F(EffectDialog, ExecuteWithoutASourceRunsItsStepsAndLeavesTheResultsEmpty) {
  EXPECT_EQ(Show([&] {
              EXPECT_EQ(dlg.note->text(), QString());
              Click(dlg.EXECUTE);
              EXPECT_TRUE(prompts.informed.isEmpty());
              EXPECT_EQ(dlg.windowTitle(), QStringLiteral("3DEffect-Editor"));
              EXPECT_TRUE(dlg.EXECUTE->isEnabled());
              EXPECT_FALSE(dlg.STOP->isEnabled());
              EXPECT_TRUE(dlg.Ok->isEnabled());
              EXPECT_TRUE(dlg.cmbState->isEnabled());
              EXPECT_EQ(State(), QStringLiteral("Up"));
              EXPECT_NE(dlg.note->text(), QString());
              Click(dlg.Ok);
            }),
            1);
  for (const TBitmap& picture : pictures) EXPECT_TRUE(picture.Empty());
}

TEST_F(EffectDialog, ExecuteWithoutASourceKeepsResultsThatWereHandedOver) {
  FillResults();
  Show([&] {
    Click(dlg.EXECUTE);
    EXPECT_TRUE(dlg.BtnImg->Picture() == pictures[1]);
    LoadPicture(BarOnSilver());
    EXPECT_EQ(dlg.note->text(), QString());
  });
  ExpectFilledResults();
}

TEST_F(EffectDialog, CancelSetsTheAbortFlagWithoutARunToo) {
  for (const bool escape : {false, true}) {
    VRX3DEffectAbort = false;
    EXPECT_EQ(Show([&] {
                if (escape)
                  QTest::keyClick(&dlg, Qt::Key_Escape);
                else
                  Click(dlg.VRXButton4);
                EXPECT_FALSE(dlg.isVisible());
              }),
              2);
    EXPECT_TRUE(VRX3DEffectAbort) << escape;
  }
}

TEST_F(EffectDialog, OkSetsNoAbortFlag) {
  EXPECT_EQ(Show([&] { Click(dlg.Ok); }), 1);
  EXPECT_FALSE(VRX3DEffectAbort);
}
