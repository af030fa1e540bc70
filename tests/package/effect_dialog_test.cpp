// What the 3D effect dialog computes, shows and hands back, and its launcher.
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/EffectDialogTest.h"

using namespace pixeltest;

TEST_F(EffectDialog, TheResultsAreThoseOfTheRoutineWithTheDialogsColours) {
  const TColor given[] = {clNavy, clYellow, clAqua, clMaroon};
  std::copy_n(given, 4, dlg.colors);
  dlg.bevelWidth = 3;
  Show([&] {
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
  });
  TBitmap up, down, disabled;
  VRXDrawButton3D(BarOnSilver(), up, down, disabled, clSilver, clAqua, clMaroon, clYellow, clNone, clNone,
                  clNavy, false, 3, nullptr);
  EXPECT_TRUE(pictures[0] == BarOnSilver());
  EXPECT_TRUE(pictures[1] == up);
  EXPECT_TRUE(pictures[2] == down);
  EXPECT_TRUE(pictures[3] == disabled);
}

TEST_F(EffectDialog, TheFormOpensInItsOwnSize) {
  Show([&] { EXPECT_EQ(dlg.size(), QSize(610, 311)); });
}

TEST_F(EffectDialog, TheColoursThatWereHandedOverAreShown) {
  const TColor given[] = {clNavy, clYellow, TColor(0x123456), clMaroon};
  std::copy_n(given, 4, dlg.colors);
  Show([&] {
    EXPECT_EQ(dlg.cmbB->Selected(), clNavy);
    EXPECT_EQ(dlg.cmbD->Selected(), clYellow);
    EXPECT_EQ(dlg.cmbL->Selected(), TColor(0x123456));
    EXPECT_EQ(dlg.cmbS->Selected(), clMaroon);
  });
  EXPECT_TRUE(std::ranges::equal(dlg.colors, given));
}

TEST_F(EffectDialog, EveryColourListWritesItsOwnColour) {
  TVRXColorComboBox* const combos[] = {dlg.cmbB, dlg.cmbD, dlg.cmbL, dlg.cmbS};
  const TColor chosen[] = {clRed, clLime, clBlue, clFuchsia};
  const char* const names[] = {"clRed", "clLime", "clBlue", "clFuchsia"};
  Show([&] {
    TColor expected[] = {clBlack, clWhite, clWhite, clGray};
    for (std::size_t i = 0; i < 4; ++i) {
      Choose(combos[i], QString::fromLatin1(names[i]));
      expected[i] = chosen[i];
      EXPECT_TRUE(std::ranges::equal(dlg.colors, expected)) << names[i];
    }
  });
}

TEST_F(EffectDialog, EveryColourButtonOpensTheColourDialogOfItsList) {
  QToolButton* const buttons[] = {dlg.dlgb, dlg.dlgd, dlg.dlgl, dlg.dlgs};
  Show([&] {
    TColor expected[] = {clBlack, clWhite, clWhite, clGray};
    for (int i = 0; i < 4; ++i) {
      modal::NextOf<QColorDialog>([i](QColorDialog& colors) {
        colors.setCurrentColor(QColor(10 + i, 20, 30));
        colors.accept();
      });
      Click(buttons[i]);
      expected[i] = RGBColor(10 + i, 20, 30);
      EXPECT_TRUE(std::ranges::equal(dlg.colors, expected)) << i;
    }
  });
}

TEST_F(EffectDialog, ABevelWidthOfSevenOpensAsFive) {
  dlg.bevelWidth = 7;
  Show([&] {
    EXPECT_EQ(dlg.spind->value(), 5);
    EXPECT_EQ(dlg.spind->maximum(), 5);
  });
  EXPECT_EQ(dlg.bevelWidth, 5);
}

TEST_F(EffectDialog, TheSpinEditChangesTheBevelWidth) {
  Show([&] {
    EXPECT_EQ(dlg.spind->value(), 2);
    QTest::keyClick(dlg.spind, Qt::Key_Up);
    EXPECT_EQ(dlg.bevelWidth, 3);
  });
  EXPECT_EQ(dlg.bevelWidth, 3);
}

TEST_F(EffectDialog, TheListOfStatesShowsEveryPicture) {
  Show([&] {
    LoadPicture(BarOnSilver());
    Click(dlg.EXECUTE);
    ASSERT_FALSE(pictures[1] == pictures[2]);
    ASSERT_FALSE(pictures[2] == pictures[3]);
    const std::pair<const char*, int> states[] = {{"Down", 2}, {"Disabled", 3}, {"Original", 0}, {"Up", 1}};
    for (const auto& [text, bitmap] : states) {
      Choose(dlg.cmbState, QString::fromLatin1(text));
      EXPECT_TRUE(dlg.BtnImg->Picture() == pictures[bitmap]) << text;
    }
  });
}

