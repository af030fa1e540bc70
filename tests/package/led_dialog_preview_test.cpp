// The LED dialog at work: every control changes the preview at once, and shows what the preview accepted.
#include "designintf/IdeTheme.h"
#include "library/values/LightColor.h"
#include "tests/package/LedTest.h"

using namespace ledtest;

namespace {
class CountingDlg : public TVRXLEDEditorDlg {
 public:
  using TVRXLEDEditorDlg::TVRXLEDEditorDlg;
  int loads = 0;

 protected:
  void LoadControls() override {
    ++loads;
    TVRXLEDEditorDlg::LoadControls();
  }
};

Look Shown(const TVRXLEDEditorDlg& dlg) {
  return {dlg.edhs->value(),    dlg.edt->value(),     dlg.edvs->value(),
          dlg.cmbb->Selected(), dlg.cmbL->Selected(), dlg.chk->isChecked()};
}
}  // namespace

TEST_F(LedDialog, SetLabelsLoadsEveryControlFromThePreview) {
  TVRXLEDEditorDlg dlg(nullptr);
  Apply(Other, *dlg.test->LED());
  dlg.SetLabels();
  EXPECT_EQ(Shown(dlg), Other);
  EXPECT_EQ(LookOf(*dlg.test->LED()), Other);
}

TEST_F(LedDialog, SetLabelsShowsAColourWithoutAName) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.test->LED()->SetColor(0, TColor(0x123456));
  dlg.SetLabels();
  EXPECT_EQ(dlg.cmbb->Selected(), TColor(0x123456));
  EXPECT_EQ(dlg.cmbb->currentText(), QStringLiteral("$00123456"));
}

TEST_F(LedDialog, TypingASizeChangesThatSizeOnly) {
  TVRXLEDEditorDlg dlg(nullptr);
  Apply(Other, *dlg.test->LED());
  dlg.SetLabels();
  ShowActive(dlg);
  Look expected = Other;
  Type(*dlg.edhs, QStringLiteral("40"));
  expected.horz = 40;
  EXPECT_EQ(LookOf(*dlg.test->LED()), expected);
  Type(*dlg.edt, QStringLiteral("7"));
  expected.thickness = 7;
  EXPECT_EQ(LookOf(*dlg.test->LED()), expected);
  Type(*dlg.edvs, QStringLiteral("33"));
  expected.vert = 33;
  EXPECT_EQ(LookOf(*dlg.test->LED()), expected);
  EXPECT_EQ(Shown(dlg), expected);
}

TEST_F(LedDialog, TheArrowKeysOfASpinEditChangeThePreviewAtOnce) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  const int before = dlg.test->LED()->VertSize();
  dlg.edvs->setFocus();
  QTest::keyClick(dlg.edvs, Qt::Key_Up);
  EXPECT_EQ(dlg.test->LED()->VertSize(), before + 1);
}

TEST_F(LedDialog, AThicknessTheLedRefusesIsShownAsTheOneItKept) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  Type(*dlg.edt, QStringLiteral("77"));
  EXPECT_EQ(dlg.test->LED()->Thickness(), TVRXLED::MaxThickness);
  EXPECT_EQ(dlg.edt->value(), TVRXLED::MaxThickness);
}

TEST_F(LedDialog, EightCanBeTypedWithALeadingNothing) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  for (TVRXSpinEdit* edit : {dlg.edhs, dlg.edvs, dlg.edt}) {
    Type(*edit, QStringLiteral("08"));
    EXPECT_EQ(edit->value(), 8);
    EXPECT_EQ(edit->text(), QStringLiteral("8"));
  }
  const Look now = LookOf(*dlg.test->LED());
  EXPECT_EQ(now.horz, 8);
  EXPECT_EQ(now.vert, 8);
  EXPECT_EQ(now.thickness, 8);
}

TEST_F(LedDialog, ASizeOfNothingIsKept) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  Type(*dlg.edhs, QStringLiteral("0"));
  EXPECT_EQ(dlg.test->LED()->HorzSize(), 0);
  EXPECT_EQ(dlg.edhs->value(), 0);
}

TEST_F(LedDialog, ASizeOf255IsKept) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  Type(*dlg.edhs, QStringLiteral("255"));
  EXPECT_EQ(dlg.test->LED()->HorzSize(), 255);
}

