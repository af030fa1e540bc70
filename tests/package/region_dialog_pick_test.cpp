// Loading a picture into the region dialog and picking colours in it.
#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

TEST_F(RegionDialog, OpensWithNothingToBuildAndNothingToConfirm) {
  EXPECT_EQ(dlg.windowTitle(), QStringLiteral("Region From Bitmap Editor"));
  EXPECT_EQ(dlg.DimLabel->text(), QStringLiteral("Bitmap size:"));
  EXPECT_FALSE(dlg.BuildButton->isEnabled());
  EXPECT_FALSE(dlg.OKButton->isEnabled());
  EXPECT_FALSE(dlg.buttonFace);
  EXPECT_EQ(Listed(), "");
}

TEST_F(RegionDialog, ALoadedPictureIsShownWithItsSizeAndCanBeBuilt) {
  Load(Colorful(60, 50));
  EXPECT_EQ(dlg.DimLabel->text(), QStringLiteral("Bitmap size: 60x50"));
  EXPECT_TRUE(dlg.Image1->Picture() == Colorful(60, 50));
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
}

TEST_F(RegionDialog, ACancelledFileDialogChangesNothing) {
  Load(Colorful(60, 50));
  dlg.BuildButton->setEnabled(false);
  prompts.file.clear();
  Click(dlg.LoadButton);
  EXPECT_EQ(dlg.DimLabel->text(), QStringLiteral("Bitmap size: 60x50"));
  EXPECT_FALSE(dlg.BuildButton->isEnabled());
}

TEST_F(RegionDialog, ALeftClickPicksTheColourUnderTheMouse) {
  Load(Colorful(60, 50));
  dlg.BuildButton->setEnabled(false);
  PressAt(Qt::LeftButton, 3, 4);
  EXPECT_EQ(Listed(), "$0064140C");
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
  PressAt(Qt::LeftButton, 59, 49);
  EXPECT_EQ(Listed(), "$0064140C $0064F5EC");
}

TEST_F(RegionDialog, AColourWithANameIsListedByIt) {
  Load(BarOnSilver());
  PressAt(Qt::LeftButton, 3, 5);
  PressAt(Qt::LeftButton, 0, 0);
  EXPECT_EQ(Listed(), "clRed clSilver");
}

TEST_F(RegionDialog, TheSameColourTwiceIsOneEntryAndEnablesBuildAgain) {
  Load(BarOnSilver());
  PressAt(Qt::LeftButton, 0, 0);
  dlg.BuildButton->setEnabled(false);
  PressAt(Qt::LeftButton, 1, 0);
  EXPECT_EQ(Listed(), "clSilver");
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
}

TEST_F(RegionDialog, AClickBesideThePicturePicksNothing) {
  Load(BarOnSilver());
  PressAt(Qt::LeftButton, -1, 3);
  PressAt(Qt::LeftButton, 14, 3);
  PressAt(Qt::LeftButton, 3, 11);
  PressAt(Qt::RightButton, 3, -1);
  EXPECT_EQ(Listed(), "");
  EXPECT_EQ(dlg.ViewLabel->text(), QString());
}

TEST_F(RegionDialog, DeleteAndBackspaceRemoveTheSelectedColour) {
  Load(BarOnSilver());
  PressAt(Qt::LeftButton, 0, 0);
  PressAt(Qt::LeftButton, 3, 5);
  PressAt(Qt::LeftButton, 8, 2);
  ASSERT_EQ(Listed(), "clSilver clRed clBlue");
  dlg.cl->setCurrentRow(1);
  QTest::keyClick(dlg.cl, Qt::Key_Delete);
  EXPECT_EQ(Listed(), "clSilver clBlue");
  dlg.cl->setCurrentRow(0);
  QTest::keyClick(dlg.cl, Qt::Key_Backspace);
  EXPECT_EQ(Listed(), "clBlue");
  dlg.cl->setCurrentRow(0);
  dlg.cl->clearSelection();
  QTest::keyClick(dlg.cl, Qt::Key_Delete);
  EXPECT_EQ(Listed(), "clBlue") << "nothing was selected";
}

TEST_F(RegionDialog, TheZoomShowsThePixelsFromTheRightClickOn) {
  Load(Colorful(60, 50));
  PressAt(Qt::RightButton, 5, 6);
  EXPECT_EQ(dlg.ViewLabel->text(), QStringLiteral("(5x6)"));
  for (int row = 0; row < 20; ++row)
    for (int column = 0; column < 20; ++column)
      ASSERT_EQ(CellColor(column, row), ColorAt(5 + column, 6 + row)) << column << ' ' << row;
  EXPECT_EQ(Listed(), "");
}

