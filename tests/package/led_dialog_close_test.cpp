// Closing the LED dialog: results, custom colours, errors.
#include "library_design/ColorDialogs.h"
#include "rtl/Exceptions.h"
#include "tests/package/LedTest.h"
#include "tests/support/Prompted.h"

using namespace ledtest;

namespace {
int ResultOf(std::function<void(TVRXLEDEditorDlg&)> act) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  modal::NextOf<TVRXLEDEditorDlg>(std::move(act));
  return dlg.ShowModal();
}
QStringList Saved(TColor color) { return CustomColorEntries({color}); }

class ThrowingHost : public IControlHost {
 public:
  void ControlChanged(TControl&) override { throw Exception(QStringLiteral("The view is broken.")); }
};
}  // namespace

TEST_F(LedDialog, OkGivesOneAndEverythingElseTwo) {
  EXPECT_EQ(ResultOf([](auto& dlg) { QTest::mouseClick(dlg.ok, Qt::LeftButton); }), 1);
  EXPECT_EQ(ResultOf([](auto& dlg) { QTest::mouseClick(dlg.Button1, Qt::LeftButton); }), 2);
  EXPECT_EQ(ResultOf([](auto& dlg) { dlg.close(); }), 2);
}

TEST_F(LedDialog, ReturnConfirmsAndEscapeCancels) {
  EXPECT_EQ(ResultOf([](auto& dlg) { QTest::keyClick(&dlg, Qt::Key_Return); }), 1);
  EXPECT_EQ(ResultOf([](auto& dlg) { QTest::keyClick(&dlg, Qt::Key_Escape); }), 2);
  EXPECT_EQ(ResultOf([](auto& dlg) { QTest::keyClick(dlg.edhs, Qt::Key_Return); }), 1);
}

TEST_F(LedDialog, SavedCustomColoursAreHeldByTheFirstComboAndNotListed) {
  SaveIDECustomColors(Saved(TColor(0x332211)));
  const TVRXLEDEditorDlg dlg(nullptr);
  EXPECT_EQ(dlg.cmbb->CustomColors(), Saved(TColor(0x332211)));
  EXPECT_EQ(dlg.cmbb->findText(QStringLiteral("$00332211")), -1);
}

TEST_F(LedDialog, AColourChosenThroughTheFirstButtonIsTheActiveOne) {
  Look now{};
  ResultOf([&](auto& dlg) {
    modal::NextOf<QColorDialog>([](QColorDialog& colors) {
      colors.setCurrentColor(QColor(1, 2, 3));
      colors.accept();
    });
    QTest::mouseClick(dlg.bt1, Qt::LeftButton);
    now = LookOf(*dlg.test->LED());
    dlg.reject();
  });
  EXPECT_EQ(now.active, RGBColor(1, 2, 3));
  EXPECT_EQ(now.inactive, TVRXLED().InActiveColor());
}

TEST_F(LedDialog, AColourChosenThroughTheSecondButtonIsTheInactiveOne) {
  Look now{};
  ResultOf([&](auto& dlg) {
    modal::NextOf<ColorEnhDialog>([](ColorEnhDialog& colors) {
      AddInEnhDialog(colors, RGBColor(9, 8, 7));
      colors.accept();
    });
    QTest::mouseClick(dlg.bt2, Qt::LeftButton);
    now = LookOf(*dlg.test->LED());
    dlg.reject();
  });
  EXPECT_EQ(now.inactive, RGBColor(9, 8, 7));
  EXPECT_EQ(now.active, TVRXLED().ActiveColor());
}

TEST_F(LedDialog, ACancelledColourDialogChangesNoColour) {
  Look now{};
  ResultOf([&](auto& dlg) {
    for (QToolButton* button : {dlg.bt1, dlg.bt2}) {
      modal::Next([](QDialog& colors) { colors.reject(); });
      QTest::mouseClick(button, Qt::LeftButton);
    }
    now = LookOf(*dlg.test->LED());
    dlg.reject();
  });
  Look before = LookOf(TVRXLED());
  before.horz = 9;
  before.vert = 7;
  EXPECT_EQ(now, before);
}

TEST_F(LedDialog, ACustomColourOfTheFirstButtonIsSavedOnOkAndOnCancel) {
  for (const bool confirm : {true, false}) {
    SaveIDECustomColors({});
    ResultOf([confirm](auto& dlg) {
      modal::Next([](QDialog& colors) {
        AddInColorDialog(colors, RGBColor(17, 34, 51));
        colors.reject();
      });
      QTest::mouseClick(dlg.bt1, Qt::LeftButton);
      EXPECT_TRUE(LoadIDECustomColors().isEmpty());  // only when the dialog closes
      QTest::mouseClick(confirm ? dlg.ok : dlg.Button1, Qt::LeftButton);
    });
    EXPECT_EQ(LoadIDECustomColors(), Saved(RGBColor(17, 34, 51))) << confirm;
  }
}

TEST_F(LedDialog, ACustomColourOfTheSecondButtonIsSavedOnOkCancelAndClose) {
  for (int way = 0; way < 3; ++way) {
    SaveIDECustomColors({});
    ResultOf([way](auto& dlg) {
      modal::Next([](QDialog& colors) {
        AddInEnhDialog(colors, RGBColor(51, 34, 17));
        colors.reject();
      });
      QTest::mouseClick(dlg.bt2, Qt::LeftButton);
      way == 0 ? dlg.accept() : way == 1 ? dlg.reject() : static_cast<void>(dlg.close());
    });
    EXPECT_EQ(LoadIDECustomColors(), Saved(RGBColor(51, 34, 17))) << way;
  }
}