TEST_F(LedDialog, ChoosingAColourChangesThatColourOnly) {
  TVRXLEDEditorDlg dlg(nullptr);
  Apply(Other, *dlg.test->LED());
  dlg.SetLabels();
  ShowActive(dlg);
  Look expected = Other;
  ChooseRow(*dlg.cmbb, dlg.cmbb->findText(QStringLiteral("clFuchsia")));
  expected.active = clFuchsia;
  EXPECT_EQ(LookOf(*dlg.test->LED()), expected);
  ChooseRow(*dlg.cmbL, dlg.cmbL->findText(QStringLiteral("clBtnFace")));
  expected.inactive = clBtnFace;
  EXPECT_EQ(LookOf(*dlg.test->LED()), expected);
  EXPECT_EQ(Shown(dlg), expected);
}

TEST_F(LedDialog, EveryPredefinedColourSetsBothColoursAndClearsTheSelection) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  for (int i = 0; i < 7; ++i) {
    ChooseRow(*dlg.pred, i);
    const TVRXLightColors pair = VRXGetLightColors(static_cast<TVRXLightColor>(i));
    EXPECT_EQ(dlg.test->LED()->ActiveColor(), pair.Active) << i;
    EXPECT_EQ(dlg.test->LED()->InActiveColor(), pair.Inactive) << i;
    EXPECT_EQ(dlg.cmbb->Selected(), pair.Active) << i;
    EXPECT_EQ(dlg.cmbL->Selected(), pair.Inactive) << i;
    EXPECT_EQ(dlg.pred->currentIndex(), -1) << i;
  }
}

TEST_F(LedDialog, ThePredefinedPairsAreSevenDifferentOnes) {
  QSet<QPair<uint, uint>> pairs;
  for (int i = 0; i < 7; ++i) {
    const TVRXLightColors pair = VRXGetLightColors(static_cast<TVRXLightColor>(i));
    pairs.insert({static_cast<uint>(pair.Active), static_cast<uint>(pair.Inactive)});
  }
  EXPECT_EQ(pairs.size(), 7);
}

TEST_F(LedDialog, ThePredefinedListLeavesSizesAlone) {
  TVRXLEDEditorDlg dlg(nullptr);
  Apply(Other, *dlg.test->LED());
  dlg.SetLabels();
  ShowActive(dlg);
  ChooseRow(*dlg.pred, 2);
  const Look now = LookOf(*dlg.test->LED());
  EXPECT_EQ(now.horz, Other.horz);
  EXPECT_EQ(now.vert, Other.vert);
  EXPECT_EQ(now.thickness, Other.thickness);
  EXPECT_EQ(now.disabledDigits, Other.disabledDigits);
}

TEST_F(LedDialog, TheCheckBoxChangesThePreviewWithoutLoadingTheControlsAgain) {
  CountingDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  const int before = dlg.loads;
  dlg.chk->setFocus();
  QTest::keyClick(dlg.chk, Qt::Key_Space);
  EXPECT_TRUE(dlg.test->LED()->DisabledDigits());
  QTest::keyClick(dlg.chk, Qt::Key_Space);
  EXPECT_FALSE(dlg.test->LED()->DisabledDigits());
  EXPECT_EQ(dlg.loads, before);
}

TEST_F(LedDialog, BeforeTheFirstActivationNoChangeLoadsTheControlsAgain) {
  CountingDlg dlg(nullptr);
  EXPECT_FALSE(dlg.activated);
  dlg.edhs->setValue(30);
  dlg.edt->setValue(77);
  emit dlg.cmbb->Change();
  dlg.pred->setCurrentIndex(3);
  EXPECT_EQ(dlg.loads, 0);
  EXPECT_EQ(dlg.test->LED()->HorzSize(), 30);
  EXPECT_EQ(dlg.edt->value(), 77);  // nobody put it right yet
  EXPECT_EQ(dlg.pred->currentIndex(), -1);
}

TEST_F(LedDialog, AfterTheFirstActivationChangesLoadTheControlsAgain) {
  CountingDlg dlg(nullptr);
  ShowActive(dlg);
  EXPECT_TRUE(dlg.activated);
  int before = dlg.loads;
  dlg.edhs->setValue(30);
  EXPECT_GT(dlg.loads, before);
  before = dlg.loads;
  ChooseRow(*dlg.cmbb, dlg.cmbb->findText(QStringLiteral("clRed")));
  EXPECT_GT(dlg.loads, before);
  before = dlg.loads;
  ChooseRow(*dlg.pred, 1);
  EXPECT_GT(dlg.loads, before);
}