TEST_F(RegionDialog, TheZoomEndsAtTheEdgesOfThePicture) {
  Load(Colorful(60, 50));
  const std::tuple<int, int, const char*> clicks[] = {
      {40, 30, "(40x30)"}, {41, 31, "(40x30)"}, {59, 49, "(40x30)"}, {59, 2, "(40x2)"}, {2, 49, "(2x30)"}};
  for (const auto& [x, y, text] : clicks) {
    PressAt(Qt::RightButton, x, y);
    EXPECT_EQ(dlg.ViewLabel->text().toStdString(), text);
  }
  PressAt(Qt::RightButton, 59, 49);
  EXPECT_EQ(CellColor(0, 0), ColorAt(40, 30));
  EXPECT_EQ(CellColor(19, 19), ColorAt(59, 49));
}

TEST_F(RegionDialog, ASmallPictureIsZoomedFromANegativeOriginWithInvalidColours) {
  Load(Colorful(12, 8));
  PressAt(Qt::RightButton, 3, 3);
  EXPECT_EQ(dlg.ViewLabel->text(), QStringLiteral("(-8x-12)"));
  EXPECT_EQ(CellColor(0, 0), clInvalid);
  EXPECT_EQ(CellColor(7, 19), clInvalid);
  EXPECT_EQ(CellColor(19, 11), clInvalid);
  EXPECT_EQ(CellColor(8, 12), ColorAt(0, 0));
  EXPECT_EQ(CellColor(19, 19), ColorAt(11, 7));
}

TEST_F(RegionDialog, TheZoomBoxPicksWhatItShows) {
  Load(Colorful(60, 50));
  PressCell(2, 3);
  EXPECT_EQ(Listed(), "") << "nothing is zoomed yet";
  PressAt(Qt::RightButton, 5, 6);
  dlg.BuildButton->setEnabled(false);
  QTest::mouseClick(dlg.zoom, Qt::RightButton, Qt::NoModifier, CellPlace(2, 3));
  EXPECT_EQ(Listed(), "");
  PressCell(2, 3);
  EXPECT_EQ(Listed(), "$00642D1C");
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
}

TEST_F(RegionDialog, ACellBeyondThePicturePicksTheColourItShows) {
  Load(Colorful(12, 8));
  PressAt(Qt::RightButton, 3, 3);
  MoveTo(dlg.zoom, CellPlace(0, 0));
  EXPECT_EQ(dlg.cc->text(), ColorToString(clInvalid));
  dlg.BuildButton->setEnabled(false);
  PressCell(0, 0);
  PressCell(1, 0);
  EXPECT_EQ(Listed(), ColorToString(clInvalid).toStdString());
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
  const auto at = [](QWidget& widget, QPoint place) { return widget.grab().toImage().pixelColor(place); };
  const QRect item = dlg.cl->visualItemRect(dlg.cl->item(0));
  EXPECT_EQ(at(*dlg.cl->viewport(), item.topLeft() + QPoint(3, 1)), at(*dlg.zoom, CellPlace(0, 0)));
  // No pixel of the picture has it.
  dlg.pages->setCurrentIndex(1);
  Click(dlg.BuildButton);
  EXPECT_EQ(dlg.mask->Region(), TRegion(TRect{0, 0, 11, 8}));
}

TEST_F(RegionDialog, TheColourUnderTheMouseIsShown) {
  Load(BarOnSilver());
  const auto ground = [&] { return dlg.cc->palette().color(QPalette::Window); };
  MoveTo(dlg.Image1, PlaceOf(3, 5));
  EXPECT_EQ(dlg.cc->text(), QStringLiteral("clRed"));
  EXPECT_EQ(ground(), QColor(Qt::red));
  PressAt(Qt::RightButton, 0, 0);
  // The picture is 14x11, so that its first pixel is in the cell (6, 9).
  MoveTo(dlg.zoom, CellPlace(6 + 8, 9 + 2));
  EXPECT_EQ(dlg.cc->text(), QStringLiteral("clBlue"));
  EXPECT_EQ(ground(), QColor(Qt::blue));
  MoveTo(dlg.Image1, PlaceOf(-3, 5));
  EXPECT_EQ(dlg.cc->text(), QString());
}

TEST_F(RegionDialog, NoMoreThanFiveHundredAndOneColoursAreListed) {
  Load(Colorful(26, 20));
  for (int i = 0; i < 501; ++i) PressAt(Qt::LeftButton, i % 26, i / 26);
  EXPECT_EQ(dlg.cl->count(), 501);
  EXPECT_TRUE(prompts.informed.isEmpty());
  PressAt(Qt::LeftButton, 0, 0);
  EXPECT_TRUE(prompts.informed.isEmpty()) << "a listed colour needs no room";
  PressAt(Qt::LeftButton, 501 % 26, 501 / 26);
  EXPECT_EQ(dlg.cl->count(), 501);
  EXPECT_EQ(prompts.informed.size(), 1);
}
