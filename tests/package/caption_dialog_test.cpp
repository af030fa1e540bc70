// The caption dialog on its live preview, and its launcher.
#include "dclstd/FontDialog.h"
#include "library_design/FlatCheckBox.h"
#include "library_design/FontDialogs.h"
#include "package/dialogs/pVRXCaptionEditorDlg.h"
#include "package/property_editors/pVRXCPGetMain.h"
#include "tests/package/PixelDialogTest.h"

using namespace pixeltest;

class CaptionDialog : public testing::Test {
 protected:
  void SetUp() override {
    SaveIDECustomColors({});
    caption.SetCaption(QStringLiteral("Old"));
  }
  bool Launch(std::function<void(TVRXCaptionEditorDlg&)> act, bool showMultiLine = true) {
    modal::NextOf<TVRXCaptionEditorDlg>([act = std::move(act)](auto& dlg) {
      act(dlg);
      if (dlg.isVisible()) dlg.reject();
    });
    return VRXCPGetVRXCaption(caption, showMultiLine);
  }
  TVRXCaption caption;
};

TEST_F(CaptionDialog, ShowsTheCaptionItWasGiven) {
  caption.SetAlignment(TVRXAlignment::agBottomLeft);
  caption.SetMultiLine(true);
  Launch([](auto& dlg) {
    EXPECT_EQ(dlg.cap->text(), QStringLiteral("Old"));
    EXPECT_EQ(dlg.cmb->currentText(), QStringLiteral("agBottomLeft"));
    EXPECT_TRUE(dlg.chk->isChecked());
    EXPECT_EQ(dlg.test->Caption()->Caption(), QStringLiteral("Old"));
  });
}

TEST_F(CaptionDialog, EveryKeyChangesThePreviewAndCancelLeavesTheCaption) {
  EXPECT_FALSE(Launch([](auto& dlg) {
    QTest::keyClick(dlg.cap, Qt::Key_End);
    QTest::keyClick(dlg.cap, 'e');
    EXPECT_EQ(dlg.test->Caption()->Caption(), QStringLiteral("Olde"));
    QTest::keyClick(dlg.cap, 'r');
    EXPECT_EQ(dlg.test->Caption()->Caption(), QStringLiteral("Older"));
    Click(dlg.Button1);
  }));
  EXPECT_EQ(caption.Caption(), QStringLiteral("Old"));
}

TEST_F(CaptionDialog, OkWritesTextPlaceAndWrappingIntoTheCaption) {
  EXPECT_TRUE(Launch([](auto& dlg) {
    QTest::keyClick(dlg.cap, Qt::Key_End);
    QTest::keyClicks(dlg.cap, QStringLiteral(" one"));
    Choose(dlg.cmb, QStringLiteral("agTopRight"));
    dlg.chk->click();
    Click(dlg.ok);
  }));
  EXPECT_EQ(caption.Caption(), QStringLiteral("Old one"));
  EXPECT_EQ(caption.Alignment(), TVRXAlignment::agTopRight);
  EXPECT_TRUE(caption.MultiLine());
}

TEST_F(CaptionDialog, TypingInTheMiddleKeepsTheCursorThere) {
  Launch([](auto& dlg) {
    QTest::keyClick(dlg.cap, Qt::Key_Home);
    QTest::keyClicks(dlg.cap, QStringLiteral("So "));
    EXPECT_EQ(dlg.test->Caption()->Caption(), QStringLiteral("So Old"));
    EXPECT_EQ(dlg.cap->cursorPosition(), 3);
  });
}

TEST_F(CaptionDialog, ATextOfSeveralLinesStaysWhenOnlyThePlaceIsChanged) {
  caption.SetCaption(QStringLiteral("one\ntwo"));
  EXPECT_TRUE(Launch([](auto& dlg) {
    Choose(dlg.cmb, QStringLiteral("agTopLeft"));
    Click(dlg.ok);
  }));
  EXPECT_EQ(caption.Caption(), QStringLiteral("one\ntwo"));
  EXPECT_EQ(caption.Alignment(), TVRXAlignment::agTopLeft);
}

TEST_F(CaptionDialog, TheCheckBoxIsHiddenWithoutTheFlagAndMultiLineStays) {
  for (const bool multiLine : {true, false}) {
    caption.SetMultiLine(multiLine);
    EXPECT_TRUE(Launch(
        [](auto& dlg) {
          EXPECT_TRUE(dlg.chk->isHidden());
          QTest::keyClick(dlg.cap, 'x');
          Click(dlg.ok);
        },
        false));
    EXPECT_EQ(caption.MultiLine(), multiLine);
  }
}