TEST_F(LedDialog, ResetBringsTheDefaultsBackIntoPreviewAndControls) {
  TVRXLEDEditorDlg dlg(nullptr);
  Apply(Other, *dlg.test->LED());
  dlg.SetLabels();
  ShowActive(dlg);
  QTest::mouseClick(dlg.reset, Qt::LeftButton);
  const Look defaults = LookOf(TVRXLED());
  EXPECT_EQ(LookOf(*dlg.test->LED()), defaults);
  EXPECT_EQ(Shown(dlg), defaults);
  EXPECT_NE(defaults, Other);
  EXPECT_TRUE(dlg.isVisible());
}

TEST_F(LedDialog, ThePreviewIsPaintedInTheChosenColours) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  const auto shows = [&](TColor color) {
    const QImage picture = dlg.testView->grab().toImage();
    const QRgb wanted = ToQColor(color).rgb();
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if ((picture.pixel(x, y) | 0xFF000000u) == wanted) return true;
    return false;
  };
  EXPECT_FALSE(shows(clFuchsia));
  Type(*dlg.edt, QStringLiteral("4"));
  ChooseRow(*dlg.cmbb, dlg.cmbb->findText(QStringLiteral("clFuchsia")));
  EXPECT_TRUE(shows(clFuchsia));
}

namespace {
// What is to be seen of a colour in a widget.
QRect Shown(QWidget& widget, TColor color) {
  const QImage picture = widget.grab().toImage();
  QRect box;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixelColor(x, y) == ToQColor(color)) box |= QRect(x, y, 1, 1);
  return box;
}
}  // namespace

TEST_F(LedDialog, ThePreviewStandsAtTheTopRightAndGrowsToTheLeft) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.test->SetColor(clFuchsia);
  dlg.test->SetCaption(QStringLiteral("12"));
  dlg.SetLabels();
  ShowActive(dlg);
  const QRect before = Shown(*dlg.testView, clFuchsia);
  EXPECT_EQ(before.top(), 0);
  EXPECT_EQ(before.right(), dlg.testView->width() - 1);
  EXPECT_EQ(before.size(), dlg.test->BoundsRect().size());
  Type(*dlg.edhs, QStringLiteral("30"));
  const QRect after = Shown(*dlg.testView, clFuchsia);
  EXPECT_EQ(after.topRight(), before.topRight());
  EXPECT_LT(after.left(), before.left());
}

TEST_F(LedDialog, ThePreviewHasItsRealSizeAndIsScrolledWhenItDoesNotFit) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  auto* box = qobject_cast<QScrollArea*>(dlg.testView->parentWidget()->parentWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_FALSE(box->horizontalScrollBar()->isVisible());
  for (const char* size : {"60", "255"}) {
    Type(*dlg.edhs, QString::fromLatin1(size));
    Type(*dlg.edvs, QString::fromLatin1(size));
    QCoreApplication::processEvents();
    EXPECT_GE(dlg.testView->width(), dlg.test->Width()) << size;
    EXPECT_TRUE(box->horizontalScrollBar()->isVisible()) << size;
    EXPECT_EQ(Shown(*dlg.testView, clBlack).size(), dlg.test->BoundsRect().size()) << size;
  }
  EXPECT_EQ(dlg.size(), QSize(533, 318));
}

TEST_F(LedDialog, ThePreviewStaysOutOfTheThemeWithoutTheBoxItIsScrolledIn) {
  TVRXLEDEditorDlg dlg(nullptr);
  EXPECT_FALSE(IsIDEThemed(*dlg.testView));
  EXPECT_TRUE(IsIDEThemed(*dlg.testView->parentWidget()));
}

TEST_F(LedDialog, TheClosedListOfPredefinedColoursAppliesNothing) {
  TVRXLEDEditorDlg dlg(nullptr);
  dlg.SetLabels();
  ShowActive(dlg);
  const Look before = LookOf(*dlg.test->LED());
  dlg.pred->setFocus();
  for (const auto key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_L}) QTest::keyClick(dlg.pred, key);
  EXPECT_EQ(LookOf(*dlg.test->LED()), before);
  QTest::keyClick(dlg.pred, Qt::Key_Down, Qt::AltModifier);
  for (int i = 0; i < 2; ++i) QTest::keyClick(dlg.pred->view(), Qt::Key_Down);
  EXPECT_EQ(LookOf(*dlg.test->LED()), before);
  QTest::keyClick(dlg.pred->view(), Qt::Key_Return);
  EXPECT_EQ(dlg.test->LED()->ActiveColor(), VRXGetLightColors(TVRXLightColor::lcRed).Active);
}
