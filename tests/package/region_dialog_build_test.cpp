// Building a mask in the region dialog.
#include <set>

#include "tests/package/RegionDialogTest.h"

using namespace pixeltest;

namespace {
const std::vector<TColor> Silver{clSilver};
}

class RegionBuild : public RegionDialog {
 protected:
  void SetUp() override {
    RegionDialog::SetUp();
    Load(BarOnSilver());
  }
  void Pick() { PressAt(Qt::LeftButton, 0, 0); }
  void Build() {
    dlg.pages->setCurrentIndex(1);
    Click(dlg.BuildButton);
  }
};

TEST_F(RegionBuild, WithoutColoursItAsksForOneAndBuildsNothing) {
  Build();
  EXPECT_EQ(prompts.informed,
            QStringList{QStringLiteral("Please choose at least one color to be transparent!")});
  EXPECT_FALSE(dlg.OKButton->isEnabled());
  EXPECT_TRUE(dlg.BuildButton->isEnabled());
  EXPECT_FALSE(dlg.mask->HasRegion());
  EXPECT_TRUE(dlg.mask->BorderPicture().isNull());
}

TEST_F(RegionBuild, ItCanBeConfirmedAfterwardsAndNotBuiltAgain) {
  Pick();
  Build();
  EXPECT_TRUE(dlg.OKButton->isEnabled());
  EXPECT_FALSE(dlg.BuildButton->isEnabled());
  EXPECT_TRUE(dlg.Progress->isHidden());
  EXPECT_TRUE(prompts.informed.isEmpty());
}

TEST_F(RegionBuild, EveryBorderStyleGivesTheMaskOfTheRoutine) {
  Pick();
  const char* const styles[] = {"None", "Single", "Raised", "Lowered", "Single-Raised", "Single-Lowered"};
  dlg.pages->setCurrentIndex(1);
  for (int i = 5; i >= 0; --i) {
    Choose(dlg.cb, QString::fromLatin1(styles[i]));
    EXPECT_TRUE(dlg.BuildButton->isEnabled()) << styles[i];
    Build();
    const TRegionBuild expected =
        BuildWindowRegion(BarOnSilver(), Silver, static_cast<TRegionBorder>(i), nullptr);
    ASSERT_FALSE(expected.RegionData().isEmpty());
    EXPECT_EQ(dlg.mask->RegionData(), expected.RegionData()) << styles[i];
    EXPECT_EQ(dlg.mask->BorderPicture(), expected.Border.Image()) << styles[i];
    EXPECT_TRUE(dlg.mask->StatePicture(0).isNull());
  }
}

TEST_F(RegionBuild, AllListedColoursAreTransparent) {
  Pick();
  PressAt(Qt::LeftButton, 8, 2);
  Build();
  EXPECT_EQ(dlg.mask->RegionData(),
            BuildWindowRegion(BarOnSilver(), {clSilver, clBlue}, TRegionBorder::None, nullptr).RegionData());
  EXPECT_NE(dlg.mask->RegionData(),
            BuildWindowRegion(BarOnSilver(), Silver, TRegionBorder::None, nullptr).RegionData());
}

TEST_F(RegionBuild, EveryButtonStyleStoresTwoStates) {
  dlg.SetButtonFace();
  Pick();
  dlg.pages->setCurrentIndex(1);
  const char* const styles[] = {"Win31", "Win40", "Simple"};
  for (int i = 2; i >= 0; --i) {
    Choose(dlg.cb2, QString::fromLatin1(styles[i]));
    EXPECT_TRUE(dlg.BuildButton->isEnabled()) << styles[i];
    Build();
    const TRegionBuild expected =
        BuildButtonRegion(BarOnSilver(), Silver, static_cast<TRegionButton>(i), nullptr);
    ASSERT_FALSE(expected.First == expected.Second);
    EXPECT_EQ(dlg.mask->RegionData(), expected.RegionData()) << styles[i];
    EXPECT_EQ(dlg.mask->StatePicture(0), expected.First.Image()) << styles[i];
    EXPECT_EQ(dlg.mask->StatePicture(1), expected.Second.Image()) << styles[i];
  }
}