TEST_F(CaptionDialog, TheCheckBoxIsFlat) {
  Launch([](auto& dlg) {
    ASSERT_NE(qobject_cast<FlatCheckBox*>(dlg.chk), nullptr);
    dlg.cap->setFocus();
    dlg.chk->setChecked(false);
    const QImage off = dlg.chk->grab().toImage();
    QStyleOptionButton option;
    option.initFrom(dlg.chk);
    const QRect box = dlg.chk->style()
                          ->subElementRect(QStyle::SE_CheckBoxIndicator, &option, dlg.chk)
                          .adjusted(1, 1, -1, -1);
    ASSERT_GT(box.width(), 5);
    for (int y = box.top(); y <= box.bottom(); ++y)
      for (int x = box.left(); x <= box.right(); ++x)
        ASSERT_EQ(off.pixelColor(x, y), dlg.palette().color(QPalette::Base)) << "one plain ground";
    dlg.chk->setChecked(true);
    EXPECT_NE(dlg.chk->grab().toImage(), off);
  });
}

TEST_F(CaptionDialog, TheFontButtonOpensTheOneDialogOnTheStoredFont) {
  caption.Font()->SetName(QStringLiteral("No Such Family"));
  caption.Font()->SetHeight(-18);
  EXPECT_TRUE(Launch([](auto& dlg) {
    modal::NextOf<FontDialog>([](auto& fonts) {
      EXPECT_EQ(fonts.cmbname->currentText(), QStringLiteral("No Such Family"));
      QTest::keyClick(fonts.ok, Qt::Key_Return);
    });
    dlg.btnf->setFocus();
    QTest::keyClick(dlg.btnf, Qt::Key_Return);
    EXPECT_TRUE(dlg.isVisible()) << "Return was the button's";
    Click(dlg.ok);
  }));
  EXPECT_EQ(caption.Font()->Name(), QStringLiteral("No Such Family"));
  EXPECT_EQ(caption.Font()->Height(), -18);
}

TEST_F(CaptionDialog, TheCheckBoxIsVisibleWithTheFlag) {
  Launch([](auto& dlg) { EXPECT_TRUE(dlg.chk->isVisible()); });
}

TEST_F(CaptionDialog, EveryPlaceInTheListIsThePlaceOfThePreview) {
  Launch([](auto& dlg) {
    for (int i = 8; i >= 0; --i) {
      Choose(dlg.cmb, dlg.cmb->itemText(i));
      EXPECT_EQ(static_cast<int>(dlg.test->Caption()->Alignment()), i);
    }
  });
}

TEST_F(CaptionDialog, TheFontDialogChangesThePreviewOnOkOnly) {
  EXPECT_TRUE(Launch([](auto& dlg) {
    const auto bold = [&] { return dlg.test->Caption()->Font()->Style().Contains(TFontStyle::fsBold); };
    modal::NextOf<FontDialog>([](auto& fonts) {
      fonts.styles[0]->click();
      fonts.reject();
    });
    Click(dlg.btnf);
    EXPECT_FALSE(bold());
    modal::NextOf<FontDialog>([](auto& fonts) {
      fonts.styles[0]->click();
      fonts.accept();
    });
    Click(dlg.btnf);
    EXPECT_TRUE(bold());
    Click(dlg.ok);
  }));
  EXPECT_TRUE(caption.Font()->Style().Contains(TFontStyle::fsBold));
}

TEST_F(CaptionDialog, TheEffectsDialogChangesThePreviewOnOkOnly) {
  EXPECT_TRUE(Launch([](auto& dlg) {
    modal::NextOf<TVRXFontFxEditorDlg>([](auto& effects) {
      effects.edangle->setValue(30);
      effects.reject();
    });
    Click(dlg.btnffx);
    EXPECT_EQ(dlg.test->Caption()->FontFX()->Angle(), 0);
    modal::NextOf<TVRXFontFxEditorDlg>([](auto& effects) {
      effects.edangle->setValue(45);
      effects.accept();
    });
    Click(dlg.btnffx);
    EXPECT_EQ(dlg.test->Caption()->FontFX()->Angle(), 45);
    Click(dlg.ok);
  }));
  EXPECT_EQ(caption.FontFX()->Angle(), 45);
}

TEST_F(CaptionDialog, ResetGivesANewCaptionAndKeepsTheDialogOpen) {
  caption.SetAlignment(TVRXAlignment::agTopLeft);
  caption.SetMultiLine(true);
  caption.FontFX()->SetAngle(90);
  EXPECT_FALSE(Launch([](auto& dlg) {
    Click(dlg.reset);
    EXPECT_TRUE(dlg.isVisible());
    const TVRXCaption& shown = *dlg.test->Caption();
    EXPECT_EQ(shown.Caption(), QString());
    EXPECT_EQ(shown.Alignment(), TVRXCaption().Alignment());
    EXPECT_FALSE(shown.MultiLine());
    EXPECT_EQ(shown.FontFX()->Angle(), 0);
    EXPECT_EQ(dlg.cap->text(), QString());
    EXPECT_EQ(dlg.cmb->currentIndex(), static_cast<int>(TVRXCaption().Alignment()));
    EXPECT_FALSE(dlg.chk->isChecked());
  }));
  EXPECT_EQ(caption.Caption(), QStringLiteral("Old"));
  EXPECT_EQ(caption.FontFX()->Angle(), 90);
}