TEST_F(LedDialog, BothButtonsWorkOnOneListOfCustomColours) {
  ResultOf([](auto& dlg) {
    modal::Next([](QDialog& colors) {
      AddInColorDialog(colors, RGBColor(1, 1, 1));
      colors.reject();
    });
    QTest::mouseClick(dlg.bt1, Qt::LeftButton);
    modal::Next([](QDialog& colors) {
      AddInEnhDialog(colors, RGBColor(2, 2, 2));
      colors.reject();
    });
    QTest::mouseClick(dlg.bt2, Qt::LeftButton);
    EXPECT_EQ(dlg.cmbb->CustomColors(), CustomColorEntries({RGBColor(1, 1, 1), RGBColor(2, 2, 2)}));
    dlg.reject();
  });
  EXPECT_EQ(LoadIDECustomColors(), CustomColorEntries({RGBColor(1, 1, 1), RGBColor(2, 2, 2)}));
}

TEST_F(LedDialog, AnExceptionOfAHandlerIsToldAndTheDialogStaysWithAllThatWasSet) {
  ScriptedPrompts prompts;
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ThrowingHost host;
  modal::NextOf<TVRXLEDEditorDlg>([&](TVRXLEDEditorDlg& shown) {
    shown.test->SetHost(&host);
    shown.edhs->setValue(50);
    EXPECT_EQ(prompts.warned, QStringList{QStringLiteral("The view is broken.")});
    EXPECT_TRUE(shown.isVisible());
    EXPECT_EQ(shown.edhs->value(), 50);
    shown.test->SetHost(nullptr);
    QTest::mouseClick(shown.ok, Qt::LeftButton);
  });
  EXPECT_EQ(dlg.ShowModal(), 1);
  EXPECT_EQ(dlg.test->LED()->HorzSize(), 50);
}

TEST_F(LedDialog, ReturnOnCancelCancelsAndOnResetResets) {
  EXPECT_EQ(ResultOf([](auto& dlg) {
              Apply(Other, *dlg.test->LED());
              dlg.reset->setFocus();
              QTest::keyClick(dlg.reset, Qt::Key_Return);
              EXPECT_TRUE(dlg.isVisible());
              EXPECT_EQ(LookOf(*dlg.test->LED()), LookOf(TVRXLED()));
              dlg.Button1->setFocus();
              QTest::keyClick(dlg.Button1, Qt::Key_Return);
            }),
            2);
}

TEST_F(LedDialog, ReturnOnAColourButtonOpensItsDialog) {
  ResultOf([](auto& dlg) {
    modal::NextOf<QColorDialog>([](QColorDialog& colors) { colors.reject(); });
    QTest::keyClick(dlg.bt1, Qt::Key_Return);
    modal::NextOf<ColorEnhDialog>([](ColorEnhDialog& colors) { colors.reject(); });
    QTest::keyClick(dlg.bt2, Qt::Key_Return);
    EXPECT_TRUE(dlg.isVisible());
    dlg.reject();
  });
}

TEST_F(LedDialog, AColourAddedThroughTheFirstButtonLeavesTheSavedOnes) {
  SaveIDECustomColors(CustomColorEntries({clNavy, clTeal}));
  ResultOf([](auto& dlg) {
    modal::Next([](QDialog& colors) {
      AddInColorDialog(colors, RGBColor(1, 1, 1));
      colors.reject();
    });
    QTest::mouseClick(dlg.bt1, Qt::LeftButton);
    dlg.reject();
  });
  EXPECT_EQ(LoadIDECustomColors(), CustomColorEntries({clNavy, clTeal, RGBColor(1, 1, 1)}));
}

TEST_F(LedDialog, TheSecondListAddsToTheOneListOfCustomColours) {
  ResultOf([](auto& dlg) {
    EXPECT_EQ(dlg.cmbL->Styles(), dlg.cmbb->Styles());
    modal::NextOf<QColorDialog>([](QColorDialog& colors) {
      AddInColorDialog(colors, RGBColor(7, 7, 7));
      colors.reject();
    });
    ChooseRow(*dlg.cmbL, dlg.cmbL->findText(QStringLiteral("Custom...")));
    modal::Next([](QDialog& colors) {
      AddInEnhDialog(colors, RGBColor(8, 8, 8));
      colors.reject();
    });
    QTest::mouseClick(dlg.bt2, Qt::LeftButton);
    for (const TVRXColorComboBox* combo : {dlg.cmbb, dlg.cmbL})
      EXPECT_EQ(combo->CustomColors(), CustomColorEntries({RGBColor(7, 7, 7), RGBColor(8, 8, 8)}));
    dlg.reject();
  });
  EXPECT_EQ(LoadIDECustomColors(), CustomColorEntries({RGBColor(7, 7, 7), RGBColor(8, 8, 8)}));
}

TEST_F(LedDialog, PredefinedColoursDoNotPileUpInTheLists) {
  ResultOf([](auto& dlg) {
    const int before = dlg.cmbb->count();
    for (int i = 0; i < 7; ++i) ChooseRow(*dlg.pred, i);
    EXPECT_LE(dlg.cmbb->count(), before + 1);
    dlg.reject();
  });
}