TEST_F(RegionBuild, NothingCanBeChangedOrConfirmedWhileItRuns) {
  RunSteps steps;
  Pick();
  dlg.pages->setCurrentIndex(1);
  bool acted = false;
  steps.Next([&] {
    acted = true;
    EXPECT_FALSE(dlg.pages->isEnabled());
    EXPECT_FALSE(dlg.OKButton->isEnabled());
    EXPECT_TRUE(dlg.Progress->isVisible());
    Click(dlg.BuildButton);
  });
  Click(dlg.BuildButton);
  EXPECT_TRUE(acted);
  EXPECT_TRUE(dlg.OKButton->isEnabled());
  EXPECT_EQ(dlg.mask->RegionData(),
            BuildWindowRegion(BarOnSilver(), Silver, TRegionBorder::None, nullptr).RegionData());
}

// Wherever the run is: the first percentages are of the region, those from 50 on of the border.
TEST_F(RegionBuild, CancelEndsItAtTheNextPoint) {
  for (const int from : {0, 20, 55, 80}) {
    RunSteps steps;
    SetUp();
    dlg.cl->clear();
    Pick();
    Choose(dlg.cb, QStringLiteral("Raised"));
    dlg.pages->setCurrentIndex(1);
    int handled = 0, percent = -1;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      if (percent >= 0) {
        ++handled;
      } else if (dlg.Progress->Percent() >= from) {
        percent = dlg.Progress->Percent();
        Click(dlg.CancelButton);
      }
    });
    timer.start(0);
    Click(dlg.BuildButton);
    EXPECT_EQ(handled, 0) << from;
    EXPECT_GE(percent, from);
    EXPECT_LT(percent, 100);
    EXPECT_EQ(dlg.Progress->Percent(), percent) << from;
    EXPECT_FALSE(dlg.isVisible());
    EXPECT_EQ(dlg.result(), QDialog::Rejected);
    EXPECT_FALSE(dlg.mask->HasRegion());
    EXPECT_TRUE(dlg.mask->BorderPicture().isNull());
    EXPECT_TRUE(dlg.Result->sizeHint().isEmpty());
  }
}

TEST_F(RegionBuild, EscapeAndClosingEndItToo) {
  for (const bool escape : {false, true}) {
    RunSteps steps;
    SetUp();
    Pick();
    dlg.pages->setCurrentIndex(1);
    steps.Next([&] {
      if (escape)
        QTest::keyClick(&dlg, Qt::Key_Escape);
      else
        dlg.close();
    });
    Click(dlg.BuildButton);
    EXPECT_FALSE(dlg.isVisible());
    EXPECT_FALSE(dlg.mask->HasRegion()) << escape;
  }
}

TEST_F(RegionBuild, EventsAreHandledWhileTheBorderIsPainted) {
  RunSteps steps;
  Pick();
  Choose(dlg.cb, QStringLiteral("Single"));
  dlg.pages->setCurrentIndex(1);
  std::set<int> percents;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { percents.insert(dlg.Progress->Percent()); });
  timer.start(0);
  Click(dlg.BuildButton);
  const TRegionBuild build = BuildWindowRegion(BarOnSilver(), Silver, TRegionBorder::Single, nullptr);
  const TRect box = build.Region->Bounds();
  for (int x = box.Left; x <= box.Right; ++x)
    EXPECT_TRUE(percents.contains(50 + static_cast<int>(RoundHalfEven(50 * (x + 1), box.Right)))) << x;
}

TEST_F(RegionBuild, CompressionAndDepthAreWrittenToTheMask) {
  dlg.pages->setCurrentIndex(1);
  dlg.ccb->click();
  EXPECT_TRUE(dlg.mask->Compress());
  dlg.ccb->click();
  EXPECT_FALSE(dlg.mask->Compress());
  const char* const depths[] = {"spfDefault", "spfMono", "spf4bit", "spf8bit", "spf16bit"};
  for (int i = 4; i >= 0; --i) {
    Choose(dlg.colb, QString::fromLatin1(depths[i]));
    EXPECT_EQ(static_cast<int>(dlg.mask->ColorDepth()), i);
    EXPECT_EQ(dlg.colb->currentIndex(), i);
  }
}

TEST_F(RegionBuild, AListedColourIsTenPixelsHigh) {
  EXPECT_EQ(dlg.cl->sizeHintForRow(0), -1);
  Pick();
  EXPECT_EQ(dlg.cl->visualItemRect(dlg.cl->item(0)).height(), 10);
}