TEST_F(EffectDialog, ReturnRunsWhatWasLoadedAndThenConfirms) {
  const auto press = [&] { QTest::keyClick(dlg.focusWidget(), Qt::Key_Return); };
  EXPECT_EQ(Show([&] {
              LoadPicture(BarOnSilver());
              press();
              EXPECT_TRUE(dlg.isVisible());
              EXPECT_FALSE(pictures[1].Empty());
              press();
              EXPECT_FALSE(dlg.isVisible());
            }),
            mrOk);
}

TEST_F(EffectDialog, ACaptionIsDrawnOnSilver) {
  Show([&] {
    modal::NextOf<TVRXCaptionEditorDlg>([](auto& editor) {
      EXPECT_FALSE(editor.chk->isHidden());
      QTest::keyClicks(editor.cap, QStringLiteral("Go"));
      Click(editor.ok);
    });
    Click(dlg.btngetcap);
    EXPECT_EQ(dlg.caption->Caption(), QStringLiteral("Go"));
    EXPECT_FALSE(dlg.Ok->isEnabled());
    EXPECT_TRUE(dlg.EXECUTE->isEnabled());
    EXPECT_TRUE(dlg.BtnImg->Picture() == pictures[0]);
  });
  TVRXCaption caption;
  caption.SetCaption(QStringLiteral("Go"));
  TBitmap expected;
  VRXDrawCaptionFace(caption, expected);
  EXPECT_TRUE(pictures[0] == expected);
  EXPECT_EQ(pictures[0].Pixel(0, pictures[0].Height() - 1), clSilver);
  EXPECT_FALSE(pictures[0] == Plain(pictures[0].Width(), pictures[0].Height(), clSilver));
}

TEST_F(EffectDialog, ACaptionWithoutTextLeavesEverythingAsItWas) {
  pictures[0] = BarOnSilver();
  FillResults();
  Show([&] {
    modal::NextOf<TVRXCaptionEditorDlg>([](auto& editor) { Click(editor.ok); });
    Click(dlg.btngetcap);
    EXPECT_TRUE(dlg.Ok->isEnabled());
    EXPECT_TRUE(dlg.BtnImg->Picture() == BarOnSilver());
  });
  EXPECT_TRUE(pictures[0] == BarOnSilver());
  ExpectFilledResults();
}

// Nothing of it is drawn.
TEST_F(EffectDialog, ACaptionOfAnAmpersandIsAsGoodAsNone) {
  pictures[0] = BarOnSilver();
  FillResults();
  dlg.caption->FontFX()->SetStyle(TVRX3DTextStyle::tdRaised);
  Show([&] {
    modal::NextOf<TVRXCaptionEditorDlg>([](auto& editor) {
      QTest::keyClicks(editor.cap, QStringLiteral("&"));
      Click(editor.ok);
    });
    Click(dlg.btngetcap);
    EXPECT_EQ(dlg.caption->Caption(), QString());
    EXPECT_TRUE(dlg.Ok->isEnabled());
    EXPECT_TRUE(dlg.BtnImg->Picture() == BarOnSilver());
  });
  EXPECT_TRUE(pictures[0] == BarOnSilver());
  ExpectFilledResults();
}

TEST_F(EffectDialog, ATurnedAmpersandIsDrawn) {
  Show([&] {
    modal::NextOf<TVRXCaptionEditorDlg>([](auto& editor) {
      editor.test->Caption()->FontFX()->SetAngle(30);
      QTest::keyClicks(editor.cap, QStringLiteral("&"));
      Click(editor.ok);
    });
    Click(dlg.btngetcap);
    EXPECT_FALSE(dlg.Ok->isEnabled());
  });
  EXPECT_FALSE(pictures[0] == Plain(pictures[0].Width(), pictures[0].Height(), clSilver));
}

TEST_F(EffectDialog, ACancelledSourceLeavesEverythingAsItWas) {
  pictures[0] = BarOnSilver();
  Show([&] {
    modal::NextOf<TVRXCaptionEditorDlg>([](auto& editor) {
      QTest::keyClicks(editor.cap, QStringLiteral("Go"));
      Click(editor.Button1);
    });
    Click(dlg.btngetcap);
    EXPECT_EQ(dlg.caption->Caption(), QString());
    Click(dlg.btngetpic);
    EXPECT_TRUE(dlg.Ok->isEnabled());
  });
  EXPECT_TRUE(pictures[0] == BarOnSilver());
}

TEST_F(EffectDialog, AFileThatIsNoPictureIsNamedInAWarning) {
  pictures[0] = BarOnSilver();
  prompts.file = folder.filePath(QStringLiteral("notes.png"));
  QFile file(prompts.file);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("just words");
  file.close();
  Show([&] {
    Click(dlg.btngetpic);
    ASSERT_EQ(prompts.warned.size(), 1);
    EXPECT_TRUE(prompts.warned[0].contains(QStringLiteral("notes.png"))) << prompts.warned[0].toStdString();
    EXPECT_TRUE(dlg.Ok->isEnabled());
  });
  EXPECT_TRUE(pictures[0] == BarOnSilver());
}
